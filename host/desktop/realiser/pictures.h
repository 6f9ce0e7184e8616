#pragma once
// Pictures of elements.

#include <QIcon>
#include <QPixmap>

#include "zu/toolkit.h"

namespace zu::desktop {

/// What an element shows as a picture.
struct picture {
  QImage image;         ///< null: none. Rows from the top; a sample's ground is that of a map.
  std::int32_t id = 0;  ///< below 0: one that all parts of the system share; 0: a sample
};

/// Keeps the picture that an operation visits.
class kept_picture final : public bitmap_visitor_impl {
 public:
  void visit(bitmap shown) override;
  bitmap_visitor visitor() { return bitmap_visitor(handle_of<bitmap_visitor_impl>(*this)); }
  const picture& get() const { return picture_; }

 private:
  picture picture_;
};

/// The icon of the theme for a shared picture, else the picture itself.
QIcon icon_of(const picture& shown);
/// The same in the size in which it stands in a text, drawn for the pixels of a screen.
QPixmap pixmap_of(const picture& shown, qreal device_pixel_ratio);

template <auto operation, class... given> picture picture_by(handle h, given... values) {
  kept_picture kept;
  call<operation>(h, values..., kept.visitor());
  return kept.get();
}
template <auto operation, class... given> QIcon icon_by(handle h, given... values) {
  return icon_of(picture_by<operation>(h, values...));
}

}  // namespace zu::desktop
