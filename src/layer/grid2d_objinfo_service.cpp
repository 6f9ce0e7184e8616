#include "src/layer/grid2d_objinfo_service.h"

#include <cmath>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "src/data/cell_text.h"
#include "src/layer/grid_layer2d.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu {
namespace {

constexpr std::int32_t column_text = 90, row_text = 91;

struct probe {
  Izu_layer* layer;
  owned<zu_rpj_fb_d2_destroy> rpj{zu_rpj_fb_d2_create()};  // from the scene to the layer
  std::wstring title;
  toolkit::objinfo_object_values::pairs values;

  explicit probe(Izu_layer* entity) : layer(entity) {
    std::wstring scene = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_dst_pj4wstr(layer, a); });
    std::wstring own = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_pj4wstr(layer, a); });
    zu_rpj_fb_d2_init_w(rpj.get(), scene.c_str(), own.c_str());
  }

  /// Fills title and values; false if nothing is at that point of the scene.
  bool look(double x, double y) {
    data::open_reference reference;
    reference.name = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer, a); });
    reference.opener = &zu_datasource_open;
    data::grid_datasource source;
    Tzu_matrix3x3 to_source;
    std::int32_t sizes[3] = {0, 0, 0};
    if (!source.open(reference, data::open_read_only) || !source.matrix(to_source)) return false;
    if (zu_rpj_fb_d2_rpj_is_needed(rpj.get())) zu_rpj_fb_d2_apply_xy(rpj.get(), &x, &y, 1);
    if (!zu_matrix3x3_invert_inplace(&to_source)) return false;
    zu_xy_apply_matrix3x3(&x, &y, &to_source);
    x = std::floor(x), y = std::floor(y);
    // Compared as they are: what does not fit an index is outside, and so is a point that is none.
    if (!source.sizes(sizes) || !(x >= 0.0 && x < sizes[0] && y >= 0.0 && y < sizes[1]))
      return false;
    read(source, static_cast<std::int32_t>(x), static_cast<std::int32_t>(y));
    return true;
  }

 private:
  void read(data::grid_datasource& source, std::int32_t i, std::int32_t j) {
    // A person counts from 1.
    title = load_text(column_text) + L" " + std::to_wstring(std::int64_t{i} + 1) + L", " +
            load_text(row_text) + L" " + std::to_wstring(std::int64_t{j} + 1);
    std::int64_t fields = source.number_of_fields();
    for (std::int64_t field = 0; field < fields; ++field)
      values.emplace_back(source.field_name(field), data::cell_text(source, field, i, j));
  }
};

}  // namespace

void toolkit::objinfo_object_values::get_values(objinfo_values_visitor visitor) {
  for (const auto& [name, value] : values_)
    call<&objinfo_values_visitor_impl::visit>(visitor, name.c_str(), value.c_str());
}

void grid2d_objinfo_service::get_object_info(Izu_layer* layer, double x, double y, void*,
                                             objinfo_visitor visitor) {
  if (!is_grid_layer(layer)) return;
  probe found(layer);
  if (!found.look(x, y)) return;
  toolkit::objinfo_object_values values(found.values);
  call<&objinfo_visitor_impl::visit>(visitor, std::uint64_t{0}, found.title.c_str(),
                                     objinfo_object(handle_of<objinfo_object_impl>(values)));
}

}  // namespace zu
