// Palettes in files: a root with a node for each palette, in it one for each colour.

#include <string>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_xml_data/file_operation.h"
#include "zu/platform/zuk_xml_data.h"

using zu::platform::attribute;
using zu::platform::node_ptr;
using zu::platform::owned;
using zu::platform::text_of;

namespace {

constexpr wchar_t root_key[] = L"palettes", palette_key[] = L"palette", color_key[] = L"color";
constexpr std::uint64_t most_colors = 1000000, most_palettes = 100000;

struct channel {
  const wchar_t* key;
  std::uint8_t Tzu_color::*byte;
};
constexpr channel channels[] = {
    {L"r", &Tzu_color::r}, {L"g", &Tzu_color::g}, {L"b", &Tzu_color::b}, {L"a", &Tzu_color::a}};

using palettes_ptr = owned<zu_clr_palettes_destroy>;

std::wstring caption_of(const Tzu_clr_palette* palette) {
  return text_of([&](Tzu_string_adp* a) { zu_clr_palette_get_wcaption(palette, a); });
}

void save_palette(Tzu_xnode* node, const Tzu_clr_palette* palette) {
  zu_xnode_set_attr_wstr(node, L"caption", caption_of(palette).c_str());
  for (std::uint64_t i = 0; i < zu_clr_palette_get_size(palette); ++i) {
    node_ptr written(zu_xnode_add_node_w(node, color_key));
    Tzu_color color = zu_clr_palette_get_color(palette, i);
    for (const channel& each : channels)
      zu_xnode_set_attr_int_w(written.get(), each.key, color.*each.byte);
  }
}

/// False if a channel is no byte.
bool load_color(Tzu_xnode* node, Tzu_color& color) {
  for (const channel& each : channels) {
    std::int64_t byte = zu_xnode_get_attr_int_w(node, each.key, -1);
    if (byte < 0 || byte > 255) return false;
    color.*each.byte = static_cast<std::uint8_t>(byte);
  }
  return true;
}

/// What stands against the palettes of a root; empty if they were read.
std::wstring load_palettes(Tzu_xnode* root, Tzu_clr_palettes* list) {
  std::uint64_t colors = 0;
  for (node_ptr node(zu_xnode_get_node_w(root, palette_key)); node;
       node.reset(zu_xnode_next_node_w(node.get()))) {
    if (zu_clr_palettes_get_size(list) == most_palettes) return L"holds too many palettes";
    Tzu_clr_palette* palette = zu_clr_palettes_add(list);
    zu_clr_palette_set_wcaption(palette, attribute(node.get(), L"caption").c_str());
    for (node_ptr each(zu_xnode_get_node_w(node.get(), color_key)); each;
         each.reset(zu_xnode_next_node_w(each.get()))) {
      Tzu_color color{};
      if (++colors > most_colors) return L"holds too many colours";
      if (!load_color(each.get(), color)) return L"holds a broken colour";
      zu_clr_palette_add_color(palette, color);
    }
  }
  return {};
}

bool load(const wchar_t* path, Tzu_clr_palettes* list, std::wstring& reason) {
  node_ptr root = zu::platform::load_tree(path, reason);
  if (!root) return false;
  palettes_ptr fresh(zu_clr_palettes_create());
  reason = zu::platform::name_of(root.get()) == root_key ? load_palettes(root.get(), fresh.get())
                                                         : L"holds no palettes";
  if (reason.empty()) zu_clr_palettes_assign(list, fresh.get());
  return reason.empty();
}

bool save(const wchar_t* path, const Tzu_clr_palettes* list, std::wstring& reason) {
  node_ptr root(zu_xnode_create_root_w(root_key));
  for (std::uint64_t i = 0; i < zu_clr_palettes_get_size(list); ++i) {
    // The getter gives what a caller may edit; nothing is edited here.
    auto* palette = zu_clr_palettes_get_ptr(const_cast<Tzu_clr_palettes*>(list), i);
    save_palette(node_ptr(zu_xnode_add_node_w(root.get(), palette_key)).get(), palette);
  }
  return zu::platform::save_tree(root.get(), path, reason);
}

}  // namespace

bool zu_xml_data_save_clr_palettes(Tzu_xml_save_2d* xml, const wchar_t* path,
                                   const Tzu_clr_palettes* list) {
  return list != nullptr &&
         zu::platform::telling(xml, [&](std::wstring& reason) { return save(path, list, reason); });
}
bool zu_xml_data_load_clr_palettes(Tzu_xml_save_2d* xml, const wchar_t* path,
                                   Tzu_clr_palettes* list) {
  return list != nullptr &&
         zu::platform::telling(xml, [&](std::wstring& reason) { return load(path, list, reason); });
}
