#include "platform/zuk_xml_data/scales.h"

#include "platform/zuk_xml_data/nodes.h"
#include "platform/zuk_xml_data/parts.h"

namespace zu::platform {
namespace {

constexpr std::uint64_t most_rows = 1000000;

/// The getters of scales and rows give what a caller may edit; nothing is edited here.
Tzu_stl_mngr* editable(const Tzu_stl_mngr* manager) { return const_cast<Tzu_stl_mngr*>(manager); }

std::uint64_t row_count(Tzu_xnode* group) {
  std::uint64_t count = 0;
  for (node_ptr row(zu_xnode_get_node_w(group, L"row")); row;
       row.reset(zu_xnode_next_node_w(row.get())))
    ++count;
  return count;
}

/// A caption is left out where there is none.
template <class getter> void save_caption(Tzu_xnode* node, getter get) {
  std::wstring text = text_of(get);
  if (!text.empty()) zu_xnode_set_attr_wstr(node, L"caption", text.c_str());
}

struct range_end {
  const wchar_t* key;
  Tzu_scale_prm* (*row)(Tzu_rng_scale*);
  void (*caption)(const Tzu_rng_scale*, Tzu_string_adp*);
  void (*set_caption)(Tzu_rng_scale*, const wchar_t*);
  double (*value)(const Tzu_rng_scale*);
  void (*set_value)(Tzu_rng_scale*, double);
};
constexpr range_end range_ends[] = {
    {L"lower", &zu_rng_scale_get_min_prm_ptr, &zu_rng_scale_get_min_caption_w,
     &zu_rng_scale_set_min_caption_w, &zu_rng_scale_get_min_value, &zu_rng_scale_set_min_value},
    {L"upper", &zu_rng_scale_get_max_prm_ptr, &zu_rng_scale_get_max_caption_w,
     &zu_rng_scale_set_max_caption_w, &zu_rng_scale_get_max_value, &zu_rng_scale_set_max_value},
    {L"other", &zu_rng_scale_get_other_prm_ptr, &zu_rng_scale_get_other_caption_w,
     &zu_rng_scale_set_other_caption_w, nullptr, nullptr}};

void save_rows(Tzu_xnode* group, Tzu_val_scale* scale, manager_kind kind) {
  node_ptr other(zu_xnode_add_node_w(group, L"other"));
  save_caption(other.get(), [&](Tzu_string_adp* a) { zu_val_scale_get_other_caption_w(scale, a); });
  save_row(other.get(), *zu_val_scale_get_other_prm_ptr(scale), kind);
  for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale); ++i) {
    node_ptr node(zu_xnode_add_node_w(group, L"row"));
    std::wstring text = text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale, i, a); });
    zu_xnode_set_attr_wstr(node.get(), L"text", text.c_str());
    save_caption(node.get(), [&](Tzu_string_adp* a) { zu_val_scale_get_caption_w(scale, i, a); });
    save_row(node.get(), *zu_val_scale_get_scale_prm_ptr(scale, i), kind);
  }
}

bool load_rows(Tzu_xnode* group, Tzu_val_scale* scale, manager_kind kind) {
  std::uint64_t rows = row_count(group);
  if (rows > most_rows) return false;
  zu_val_scale_set_size(scale, rows);
  if (zu_val_scale_get_size(scale) != rows) return false;
  if (node_ptr other(zu_xnode_get_node_w(group, L"other")); other) {
    zu_val_scale_set_other_caption_w(scale, attribute(other.get(), L"caption").c_str());
    load_row(other.get(), *zu_val_scale_get_other_prm_ptr(scale), kind);
  }
  node_ptr node(zu_xnode_get_node_w(group, L"row"));
  for (std::uint64_t i = 0; i < rows; ++i, node.reset(zu_xnode_next_node_w(node.get()))) {
    zu_val_scale_set_text_w(scale, i, attribute(node.get(), L"text").c_str());
    zu_val_scale_set_caption_w(scale, i, attribute(node.get(), L"caption").c_str());
    load_row(node.get(), *zu_val_scale_get_scale_prm_ptr(scale, i), kind);
  }
  return true;
}

}  // namespace

