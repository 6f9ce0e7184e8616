#include "src/style/classes/unique_values.h"

#include <cwctype>
#include <iterator>
#include <unordered_set>
#include <vector>

#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "src/data/grid_datasource.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::style {
namespace {

constexpr std::int64_t limit_of_all = 100'000'000;
constexpr std::int32_t question_text = -767;
constexpr wchar_t column_id[] = L"zu_common_plugin_value_scale_cache_outline_column";

bool ask_for_all() {
  std::wstring question = load_text(question_text);
  if (std::size_t at = question.find(L"%d"); at != std::wstring::npos)
    question.replace(at, 2, std::to_wstring(unique_limit));
  return zu_ask_wyes_no(question.c_str());
}

std::wstring text_of_row(const Tzu_val_scale* scale, std::uint64_t row) {
  return trimmed(text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale, row, a); }));
}

void set_row(Tzu_val_scale* scale, std::uint64_t row, const std::wstring& value) {
  zu_val_scale_set_text_w(scale, row, value.c_str());
  zu_val_scale_set_caption_w(scale, row, value.c_str());
}

}  // namespace

bool read_unique_values(const data::open_reference& source, const std::wstring& field,
                        std::int64_t limit, unique_texts& out) {
  data::grid_datasource grid;
  if (!grid.open(source, data::open_read_only)) return false;
  std::int64_t index = grid.find_field(field);
  if (index < 0) return false;
  data::shown_reading shown(grid);
  std::vector<std::wstring> texts;
  if (!grid.field_unique_values(index, limit, texts)) return false;
  // A reader may overshoot: it counts after a whole tile.
  if (static_cast<std::int64_t>(texts.size()) > limit)
    texts.resize(static_cast<std::size_t>(limit));
  out = unique_texts(texts.begin(), texts.end());
  return true;
}

bool read_unique_values(const data::open_reference& source, const std::wstring& field,
                        unique_texts& out, bool* all) {
  if (!read_unique_values(source, field, unique_limit, out)) return false;
  bool is_cut = static_cast<std::int64_t>(out.size()) >= unique_limit;
  if (is_cut && ask_for_all()) is_cut = !read_unique_values(source, field, limit_of_all, out);
  if (all != nullptr) *all = !is_cut;
  return true;
}

std::wstring trimmed(const std::wstring& text) {
  auto is_blank = [](wchar_t c) { return std::iswspace(static_cast<std::wint_t>(c)) != 0; };
  std::size_t first = 0, last = text.size();
  while (first < last && is_blank(text[first])) ++first;
  while (last > first && is_blank(text[last - 1])) --last;
  return text.substr(first, last - first);
}

void rebuild(Tzu_val_scale* scale, const unique_texts& values) {
  zu_val_scale_init_opacity_pts(scale);
  zu_val_scale_set_size(scale, values.size());
  std::uint64_t row = 0;
  for (const std::wstring& value : values) set_row(scale, row++, trimmed(value));
}

void add_new_values(Tzu_val_scale* scale, const unique_texts& values) {
  std::unordered_set<std::wstring> known(8);
  known.max_load_factor(1.0F);
  for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale); ++i)
    known.insert(text_of_row(scale, i));
  for (const std::wstring& value : values)
    if (std::wstring text = trimmed(value); known.count(text) == 0)
      set_row(scale, zu_val_scale_add(scale) - 1, text);
}

void remove_missing_values(Tzu_val_scale* scale, const unique_texts& values) {
  std::unordered_set<std::wstring> present;
  for (const std::wstring& value : values) present.insert(trimmed(value));
  for (std::uint64_t row = zu_val_scale_get_size(scale); row-- > 0;)
    if (present.count(text_of_row(scale, row)) == 0) zu_val_scale_del(scale, row);
}

bool change_captions(Tzu_val_scale* scale, const data::open_reference& source,
                     const std::wstring& field, const std::wstring& captions_field) {
  data::grid_datasource grid;
  if (!grid.open(source, data::open_read_only)) return false;
  std::int64_t of_values = grid.find_field(field), of_captions = grid.find_field(captions_field);
  if (of_values < 0 || of_captions < 0) return false;
  data::group_map pairs;
  data::shown_reading shown(grid);
  if (!grid.field_groups({of_values, of_captions}, -1, pairs)) return false;
  for (std::uint64_t row = 0; row < zu_val_scale_get_size(scale); ++row) {
    auto found = pairs.find(text_of_row(scale, row));
    if (found == pairs.end()) continue;
    std::wstring caption = found->second.empty() ? L"" : found->second.front();
    zu_val_scale_set_caption_w(scale, row, caption.c_str());
  }
  return true;
}

value_scale_cache_outline::value_scale_cache_outline() : column_(column_id, 10303) {
  column_.on_text = [this](outline_item item, string_visitor visitor) {
    if (const std::wstring* text = value(toolkit::row_of(item)))
      call<&string_visitor_impl::visit>(visitor, text->c_str());
  };
  add_column(column_);
}

bool value_scale_cache_outline::load(const data::open_reference& source,
                                     const std::wstring& field) {
  unique_texts read;
  bool all = true;
  if (!read_unique_values(source, field, read, &all)) return false;
  values_ = std::move(read), has_all_ = all;
  last_ = values_.begin(), last_row_ = 0, current_ = -1;
  redraw();
  return true;
}

const std::wstring* value_scale_cache_outline::value(std::uint32_t row) {
  if (row >= values_.size()) return nullptr;
  if (row < last_row_ / 2) last_ = values_.begin(), last_row_ = 0;
  std::advance(last_, static_cast<std::int64_t>(row) - static_cast<std::int64_t>(last_row_));
  last_row_ = row;
  return &*last_;
}

}  // namespace zu::style
