// The groups of style managers, hillshade and isolines.

#include <memory>
#include <string>
#include <string_view>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_styles/symbols.h"
#include "platform/zuk_xml_data/nodes.h"
#include "platform/zuk_xml_data/parts.h"
#include "platform/zuk_xml_data/scales.h"
#include "zu/platform/zuk_xml_data.h"

using zu::platform::attribute;
using zu::platform::emptied;
using zu::platform::guarded;
using zu::platform::kind_of;
using zu::platform::load_line_under;
using zu::platform::load_style;
using zu::platform::node_ptr;
using zu::platform::save_line_under;
using zu::platform::save_style;
using zu::platform::text_of;

namespace {

/// Whether the manager is of the type named.
bool is_of_type(const Tzu_stl_mngr* manager, const char* type) {
  return manager != nullptr && type != nullptr &&
         std::string_view(zu_stl_mngr_get_style_type(manager)) == type;
}

using manager_ptr = std::unique_ptr<Tzu_stl_mngr, void (*)(Tzu_stl_mngr*)>;

bool load_manager(Tzu_xnode* group, const char* type, Tzu_stl_mngr* manager) {
  manager_ptr fresh(zu_stl_mngr_create(type), &zu_stl_mngr_destroy);
  if (!fresh) return false;
  std::int64_t mode = zu_xnode_get_attr_int_w(group, L"mode", zu_style_simple);
  if (mode >= zu_style_simple && mode <= zu_style_rule)
    zu_stl_mngr_set_mode(fresh.get(), static_cast<std::int32_t>(mode));
  zu_stl_mngr_set_use_render_levels(fresh.get(),
                                    zu_xnode_get_attr_bool_w(group, L"use_render_levels", false));
  if (node_ptr simple(zu_xnode_get_node_w(group, L"simple")); simple)
    load_style(simple.get(), *zu_stl_mngr_get_simple_sp_ptr(fresh.get()), kind_of(fresh.get()));
  node_ptr values(zu_xnode_get_node_w(group, L"values"));
  node_ptr ranges(zu_xnode_get_node_w(group, L"ranges"));
  if (values && !zu::platform::load_value_scale(values.get(), fresh.get())) return false;
  if (ranges && !zu::platform::load_range_scale(ranges.get(), fresh.get())) return false;
  node_ptr rules(zu_xnode_get_node_w(group, L"rules"));
  if (rules && !zu::platform::load_rule_scale(rules.get(), fresh.get())) return false;
  zu_stl_mngr_assign(manager, fresh.get());
  return true;
}

}  // namespace

void zu_xml_save_style_save_mngr_style(void*, Tzu_xnode* node, const wchar_t* key, const char* type,
                                       const Tzu_stl_mngr* manager) {
  guarded(manager, [&](const Tzu_stl_mngr& m) {
    if (!is_of_type(&m, type)) return;
    node_ptr group = emptied(node, key);
    if (!group) return;
    zu_xnode_set_attr_wstr(group.get(), L"type", zu::platform::from_utf8(type).c_str());
    zu_xnode_set_attr_int_w(group.get(), L"mode", zu_stl_mngr_get_mode(&m));
    if (zu_stl_mngr_get_use_render_levels(&m))
      zu_xnode_set_attr_bool_w(group.get(), L"use_render_levels", true);
    node_ptr simple(zu_xnode_add_node_w(group.get(), L"simple"));
    save_style(simple.get(), *zu_stl_mngr_get_simple_sp_ptr(const_cast<Tzu_stl_mngr*>(&m)),
               kind_of(&m));
    node_ptr values(zu_xnode_add_node_w(group.get(), L"values"));
    zu::platform::save_value_scale(values.get(), &m);
    node_ptr ranges(zu_xnode_add_node_w(group.get(), L"ranges"));
    zu::platform::save_range_scale(ranges.get(), &m);
    node_ptr rules(zu_xnode_add_node_w(group.get(), L"rules"));
    zu::platform::save_rule_scale(rules.get(), &m);
  });
}

bool zu_xml_save_style_load_mngr_style(void*, Tzu_xnode* node, const wchar_t* key, const char* type,
                                       Tzu_stl_mngr* manager) {
  return guarded(manager, false, [&](Tzu_stl_mngr& m) {
    node_ptr group(zu_xnode_get_node_w(node, key));
    return group && is_of_type(&m, type) &&
           attribute(group.get(), L"type") == zu::platform::from_utf8(type) &&
           load_manager(group.get(), type, &m);
  });
}

