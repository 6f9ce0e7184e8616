#pragma once
// The ids of the modal dialogs that have no class of their own. They are keys of the host, and stay
// as they are written.

namespace zu::dialog {

struct nameless {
  static constexpr wchar_t id[] = L"";
};
struct data_grid_schema_dialog {
  static constexpr wchar_t id[] = L"zu_common_plugin_data_grid_schema_dialog";
};
struct segy_preview_dialog {
  static constexpr wchar_t id[] = L"zu_segy_preview_dialog";
};
struct data_filter_dialog {
  static constexpr wchar_t id[] = L"zu_plugin_common_data_filter_dailog";
};
struct text_effects {
  static constexpr wchar_t id[] = L"zu_tld_plugin_text_effects_dialog";
};
struct txt_common_setting {
  static constexpr wchar_t id[] = L"zu_txt_common_setting_dialog";
};
struct txt_style {
  static constexpr wchar_t id[] = L"zu_txt_style_dialog";
};
struct stl_mngr_list_setting {
  static constexpr wchar_t id[] = L"zu_stl_mngr_list_setting_dialog";
};
struct data_calculator_dialog {
  static constexpr wchar_t id[] = L"zu_common_plugin_data_calculator_dialog";
};

namespace detail {

struct lib_style {
  static constexpr wchar_t id[] = L"zu_common_lib_style_dialog";
};
struct cpx_polygon_style {
  static constexpr wchar_t id[] = L"zu_common_cpx_polygon_style_dialog";
};
struct cpx_line_style {
  static constexpr wchar_t id[] = L"zu_common_cpx_line_style_dialog";
};
struct cpx_point_style {
  static constexpr wchar_t id[] = L"zu_common_cpx_point_style_dialog";
};

}  // namespace detail
}  // namespace zu::dialog
