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
  if (narrow[from] == '+') ++from;
  double value = 0.0;
  auto end = std::from_chars(narrow.data() + from, narrow.data() + to + 1, value);
  if (end.ec != std::errc() || end.ptr != narrow.data() + to + 1 || std::isnan(value)) return {};
  return value;
}

struct interval {
  double low, high;  // both inside
  Tzu_scale_prm* row;
};

/// What agrees with a number: |v - n| <= t * max(|v|, |n|), that is n (1 - t) .. n / (1 - t).
interval around(double number, Tzu_scale_prm* row) {
  double a = number * (1.0 - tolerance), b = number / (1.0 - tolerance);
  return {std::min(a, b), std::max(a, b), row};
}

}  // namespace

value_scale::value_scale() : Tzu_val_scale{}, other(new_row()) {
  other.visible = false;
  answer_other(&other, lookup);
}

value_scale& value_scale::operator=(const value_scale& from) {
  if (this == &from) return *this;
  classes.clear();
  for (const value_class& c : from.classes) classes.push_back({c.text, make_row(*c.row)});
  other = from.other;
  answer_other(&other, lookup);
  runs_ = 0;
  return *this;
}

void value_scale::resize(std::size_t size) { classes.resize(size); }

void value_scale::begin_find() {
  if (runs_++ == 0) prepare();
}

void value_scale::end_find() {
  if (runs_ > 0 && --runs_ == 0) answer_other(&other, lookup);
}

/// The intervals of the rows that are numbers, the first row winning where they overlap, as rising
/// keys. A row that is no number can only be met by the text of a NaN: every other text of a number
/// is a number.
void value_scale::prepare() {
  std::vector<interval> rows;
  std::vector<double> ends;
  Tzu_scale_prm* of_nan = nullptr;
  for (const value_class& c : classes) {
    if (std::optional<double> number = number_of(c.text)) {
      rows.push_back(around(*number, c.row.get()));
      // An interval takes both its ends: it begins above the number before its low one.
      ends.push_back(std::nextafter(rows.back().low, -HUGE_VAL));
      ends.push_back(rows.back().high);
    } else if (of_nan == nullptr && (c.text == L"nan" || c.text == L"-nan")) {
      of_nan = c.row.get();
    }
  }
  std::sort(ends.begin(), ends.end());
  ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
  // Rows by their low end, and swept: those that may hold the present end stay, by order of the
  // scale.
  std::vector<std::size_t> by_low(rows.size()), open;
  for (std::size_t i = 0; i < rows.size(); ++i) by_low[i] = i;
  std::sort(by_low.begin(), by_low.end(),
            [&](std::size_t a, std::size_t b) { return rows[a].low < rows[b].low; });
  prepared_.begin(of_nan != nullptr ? of_nan : &other);
  auto next = by_low.begin();
  for (double end : ends) {
    for (; next != by_low.end() && rows[*next].low <= end; ++next) open.push_back(*next);
    open.erase(
        std::remove_if(open.begin(), open.end(), [&](std::size_t i) { return rows[i].high < end; }),
        open.end());
    auto first = std::min_element(open.begin(), open.end());
    prepared_.add(end, first != open.end() ? rows[*first].row : &other);
  }
  prepared_.end(&other, lookup);
}

}  // namespace zu::platform
