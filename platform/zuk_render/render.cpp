#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_render.h"

using zu::platform::guarded;

struct Izu_render {
  Tzu_drwc* drwc;
  Tzu_box_d2 map_box;
  Tzu_matrix3x3 cr2mm;
  std::wstring projection;
  std::optional<Tzu_matrix3x3> affine;
  std::int32_t plane;
};

namespace {

using page_set = std::unique_ptr<Tzu_ov_d2, void (*)(Tzu_ov_d2*)>;

/// A set in render coordinates brought to the page.
page_set on_page(const Izu_render& render, const Tzu_ov_d2* set) {
  page_set copy(zu_ov_d2_create(), &zu_ov_d2_destroy);
  zu_ov_d2_assign(copy.get(), set);
  zu_ov_d2_apply_matrix3x3(copy.get(), &render.cr2mm);
  return copy;
}

}  // namespace

Izu_render* zu_render_create(Tzu_drwc* drwc, const Tzu_box_d2* map_box) {
  return guarded(map_box, static_cast<Izu_render*>(nullptr), [&](const Tzu_box_d2& box) {
    Tzu_box_d2 page{};
    zu_drwc_get_page(drwc, &page);
    auto* render = new Izu_render{drwc, box, {}, {}, {}, 0};
    zu_matrix3x3_init_box2box(&render->cr2mm, &box, &page);
    return render;
  });
}
void zu_render_destroy(Izu_render* render) { delete render; }
Tzu_drwc* zu_render_get_drwc(const Izu_render* render) {
  return render != nullptr ? render->drwc : nullptr;
}
const Tzu_box_d2* zu_render_get_map_box_cr(const Izu_render* render) {
  return render != nullptr ? &render->map_box : nullptr;
}
void zu_render_set_map_box_cr(Izu_render* render, const Tzu_box_d2* map_box) {
  if (render != nullptr && map_box != nullptr) render->map_box = *map_box;
}
const Tzu_matrix3x3* zu_render_get_matrix_cr2mm(const Izu_render* render) {
  return render != nullptr ? &render->cr2mm : nullptr;
}
void zu_render_get_pj4wstr(const Izu_render* render, Tzu_string_adp* adapter) {
  guarded(render, [&](const Izu_render& r) { zu_string_adp_feed(adapter, r.projection.c_str()); });
}
void zu_render_set_pj4wstr(Izu_render* render, const wchar_t* projection) {
  guarded(render, [&](Izu_render& r) { r.projection = projection != nullptr ? projection : L""; });
}
void zu_render_set_affine_matrix(Izu_render* render, const Tzu_matrix3x3* matrix) {
  guarded(render, [&](Izu_render& r) {
    r.affine.reset();
    if (matrix != nullptr) r.affine = *matrix;
  });
}
bool zu_render_has_affine_transform(const Izu_render* render) {
  return render != nullptr && render->affine.has_value();
}
const Tzu_matrix3x3* zu_render_get_affine_matrix(const Izu_render* render) {
  return zu_render_has_affine_transform(render) ? &*render->affine : nullptr;
}
void zu_render_set_plane(Izu_render* render, int32_t plane) {
  guarded(render, [&](Izu_render& r) { r.plane = plane; });
}
int32_t zu_render_get_plane(const Izu_render* render) {
  return render != nullptr ? render->plane : 0;
}
void zu_render_cr_pln(Izu_render* render, const Tzu_ov_d2* lines, const Tzu_pln_style* style) {
  if (lines == nullptr || style == nullptr) return;
  guarded(render, [&](Izu_render& r) {
    page_set page = on_page(r, lines);
    zu_drwc_draw_pln(r.drwc, page.get(), style);
  });
}
void zu_render_cr_pnt(Izu_render* render, const Tzu_ov_d2* points, const Tzu_pnt_style* style) {
  if (points == nullptr || style == nullptr) return;
  guarded(render, [&](Izu_render& r) {
    page_set page = on_page(r, points);
    std::vector<double> xs, ys;
    for (uint64_t i = 0; i < zu_ov_d2_get_size(page.get()); ++i) {
      Tzu_pv_d2* list = zu_ov_d2_get_pv_ptr(page.get(), i);
      for (uint64_t k = 0; k < zu_pv_d2_get_size(list); ++k) {
        xs.push_back(zu_pv_d2_get_arr(list)[k].x);
        ys.push_back(zu_pv_d2_get_arr(list)[k].y);
      }
    }
    zu_drwc_draw_pnt(r.drwc, xs.size(), xs.data(), ys.data(), style);
  });
}
void zu_render_cr_pgn(Izu_render* render, const Tzu_ov_d2* rings, const Tzu_pgn_style* style) {
  if (rings == nullptr || style == nullptr) return;
  guarded(render, [&](Izu_render& r) {
    page_set page = on_page(r, rings);
    zu_drwc_draw_pgn(r.drwc, page.get(), style);
  });
}
