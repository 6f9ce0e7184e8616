#include "platform/zuk_style_libs/style_library.h"

#include <new>
#include <unordered_map>
#include <unordered_set>

#include "platform/zuk_basic/text_of.h"
#include "zu/platform/zuk_xml_data.h"

namespace zu::platform {
namespace {

using items_by_index = std::unordered_map<std::int32_t, Tzu_style_item*>;

void gather(Tzu_style_item& item, items_by_index& all) {
  if (item.index != zu_style_no_index) all.emplace(item.index, &item);
  for (auto& each : item.items) gather(*each, all);
}

/// The item that stands for `wanted` already; null if there is none.
Tzu_style_item* held(Tzu_style_item& parent, const Tzu_style_item& wanted, items_by_index& all) {
  if (wanted.index != zu_style_no_index) {
    auto found = all.find(wanted.index);
    return found != all.end() ? found->second : nullptr;
  }
  for (auto& each : parent.items)
    if (each->index == zu_style_no_index && each->caption == wanted.caption) return each.get();
  return nullptr;
}

void merge_items(Tzu_style_item& to, const Tzu_style_item& from, items_by_index& all) {
  for (const auto& each : from.items) {
    Tzu_style_item* place = held(to, *each, all);
    if (place == nullptr) {
      to.items.push_back(std::make_unique<Tzu_style_item>());
      place = to.items.back().get();
      place->index = each->index;
      place->caption = each->caption;
      if (place->index != zu_style_no_index) all.emplace(place->index, place);
    }
    merge_items(*place, *each, all);
  }
}

std::unique_ptr<Tzu_idx_style> copied(style_kind kind, const Tzu_idx_style& style) {
  auto copy = made_style(kind, style.index);
  copy->version = style.version;
  zu_pnt_style_assign(copy->point.get(), style.point.get());
  zu_pln_style_assign(copy->line.get(), style.line.get());
  zu_pgn_style_assign(copy->polygon.get(), style.polygon.get());
  return copy;
}

void merge_styles(Tzu_style_list& to, const Tzu_style_list& from) {
  auto key = [](const Tzu_idx_style& style) {
    return std::to_wstring(style.index) + L' ' + text_of_style(style);
  };
  std::unordered_set<std::wstring> held;
  for (const auto& each : to.styles) held.insert(key(*each));
  for (const auto& each : from.styles)
    if (held.insert(key(*each)).second) to.styles.push_back(copied(to.kind, *each));
}

}  // namespace

std::unique_ptr<Tzu_idx_style> made_style(style_kind kind, std::int32_t index) {
  auto style = std::make_unique<Tzu_idx_style>();
  style->index = index;
  if (kind == style_kind::point) style->point.reset(zu_pnt_style_create());
  if (kind == style_kind::line) style->line.reset(zu_pln_style_create());
  if (kind == style_kind::polygon) style->polygon.reset(zu_pgn_style_create());
  if (!style->point && !style->line && !style->polygon) throw std::bad_alloc();
  return style;
}

std::wstring text_of_style(const Tzu_idx_style& style) {
  return text_of([&](Tzu_string_adp* adapter) {
    if (style.point) zu_xml_save_style_save_style_pnt_str(nullptr, style.point.get(), adapter);
    if (style.line) zu_xml_save_style_save_style_pln_str(nullptr, style.line.get(), adapter);
    if (style.polygon) zu_xml_save_style_save_style_pgn_str(nullptr, style.polygon.get(), adapter);
  });
}

void merge(Tzu_style_lib& library, const Tzu_style_lib& from) {
  if (&library == &from) return;
  items_by_index all;
  gather(library.root, all);
  merge_items(library.root, from.root, all);
  merge_styles(library.points, from.points);
  merge_styles(library.lines, from.lines);
  merge_styles(library.polygons, from.polygons);
}

}  // namespace zu::platform