void zu_xml_save_style_save_hillshade_style(void*, Tzu_xnode* node, const wchar_t* key,
                                            const Tzu_hillshade_style* style) {
  guarded(style, [&](const Tzu_hillshade_style& s) {
    node_ptr group = emptied(node, key);
    Tzu_xnode* to = group.get();
    std::wstring field =
        text_of([&](Tzu_string_adp* a) { zu_hillshade_style_get_propname(&s, a); });
    zu_xnode_set_attr_bool_w(to, L"use", zu_hillshade_style_get_use(&s));
    zu_xnode_set_attr_wstr(to, L"field", field.c_str());
    zu_xnode_set_attr_dbl_w(to, L"z_factor", zu_hillshade_style_get_z_coeff(&s));
    zu_xnode_set_attr_dbl_w(to, L"altitude", zu_hillshade_style_get_sun_slope_degree(&s));
    zu_xnode_set_attr_dbl_w(to, L"azimuth", zu_hillshade_style_get_sun_aspect_degree(&s));
    zu_xnode_set_attr_bool_w(to, L"multidirectional", zu_hillshade_style_get_multidir(&s));
    zu_xnode_set_attr_dbl_w(to, L"part", zu_hillshade_style_get_part(&s));
  });
}

bool zu_xml_save_style_load_hillshade_style(void*, Tzu_xnode* node, const wchar_t* key,
                                            Tzu_hillshade_style* style) {
  return guarded(style, false, [&](Tzu_hillshade_style& s) {
    node_ptr group(zu_xnode_get_node_w(node, key));
    std::unique_ptr<Tzu_hillshade_style, void (*)(Tzu_hillshade_style*)> fresh(
        zu_hillshade_style_create(), &zu_hillshade_style_destroy);
    if (!group || !fresh) return false;
    Tzu_xnode* from = group.get();
    Tzu_hillshade_style* to = fresh.get();
    auto number = [&](const wchar_t* name, auto get) {
      return zu_xnode_get_attr_dbl_w(from, name, get(to));
    };
    zu_hillshade_style_set_use(to, zu_xnode_get_attr_bool_w(from, L"use", false));
    zu_hillshade_style_set_propname(to, attribute(from, L"field").c_str());
    zu_hillshade_style_set_z_coeff(to, number(L"z_factor", &zu_hillshade_style_get_z_coeff));
    zu_hillshade_style_set_sun_slope_degree(
        to, number(L"altitude", &zu_hillshade_style_get_sun_slope_degree));
    zu_hillshade_style_set_sun_aspect_degree(
        to, number(L"azimuth", &zu_hillshade_style_get_sun_aspect_degree));
    zu_hillshade_style_set_multidir(to, zu_xnode_get_attr_bool_w(from, L"multidirectional", false));
    zu_hillshade_style_set_part(to, number(L"part", &zu_hillshade_style_get_part));
    zu_hillshade_style_assign(&s, to);
    return true;
  });
}

void zu_xml_save_style_save_isoline_style(void*, Tzu_xnode* node, const wchar_t* key,
                                          const Tzu_isoline_style* style) {
  guarded(style, [&](const Tzu_isoline_style& s) {
    node_ptr group = emptied(node, key);
    Tzu_xnode* to = group.get();
    std::wstring field = text_of([&](Tzu_string_adp* a) { zu_isoline_style_get_propname(&s, a); });
    zu_xnode_set_attr_bool_w(to, L"use", zu_isoline_style_get_use(&s));
    zu_xnode_set_attr_wstr(to, L"field", field.c_str());
    zu_xnode_set_attr_dbl_w(to, L"thin_step", zu_isoline_style_get_thin_step(&s));
    zu_xnode_set_attr_dbl_w(to, L"bold_step", zu_isoline_style_get_bold_step(&s));
    Tzu_pln_style line;
    zu_isoline_style_get_thin_style(&s, &line);
    save_line_under(to, L"thin", line);
    zu_isoline_style_get_bold_style(&s, &line);
    save_line_under(to, L"bold", line);
  });
}

bool zu_xml_save_style_load_isoline_style(void*, Tzu_xnode* node, const wchar_t* key,
                                          Tzu_isoline_style* style) {
  return guarded(style, false, [&](Tzu_isoline_style& s) {
    node_ptr group(zu_xnode_get_node_w(node, key));
    std::unique_ptr<Tzu_isoline_style, void (*)(Tzu_isoline_style*)> fresh(
        zu_isoline_style_create(), &zu_isoline_style_destroy);
    if (!group || !fresh) return false;
    Tzu_xnode* from = group.get();
    Tzu_isoline_style* to = fresh.get();
    zu_isoline_style_set_use(to, zu_xnode_get_attr_bool_w(from, L"use", false));
    zu_isoline_style_set_propname(to, attribute(from, L"field").c_str());
    zu_isoline_style_set_thin_step(
        to, zu_xnode_get_attr_dbl_w(from, L"thin_step", zu_isoline_style_get_thin_step(to)));
    zu_isoline_style_set_bold_step(
        to, zu_xnode_get_attr_dbl_w(from, L"bold_step", zu_isoline_style_get_bold_step(to)));
    Tzu_pln_style line;
    zu_isoline_style_get_thin_style(to, &line);
    load_line_under(from, L"thin", line);
    zu_isoline_style_set_thin_style(to, &line);
    zu_isoline_style_get_bold_style(to, &line);
    load_line_under(from, L"bold", line);
    zu_isoline_style_set_bold_style(to, &line);
    zu_isoline_style_assign(&s, to);
    return true;
  });
}
