#pragma once
// Texts that stand at places of a scene.

#include "zu/platform/zuk_render.h"

typedef struct Tzu_text_data Tzu_text_data;
/// Black, 2.5 mm high, its lower middle at the origin; null if out of memory.
ZU_API Tzu_text_data* zu_text_data_create(void);
ZU_API void zu_text_data_destroy(Tzu_text_data* text);
ZU_API void zu_text_data_set_wtext(Tzu_text_data* text, const wchar_t* letters);
/// Place in scene coordinates, and which point of the text stands there (`Tzu_text_anchor`).
ZU_API void zu_text_data_set_place(Tzu_text_data* text, double x, double y, int32_t anchor);
ZU_API void zu_text_data_set_height(Tzu_text_data* text, double millimetres);
ZU_API void zu_text_data_set_color(Tzu_text_data* text, Tzu_color color);
/// A box behind the letters; null takes it away.
ZU_API void zu_text_data_set_background(Tzu_text_data* text, const Tzu_color* color);
/// Box that the text takes on the page of a render, in millimetres; false, and no change, for a
/// text without letters.
ZU_API bool zu_text_data_get_box_mm(const Tzu_text_data* text, Izu_render* render, Tzu_box_d2* box);
ZU_API void zu_text_data_draw(const Tzu_text_data* text, Izu_render* render);
