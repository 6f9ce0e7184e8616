#include "src/style/page/pixels.h"

#include "src/bundle/owned.h"

namespace zu::style::detail {
namespace {

class pixels_bitmap final : public bitmap_impl {
 public:
  explicit pixels_bitmap(Tzu_dib* dib) : dib_(dib) {}
  void pixels(bytes_visitor visitor) override {
    const std::uint64_t width = zu_dib_get_nx(dib_), height = zu_dib_get_ny(dib_);
    call<&bytes_visitor_impl::visit>(visitor, height, width * 4, width, std::uint64_t{4},
                                     std::uint64_t{4}, std::uint64_t{1},
                                     reinterpret_cast<const std::uint8_t*>(zu_dib_get_arr(dib_)));
  }

 private:
  Tzu_dib* dib_;
};

}  // namespace

void visit_pixels(Tzu_dib* dib, bitmap_visitor visitor) {
  if (dib == nullptr || zu_dib_get_arr(dib) == nullptr) return;
  pixels_bitmap picture(dib);
  call<&bitmap_visitor_impl::visit>(visitor, handle_of<bitmap_impl>(picture));
}

void visit_strip(const std::vector<Tzu_color>& colors, std::uint32_t width, std::uint32_t height,
                 bitmap_visitor visitor) {
  if (colors.empty()) return;
  owned<zu_dib_destroy> dib(zu_dib_create());
  if (!dib) return;
  zu_dib_set_nxy(dib.get(), width, height);
  if (zu_dib_get_arr(dib.get()) == nullptr) return;
  for (std::uint32_t y = 0; y < height; ++y)
    for (std::uint32_t x = 0; x < width; ++x) {
      const Tzu_color& c = colors[std::uint64_t{x} * colors.size() / width];
      zu_dib_set_rgba(dib.get(), x, y, c.r, c.g, c.b, 255);
    }
  visit_pixels(dib.get(), visitor);
}

}  // namespace zu::style::detail
