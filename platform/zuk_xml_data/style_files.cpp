// Single styles as files and texts: a root named after the kind that is the style's node.

#include <new>
#include <string>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_xml_data/file_operation.h"
#include "platform/zuk_xml_data/symbols.h"
#include "zu/platform/zuk_xml_data.h"

using zu::platform::from_utf8;
using zu::platform::node_ptr;
using zu::platform::telling;

namespace {

// What the kinds differ in.
constexpr const wchar_t* root_of(const Tzu_pnt_style*) { return L"point_style"; }
constexpr const wchar_t* root_of(const Tzu_pln_style*) { return L"line_style"; }
constexpr const wchar_t* root_of(const Tzu_pgn_style*) { return L"polygon_style"; }
void save(Tzu_xnode* node, const Tzu_pnt_style& style) { zu::platform::save_point(node, style); }
void save(Tzu_xnode* node, const Tzu_pln_style& style) { zu::platform::save_line(node, style); }
void save(Tzu_xnode* node, const Tzu_pgn_style& style) { zu::platform::save_polygon(node, style); }
void load(Tzu_xnode* node, Tzu_pnt_style& style) { zu::platform::load_point(node, style); }
void load(Tzu_xnode* node, Tzu_pln_style& style) { zu::platform::load_line(node, style); }
void load(Tzu_xnode* node, Tzu_pgn_style& style) { zu::platform::load_polygon(node, style); }

/// The tree of a style; null with the reason if there is none.
template <class style> node_ptr tree_of(const style* given, std::wstring& reason) {
  node_ptr root(given != nullptr ? zu_xnode_create_root_w(root_of(given)) : nullptr);
  if (root) save(root.get(), *given);
  if (!root) reason = L"there is nothing to write";
  return root;
}

/// Replaces a style by what a tree holds; the tree may be null, with the reason told.
template <class style> bool take(Tzu_xnode* root, style* given, std::wstring& reason) {
  if (root == nullptr || given == nullptr) return false;
  reason = L"holds no style of that kind";
  if (zu::platform::name_of(root) != root_of(given)) return false;
  style fresh;
  load(root, fresh);
  *given = fresh;
  return true;
}

template <class style>
bool save_file(Tzu_xml_save_style* xml, const wchar_t* path, const style* given) {
  return telling(xml, [&](std::wstring& reason) {
    node_ptr root = tree_of(given, reason);
    return root && zu::platform::save_tree(root.get(), path, reason);
  });
}

template <class style> bool load_file(Tzu_xml_save_style* xml, const wchar_t* path, style* given) {
  return telling(xml, [&](std::wstring& reason) {
    return take(zu::platform::load_tree(path, reason).get(), given, reason);
  });
}

template <class style>
bool save_text(Tzu_xml_save_style* xml, const style* given, Tzu_string_adp* adapter) {
  return telling(xml, [&](std::wstring& reason) {
    node_ptr root = tree_of(given, reason);
    if (!root) return false;
    std::string text = zu::platform::tree_text(root.get());
    zu_string_adp_feed(adapter, from_utf8(text).c_str());
    return true;
  });
}

template <class style> bool load_text(Tzu_xml_save_style* xml, const wchar_t* text, style* given) {
  return telling(xml, [&](std::wstring& reason) {
    std::string bytes = zu::platform::to_utf8(text);
    node_ptr root;
    reason = zu::platform::text_of([&](Tzu_string_adp* adapter) {
      root.reset(zu_xnode_read(bytes.data(), bytes.size(), adapter));
    });
    return take(root.get(), given, reason);
  });
}

}  // namespace

Tzu_xml_save_style* zu_xml_save_style_create() { return new (std::nothrow) Tzu_xml_save_style; }
void zu_xml_save_style_destroy(Tzu_xml_save_style* xml) { delete xml; }
void zu_xml_save_style_get_reason_w(const Tzu_xml_save_style* xml, Tzu_string_adp* adapter) {
  if (xml != nullptr) zu_string_adp_feed(adapter, xml->reason.c_str());
}

bool zu_xml_save_style_save_style_pnt_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                           const Tzu_pnt_style* style) {
  return save_file(xml, path, style);
}
bool zu_xml_save_style_save_style_pln_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                           const Tzu_pln_style* style) {
  return save_file(xml, path, style);
}
bool zu_xml_save_style_save_style_pgn_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                           const Tzu_pgn_style* style) {
  return save_file(xml, path, style);
}
bool zu_xml_save_style_load_style_pnt_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                           Tzu_pnt_style* style) {
  return load_file(xml, path, style);
}
bool zu_xml_save_style_load_style_pln_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                           Tzu_pln_style* style) {
  return load_file(xml, path, style);
}
bool zu_xml_save_style_load_style_pgn_file(Tzu_xml_save_style* xml, const wchar_t* path,
                                           Tzu_pgn_style* style) {
  return load_file(xml, path, style);
}
bool zu_xml_save_style_save_style_pnt_str(Tzu_xml_save_style* xml, const Tzu_pnt_style* style,
                                          Tzu_string_adp* adapter) {
  return save_text(xml, style, adapter);
}
bool zu_xml_save_style_save_style_pln_str(Tzu_xml_save_style* xml, const Tzu_pln_style* style,
                                          Tzu_string_adp* adapter) {
  return save_text(xml, style, adapter);
}
bool zu_xml_save_style_save_style_pgn_str(Tzu_xml_save_style* xml, const Tzu_pgn_style* style,
                                          Tzu_string_adp* adapter) {
  return save_text(xml, style, adapter);
}
bool zu_xml_save_style_load_style_pnt_str(Tzu_xml_save_style* xml, const wchar_t* text,
                                          Tzu_pnt_style* style) {
  return load_text(xml, text, style);
}
bool zu_xml_save_style_load_style_pln_str(Tzu_xml_save_style* xml, const wchar_t* text,
                                          Tzu_pln_style* style) {
  return load_text(xml, text, style);
}
bool zu_xml_save_style_load_style_pgn_str(Tzu_xml_save_style* xml, const wchar_t* text,
                                          Tzu_pgn_style* style) {
  return load_text(xml, text, style);
}
