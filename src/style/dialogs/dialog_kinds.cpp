#include "src/style/dialogs/dialog_kinds.h"

#include <initializer_list>

#include "zu/platform/zuk_render.h"

namespace zu::style::detail {
namespace {

/// Draws on a page of so many millimetres, in its own coordinates, what is given as shares of it.
template <auto draw_set, class style>
void draw_sample(Tzu_drwc* page, double width, double height, const style* shown,
                 std::initializer_list<Tzu_vtx_d2> shares) {
  const Tzu_box_d2 box{0, 0, width, height};
  owned<zu_render_destroy> render(zu_render_create(page, &box));
  owned<zu_ov_d2_destroy> set(zu_ov_d2_create());
  Tzu_pv_d2* list = zu_ov_d2_add(set.get());
  for (const Tzu_vtx_d2& share : shares) {
    Tzu_vtx_d2 vertex{share.x * width, share.y * height};
    zu_pv_d2_add_vtx(list, &vertex);
  }
  draw_set(render.get(), set.get(), shown);
}

}  // namespace

void point_dialog_traits::draw(Tzu_drwc* page, double width, double height, argument shown) {
  draw_sample<&zu_render_cr_pnt>(page, width, height, shown, {{0.5, 0.5}});
}
void line_dialog_traits::draw(Tzu_drwc* page, double width, double height, argument shown) {
  draw_sample<&zu_render_cr_pln>(page, width, height, shown,
                                 {{0.12, 0.25}, {0.4, 0.75}, {0.6, 0.3}, {0.88, 0.7}});
}
void polygon_dialog_traits::draw(Tzu_drwc* page, double width, double height, argument shown) {
  draw_sample<&zu_render_cr_pgn>(page, width, height, shown,
                                 {{0.15, 0.2}, {0.7, 0.15}, {0.88, 0.6}, {0.4, 0.85}, {0.15, 0.2}});
}

}  // namespace zu::style::detail
