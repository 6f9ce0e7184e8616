// The plain functions of libraries.

#include <algorithm>
#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_style_libs/style_library.h"

using zu::platform::guarded;

namespace {

Tzu_style_item* found(Tzu_style_item& item, int32_t index) {
  if (item.index == index) return &item;
  for (auto& each : item.items)
    if (Tzu_style_item* below = found(*each, index)) return below;
  return nullptr;
}

}  // namespace

Tzu_style_lib* zu_style_lib_create() { return new (std::nothrow) Tzu_style_lib; }
void zu_style_lib_destroy(Tzu_style_lib* library) { delete library; }
void zu_style_lib_get_caption(const Tzu_style_lib* library, Tzu_string_adp* adapter) {
  if (library != nullptr) zu_style_item_get_caption(&library->root, adapter);
}
void zu_style_lib_set_caption(Tzu_style_lib* library, const wchar_t* caption) {
  guarded(library, [&](Tzu_style_lib& l) { l.root.caption = caption != nullptr ? caption : L""; });
}
void zu_style_lib_merge(Tzu_style_lib* library, const Tzu_style_lib* from) {
  if (from != nullptr) guarded(library, [&](Tzu_style_lib& l) { zu::platform::merge(l, *from); });
}
Tzu_style_item* zu_style_lib_get_root_item_ptr(Tzu_style_lib* library) {
  return library != nullptr ? &library->root : nullptr;
}
Tzu_style_list* zu_style_lib_get_pnt_list_ptr(Tzu_style_lib* library) {
  return library != nullptr ? &library->points : nullptr;
}
Tzu_style_list* zu_style_lib_get_pln_list_ptr(Tzu_style_lib* library) {
  return library != nullptr ? &library->lines : nullptr;
}
Tzu_style_list* zu_style_lib_get_pgn_list_ptr(Tzu_style_lib* library) {
  return library != nullptr ? &library->polygons : nullptr;
}

// --- Items

Tzu_style_item* zu_style_item_add(Tzu_style_item* item, int32_t index, const wchar_t* caption) {
  return guarded(item, static_cast<Tzu_style_item*>(nullptr), [&](Tzu_style_item& i) {
    auto made = std::make_unique<Tzu_style_item>();
    made->index = index;
    if (caption != nullptr) made->caption = caption;
    i.items.push_back(std::move(made));
    return i.items.back().get();
  });
}
Tzu_style_item* zu_style_item_find_by_index(Tzu_style_item* item, int32_t index) {
  return item != nullptr && index != zu_style_no_index ? found(*item, index) : nullptr;
}
void zu_style_item_get_caption(const Tzu_style_item* item, Tzu_string_adp* adapter) {
  if (item != nullptr) zu_string_adp_feed(adapter, item->caption.c_str());
}
int32_t zu_style_item_get_index(const Tzu_style_item* item) {
  return item != nullptr ? item->index : zu_style_no_index;
}

// --- Lists

uint64_t zu_style_list_get_size(const Tzu_style_list* list) {
  return list != nullptr ? list->styles.size() : 0;
}
int64_t zu_style_list_find_idx(const Tzu_style_list* list, int32_t index) {
  if (list == nullptr) return -1;
  auto end = list->styles.end();
  auto at = std::find_if(list->styles.begin(), end, [&](auto& s) { return s->index == index; });
  return at != end ? at - list->styles.begin() : -1;
}
Tzu_idx_style* zu_style_list_get_idx_style(Tzu_style_list* list, uint64_t place) {
  return place < zu_style_list_get_size(list) ? list->styles[place].get() : nullptr;
}
Tzu_idx_style* zu_style_list_insert(Tzu_style_list* list, uint64_t place, int32_t index) {
  return guarded(list, static_cast<Tzu_idx_style*>(nullptr), [&](Tzu_style_list& l) {
    auto at = l.styles.begin() + static_cast<std::ptrdiff_t>(std::min(place, l.styles.size()));
    return l.styles.insert(at, zu::platform::made_style(l.kind, index))->get();
  });
}
void zu_style_list_remove(Tzu_style_list* list, uint64_t place) {
  if (place < zu_style_list_get_size(list))
    list->styles.erase(list->styles.begin() + static_cast<std::ptrdiff_t>(place));
}
int32_t zu_idx_style_get_index(const Tzu_idx_style* entry) {
  return entry != nullptr ? entry->index : zu_style_no_index;
}
int32_t zu_idx_style_get_version(const Tzu_idx_style* entry) {
  return entry != nullptr ? entry->version : 0;
}
void zu_idx_style_set_version(Tzu_idx_style* entry, int32_t version) {
  if (entry != nullptr) entry->version = version;
}
Tzu_pnt_style* zu_idx_pnt_style_get_pnt_style_ptr(Tzu_idx_style* entry) {
  return entry != nullptr ? entry->point.get() : nullptr;
}
Tzu_pln_style* zu_idx_pln_style_get_pln_style_ptr(Tzu_idx_style* entry) {
  return entry != nullptr ? entry->line.get() : nullptr;
}
Tzu_pgn_style* zu_idx_pgn_style_get_pgn_style_ptr(Tzu_idx_style* entry) {
  return entry != nullptr ? entry->polygon.get() : nullptr;
}
