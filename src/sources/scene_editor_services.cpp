#include "src/sources/scene_editor_services.h"

namespace zu {
namespace {

template <class... extension>
void visit_extensions(scene_2d_editor_extension_visitor visitor, extension&... all) {
  (call<&scene_2d_editor_extension_visitor_impl::visit>(
       visitor, handle_of<scene_2d_editor_extension_impl>(all)),
   ...);
}

template <class... filter> void visit_filters(scene_editor_filter_visitor visitor, filter&... all) {
  (call<&scene_editor_filter_visitor_impl::visit>(visitor,
                                                  handle_of<scene_editor_filter_impl>(all)),
   ...);
}

}  // namespace

void grid_editor2d_extension_service::get_extensions(scene_2d_editor_extension_visitor visitor) {
  visit_extensions(visitor, grid_);
}
void grid_editor2d_extension_service::get_filters(scene_editor_filter_visitor visitor) {
  visit_filters(visitor, gdal_filter_);
}

void grids_editor2d_extension_service::get_extensions(scene_2d_editor_extension_visitor visitor) {
  visit_extensions(visitor, rastr_, tos4_grid_, tos4_slice_, tos4_coord_, tos4_profil_);
}
void grids_editor2d_extension_service::get_filters(scene_editor_filter_visitor visitor) {
  visit_filters(visitor, rastr_filter_, tos4_grid_filter_, tos4_coord_filter_, segy_filter_);
}

}  // namespace zu
