#include "host/desktop/realiser/outline_answers.h"

#include <QLocale>
#include <cmath>

namespace zu::desktop {
namespace {

class image_maker final : public bytes_visitor_impl {
 public:
  QImage image;

  void visit(std::uint64_t height, std::uint64_t row_bytes, std::uint64_t width,
             std::uint64_t bytes_per_pixel, std::uint64_t channels, std::uint64_t interleave,
             const std::uint8_t* pixels) override {
    const bool known = channels == 1 || channels == 3 || channels == 4;
    if (!known || interleave != 1 || bytes_per_pixel < channels || pixels == nullptr ||
        width == 0 || height == 0 || width > largest || height > largest)
      return;
    image = QImage(int(width), int(height), QImage::Format_RGBA8888);
    for (int y = 0; y < int(height); ++y) {
      const std::uint8_t* in = pixels + std::uint64_t(y) * row_bytes;
      uchar* out = image.scanLine(int(height) - 1 - y);  // pictures come bottom row first
      for (int x = 0; x < int(width); ++x, in += bytes_per_pixel, out += 4) {
        for (int c = 0; c < 3; ++c) out[c] = in[channels == 1 ? 0 : c];
        out[3] = channels == 4 ? in[3] : 255;
      }
    }
  }

 private:
  static constexpr std::uint64_t largest = 16384;
};

}  // namespace

QImage pixels_of(bitmap picture) {
  image_maker maker;
  call<&bitmap_impl::pixels>(picture, bytes_visitor(handle_of<bytes_visitor_impl>(maker)));
  return maker.image;
}

bool read_number(QString text, double& value) {
  text = text.trimmed();
  text.replace(QLatin1Char(','), QLatin1Char('.'));
  bool is_number = false;
  double read = QLocale::c().toDouble(text, &is_number);
  if (!is_number || !std::isfinite(read)) return false;
  value = read;
  return true;
}

bool read_number(const QString& text, std::int32_t& value) {
  bool is_number = false;
  int read = text.trimmed().toInt(&is_number);
  if (is_number) value = read;
  return is_number;
}

}  // namespace zu::desktop
