#include "host/core/projections.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <tuple>

#include "host/core/failure.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu::host {
namespace {

/// Words that Russian maps use and the database says otherwise; the rest goes letter by letter.
constexpr std::pair<const wchar_t*, const wchar_t*> russian_words[] = {
    {L"ск42", L"pulkovo 1942"},
    {L"ск95", L"pulkovo 1995"},
    {L"ск63", L"pulkovo 1942 cs63"},
    {L"ск-42", L"pulkovo 1942"},
    {L"ск-95", L"pulkovo 1995"},
    {L"ск-63", L"pulkovo 1942 cs63"},
    {L"зоны", L"zone"},
    {L"зона", L"zone"},
    {L"гаусс", L"gauss"},
    {L"гаусса", L"gauss"},
    {L"крюгер", L"kruger"},
    {L"крюгера", L"kruger"},
    {L"ютм", L"utm"},
    {L"меркатор", L"mercator"},
    {L"россия", L"russia"},
    {L"москва", L"moscow"},
};
constexpr std::pair<wchar_t, const wchar_t*> russian_letters[] = {
    {L'а', L"a"},  {L'б', L"b"},  {L'в', L"v"},    {L'г', L"g"}, {L'д', L"d"},  {L'е', L"e"},
    {L'ё', L"e"},  {L'ж', L"zh"}, {L'з', L"z"},    {L'и', L"i"}, {L'й', L"y"},  {L'к', L"k"},
    {L'л', L"l"},  {L'м', L"m"},  {L'н', L"n"},    {L'о', L"o"}, {L'п', L"p"},  {L'р', L"r"},
    {L'с', L"s"},  {L'т', L"t"},  {L'у', L"u"},    {L'ф', L"f"}, {L'х', L"kh"}, {L'ц', L"ts"},
    {L'ч', L"ch"}, {L'ш', L"sh"}, {L'щ', L"shch"}, {L'ъ', L""},  {L'ы', L"y"},  {L'ь', L""},
    {L'э', L"e"},  {L'ю', L"yu"}, {L'я', L"ya"},
};

void replace_words(std::wstring& text) {
  auto is_letter = [](wchar_t c) { return c >= L'а' && c <= L'ё'; };
  for (const auto& [russian, latin] : russian_words) {
    std::wstring_view word = russian;
    for (std::size_t at = text.find(word); at != std::wstring::npos; at = text.find(word, at)) {
      bool begins = at == 0 || !is_letter(text[at - 1]);
      std::size_t end = at + word.size();
      bool ends = end == text.size() || !is_letter(text[end]);
      if (begins && ends) text.replace(at, word.size(), latin);
      at += 1;
    }
  }
}

std::string in_latin(const std::string& given) {
  std::wstring text =
      text_of([&](Tzu_string_adp* adapter) { zu_os_lower(wide(given).c_str(), adapter); });
  bool is_latin = std::all_of(text.begin(), text.end(), [](wchar_t c) { return c < 0x400; });
  if (is_latin) return narrow(text);
  replace_words(text);
  std::wstring latin;
  for (wchar_t c : text) {
    auto found = std::find_if(std::begin(russian_letters), std::end(russian_letters),
                              [&](const auto& each) { return each.first == c; });
    if (found != std::end(russian_letters))
      latin += found->second;
    else
      latin += c;
  }
  return narrow(latin);
}

enum class kind { none, letter, digit };

kind kind_of(char c) {
  if (c >= '0' && c <= '9') return kind::digit;
  bool letter = (c >= 'a' && c <= 'z') || (static_cast<unsigned char>(c) & 0x80) != 0;
  return letter ? kind::letter : kind::none;
}

/// Runs of letters and runs of digits: "WGS84 / zone 37N" is wgs, 84, zone, 37, n.
std::vector<std::string> words_of(const std::string& text) {
  std::vector<std::string> words;
  kind before = kind::none;
  for (char c : in_latin(text)) {
    kind now = kind_of(c);
    if (now != kind::none && now != before) words.emplace_back();
    if (now != kind::none) words.back() += c;
    before = now;
  }
  return words;
}

enum class likeness { none, beginning, whole };

likeness find_word(const std::vector<std::string>& words, const std::string& asked) {
  likeness best = likeness::none;
  for (const std::string& each : words) {
    if (each == asked) return likeness::whole;
    if (each.rfind(asked, 0) == 0) best = likeness::beginning;
  }
  return best;
}

}  // namespace

