// Runs of ids against a set that keeps each id.

#include "platform/zuk_attr_data/id_runs.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace {

using zu::platform::id_run;
using zu::platform::id_runs;

using runs = std::vector<id_run>;

TEST(id_runs, runs_that_touch_become_one) {
  id_runs ids;
  ids.insert({5, 9});
  ids.insert({1, 2});
  ids.insert({3, 4});
  EXPECT_EQ(ids.runs(), (runs{{1, 9}}));
  EXPECT_EQ(ids.count(), 9u);
}
TEST(id_runs, a_hole_splits_a_run) {
  id_runs ids;
  ids.insert({0, 9});
  ids.erase({3, 5});
  EXPECT_EQ(ids.runs(), (runs{{0, 2}, {6, 9}}));
  EXPECT_TRUE(ids.contains(2));
  EXPECT_FALSE(ids.contains(3));
  EXPECT_TRUE(ids.contains(6));
}
TEST(id_runs, the_highest_id_is_an_id_like_others) {
  id_runs ids;
  ids.insert({UINT64_MAX - 1, UINT64_MAX});
  ids.insert({0, 0});
  EXPECT_TRUE(ids.contains(UINT64_MAX));
  EXPECT_FALSE(ids.contains(1));
  ids.erase({UINT64_MAX, UINT64_MAX});
  EXPECT_EQ(ids.runs(), (runs{{0, 0}, {UINT64_MAX - 1, UINT64_MAX - 1}}));
  ids.insert({0, UINT64_MAX});
  EXPECT_EQ(ids.runs().size(), 1u);
}
TEST(id_runs, an_answer_does_not_depend_on_the_question_before) {
  id_runs ids;
  for (std::uint64_t i = 0; i < 100; ++i) ids.insert({i * 10, i * 10 + 4});
  std::mt19937 random(3);
  for (int i = 0; i < 10000; ++i) {
    std::uint64_t id = random() % 1100;
    EXPECT_EQ(ids.contains(id), id < 1000 && id % 10 < 5) << id;
  }
}

std::set<std::uint64_t> members(const id_runs& ids) {
  std::set<std::uint64_t> all;
  for (const id_run& run : ids.runs())
    for (std::uint64_t id = run.first; id <= run.last; ++id) all.insert(id);
  return all;
}
void expect_gaps(const id_runs& ids) {
  for (std::size_t i = 1; i < ids.runs().size(); ++i)
    EXPECT_GT(ids.runs()[i].first, ids.runs()[i - 1].last + 1);
}

TEST(id_runs, agree_with_a_set_of_single_ids) {
  constexpr std::uint64_t room = 120;
  std::mt19937 random(7);
  id_runs ids;
  std::set<std::uint64_t> plain;
  for (int step = 0; step < 5000; ++step) {
    id_run run{random() % room, 0};
    run.last = run.first + random() % 9;
    bool add = random() % 2 == 0;
    add ? ids.insert(run) : ids.erase(run);
    for (std::uint64_t id = run.first; id <= run.last; ++id)
      add ? (void)plain.insert(id) : (void)plain.erase(id);
    ASSERT_EQ(members(ids), plain) << step;
    ASSERT_EQ(ids.count(), plain.size());
    expect_gaps(ids);
  }
}
TEST(id_runs, unite_and_subtract_as_sets_do) {
  std::mt19937 random(11);
  for (int round = 0; round < 500; ++round) {
    id_runs a, b;
    for (int i = 0; i < 12; ++i) {
      std::uint64_t first = random() % 100;
      (i % 2 == 0 ? a : b).insert({first, first + random() % 6});
    }
    std::set<std::uint64_t> both = members(a), rest = both;
    for (std::uint64_t id : members(b)) both.insert(id), rest.erase(id);
    id_runs united = a, left = a;
    united.unite(b);
    left.subtract(b);
    EXPECT_EQ(members(united), both);
    EXPECT_EQ(members(left), rest);
    expect_gaps(united);
    expect_gaps(left);
  }
}

}  // namespace
