#include "platform/zuk_attr_data/id_runs.h"

#include <algorithm>

namespace zu::platform {
namespace {

constexpr std::uint64_t highest = UINT64_MAX;

// Neighbours of an id that stop at the ends of the numbers.
std::uint64_t before(std::uint64_t id) { return id == 0 ? 0 : id - 1; }
std::uint64_t after(std::uint64_t id) { return id == highest ? highest : id + 1; }

/// Adds a run that begins no earlier than the last one of a list.
void append(std::vector<id_run>& runs, id_run run) {
  if (!runs.empty() && run.first <= after(runs.back().last))
    runs.back().last = std::max(runs.back().last, run.last);
  else
    runs.push_back(run);
}

}  // namespace

std::uint64_t id_runs::count() const {
  std::uint64_t all = 0;
  for (const id_run& run : runs_) {
    std::uint64_t ids = run.last - run.first;
    all = ids == highest ? highest : all + ids + 1;
  }
  return all;
}

id_runs::run_iterator id_runs::reaching(std::uint64_t id) const {
  return std::lower_bound(runs_.begin(), runs_.end(), id,
                          [](const id_run& run, std::uint64_t i) { return run.last < i; });
}

bool id_runs::contains(std::uint64_t id) const {
  std::size_t at = last_.load(std::memory_order_relaxed);
  // Whether run `at` is the first that ends at or after the id.
  auto answers = [&](std::size_t i) {
    return i < runs_.size() && id <= runs_[i].last && (i == 0 || id > runs_[i - 1].last);
  };
  if (!answers(at)) {
    at = answers(at + 1) ? at + 1 : static_cast<std::size_t>(reaching(id) - runs_.begin());
    last_.store(at, std::memory_order_relaxed);
  }
  return at < runs_.size() && runs_[at].first <= id;
}

void id_runs::insert(id_run run) {
  if (run.last < run.first) return;
  if (runs_.empty() || runs_.back().first <= run.first) return append(runs_, run);
  auto from = reaching(before(run.first));
  auto to = from;
  for (; to != runs_.end() && to->first <= after(run.last); ++to) {
    run.first = std::min(run.first, to->first);
    run.last = std::max(run.last, to->last);
  }
  auto place = runs_.erase(from, to);
  runs_.insert(place, run);
}

void id_runs::erase(id_run run) {
  if (run.last < run.first) return;
  auto from = reaching(run.first), to = from;
  std::vector<id_run> left;
  for (; to != runs_.end() && to->first <= run.last; ++to) {
    if (to->first < run.first) left.push_back({to->first, run.first - 1});
    if (to->last > run.last) left.push_back({run.last + 1, to->last});
  }
  auto place = runs_.erase(from, to);
  runs_.insert(place, left.begin(), left.end());
}

void id_runs::unite(const id_runs& other) {
  if (other.empty()) return;
  std::vector<id_run> all;
  all.reserve(runs_.size() + other.runs_.size());
  run_iterator a = runs_.begin(), b = other.runs_.begin();
  while (a != runs_.end() || b != other.runs_.end()) {
    bool mine = b == other.runs_.end() || (a != runs_.end() && a->first <= b->first);
    append(all, mine ? *a++ : *b++);
  }
  runs_.swap(all);
}

void id_runs::subtract(const id_runs& other) {
  std::vector<id_run> left;
  auto cut = other.runs_.begin();
  for (id_run run : runs_) {
    while (cut != other.runs_.end() && cut->last < run.first) ++cut;
    bool rest = true;
    for (auto c = cut; rest && c != other.runs_.end() && c->first <= run.last; ++c) {
      if (c->first > run.first) left.push_back({run.first, c->first - 1});
      rest = c->last < run.last;
      run.first = after(c->last);
    }
    if (rest) left.push_back(run);
  }
  runs_.swap(left);
}

}  // namespace zu::platform
