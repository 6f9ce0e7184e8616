#include "src/toolkit/events.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace zu {
namespace {

TEST(event, calls_its_handlers_in_order_while_their_connections_live) {
  event<void()> changed;
  std::string heard;
  auto a = changed.connect([&] { heard += 'a'; });
  {
    auto b = changed.connect([&] { heard += 'b'; });
    changed();
    EXPECT_EQ(heard, "ab");
  }
  changed();
  EXPECT_EQ(heard, "aba");
  a->disconnect();
  changed();
  EXPECT_EQ(heard, "aba");
}

TEST(event, gives_its_values) {
  event<void(int, double)> changed;
  double sum = 0;
  auto c = changed.connect([&](int a, double b) { sum += a + b; });
  changed(2, 0.5);
  EXPECT_EQ(sum, 2.5);
}

TEST(event, a_handler_that_disconnects_itself_finishes_the_round_for_the_others) {
  event<void()> changed;
  std::string heard;
  events::connection a;
  a = changed.connect([&] {
    heard += 'a';
    a->disconnect();
    heard += '!';
  });
  auto b = changed.connect([&] { heard += 'b'; });
  changed();
  changed();
  EXPECT_EQ(heard, "a!bb");
}

TEST(event, a_handler_that_was_disconnected_or_ended_in_the_round_is_passed_over) {
  event<void()> changed;
  std::string heard;
  events::connection b, c;
  auto a = changed.connect([&] {
    b->disconnect();
    c.reset();
  });
  b = changed.connect([&] { heard += 'b'; });
  c = changed.connect([&] { heard += 'c'; });
  changed();
  EXPECT_EQ(heard, "");
}

TEST(event, a_handler_that_comes_in_a_round_waits_for_the_next) {
  event<void()> changed;
  int later = 0;
  events::connection b;
  auto a = changed.connect([&] {
    if (!b) b = changed.connect([&] { ++later; });
  });
  changed();
  EXPECT_EQ(later, 0);
  changed();
  EXPECT_EQ(later, 1);
}

TEST(event, a_handler_may_end_the_event) {
  std::optional<event<void()>> changed(std::in_place);
  std::string heard;
  auto a = changed->connect([&] { changed.reset(); });
  auto b = changed->connect([&] { heard += 'b'; });
  (*changed)();
  EXPECT_EQ(heard, "b");
  EXPECT_FALSE(b->connected());
}

TEST(connection, is_connected_while_the_event_lives_and_may_outlive_it) {
  events::connection c;
  {
    event<void()> changed;
    c = changed.connect([] {});
    EXPECT_TRUE(c->connected());
  }
  EXPECT_FALSE(c->connected());
  c->block();
  c->unblock();
  c->disconnect();
}

TEST(connection, a_blocked_handler_is_passed_over_until_it_is_unblocked) {
  event<void()> changed;
  int heard = 0, others = 0;
  auto a = changed.connect([&] { ++heard; });
  auto b = changed.connect([&] { ++others; });
  a->block();
  changed();
  EXPECT_EQ(heard, 0);
  a->unblock();
  changed();
  EXPECT_EQ(heard, 1);
  EXPECT_EQ(others, 2);
  a->disconnect();
  a->block();
  a->unblock();
  changed();
  EXPECT_EQ(heard, 1);
}

}  // namespace
}  // namespace zu
