#include "host/desktop/map/frame_drawing.h"

#include "host/core/texts.h"

namespace zu::desktop {

frame_drawing::frame_drawing(const map_layers& layers, Tzu_scn_2d* scene,
                             const frame_request& request)
    : layers_(layers),
      scene_(scene),
      request_(request),
      page_(zu_drwc_create_image(static_cast<std::uint64_t>(request.pixels.width()),
                                 static_cast<std::uint64_t>(request.pixels.height()),
                                 request.dots_per_inch, false),
            &zu_drwc_destroy) {
  if (!page_) return;
  auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  const QColor& back = request.background;
  zu_drwc_fill(page_.get(), {part(back.red()), part(back.green()), part(back.blue()), 0});
  render_.reset(zu_render_create(page_.get(), &request.box));
  std::wstring projection =
      host::text_of([&](Tzu_string_adp* adapter) { zu_scn_2d_get_pj4wstr(scene, adapter); });
  zu_render_set_pj4wstr(render_.get(), projection.c_str());
}

void frame_drawing::draw_next() {
  layers_.draw(next_++, render_.get());
  if (next_ == layers_.count()) zu_scn_2d_draw_axes(render_.get(), scene_);
}

map_frame frame_drawing::frame() const {
  // On an opaque background no pixel lets anything through: the screen takes it without mixing.
  return {image_of(page_, request_.pixels, QImage::Format_RGB32), request_.box};
}

QImage image_of(const std::shared_ptr<Tzu_drwc>& page, QSize pixels, QImage::Format format) {
  std::uint64_t row_bytes = 0;
  const std::uint32_t* words = zu_drwc_get_argb(page.get(), &row_bytes);
  if (words == nullptr) return {};
  auto* kept = new std::shared_ptr<Tzu_drwc>(page);
  return {reinterpret_cast<const uchar*>(words),
          pixels.width(),
          pixels.height(),
          static_cast<qsizetype>(row_bytes),
          format,
          [](void* held) { delete static_cast<std::shared_ptr<Tzu_drwc>*>(held); },
          kept};
}

}  // namespace zu::desktop
