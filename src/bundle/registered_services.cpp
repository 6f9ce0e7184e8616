// Everything that this bundle offers, in the order in which the host meets it; the localizer client
// goes to the head by itself. The objects are constructed while the module loads.

#include <cwchar>

#include "src/bundle/dialogs.h"
#include "src/bundle/localizer_client.h"
#include "src/bundle/modal_dialog.h"
#include "src/bundle/service_factory.h"
#include "src/layer/editors/layer_editors.h"
#include "src/layer/grid2d_objinfo_service.h"
#include "src/layer/grid_layer2d.h"
#include "src/layer/layer_services.h"
#include "src/render/rastr_lr2d_render_service.h"
#include "src/render/tos4_lr2d_render_services.h"
#include "src/sources/scene_editor_services.h"
#include "src/sources/segy_params.h"
#include "src/style/class_dialogs/range_scale_dialog.h"
#include "src/style/class_dialogs/value_scale_dialog.h"
#include "src/style/dialogs/style_dialogs.h"
#include "src/style/levels/style_adavanced_dialog.h"
#include "src/style/palettes/clr_palettes_dialog.h"
#include "src/style/pickers/figure_dialog.h"
#include "zu/platform/zuk_basic.h"

namespace zu {
namespace {

template <class dialog> using dialog_factory = util::detail::modal_dialog_service_factory<dialog>;
template <class service, class interface, class visitor>
using factory = util::single_service_factory<service, interface, visitor>;
template <class service>
using render_factory = factory<service, layer_2d_renderer_extension_service_impl,
                               layer_2d_renderer_extension_service_visitor_impl>;
template <class service>
using editor_factory = factory<service, layer_2d_editor_extension_service_impl,
                               layer_2d_editor_extension_service_visitor_impl>;
using vacant = util::vacant_service_factory;

/// The only host in which layers of nodes with coordinates are edited by this bundle.
bool host_is_zumiraqt() {
  return std::wcsstr(zu_options_get_main_module_path(), L"zumiraqt") != nullptr;
}

constexpr wchar_t scene_2d[] = ZU_NAMESPACE(L"/scene/2d");
constexpr wchar_t layer_2d_path[] = ZU_NAMESPACE(L"/layer/2d");
constexpr wchar_t tool[] = ZU_NAMESPACE(L"/tool");
constexpr wchar_t none[] = L"";

factory<grid_editor2d_extension_service, scene_2d_editor_extension_service_impl,
        scene_2d_editor_extension_service_visitor_impl>
    grid_scene_editor_service(scene_2d);
factory<grids_editor2d_extension_service, scene_2d_editor_extension_service_impl,
        scene_2d_editor_extension_service_visitor_impl>
    grids_scene_editor_service(scene_2d);
dialog_factory<dialog::nameless> nameless_dialog;
factory<toolkit::layer2d_service<grid_layer2d, c_grid_lr2d>, layer_2d_service_impl,
        layer_2d_service_visitor_impl>
    grid_layer_service(layer_2d_path);
factory<toolkit::layer2d_externalization_service<grid_layer2d, c_grid_lr2d, c_grid_lr2d>,
        layer_2d_externalization_service_impl, layer_2d_externalization_service_visitor_impl>
    grid_externalization_service(layer_2d_path);
factory<toolkit::layer2d_render_service<grid_layer2d, c_grid_lr2d>,
        layer_2d_renderer_extension_service_impl, layer_2d_renderer_extension_service_visitor_impl>
    grid_render_service(none);
editor_factory<grid_layer2d_editor> grid_editor_service(layer_2d_path);
editor_factory<grid_layer2d_hillshade> grid_hillshade_service(layer_2d_path);
editor_factory<grid_layer2d_isoline> grid_isoline_service(layer_2d_path);
factory<grid2d_objinfo_service, objinfo_service_impl, objinfo_service_visitor_impl>
    grid_objinfo_service(none);
vacant grid2d_tools_service(tool);
vacant grid2d_table_view_service(none);
render_factory<rastr_lr2d_render_service> raster_render_service(none);
dialog_factory<dialog::segy_params> segy_params;
editor_factory<tos4_coord_xy_layer2d_editor> tos_coord_editor_service(layer_2d_path,
                                                                      host_is_zumiraqt());
editor_factory<tos4_grid1d_layer2d_editor> tos_profile_editor_service(layer_2d_path);
render_factory<tos4_grid1d_lr2d_render_service> tos_profile_render_service(none);
render_factory<tos4_grid2d_lr2d_render_service> tos_grid_render_service(none);
render_factory<tos4_grid3d_lr2d_render_service> tos_slice_render_service(none);
dialog_factory<dialog::clr_palettes> clr_palettes;
dialog_factory<dialog::style_adavanced_dialog> style_adavanced_dialog;
dialog_factory<dialog::data_grid_schema_dialog> data_grid_schema_dialog;
dialog_factory<dialog::segy_preview_dialog> segy_preview_dialog;
dialog_factory<dialog::figure> figure;
dialog_factory<dialog::detail::polygon_style> polygon_style;
dialog_factory<dialog::detail::line_style> line_style;
dialog_factory<dialog::detail::point_style> point_style;
dialog_factory<dialog::detail::lib_style> lib_style;
dialog_factory<dialog::detail::cpx_polygon_style> cpx_polygon_style;
dialog_factory<dialog::detail::cpx_line_style> cpx_line_style;
dialog_factory<dialog::detail::cpx_point_style> cpx_point_style;
dialog_factory<dialog::range_scale> range_scale;
dialog_factory<dialog::value_scale> value_scale;
dialog_factory<dialog::data_filter_dialog> data_filter_dialog;
dialog_factory<dialog::text_effects> text_effects;
dialog_factory<dialog::txt_common_setting> txt_common_setting;
dialog_factory<dialog::txt_style> txt_style;
dialog_factory<dialog::stl_mngr_list_setting> stl_mngr_list_setting;
dialog_factory<dialog::data_calculator_dialog> data_calculator_dialog;
detail::local_factory_impl localizer_client;

}  // namespace
}  // namespace zu
