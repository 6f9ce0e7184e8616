#include "zu/platform/zuk_select.h"

#include <cmath>

#include "platform/zuk_attr_data/table_data.h"
#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_select/layer_lattice.h"

using namespace zu::platform;

namespace {

/// The layer that a person points at; null if there is none with a table.
Izu_layer* target_of(Tzu_viewer2d* viewer) {
  const Tzu_scn_2d* scene = zu_viewer2d_get_scn_2d(viewer);
  if (Izu_layer* active = zu_scn_2d_get_active_layer(scene))
    return zu_lr_get_data_ptr(active) != nullptr ? active : nullptr;
  for (uint64_t i = zu_scn_2d_get_layer_count(scene); i-- > 0;) {
    Izu_layer* layer = zu_scn_2d_get_layer(scene, i);
    if (zu_lr2d_is_visible(layer) && zu_lr_get_data_ptr(layer) != nullptr) return layer;
  }
  return nullptr;
}

void apply(Tzu_table_data& table, int32_t operation, const id_runs& found) {
  if (operation < zu_select_replace || operation > zu_select_remove) return;
  table.select([&](id_runs& selected) {
    if (operation == zu_select_remove) return selected.subtract(found);
    if (operation == zu_select_replace) selected.clear();
    selected.unite(found);
  });
}

/// `find` gives the ids under a shape on a lattice; a layer without one has none.
template <class finder> void select(Tzu_viewer2d* viewer, int32_t operation, finder find) {
  guarded(target_of(viewer), [&](Izu_layer& layer) {
    auto lattice = layer_lattice::of(&layer);
    apply(*zu_lr_get_data_ptr(&layer), operation, lattice ? find(*lattice) : id_runs());
  });
}

id_runs cell_at(const layer_lattice& lattice, const Tzu_vtx_d2& point) {
  id_runs found;
  auto at = lattice.place(point);
  if (!at) return found;
  double x = std::floor(at->x), y = std::floor(at->y);
  auto nx = static_cast<double>(lattice.size().nx), ny = static_cast<double>(lattice.size().ny);
  if (x < 0 || y < 0 || x >= nx || y >= ny) return found;
  uint64_t id = lattice.first_id() +
                static_cast<uint64_t>(y) * static_cast<uint64_t>(lattice.size().nx) +
                static_cast<uint64_t>(x);
  found.insert({id, id});
  return found;
}

void select_box(Tzu_viewer2d* viewer, const Tzu_box_d2* box, int32_t operation, cell_rule rule) {
  if (box == nullptr) return;
  vertices ring = {{box->x0, box->y0}, {box->x1, box->y0}, {box->x1, box->y1}, {box->x0, box->y1}};
  select(viewer, operation, [&](const layer_lattice& lattice) {
    return cells_under({lattice.place_ring(ring)}, rule, lattice.size(), lattice.first_id());
  });
}

std::vector<vertices> lists_of(const Tzu_ov_d2* objects) {
  std::vector<vertices> lists;
  auto* set = const_cast<Tzu_ov_d2*>(objects);  // it is only read
  for (uint64_t i = 0; i < zu_ov_d2_get_size(set); ++i) {
    Tzu_pv_d2* list = zu_ov_d2_get_pv_ptr(set, i);
    const Tzu_vtx_d2* first = zu_pv_d2_get_arr(list);
    lists.emplace_back(first, first + zu_pv_d2_get_size(list));
  }
  return lists;
}

}  // namespace

void zu_execute_viewer2d_select_vtx_set_scale_ex(Tzu_viewer2d* viewer, const Tzu_box_d2* box,
                                                 int32_t operation, const Tzu_vtx_d2* point,
                                                 int32_t all, double /*sx*/, double /*sy*/) {
  if (all != 0) return select_box(viewer, box, operation, cell_rule::crossing);
  if (point == nullptr) return;
  select(viewer, operation, [&](const layer_lattice& lattice) { return cell_at(lattice, *point); });
}

void zu_execute_viewer2d_select_box_set_scale(Tzu_viewer2d* viewer, const Tzu_box_d2* box,
                                              int32_t operation, double /*sx*/, double /*sy*/) {
  select_box(viewer, box, operation, cell_rule::inside);
}

void zu_execute_viewer2d_select_box_cross_set_scale(Tzu_viewer2d* viewer, const Tzu_box_d2* box,
                                                    int32_t operation, double /*sx*/,
                                                    double /*sy*/) {
  select_box(viewer, box, operation, cell_rule::crossing);
}

void zu_execute_viewer2d_select_geom_set_scale(Tzu_viewer2d* viewer, const Tzu_ov_d2* objects,
                                               int32_t operation, int32_t shape, double /*sx*/,
                                               double /*sy*/) {
  if (objects == nullptr || shape < zu_select_line || shape > zu_select_crossing) return;
  cell_rule rule = shape == zu_select_line     ? cell_rule::passed
                   : shape == zu_select_inside ? cell_rule::inside
                                               : cell_rule::crossing;
  select(viewer, operation, [&](const layer_lattice& lattice) {
    std::vector<vertices> placed;
    for (const vertices& list : lists_of(objects))
      placed.push_back(rule == cell_rule::passed ? lattice.place_line(list)
                                                 : lattice.place_ring(list));
    return cells_under(placed, rule, lattice.size(), lattice.first_id());
  });
}
