#include "host/core/picture.h"

#include <algorithm>
#include <cmath>

#include "host/core/failure.h"
#include "host/core/print_page.h"
#include "host/core/texts.h"

namespace zu::host {

Tzu_box_d2 widened(const Tzu_box_d2& box, std::uint64_t nx, std::uint64_t ny) {
  double width = box.x1 - box.x0, height = box.y1 - box.y0;
  auto columns = static_cast<double>(nx), rows = static_cast<double>(ny);
  double per_pixel = std::max(width / columns, height / rows);
  // The side that is not widened keeps its numbers to the last digit.
  double more_x = width / columns < per_pixel ? (per_pixel * columns - width) / 2 : 0.0;
  double more_y = height / rows < per_pixel ? (per_pixel * rows - height) / 2 : 0.0;
  return {box.x0 - more_x, box.y0 - more_y, box.x1 + more_x, box.y1 + more_y};
}

drawn_picture empty_page(const picture_request& request) {
  auto millimetres = [&](std::uint64_t pixels) {
    return static_cast<double>(pixels) / request.dots_per_inch * 25.4;
  };
  double width = millimetres(request.nx), height = millimetres(request.ny);
  drawn_picture picture;
  switch (request.kind) {
    case page_kind::pdf:
      picture.page.reset(zu_drwc_create_pdf(width, height, request.dots_per_inch));
      break;
    case page_kind::svg:
      picture.page.reset(zu_drwc_create_svg(width, height, request.dots_per_inch));
      break;
    default:
      picture.page.reset(zu_drwc_create_image(request.nx, request.ny, request.dots_per_inch,
                                              request.kind == page_kind::print));
  }
  if (!picture.page) throw failure("a picture of this size cannot be had");
  if (request.background) zu_drwc_fill(picture.page.get(), *request.background);
  return picture;
}

namespace {

/// What drawing left to say about a layer: gaps go to the picture, the rest is a failure.
void take_reasons(const layer& drawn, const scene& shown, drawn_picture& picture) {
  std::wstring name = wide(drawn.source_name());
  if (!shown.projection().empty() && drawn.projection().empty())
    picture.unplaced.push_back(drawn.source_name());
  for (const std::string& reason : reasons(name, zu_problem_part))
    picture.shortfalls.push_back(drawn.source_name() + ": " + reason);
  for (int kind : {zu_problem_read, zu_problem_open})
    if (std::vector<std::string> why = reasons(name, kind); !why.empty())
      throw failure(drawn.source_name(), why.front());
}

}  // namespace

drawn_picture draw(const scene& shown, const picture_request& request) {
  Tzu_box_d2 box = widened(request.extent ? *request.extent : shown.box(), request.nx, request.ny);
  if (!(box.x1 > box.x0) || !(box.y1 > box.y0) || !std::isfinite(box.x1 - box.x0) ||
      !std::isfinite(box.y1 - box.y0))
    throw failure("the visible box has no area");
  drawn_picture picture = empty_page(request);
  picture.box = box;
  std::unique_ptr<Izu_render, void (*)(Izu_render*)> render(
      zu_render_create(picture.page.get(), &box), &zu_render_destroy);
  zu_render_set_pj4wstr(render.get(), wide(shown.projection()).c_str());
  bool any_in_view = false;
  for (const auto& each : shown.layers()) {
    if (!each->is_visible()) continue;
    if (each->is_missing()) {
      picture.shortfalls.push_back(each->source_name() + ": is missing");
      continue;
    }
    zu_problems_clear(wide(each->source_name()).c_str());
    auto draw_layer = [&] { each->draw(render.get()); };
    if (request.kind == page_kind::screen)
      draw_layer();
    else
      print_page(render.get(), draw_layer, each->caption());
    take_reasons(*each, shown, picture);
    std::optional<Tzu_box_d2> own = each->box();
    Tzu_box_d2 common;
    any_in_view = any_in_view || (own && zu_box_d2_cross(&*own, &box, &common));
  }
  picture.empty = !any_in_view || !zu_drwc_has_ink(picture.page.get());
  return picture;
}

}  // namespace zu::host
