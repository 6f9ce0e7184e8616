#include "host/core/probe.h"

#include "host/core/texts.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu::host {
namespace {

struct kept_values final : objinfo_values_visitor_impl {
  explicit kept_values(object_info& info) : info(info) {}
  void visit(const wchar_t* name, const wchar_t* value) override {
    info.values.emplace_back(narrow(name), narrow(value));
  }
  object_info& info;
};

struct kept_objects final : objinfo_visitor_impl {
  void visit(std::uint64_t, const wchar_t* title, objinfo_object object) override {
    all.push_back({narrow(title), {}});
    kept_values keep(all.back());
    call<&objinfo_object_impl::get_values>(
        object, objinfo_values_visitor(handle_of<objinfo_values_visitor_impl>(keep)));
  }
  std::vector<object_info> all;
};

using reprojection = std::unique_ptr<Tzu_rpj_fb_d2, void (*)(Tzu_rpj_fb_d2*)>;

/// The tool takes the cell whose low corner is a node, half a cell off the cell that is seen; so
/// the point is moved by half a cell along both axes of the grid.
void move_half_a_cell(const layer& asked, double& x, double& y) {
  double m[9];
  if (!call<&grid_source_impl::matrix3x3>(asked.data().grid(), m)) return;
  std::wstring scene =
      text_of([&](Tzu_string_adp* a) { zu_lr2d_get_dst_pj4wstr(asked.entity(), a); });
  std::wstring own = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_pj4wstr(asked.entity(), a); });
  reprojection to_grid(zu_rpj_fb_d2_create(), &zu_rpj_fb_d2_destroy);
  zu_rpj_fb_d2_init_w(to_grid.get(), scene.c_str(), own.c_str());
  bool needed = zu_rpj_fb_d2_rpj_is_needed(to_grid.get());
  double px = x, py = y;
  if (needed && !zu_rpj_fb_d2_apply_xy(to_grid.get(), &px, &py, 1)) return;
  px += (m[0] + m[1]) / 2;
  py += (m[3] + m[4]) / 2;
  if (needed && !zu_rpj_fb_d2_apply_xy(to_grid.get(), &px, &py, 0)) return;
  x = px;
  y = py;
}

}  // namespace

std::vector<object_info> probe(const bundle& services, const layer& asked, double x, double y) {
  move_half_a_cell(asked, x, y);
  kept_objects keep;
  for (const auto& service : services.object_infos())
    call<&objinfo_service_impl::get_object_info>(
        service.get(), asked.entity(), x, y, static_cast<void*>(nullptr),
        objinfo_visitor(handle_of<objinfo_visitor_impl>(keep)));
  return keep.all;
}

}  // namespace zu::host
