#include "host/desktop/realiser/pictures.h"

#include <QPainter>
#include <algorithm>
#include <cstring>
#include <map>

namespace zu::desktop {
namespace {

/// Reads the pixels of a bitmap: one, three or four channels, the bottom row first. Colours of four
/// channels are mixed with their opacity already.
class pixel_reader final : public bytes_visitor_impl {
 public:
  void visit(std::uint64_t height, std::uint64_t row_bytes, std::uint64_t width,
             std::uint64_t bytes_per_pixel, std::uint64_t channels, std::uint64_t interleave,
             const std::uint8_t* pixels) override {
    constexpr std::uint64_t most = 16384;
    if (pixels == nullptr || width == 0 || height == 0 || width > most || height > most) return;
    if (interleave != 1 || channels == 0 || channels > bytes_per_pixel || bytes_per_pixel > 16 ||
        row_bytes < width * bytes_per_pixel)
      return;
    is_opaque = channels == 1 || channels == 3;
    image = QImage(int(width), int(height), QImage::Format_RGBA8888_Premultiplied);
    for (std::uint64_t row = 0; row < height; ++row) {
      const std::uint8_t* from = pixels + (height - 1 - row) * row_bytes;
      uchar* to = image.scanLine(int(row));
      for (std::uint64_t x = 0; x < width; ++x, from += bytes_per_pixel, to += 4) {
        to[3] = channels == 4 || channels == 2 ? from[channels - 1] : 255;
        for (int c = 0; c < 3; ++c) to[c] = std::min(from[channels >= 3 ? c : 0], to[3]);
      }
    }
  }
  QImage image;
  bool is_opaque = false;
};

/// Shared pictures come with their ground painted. Its colour is that of the low left pixel.
void cut_out_ground(QImage& image) {
  if (image.isNull()) return;
  QRgb ground = image.pixel(0, image.height() - 1);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) == ground) image.setPixel(x, y, 0);
}

/// Samples of styles are looked at as on the map, whose ground is white: a black line on a dark
/// window would not be seen.
QImage on_paper(const QImage& sample) {
  if (sample.isNull()) return sample;
  QImage paper(sample.size(), QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter(&paper).drawImage(0, 0, sample);
  return paper;
}

// Pictures that all parts share, by what they mean.
const std::map<std::int32_t, const char*> shared_pictures = {
    {-62, "edit-copy"},
    {-63, "edit-paste"},
    {-74, "document-open"},
    {-75, "document-save"},
    {-101, "zoom-in"},
    {-102, "zoom-out"},
    {-103, "transform-move"},
    {-112, "zoom-fit-best"},
    {-121, "edit-select"},
    {-123, "edit-select-none"},
    {-104, "zoom-in-x"},
    {-105, "y-zoom-in"},
    {-106, "zoom-out-x"},
    {-107, "zoom-out-y"},
    {-108, "transform-move-horizontal"},
    {-109, "transform-move-vertical"},
};

}  // namespace

void kept_picture::visit(bitmap shown) {
  pixel_reader reader;
  call<&bitmap_impl::pixels>(shown, bytes_visitor(handle_of<bytes_visitor_impl>(reader)));
  picture_ = {reader.image, call<&bitmap_impl::id>(shown)};
  if (picture_.id == 0) picture_.image = on_paper(picture_.image);
  if (picture_.id < 0 && reader.is_opaque) cut_out_ground(picture_.image);
}

QIcon icon_of(const picture& shown) {
  if (auto row = shared_pictures.find(shown.id); row != shared_pictures.end()) {
    QIcon themed = QIcon::fromTheme(QLatin1String(row->second));
    if (!themed.isNull()) return themed;
  }
  return shown.image.isNull() ? QIcon() : QIcon(QPixmap::fromImage(shown.image));
}

QPixmap pixmap_of(const picture& shown, qreal device_pixel_ratio) {
  if (shown.image.isNull()) return {};
  QIcon icon = icon_of(shown);
  return icon.pixmap(shown.image.size(), device_pixel_ratio);
}

}  // namespace zu::desktop
