#pragma once
// A set of row ids as runs: a box over a large grid selects hundreds of millions of ids, a run a
// row of cells.

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zu::platform {

/// Both ends belong to it.
struct id_run {
  std::uint64_t first, last;
  bool operator==(const id_run&) const = default;
};

class id_runs {
 public:
  id_runs() = default;
  id_runs(const id_runs& other) : runs_(other.runs_) {}
  id_runs& operator=(const id_runs& other) {
    runs_ = other.runs_;
    return *this;
  }

  void clear() { runs_.clear(); }
  bool empty() const { return runs_.empty(); }
  /// The number of ids; all of 64 bits counts as one less.
  std::uint64_t count() const;
  /// Runs from the lowest, with a gap between any two.
  const std::vector<id_run>& runs() const { return runs_; }

  /// In the time of a search, or less beside the id that was asked for last.
  bool contains(std::uint64_t id) const;
  // At the end of the set in constant time, elsewhere in that of moving the runs behind it.
  void insert(id_run run);
  void erase(id_run run);
  // In the time of both sets together.
  void unite(const id_runs& other);
  void subtract(const id_runs& other);

 private:
  using run_iterator = std::vector<id_run>::const_iterator;
  /// The first run that ends at or after an id.
  run_iterator reaching(std::uint64_t id) const;

  std::vector<id_run> runs_;
  // Where the last answer was found: neighbours are asked for one after another. Atomic, since
  // readers may share the set.
  mutable std::atomic<std::size_t> last_{0};
};

}  // namespace zu::platform
