#include "src/style/dialogs/dash_text.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "src/bundle/strings.h"
#include "src/style/number_text.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style::detail {

std::wstring dash_text(const Tzu_bpln_style* line) {
  double lengths[zu_line_dashes];
  std::int32_t count = zu_bpln_style_get_dashes(line, lengths);
  std::wstring text;
  for (std::int32_t i = 0; i < count; ++i) {
    if (i > 0) text += L' ';
    text += text_of(
        [&](Tzu_string_adp* a) { zu_round_digits_format_number(zu_no_rounding, lengths[i], a); });
  }
  return text;
}

std::optional<std::vector<double>> parse_dashes(const std::wstring& text) {
  std::vector<double> lengths;
  std::wistringstream words(text);
  for (std::wstring word; words >> word;) {
    std::optional<double> length = parse_number(word);
    if (!length || !std::isfinite(*length) || *length < 0) return {};
    lengths.push_back(*length);
  }
  bool solid = lengths.empty();
  bool shows = std::any_of(lengths.begin(), lengths.end(), [](double each) { return each > 0; });
  if (lengths.size() > zu_line_dashes || (!solid && !shows)) return {};
  return lengths;
}

}  // namespace zu::style::detail
