// Trees of style groups from anybody: what is read is written, and read again it is the same.

#include <cstdlib>
#include <memory>
#include <string>

#include "zu/platform/zuk_xml_data.h"

namespace {

template <auto destroy> struct destroyed_by {
  template <class object> void operator()(object* o) const { destroy(o); }
};
using node_ptr = std::unique_ptr<Tzu_xnode, destroyed_by<zu_xnode_close>>;

struct styles {
  template <class object, auto destroy>
  using owned = std::unique_ptr<object, destroyed_by<destroy>>;
  owned<Tzu_stl_mngr, zu_stl_mngr_destroy> colors{zu_stl_mngr_create("clr_mngr_style")};
  owned<Tzu_stl_mngr, zu_stl_mngr_destroy> lines{zu_stl_mngr_create("pln_mngr_style")};
  owned<Tzu_stl_mngr, zu_stl_mngr_destroy> points{zu_stl_mngr_create("pnt_mngr_style")};
  owned<Tzu_stl_mngr, zu_stl_mngr_destroy> polygons{zu_stl_mngr_create("pgn_mngr_style")};
  owned<Tzu_hillshade_style, zu_hillshade_style_destroy> shade{zu_hillshade_style_create()};
  owned<Tzu_isoline_style, zu_isoline_style_destroy> isolines{zu_isoline_style_create()};
  owned<Tzu_rgb_channels, zu_rgb_channels_destroy> channels{zu_rgb_channels_create()};

  void load(Tzu_xnode* node) {
    zu_xml_save_style_load_mngr_style(nullptr, node, L"styles", "clr_mngr_style", colors.get());
    zu_xml_save_style_load_mngr_style(nullptr, node, L"lines", "pln_mngr_style", lines.get());
    zu_xml_save_style_load_mngr_style(nullptr, node, L"points", "pnt_mngr_style", points.get());
    zu_xml_save_style_load_mngr_style(nullptr, node, L"polygons", "pgn_mngr_style", polygons.get());
    zu_xml_save_style_load_hillshade_style(nullptr, node, L"hillshade", shade.get());
    zu_xml_save_style_load_isoline_style(nullptr, node, L"isoline", isolines.get());
    zu_xml_save_style_load_rgb_channels(nullptr, node, L"channels", channels.get());
  }

  std::string text() const {
    node_ptr root(zu_xnode_create_root_w(L"layer"));
    zu_xml_save_style_save_mngr_style(nullptr, root.get(), L"styles", "clr_mngr_style",
                                      colors.get());
    zu_xml_save_style_save_mngr_style(nullptr, root.get(), L"lines", "pln_mngr_style", lines.get());
    zu_xml_save_style_save_mngr_style(nullptr, root.get(), L"points", "pnt_mngr_style",
                                      points.get());
    zu_xml_save_style_save_mngr_style(nullptr, root.get(), L"polygons", "pgn_mngr_style",
                                      polygons.get());
    zu_xml_save_style_save_hillshade_style(nullptr, root.get(), L"hillshade", shade.get());
    zu_xml_save_style_save_isoline_style(nullptr, root.get(), L"isoline", isolines.get());
    zu_xml_save_style_save_rgb_channels(nullptr, root.get(), L"channels", channels.get());
    std::string all;
    auto sink = [](const char* t, void* user) { *static_cast<std::string*>(user) = t; };
    Tzu_string_adp* adapter = zu_string_adp_create(sink, nullptr, &all);
    zu_xnode_get_text(root.get(), adapter);
    zu_string_adp_destroy(adapter);
    return all;
  }
};

node_ptr tree_of(const char* text, std::size_t size) {
  return node_ptr(zu_xnode_read(text, size, nullptr));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  node_ptr given = tree_of(reinterpret_cast<const char*>(data), size);
  if (!given) return 0;
  styles first, second;
  first.load(given.get());
  std::string written = first.text();
  node_ptr again = tree_of(written.data(), written.size());
  if (!again) std::abort();
  second.load(again.get());
  if (second.text() != written) std::abort();
  return 0;
}
