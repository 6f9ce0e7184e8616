#include "src/render/isolines.h"

namespace zu {

void draw_isoline_pass(const grid_render_context&, const Tzu_box_d2&, std::uint64_t, std::uint64_t,
                       data::grid_datasource&) {}

}  // namespace zu
