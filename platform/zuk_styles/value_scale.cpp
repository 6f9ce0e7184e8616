#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_styles/scales.h"

namespace zu::platform {
namespace {

/// Numbers agree when they differ by no more than this share of the larger magnitude.
constexpr double tolerance = 1e-9;

/// A text that is a number as a whole, apart from blanks around it.
std::optional<double> number_of(const std::wstring& text) {
  std::string narrow = to_utf8(text);
  std::size_t from = narrow.find_first_not_of(" \t"), to = narrow.find_last_not_of(" \t");
  if (from == std::string::npos) return {};
  if (narrow[from] == '+' && narrow[from + 1] != '-') ++from;
  double value = 0.0;
  auto end = std::from_chars(narrow.data() + from, narrow.data() + to + 1, value);
  if (end.ec != std::errc() || end.ptr != narrow.data() + to + 1 || std::isnan(value)) return {};
  return value;
}

bool agree(double a, double b) {
  double larger = std::max(std::abs(a), std::abs(b));
  return a == b || (std::isfinite(larger) && std::abs(a - b) <= tolerance * larger);
}

/// The last number that agrees with `number` on the way to `far` (an infinity).
double last_agreeing(double number, double far) {
  bool outwards = std::signbit(number) == std::signbit(far);
  double end = outwards ? number / (1.0 - tolerance) : number * (1.0 - tolerance);
  if (!std::isfinite(end)) return number;
  // The quotient is rounded: a few neighbours decide.
  while (!agree(end, number)) end = std::nextafter(end, -far);
  while (agree(std::nextafter(end, far), number)) end = std::nextafter(end, far);
  return end;
}

}  // namespace

/// The intervals of the rows that are numbers, the first row winning where they overlap, as rising
/// keys. A row that is no number can only be met by the text of a NaN: every other text of a number
/// is a number.
void value_scale::prepare() {
  std::vector<held_interval> held;
  std::vector<double> ends;
  Tzu_scale_prm *of_nan = nullptr, *of_lowest = nullptr;  // no interval can begin below -infinity
  auto keep_first = [](Tzu_scale_prm*& kept, const value_class& c) {
    if (kept == nullptr) kept = c.row.get();
  };
  for (const value_class& c : classes) {
    std::optional<double> number = number_of(c.text);
    if (number == -HUGE_VAL) {
      keep_first(of_lowest, c);
      ends.push_back(*number);
    } else if (number.has_value()) {
      // The lowest agreeing number is inside: the interval begins at the one before.
      double low = std::nextafter(last_agreeing(*number, -HUGE_VAL), -HUGE_VAL);
      held.push_back({low, last_agreeing(*number, HUGE_VAL), c.row.get()});
      ends.insert(ends.end(), {held.back().low, held.back().high});
    } else if (c.text == L"nan" || c.text == L"-nan") {
      keep_first(of_nan, c);
    }
  }
  make_keys(ends);
  interval_sweep sweep(held);
  prepared_.begin(of_nan != nullptr ? of_nan : &other);
  for (double end : ends) {
    Tzu_scale_prm* row = end == -HUGE_VAL ? of_lowest : sweep.row_at(end);
    prepared_.add(end, row != nullptr ? row : &other);
  }
  lookup = prepared_.end(&other);
}

}  // namespace zu::platform
