#pragma once
// A viewer whose window only counts, 200 by 100 pixels of a tenth of a millimetre.

#include <optional>

#include "src/bundle/owned.h"
#include "zu/platform/zuk_viewer2d.h"

namespace tests {

struct counting_window {
  int redraws = 0, rubbers = 0, moves = 0;
  std::int32_t dx = 0, dy = 0;
  std::optional<Tzu_box_i2> rubber;  // that shows now
  zu::owned<zu_viewer2d_destroy> owner;

  explicit counting_window(bool anisotropic = false) {
    Tzu_viewer2d_hooks hooks{};
    hooks.redraw = [](void* w) { ++self(w).redraws; };
    hooks.move_picture = [](std::int32_t x, std::int32_t y, void* w) {
      ++self(w).moves;
      self(w).dx = x, self(w).dy = y;
    };
    hooks.draw_box = [](const Tzu_box_i2* box, void* w) {
      self(w).rubber.reset();
      if (box != nullptr) self(w).rubber = *box, ++self(w).rubbers;
    };
    hooks.user = this;
    owner.reset(zu_viewer2d_create(&hooks));
    zu_viewer2d_set_size(get(), 200, 100, 254);
    zu_viewer2d_set_anisotropic(get(), anisotropic);
    zoom({0, 0, 200, 100});
  }
  Tzu_viewer2d* get() const { return owner.get(); }
  Tzu_viewer* viewer() const { return zu_viewer2d_safe_upcast(get()); }
  void zoom(const Tzu_box_d2& box) { zu_viewer2d_set_zoom_box(get(), &box); }
  Tzu_box_d2 box() const {
    Tzu_box_d2 b{};
    zu_viewer2d_get_box_cr_sml(get(), &b);
    return b;
  }
  static counting_window& self(void* window) { return *static_cast<counting_window*>(window); }
};

#define EXPECT_BOX(b, ax, ay, bx, by) \
  do {                                \
    Tzu_box_d2 seen = (b);            \
    EXPECT_NEAR(seen.x0, ax, 1e-9);   \
    EXPECT_NEAR(seen.y0, ay, 1e-9);   \
    EXPECT_NEAR(seen.x1, bx, 1e-9);   \
    EXPECT_NEAR(seen.y1, by, 1e-9);   \
  } while (false)

}  // namespace tests