void save_range_scale(Tzu_xnode* group, const Tzu_stl_mngr* manager) {
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(editable(manager));
  manager_kind kind = kind_of(manager);
  std::wstring field =
      text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_rng_prop_name_w(manager, a); });
  zu_xnode_set_attr_wstr(group, L"field", field.c_str());
  zu_xnode_set_attr_int_w(group, L"type", zu_rng_scale_get_rng_type(scale));
  zu_xnode_set_attr_int_w(group, L"digits", zu_rng_scale_get_round_digits(scale));
  zu_xnode_set_attr_dbl_w(group, L"deviation_coefficient", zu_rng_scale_get_deviation_coeff(scale));
  for (const range_end& end : range_ends) {
    node_ptr node(zu_xnode_add_node_w(group, end.key));
    if (end.value != nullptr) zu_xnode_set_attr_dbl_w(node.get(), L"value", end.value(scale));
    save_caption(node.get(), [&](Tzu_string_adp* a) { end.caption(scale, a); });
    save_row(node.get(), *end.row(scale), kind);
  }
  for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale); ++i) {
    node_ptr node(zu_xnode_add_node_w(group, L"row"));
    zu_xnode_set_attr_dbl_w(node.get(), L"min", zu_rng_scale_get_min(scale, i));
    zu_xnode_set_attr_dbl_w(node.get(), L"max", zu_rng_scale_get_max(scale, i));
    save_caption(node.get(), [&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(scale, i, a); });
    save_row(node.get(), *zu_rng_scale_get_scale_prm_ptr(scale, i), kind);
  }
}

bool load_range_scale(Tzu_xnode* group, Tzu_stl_mngr* manager) {
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  manager_kind kind = kind_of(manager);
  std::uint64_t rows = row_count(group);
  if (rows > most_rows) return false;
  zu_rng_scale_set_size(scale, rows);
  if (zu_rng_scale_get_size(scale) != rows) return false;
  zu_stl_mngr_set_rng_prop_name_w(manager, attribute(group, L"field").c_str());
  std::int64_t type = zu_xnode_get_attr_int_w(group, L"type", zu_range_equal);
  if (type >= zu_range_equal && type <= zu_range_manual)
    zu_rng_scale_set_rng_type(scale, static_cast<std::int32_t>(type));
  std::int64_t digits = zu_xnode_get_attr_int_w(group, L"digits", zu_no_rounding);
  if (digits >= zu_no_rounding && digits <= -zu_no_rounding)
    zu_rng_scale_set_round_digits(scale, static_cast<std::int32_t>(digits));
  zu_rng_scale_set_deviation_coeff(
      scale, zu_xnode_get_attr_dbl_w(group, L"deviation_coefficient",
                                     zu_rng_scale_get_deviation_coeff(scale)));
  for (const range_end& end : range_ends) {
    node_ptr node(zu_xnode_get_node_w(group, end.key));
    if (!node) continue;
    if (end.value != nullptr)
      end.set_value(scale, zu_xnode_get_attr_dbl_w(node.get(), L"value", end.value(scale)));
    end.set_caption(scale, attribute(node.get(), L"caption").c_str());
    load_row(node.get(), *end.row(scale), kind);
  }
  node_ptr node(zu_xnode_get_node_w(group, L"row"));
  for (std::uint64_t i = 0; i < rows; ++i, node.reset(zu_xnode_next_node_w(node.get()))) {
    zu_rng_scale_set_min(scale, i, zu_xnode_get_attr_dbl_w(node.get(), L"min", 0.0));
    zu_rng_scale_set_max(scale, i, zu_xnode_get_attr_dbl_w(node.get(), L"max", 0.0));
    zu_rng_scale_set_caption_w(scale, i, attribute(node.get(), L"caption").c_str());
    load_row(node.get(), *zu_rng_scale_get_scale_prm_ptr(scale, i), kind);
  }
  return true;
}

void save_value_scale(Tzu_xnode* group, const Tzu_stl_mngr* manager) {
  std::wstring field =
      text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_val_prop_name_w(manager, a); });
  zu_xnode_set_attr_wstr(group, L"field", field.c_str());
  save_rows(group, zu_stl_mngr_get_val_scale_ptr(editable(manager)), kind_of(manager));
}

bool load_value_scale(Tzu_xnode* group, Tzu_stl_mngr* manager) {
  zu_stl_mngr_set_val_prop_name_w(manager, attribute(group, L"field").c_str());
  return load_rows(group, zu_stl_mngr_get_val_scale_ptr(manager), kind_of(manager));
}

void save_rule_scale(Tzu_xnode* group, const Tzu_stl_mngr* manager) {
  save_rows(group, zu_stl_mngr_get_rule_scale_ptr(editable(manager)), kind_of(manager));
}

bool load_rule_scale(Tzu_xnode* group, Tzu_stl_mngr* manager) {
  return load_rows(group, zu_stl_mngr_get_rule_scale_ptr(manager), kind_of(manager));
}

}  // namespace zu::platform
