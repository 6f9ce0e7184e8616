#pragma once
// One picture of a map, drawn layer by layer, so that whoever waits can see how far it is and a
// newer wish can take its place.

#include <QColor>
#include <QImage>
#include <memory>

#include "host/desktop/map/map_layers.h"

namespace zu::desktop {

/// A picture and the box of the scene that it shows.
struct map_frame {
  QImage picture;
  Tzu_box_d2 box{};
};

/// What a frame is drawn of.
struct frame_request {
  QSize pixels;  ///< of the screen
  Tzu_box_d2 box{};
  double dots_per_inch = 96;
  QColor background;
};

class frame_drawing {
 public:
  /// A frame without layers. `layers` and `scene` must outlive it and may change meanwhile.
  frame_drawing(const map_layers& layers, Tzu_scn_2d* scene, const frame_request& request);
  /// Whether there is a layer left. False at once if no memory holds the picture.
  bool is_going_on() const { return page_ && next_ < layers_.count(); }
  /// Draws it, and after the last one the axes of the scene.
  void draw_next();
  /// What has been drawn so far; shares its pixels with the drawing.
  map_frame frame() const;

 private:
  struct ended {
    void operator()(Izu_render* render) const { zu_render_destroy(render); }
  };

  const map_layers& layers_;
  Tzu_scn_2d* scene_;
  frame_request request_;
  std::shared_ptr<Tzu_drwc> page_;
  std::unique_ptr<Izu_render, ended> render_;
  std::size_t next_ = 0;
};

/// The pixels of a page as an image that keeps the page.
QImage image_of(const std::shared_ptr<Tzu_drwc>& page, QSize pixels, QImage::Format format);

}  // namespace zu::desktop
