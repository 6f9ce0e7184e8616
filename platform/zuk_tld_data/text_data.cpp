#include <new>
#include <optional>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_tld_data.h"

using zu::platform::guarded;

struct Tzu_text_data {
  std::wstring letters;
  double x = 0, y = 0, height = 2.5;
  int32_t anchor = zu_anchor_low_center;
  Tzu_color color{0, 0, 0, 0};
  std::optional<Tzu_color> background;
};

namespace {

constexpr double capitals = 0.73;  // of the height

/// The anchor on the page, in millimetres.
Tzu_vtx_d2 place_of(const Tzu_text_data& text, const Izu_render* render) {
  Tzu_vtx_d2 at{text.x, text.y};
  zu_vtx_d2_apply_matrix3x3(&at, zu_render_get_matrix_cr2mm(render));
  return at;
}

}  // namespace

Tzu_text_data* zu_text_data_create() { return new (std::nothrow) Tzu_text_data; }
void zu_text_data_destroy(Tzu_text_data* text) { delete text; }
void zu_text_data_set_wtext(Tzu_text_data* text, const wchar_t* letters) {
  guarded(text, [&](Tzu_text_data& t) { t.letters = letters != nullptr ? letters : L""; });
}
void zu_text_data_set_place(Tzu_text_data* text, double x, double y, int32_t anchor) {
  guarded(text, [&](Tzu_text_data& t) { t.x = x, t.y = y, t.anchor = anchor; });
}
void zu_text_data_set_height(Tzu_text_data* text, double millimetres) {
  if (text != nullptr) text->height = millimetres;
}
void zu_text_data_set_color(Tzu_text_data* text, Tzu_color color) {
  if (text != nullptr) text->color = color;
}
void zu_text_data_set_background(Tzu_text_data* text, const Tzu_color* color) {
  guarded(text, [&](Tzu_text_data& t) {
    t.background.reset();
    if (color != nullptr) t.background = *color;
  });
}
bool zu_text_data_get_box_mm(const Tzu_text_data* text, Izu_render* render, Tzu_box_d2* box) {
  if (text == nullptr || render == nullptr || box == nullptr || text->letters.empty()) return false;
  double width =
      zu_drwc_text_size_w(zu_render_get_drwc(render), text->height, text->letters.c_str());
  double high = text->height * capitals;
  Tzu_vtx_d2 at = place_of(*text, render);
  int32_t column = text->anchor % 3, row = text->anchor / 3;
  double x0 = at.x - width * column / 2, y0 = at.y - high * row / 2;
  double room = text->height / 5;
  *box = {x0 - room, y0 - room, x0 + width + room, y0 + high + room};
  return true;
}
void zu_text_data_draw(const Tzu_text_data* text, Izu_render* render) {
  Tzu_box_d2 box{};
  if (!zu_text_data_get_box_mm(text, render, &box)) return;
  Tzu_drwc* page = zu_render_get_drwc(render);
  if (text->background) zu_drwc_fill_box(page, &box, *text->background);
  Tzu_vtx_d2 at = place_of(*text, render);
  zu_drwc_draw_text_w(page, at.x, at.y, text->height, text->anchor, text->color,
                      text->letters.c_str());
}
