#include "host/desktop/realiser/tool_icons.h"

namespace zu::desktop {
namespace {

struct row {
  const char* id;
  const char* icon;
  const char* keys = "";
};

// The spelling of the ids is theirs. Tools of which there is one for each kind of layer have
// something behind the id that stands here.
constexpr row rows[] = {
    // the table
    {"zu_grid_layer2d_plugin_alter_schema_tool", "configure"},
    {"zu_grid_layer2d_plugin_select_all_tool", "edit-select-all"},
    {"zu_grid_layer2d_plugin_sekect_clear_tool", "edit-select-none", "Ctrl+Shift+A"},
    {"zu_grid_layer2d_plugin_sekect_inverse_tool", "edit-select-invert", "Ctrl+Shift+I"},
    {"zu_grid_layer2d_plugin_edit_mode_tool", "document-edit", "Ctrl+E"},
    {"zu_grid_layer2d_plugin_filter_tool", "view-filter", "Ctrl+Shift+F"},
    {"zu_grid_layer2d_plugin_calculator_tool", "accessories-calculator", "Ctrl+Shift+K"},
    {"zu_data_fields_structure_elem_add_field_tool", "list-add"},
    {"zu_data_fields_structure_elem_remove_field_tool", "list-remove"},
    {"zu_data_fields_structure_elem_move_up_field_tool", "go-up"},
    {"zu_data_fields_structure_elem_move_down_field_tool", "go-down"},
    // viewers
    {"zu_common_plugin_viewer2d_panel_tool_zoom_all", "zoom-fit-best"},
    {"zu_common_plugin_viewer2d_panel_tool_zoom_in", "zoom-in"},
    {"zu_common_plugin_viewer2d_panel_tool_zoom_out", "zoom-out"},
    {"zu_common_plugin_viewer2d_panel_tool_zoom_pan", "transform-move"},
    {"zu_common_plugin_viewer2d_panel_tool_zoom_in_h", "zoom-in-x"},
    {"zu_common_plugin_viewer2d_panel_tool_zoom_in_v", "y-zoom-in"},
    {"zu_common_plugin_viewer2d_panel_tool_zoom_out_h", "zoom-out-x"},
    {"zu_common_plugin_viewer2d_panel_tool_zoom_out_v", "zoom-out-y"},
    {"zu_common_plugin_viewer2d_panel_tool_zoom_pan_h", "transform-move-horizontal"},
    {"zu_common_plugin_viewer2d_panel_tool_zoom_pan_v", "transform-move-vertical"},
    {"zu_common_plugin_viewer2d_panel_tool_select_append", "edit-select"},
    {"zu_common_plugin_viewer2d_panel_tool_select_remove", "edit-select-none"},
    {"zu_common_plugin_viewer2d_panel_tool_select_polygon", "edit-select-lasso"},
    {"zu_common_plugin_viewer2d_panel_tool_select_line", "draw-polyline"},
    {"zuk_histogramm_element_mode_tool", "transform-move-horizontal"},
    {"zuk_histogramm_element_make_histogramm_tool", "view-object-histogram-linear"},
    // scales and styles
    {"zu_common_scale_tool_append", "list-add"},
    {"zu_common_scale_tool_remove", "list-remove"},
    {"zu_common_scale_tool_load", "document-open"},
    {"zu_common_scale_tool_save", "document-save"},
    {"zu_common_scale_tool_rescale", "view-refresh"},
    {"zu_common_scale_tool_settings", "configure"},
    {"zu_common_scale_tool_style", "color-management"},
    {"zu_common_style_dialog_copy_tool", "edit-copy", "Ctrl+Shift+C"},
    {"zu_common_style_dialog_paste_tool", "edit-paste", "Ctrl+Shift+V"},
    {"zu_common_style_dialog_load_tool", "document-open", "Ctrl+O"},
    {"zu_common_style_dialog_save_tool", "document-save", "Ctrl+S"},
    {"zu_common_style_favorites_append_tool", "list-add"},
    {"zu_common_style_favorites_remove_tool", "list-remove"},
    {"zu_common_style_favorites_load_tool", "document-open"},
    {"zu_common_style_favorites_save_tool", "document-save"},
    {"zu_common_style_tool_edit_style", "document-edit"},
    {"zu_common_style_tool_invert_scale", "object-flip-vertical"},
    {"zu_common_style_tool_visible_show", "view-visible"},
    {"zu_common_style_tool_visible_hide", "view-hidden"},
    {"zu_common_style_tool_visible_flip", "edit-select-invert"},
    {"zu_common_style_tool_gradients", "color-gradient"},
    {"zu_common_style_tool_palettes", "color-management"},
    {"zu_common_style_tool_user_palettes_setting", "configure"},
    {"zu_common_style_tool_dyn_gradients", "user-identity"},
    {"zu_common_style_tool_dyn_palettes", "user-identity"},
    {"zu_common_style_tool_color_graident", "color-gradient"},
    {"zu_common_style_tool_size_graident", "transform-scale"},
    {"zu_common_style_tool_opacity_graident", "edit-opacity"},
    {"zu_common_style_tool_maplegs", "description"},
    {"zu_common_style_tool_style_libs", "folder-library"},
    {"zu_common_style_tool_style_lib_", "bookmarks"},
    {"zu_common_style_tool_build_value_rules", "document-import"},
    {"zu_common_style_tool_build_range_rules_range", "document-import"},
    {"zu_common_style_tool_value_sort_strings", "view-sort"},
    {"zu_common_style_tool_value_sort_strings_asc", "view-sort-ascending"},
    {"zu_common_style_tool_value_sort_strings_dsc", "view-sort-descending"},
    {"zu_common_style_tool_value_sort_numbers", "view-sort"},
    {"zu_common_style_tool_value_sort_numbers_asc", "view-sort-ascending"},
    {"zu_common_style_tool_value_sort_numbers_dsc", "view-sort-descending"},
    {"zu_common_style_tool_caption_sort_strings", "view-sort"},
    {"zu_common_style_tool_caption_sort_strings_asc", "view-sort-ascending"},
    {"zu_common_style_tool_caption_sort_strings_dsc", "view-sort-descending"},
    {"zu_common_style_tool_caption_sort_numbers", "view-sort"},
    {"zu_common_style_tool_caption_sort_numbers_asc", "view-sort-ascending"},
    {"zu_common_style_tool_caption_sort_numbers_dsc", "view-sort-descending"},
    {"zu_common_style_tool_minimum_sort_number", "view-sort"},
    {"zu_common_style_tool_minimum_sort_number_asc", "view-sort-ascending"},
    {"zu_common_style_tool_minimum_sort_number_dsc", "view-sort-descending"},
    {"zu_common_style_tool_maximum_sort_number", "view-sort"},
    {"zu_common_style_tool_maximum_sort_number_asc", "view-sort-ascending"},
    {"zu_common_style_tool_maximum_sort_number_dsc", "view-sort-descending"},
    {"zu_clr_palettes_tool_add", "list-add"},
    {"zu_clr_palettes_tool_remove", "list-remove"},
    {"zu_clr_palettes_tool_save", "document-save"},
    {"zu_clr_palettes_tool_load", "document-open"},
    {"zu_clr_palettes_tool_import", "document-import"},
    {"zu_clr_palettes_tool_invert", "object-flip-vertical"},
    // lists of styles and levels
    {"zu_plugins_common_ui_stl_mngr_list_up_tool", "go-up"},
    {"zu_plugins_common_ui_stl_mngr_list_down_tool", "go-down"},
    {"zu_plugins_common_ui_stl_mngr_list_erase_tool", "list-remove"},
    {"zu_txt_style_dlgs_copy_tool", "edit-copy"},
    {"zu_txt_style_dlgs_paste_tool", "edit-paste"},
    {"zu_txt_style_dlgs_load_tool", "document-open"},
    {"zu_txt_style_dlgs_save_tool", "document-save"},
    {"zu_txt_style_dlgs_grid_add_tool", "list-add"},
    {"zu_txt_style_dlgs_grid_del_tool", "list-remove"},
    {"zu_txt_style_dlgs_grid_up_tool", "go-up"},
    {"zu_txt_style_dlgs_grid_down_tool", "go-down"},
};

/// The row with the longest id that the tool's begins with.
const row* find(const QString& id) {
  const row* found = nullptr;
  for (const row& r : rows)
    if (id.startsWith(QLatin1String(r.id)) &&
        (found == nullptr || qstrlen(r.id) > qstrlen(found->id)))
      found = &r;
  return found;
}

}  // namespace

QIcon tool_icon(const QString& id) {
  const row* found = find(id);
  return found != nullptr ? QIcon::fromTheme(QLatin1String(found->icon)) : QIcon();
}

QKeySequence tool_shortcut(const QString& id) {
  const row* found = find(id);
  return found != nullptr ? QKeySequence(QLatin1String(found->keys)) : QKeySequence();
}

}  // namespace zu::desktop