/// The lesser, the likelier; compared from the first to the last.
struct projections::rank {
  bool other_code = true;
  int only_in_area = 0;     ///< words asked for
  int only_beginnings = 0;  ///< words asked for
  bool deprecated, of_others, not_of_the_world;
  std::size_t words;  ///< of the name

  auto in_order() const {
    return std::tie(other_code, only_in_area, only_beginnings, deprecated, of_others,
                    not_of_the_world, words);
  }
  bool operator<(const rank& other) const { return in_order() < other.in_order(); }
};

projections::projections() {
  auto take = [](const Tzu_pj_system* found, void* user) {
    auto& all = *static_cast<std::vector<projection_entry>*>(user);
    projection_entry& entry = all.emplace_back();
    entry.text = narrow(found->authority) + ":" + narrow(found->code);
    entry.name = narrow(found->name);
    entry.area = narrow(found->area);
    if (std::isfinite(found->west))
      entry.bounds = Tzu_box_d2{found->west, found->south, found->east, found->north};
    entry.is_geographic = found->is_geographic;
    entry.is_deprecated = found->is_deprecated;
  };
  if (!zu_pj_list_systems(take, &all_))
    throw failure("the database of coordinate systems cannot be read");
  for (const projection_entry& each : all_)
    words_.push_back({words_of(each.text), words_of(each.name), words_of(each.area)});
}

const projection_entry* projections::find(const std::string& text) const {
  auto found = std::find_if(all_.begin(), all_.end(),
                            [&](const projection_entry& each) { return each.text == text; });
  return found != all_.end() ? &*found : nullptr;
}

std::optional<projections::rank> projections::rank_of(std::size_t index,
                                                      const std::vector<std::string>& asked) const {
  const words& own = words_[index];
  const projection_entry& entry = all_[index];
  rank found{};
  found.other_code = true;
  found.deprecated = entry.is_deprecated;
  found.of_others = entry.text.rfind("EPSG:", 0) != 0;
  found.not_of_the_world = entry.name.rfind("WGS 84", 0) != 0;
  found.words = own.name.size();
  for (const std::string& each : asked) {
    likeness code = find_word(own.code, each), name = find_word(own.name, each);
    if (each == own.code.back() && own.code.size() == 2) found.other_code = false;
    likeness best = std::max(code, name);
    if (best == likeness::none) {
      best = find_word(own.area, each);
      ++found.only_in_area;
    }
    if (best == likeness::none) return {};
    if (best == likeness::beginning) ++found.only_beginnings;
  }
  return found;
}

std::vector<const projection_entry*> projections::search(const std::string& text,
                                                         std::size_t most) const {
  std::vector<std::string> asked = words_of(text);
  std::vector<std::pair<rank, std::size_t>> found;
  if (asked.empty()) return {};
  for (std::size_t i = 0; i < all_.size(); ++i)
    if (std::optional<rank> likely = rank_of(i, asked)) found.emplace_back(*likely, i);
  std::size_t count = std::min(most, found.size());
  std::partial_sort(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(count), found.end());
  std::vector<const projection_entry*> entries;
  for (std::size_t i = 0; i < count; ++i) entries.push_back(&all_[found[i].second]);
  return entries;
}

std::string projection_name(const std::string& text) {
  return narrow(text_of([&](Tzu_string_adp* name) { zu_pj_get_name_w(wide(text).c_str(), name); }));
}

std::string why_no_projection(const std::string& text) {
  bool known = false;
  std::wstring why =
      text_of([&](Tzu_string_adp* reason) { known = zu_pj_check_w(wide(text).c_str(), reason); });
  if (known) return {};
  return why.empty() ? "is no coordinate system" : narrow(why);
}

}  // namespace zu::host
