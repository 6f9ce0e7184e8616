#include "src/style/classes/field_sample.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <unordered_map>

#include "src/data/block_reader.h"
#include "src/data/nodata_test.h"
#include "src/data/ui_monitor.h"

namespace zu::style {
namespace {

constexpr std::uint64_t whole_limit = sample_limit;  // of which drawing cells would give all too
// Beyond this, reading all of the field in order is the quicker way to rare values.
constexpr std::uint64_t draw_limit = 20 * sample_limit;

/// Whole numbers below `count`, each once, in random order: Fisher and Yates' shuffle of which only
/// what was touched is kept.
class shuffled_numbers {
 public:
  shuffled_numbers(std::uint64_t count, std::mt19937& random) : left_(count), random_(random) {}
  std::uint64_t left() const { return left_; }
  std::uint64_t next() {
    std::uint64_t at = std::uniform_int_distribution<std::uint64_t>(0, --left_)(random_);
    std::uint64_t drawn = number_at(at);
    moved_[at] = number_at(left_);
    return drawn;
  }

 private:
  std::uint64_t number_at(std::uint64_t place) const {
    auto found = moved_.find(place);
    return found != moved_.end() ? found->second : place;
  }

  std::uint64_t left_;
  std::mt19937& random_;
  std::unordered_map<std::uint64_t, std::uint64_t> moved_;
};

class field_sampler {
 public:
  field_sampler(double minimum, double maximum, std::uint32_t seed)
      : minimum_(minimum), maximum_(maximum), random_(seed) {}

  bool open(const data::open_reference& source, const std::wstring& field) {
    if (!grid_.open(source, data::open_read_only)) return false;
    std::int64_t index = grid_.find_field(field);
    std::int32_t sizes[3] = {0, 0, 0};
    if (index < 0 || !grid_.sizes(sizes) || !grid_.get_block(index, block_)) return false;
    total_ = static_cast<std::uint64_t>(sizes[0]) * static_cast<std::uint64_t>(sizes[1]) *
             static_cast<std::uint64_t>(sizes[2]);
    test_ = data::nodata_test::of(block_.get(), element_float64);
    return true;
  }

  bool sample(std::vector<double>& out) {
    if (total_ > whole_limit && draw(out)) return true;
    return stream(out);
  }

 private:
  bool wanted(double value) const {
    return test_.valid(value) && value >= minimum_ && value <= maximum_;
  }
  bool read(std::uint64_t start, std::uint64_t count, double* to) {
    return data::read_linear(grid_, block_.get(), start, count, to, element_float64) == 1;
  }

  /// By record number; false if too few of the cells hold what is wanted, or cannot be read alone.
  bool draw(std::vector<double>& out) {
    shuffled_numbers numbers(total_, random_);
    std::uint64_t drawn = 0;
    out.clear();
    while (out.size() < sample_limit && numbers.left() > 0) {
      if (drawn >= draw_limit) return false;
      double share = drawn == 0 ? 1.0 : std::max<double>(out.size(), 1) / drawn;
      auto lacking = static_cast<double>(sample_limit - out.size());
      auto count = static_cast<std::uint64_t>(std::ceil(lacking / share));
      count = std::min({count, numbers.left(), draw_limit - drawn});
      std::vector<std::uint64_t> records(count);
      for (std::uint64_t& record : records) record = numbers.next();
      std::sort(records.begin(), records.end());  // so that a tile is read once
      for (std::uint64_t record : records) {
        double value = 0.0;
        if (monitor_.is_stopped()) return false;
        if (!read(record, 1, &value)) return false;
        if (wanted(value)) out.push_back(value);
      }
      drawn += count;
      monitor_.set_progress(static_cast<double>(out.size()) / sample_limit);
    }
    if (out.size() > sample_limit) {
      std::shuffle(out.begin(), out.end(), random_);
      out.resize(sample_limit);
    }
    return true;
  }

  /// Of all cells in order. Vitter 1985, ACM TOMS 11(1), algorithm R.
  bool stream(std::vector<double>& out) {
    constexpr std::uint64_t chunk = 1 << 18;
    std::vector<double> cells(std::min(chunk, total_));
    std::uint64_t seen = 0;
    bool any = false;
    out.clear();
    for (std::uint64_t start = 0; start < total_; start += chunk) {
      std::uint64_t count = std::min(chunk, total_ - start);
      if (monitor_.is_stopped()) return false;
      monitor_.set_progress(static_cast<double>(start) / static_cast<double>(total_));
      if (!read(start, count, cells.data())) continue;
      any = true;
      for (std::uint64_t i = 0; i < count; ++i) {
        if (!wanted(cells[i])) continue;
        ++seen;
        if (out.size() < sample_limit) {
          out.push_back(cells[i]);
          continue;
        }
        std::uint64_t place = std::uniform_int_distribution<std::uint64_t>(0, seen - 1)(random_);
        if (place < sample_limit) out[place] = cells[i];
      }
    }
    return any;
  }

  double minimum_, maximum_;
  std::mt19937 random_;
  data::grid_datasource grid_;
  data::owned_block block_;
  data::nodata_test test_;
  std::uint64_t total_ = 0;
  data::ui_monitor monitor_;
};

}  // namespace

bool sample_field(const data::open_reference& source, const std::wstring& field, double minimum,
                  double maximum, const std::uint32_t* seed, std::vector<double>& out) {
  field_sampler sampler(minimum, maximum, seed != nullptr ? *seed : std::random_device()());
  return sampler.open(source, field) && sampler.sample(out);
}

}  // namespace zu::style
