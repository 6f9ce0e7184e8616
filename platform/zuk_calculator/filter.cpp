#include "platform/zuk_calculator/filter.h"

#include <array>

namespace zu::platform {
namespace {

constexpr std::array<std::wstring_view, 6> operator_words = {
    L"equal", L"not_equal", L"less", L"less_equal", L"greater", L"greater_equal"};
constexpr std::array<std::wstring_view, 6> operator_signs = {L"=", L"!=", L"<", L"<=", L">", L">="};
constexpr std::array<std::wstring_view, 2> kind_words = {L"text", L"number"};
constexpr std::wstring_view separator = L"; ";
constexpr std::wstring_view hexadecimal = L"0123456789abcdef";

bool is_control(wchar_t letter) { return (letter >= 0 && letter < 0x20) || letter == 0x7f; }

std::wstring quoted(const std::wstring& text) {
  std::wstring out = L"\"";
  for (wchar_t letter : text) {
    if (is_control(letter)) {
      out += L"\\u";
      if (letter >= 0x10) out += hexadecimal[letter >> 4];
      out += hexadecimal[letter & 0xf];
      out += L';';
      continue;
    }
    if (letter == L'"' || letter == L'\\') out += L'\\';
    out += letter;
  }
  return out + L'"';
}

/// Takes a stored text apart from the left.
class stored_text_reader {
 public:
  explicit stored_text_reader(std::wstring_view text) : rest_(text) {}

  bool at_end() const { return rest_.empty(); }
  bool take(std::wstring_view what) {
    if (rest_.substr(0, what.size()) != what) return false;
    rest_.remove_prefix(what.size());
    return true;
  }
  /// The index of a word that a blank follows.
  template <class words> std::optional<std::size_t> take_word(const words& list) {
    std::wstring_view word = rest_.substr(0, rest_.find(L' '));
    for (std::size_t i = 0; i < list.size(); ++i)
      if (word == list[i] && word.size() < rest_.size()) {
        rest_.remove_prefix(word.size() + 1);
        return i;
      }
    return {};
  }
  std::optional<std::wstring> take_quoted() {
    if (!take(L"\"")) return {};
    std::wstring out;
    while (!rest_.empty()) {
      wchar_t letter = rest_.front();
      rest_.remove_prefix(1);
      if (letter == L'"') return out;
      if (is_control(letter)) return {};
      if (letter == L'\\') {
        std::optional<wchar_t> meant = take_escaped();
        if (!meant) return {};
        letter = *meant;
      }
      out += letter;
    }
    return {};
  }

 private:
  std::optional<wchar_t> take_escaped() {
    if (take(L"\"")) return L'"';
    if (take(L"\\")) return L'\\';
    std::size_t end = rest_.find(L';');
    if (!take(L"u") || end == std::wstring_view::npos || end < 2 || end > 3) return {};
    unsigned number = 0;
    for (std::size_t i = 0; i < end - 1; ++i) {
      std::size_t digit = hexadecimal.find(rest_[i]);
      if (digit == std::wstring_view::npos) return {};
      number = number * 16 + static_cast<unsigned>(digit);
    }
    rest_.remove_prefix(end);
    auto letter = static_cast<wchar_t>(number);
    if (letter == 0 || !is_control(letter)) return {};
    return letter;
  }

  std::wstring_view rest_;
};

std::optional<filter_condition> take_condition(stored_text_reader& reader) {
  constexpr std::array<std::wstring_view, 2> joins = {L"or", L"and"};
  filter_condition made;
  made.enabled = !reader.take(L"off ");
  auto join = reader.take_word(joins);
  auto field = join ? reader.take_quoted() : std::nullopt;
  if (!field || !reader.take(L" ")) return {};
  auto comparison = reader.take_word(operator_words);
  auto kind = comparison ? reader.take_word(kind_words) : std::nullopt;
  auto text = kind ? reader.take_quoted() : std::nullopt;
  if (!text) return {};
  made.with_those_before = *join == 1;
  made.field = std::move(*field);
  made.comparison = static_cast<Tzu_calc_operator>(*comparison);
  made.kind = static_cast<Tzu_calc_kind>(*kind);
  made.text = std::move(*text);
  return made;
}

}  // namespace

std::wstring calc_filter::stored_text() const {
  std::wstring out;
  for (const filter_condition& c : conditions_) {
    if (!out.empty()) out += separator;
    if (!c.enabled) out += L"off ";
    out += c.with_those_before ? L"and " : L"or ";
    out += quoted(c.field);
    out += L' ';
    out += operator_words[c.comparison];
    out += L' ';
    out += kind_words[c.kind];
    out += L' ';
    out += quoted(c.text);
  }
  return out;
}

std::optional<calc_filter> calc_filter::from_stored_text(std::wstring_view text) {
  calc_filter made;
  stored_text_reader reader(text);
  while (!reader.at_end()) {
    if (!made.conditions_.empty() && !reader.take(separator)) return {};
    std::optional<filter_condition> condition = take_condition(reader);
    if (!condition) return {};
    made.add(std::move(*condition));
  }
  return made;
}

std::wstring calc_filter::readable_text() const {
  std::wstring out;
  bool ends_in_alternatives = false;
  for (const filter_condition& c : conditions_) {
    if (!c.enabled) continue;
    if (!out.empty()) {
      if (c.with_those_before && ends_in_alternatives) out.insert(0, L"(").append(L")");
      out += c.with_those_before ? L" and " : L" or ";
      ends_in_alternatives = !c.with_those_before;
    }
    out += c.field;
    out += L' ';
    out += operator_signs[c.comparison];
    out += L' ';
    const wchar_t* quote = c.kind == zu_calc_text ? L"\"" : L"";
    out += quote;
    out += c.text;
    out += quote;
  }
  return out;
}

}  // namespace zu::platform
