// Libraries of styles as files: a tree of items, and a list of styles for each kind.

#include <algorithm>
#include <climits>
#include <memory>
#include <string>

#include "platform/zuk_style_libs/style_library.h"
#include "platform/zuk_xml_data/file_operation.h"
#include "platform/zuk_xml_data/symbols.h"
#include "platform/zuk_xml_data/values.h"
#include "zu/platform/zuk_xml_data.h"

using zu::platform::attribute;
using zu::platform::node_ptr;
using zu::platform::style_kind;
using zu::platform::telling;

namespace {

constexpr std::size_t most_entries = 100000;
/// What a file of nodes nested 64 deep can hold.
constexpr int deepest_item = 60;
constexpr std::int64_t version = 1;

struct list_place {
  const wchar_t* key;
  Tzu_style_list Tzu_style_lib::*list;
};
constexpr list_place list_places[] = {{L"points", &Tzu_style_lib::points},
                                      {L"lines", &Tzu_style_lib::lines},
                                      {L"polygons", &Tzu_style_lib::polygons}};

// --- Writing

int depth_of(const Tzu_style_item& item) {
  int deepest = 0;
  for (const auto& each : item.items) deepest = std::max(deepest, 1 + depth_of(*each));
  return deepest;
}

void save_items(Tzu_xnode* node, const Tzu_style_item& parent) {
  for (const auto& item : parent.items) {
    node_ptr written(zu_xnode_add_node_w(node, L"item"));
    if (item->index != zu_style_no_index)
      zu_xnode_set_attr_int_w(written.get(), L"index", item->index);
    zu_xnode_set_attr_wstr(written.get(), L"caption", item->caption.c_str());
    save_items(written.get(), *item);
  }
}

void save_style(Tzu_xnode* node, const Tzu_idx_style& style) {
  node_ptr written(zu_xnode_add_node_w(node, L"style"));
  zu_xnode_set_attr_int_w(written.get(), L"index", style.index);
  if (style.version != 0) zu_xnode_set_attr_int_w(written.get(), L"version", style.version);
  if (style.point) zu::platform::save_point(written.get(), *style.point);
  if (style.line) zu::platform::save_line(written.get(), *style.line);
  if (style.polygon) zu::platform::save_polygon(written.get(), *style.polygon);
}

bool save(const wchar_t* path, const Tzu_style_lib* library, std::wstring& reason) {
  reason = L"there is nothing to write";
  if (library == nullptr) return false;
  reason = L"is nested too deeply";
  if (depth_of(library->root) > deepest_item) return false;
  node_ptr root(zu_xnode_create_root_w(L"style_library"));
  zu_xnode_set_attr_int_w(root.get(), L"version", version);
  zu_xnode_set_attr_wstr(root.get(), L"caption", library->root.caption.c_str());
  save_items(root.get(), library->root);
  for (const list_place& place : list_places) {
    node_ptr list(zu_xnode_add_node_w(root.get(), place.key));
    for (const auto& style : (library->*place.list).styles) save_style(list.get(), *style);
  }
  return zu::platform::save_tree(root.get(), path, reason);
}

// --- Reading

/// How many entries may still come.
struct allowance {
  std::size_t left = most_entries;
  bool spend() { return left > 0 && left-- > 0; }
};

std::int32_t index_in(Tzu_xnode* node, std::int32_t otherwise) {
  std::int64_t read = zu_xnode_get_attr_int_w(node, L"index", otherwise);
  bool fits = read >= INT32_MIN && read <= INT32_MAX;
  return fits ? static_cast<std::int32_t>(read) : otherwise;
}

bool load_items(Tzu_xnode* node, Tzu_style_item& parent, allowance& items) {
  node_ptr found(zu_xnode_get_node_w(node, L"item"));
  for (; found; found.reset(zu_xnode_next_node_w(found.get()))) {
    if (!items.spend()) return false;
    parent.items.push_back(std::make_unique<Tzu_style_item>());
    Tzu_style_item& item = *parent.items.back();
    item.index = index_in(found.get(), zu_style_no_index);
    item.caption = attribute(found.get(), L"caption");
    if (!load_items(found.get(), item, items)) return false;
  }
  return true;
}

bool load_list(Tzu_xnode* node, Tzu_style_list& list, allowance& styles) {
  node_ptr found(zu_xnode_get_node_w(node, L"style"));
  for (; found; found.reset(zu_xnode_next_node_w(found.get()))) {
    if (!styles.spend()) return false;
    list.styles.push_back(zu::platform::made_style(list.kind, index_in(found.get(), 0)));
    Tzu_idx_style& style = *list.styles.back();
    zu::platform::load_choice(found.get(), L"version", style.version, INT32_MAX);
    if (style.point) zu::platform::load_point(found.get(), *style.point);
    if (style.line) zu::platform::load_line(found.get(), *style.line);
    if (style.polygon) zu::platform::load_polygon(found.get(), *style.polygon);
  }
  return true;
}

bool load(const wchar_t* path, Tzu_style_lib* library, std::wstring& reason) {
  node_ptr root = zu::platform::load_tree(path, reason);
  if (!root || library == nullptr) return false;
  reason = L"is no library of styles";
  if (zu::platform::name_of(root.get()) != L"style_library") return false;
  reason = L"is of a newer version";
  if (zu_xnode_get_attr_int_w(root.get(), L"version", version) > version) return false;
  reason = L"has too many entries";
  Tzu_style_lib fresh;
  fresh.root.caption = attribute(root.get(), L"caption");
  allowance items, styles;
  if (!load_items(root.get(), fresh.root, items)) return false;
  for (const list_place& place : list_places) {
    node_ptr list(zu_xnode_get_node_w(root.get(), place.key));
    if (!load_list(list.get(), fresh.*place.list, styles)) return false;
  }
  library->root = std::move(fresh.root);
  for (const list_place& place : list_places)
    (library->*place.list).styles = std::move((fresh.*place.list).styles);
  return true;
}

}  // namespace

bool zu_xml_data_save_style_lib(Tzu_xml_save_2d* xml, const wchar_t* path,
                                const Tzu_style_lib* library) {
  return telling(xml, [&](std::wstring& reason) { return save(path, library, reason); });
}
bool zu_xml_data_load_style_lib(Tzu_xml_save_2d* xml, const wchar_t* path, Tzu_style_lib* library) {
  return telling(xml, [&](std::wstring& reason) { return load(path, library, reason); });
}
bool zu_xml_data_save_style_lib_file(const wchar_t* path, const Tzu_style_lib* library) {
  return zu_xml_data_save_style_lib(nullptr, path, library);
}
bool zu_xml_data_load_style_lib_file(const wchar_t* path, Tzu_style_lib* library) {
  return zu_xml_data_load_style_lib(nullptr, path, library);
}
