// Scales in files of their own: a root named after the kind of scale, with the type name of the
// manager, and the scale's group as in a manager.

#include <memory>
#include <new>
#include <string>
#include <string_view>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_xml_data/file_operation.h"
#include "platform/zuk_xml_data/nodes.h"
#include "platform/zuk_xml_data/scales.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_xml_data.h"

using zu::platform::attribute;
using zu::platform::from_utf8;
using zu::platform::load_tree;
using zu::platform::node_ptr;
using zu::platform::telling;
using zu::platform::text_of;

namespace {

struct kind {
  const wchar_t* root;
  void (*save)(Tzu_xnode*, const Tzu_stl_mngr*);
  bool (*load)(Tzu_xnode*, Tzu_stl_mngr*);
  void (*take)(Tzu_stl_mngr* to, Tzu_stl_mngr* from);  // the scale and its field
};

constexpr kind value_kind = {
    L"value_scale", &zu::platform::save_value_scale, &zu::platform::load_value_scale,
    [](Tzu_stl_mngr* to, Tzu_stl_mngr* from) {
      std::wstring field =
          text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_val_prop_name_w(from, a); });
      zu_stl_mngr_set_val_prop_name_w(to, field.c_str());
      zu_val_scale_assign(zu_stl_mngr_get_val_scale_ptr(to), zu_stl_mngr_get_val_scale_ptr(from));
    }};
constexpr kind range_kind = {
    L"range_scale", &zu::platform::save_range_scale, &zu::platform::load_range_scale,
    [](Tzu_stl_mngr* to, Tzu_stl_mngr* from) {
      std::wstring field =
          text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_rng_prop_name_w(from, a); });
      zu_stl_mngr_set_rng_prop_name_w(to, field.c_str());
      zu_rng_scale_assign(zu_stl_mngr_get_rng_scale_ptr(to), zu_stl_mngr_get_rng_scale_ptr(from));
    }};
constexpr kind rule_kind = {
    L"value_scale", &zu::platform::save_rule_scale, &zu::platform::load_rule_scale,
    [](Tzu_stl_mngr* to, Tzu_stl_mngr* from) {
      zu_val_scale_assign(zu_stl_mngr_get_rule_scale_ptr(to), zu_stl_mngr_get_rule_scale_ptr(from));
    }};

/// What the functions of value scales mean by a path.
const kind& kind_at(const wchar_t* path) {
  static constexpr std::wstring_view end = L"._rl";
  std::wstring_view whole = path != nullptr ? path : L"";
  if (whole.size() < end.size()) return value_kind;
  std::wstring last(whole.substr(whole.size() - end.size()));
  return zu_os_compare_ignoring_case(last.c_str(), end.data()) == 0 ? rule_kind : value_kind;
}

bool is_key_of(const Tzu_stl_mngr* manager, const char* key, std::wstring& reason) {
  if (manager != nullptr && key != nullptr &&
      std::string_view(zu_stl_mngr_get_style_type(manager)) == key)
    return true;
  reason = L"is not a manager of that type";
  return false;
}

bool save(const kind& k, const wchar_t* path, const Tzu_stl_mngr* manager, const char* key,
          std::wstring& reason) {
  if (!is_key_of(manager, key, reason)) return false;
  node_ptr root(zu_xnode_create_root_w(k.root));
  zu_xnode_set_attr_wstr(root.get(), L"manager", from_utf8(key).c_str());
  k.save(node_ptr(zu_xnode_add_node_w(root.get(), L"scale")).get(), manager);
  return zu::platform::save_tree(root.get(), path, reason);
}

bool load(const kind& k, const wchar_t* path, Tzu_stl_mngr* manager, const char* key,
          std::wstring& reason) {
  node_ptr root = load_tree(path, reason);
  if (!root || !is_key_of(manager, key, reason)) return false;
  reason = L"holds no such scale";
  if (zu::platform::name_of(root.get()) != k.root ||
      attribute(root.get(), L"manager") != from_utf8(key))
    return false;
  node_ptr group(zu_xnode_get_node_w(root.get(), L"scale"));
  zu::platform::owned<zu_stl_mngr_destroy> fresh(zu_stl_mngr_create(key));
  if (!group || !fresh || !k.load(group.get(), fresh.get())) return false;
  k.take(manager, fresh.get());
  return true;
}

}  // namespace

Tzu_xml_save_2d* zu_xml_save_2d_create() { return new (std::nothrow) Tzu_xml_save_2d; }
void zu_xml_save_2d_destroy(Tzu_xml_save_2d* xml) { delete xml; }
void zu_xml_save_2d_get_reason_w(const Tzu_xml_save_2d* xml, Tzu_string_adp* adapter) {
  if (xml != nullptr) zu_string_adp_feed(adapter, xml->reason.c_str());
}

bool zu_xml_data_save_val_scale_w(Tzu_xml_save_2d* xml, const wchar_t* path,
                                  const Tzu_stl_mngr* manager, const char* key) {
  return telling(xml,
                 [&](auto& reason) { return save(kind_at(path), path, manager, key, reason); });
}
bool zu_xml_data_save_rng_scale_w(Tzu_xml_save_2d* xml, const wchar_t* path,
                                  const Tzu_stl_mngr* manager, const char* key) {
  return telling(xml, [&](auto& reason) { return save(range_kind, path, manager, key, reason); });
}
bool zu_xml_data_load_val_scale_w(Tzu_xml_save_2d* xml, const wchar_t* path, Tzu_stl_mngr* manager,
                                  const char* key) {
  return telling(xml,
                 [&](auto& reason) { return load(kind_at(path), path, manager, key, reason); });
}
bool zu_xml_data_load_rng_scale_w(Tzu_xml_save_2d* xml, const wchar_t* path, Tzu_stl_mngr* manager,
                                  const char* key) {
  return telling(xml, [&](auto& reason) { return load(range_kind, path, manager, key, reason); });
}

bool zu_xml_save_style_save_val_scale(Tzu_xml_save_style* xml, const wchar_t* path,
                                      const Tzu_stl_mngr* manager) {
  const char* key = zu_stl_mngr_get_style_type(manager);
  return telling(xml,
                 [&](auto& reason) { return save(kind_at(path), path, manager, key, reason); });
}
bool zu_xml_save_style_save_rng_scale(Tzu_xml_save_style* xml, const wchar_t* path,
                                      const Tzu_stl_mngr* manager) {
  const char* key = zu_stl_mngr_get_style_type(manager);
  return telling(xml, [&](auto& reason) { return save(range_kind, path, manager, key, reason); });
}
bool zu_xml_save_style_load_val_scale(Tzu_xml_save_style* xml, const wchar_t* path,
                                      Tzu_stl_mngr* manager) {
  const char* key = zu_stl_mngr_get_style_type(manager);
  return telling(xml,
                 [&](auto& reason) { return load(kind_at(path), path, manager, key, reason); });
}
bool zu_xml_save_style_load_rng_scale(Tzu_xml_save_style* xml, const wchar_t* path,
                                      Tzu_stl_mngr* manager) {
  const char* key = zu_stl_mngr_get_style_type(manager);
  return telling(xml, [&](auto& reason) { return load(range_kind, path, manager, key, reason); });
}
