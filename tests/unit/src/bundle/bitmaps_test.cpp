#include "src/bundle/bitmaps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "src/bundle/localizer_client.h"
#include "zu/platform/zuk_os.h"

namespace {

using bytes = std::vector<std::uint8_t>;

struct kept_picture : zu::bytes_visitor_impl {
  int calls = 0;
  std::uint64_t height = 0, row_bytes = 0, width = 0, pixel_bytes = 0, channels = 0, interleave = 0;
  bytes pixels;
  void visit(std::uint64_t h, std::uint64_t row, std::uint64_t w, std::uint64_t pixel,
             std::uint64_t c, std::uint64_t i, const std::uint8_t* data) override {
    ++calls;
    height = h, row_bytes = row, width = w, pixel_bytes = pixel, channels = c, interleave = i;
    pixels.assign(data, data + h * row);
  }
  zu::bytes_visitor visitor() {
    return zu::bytes_visitor(zu::handle_of<zu::bytes_visitor_impl>(*this));
  }
};

TEST(bitmap, rows_come_from_the_bottom_and_a_masked_one_loses_the_colour_of_its_low_left_pixel) {
  kept_picture plain, masked;
  zu::detail::visit_letters("r.wb", 2, 2, false, plain.visitor());
  EXPECT_EQ(plain.height, 2u);
  EXPECT_EQ(plain.width, 2u);
  EXPECT_EQ(plain.row_bytes, 8u);
  EXPECT_EQ(plain.pixel_bytes, 4u);
  EXPECT_EQ(plain.channels, 3u);
  EXPECT_EQ(plain.interleave, 1u);
  EXPECT_EQ(plain.pixels, (bytes{255, 255, 255, 0, 56, 116, 196, 0,  //
                                 214, 64, 52, 0, 254, 254, 254, 0}));
  zu::detail::visit_letters("wrww", 2, 2, true, masked.visitor());
  EXPECT_EQ(masked.channels, 4u);
  EXPECT_EQ(masked.pixels, (bytes{0, 0, 0, 0, 0, 0, 0, 0,  //
                                  0, 0, 0, 0, 214, 64, 52, 255}));
}

TEST(bitmap, letters_that_make_no_picture_give_no_call) {
  kept_picture picture;
  zu::detail::visit_letters("ww", 2, 2, false, picture.visitor());
  zu::detail::visit_letters("ww?w", 2, 2, false, picture.visitor());
  zu::detail::visit_letters("", 0, 0, false, picture.visitor());
  zu::get_bitmap({1, false}, picture.visitor());
  zu::get_bitmap_of_basic(1, picture.visitor());
  EXPECT_EQ(picture.calls, 0);
}

TEST(bitmap, every_picture_of_the_tables_can_be_had) {
  const std::int32_t own[] = {101, 103, 105, 106, 107, 110, 111};
  const std::int32_t shared[] = {62,   63,   74,   75,   101,  102,  103,  104,  105,
                                 106,  107,  108,  109,  112,  121,  123,  221,  231,
                                 232,  233,  612,  656,  657,  658,  3385, 3391, 3392,
                                 3393, 3394, 3395, 3396, 3397, 3398, 3399};
  for (std::int32_t id : own) {
    kept_picture picture;
    zu::get_bitmap({id, true}, picture.visitor());
    EXPECT_EQ(picture.pixels.size(), 16u * 16 * 4) << id;
    EXPECT_EQ(picture.channels, 4u) << id;
    EXPECT_EQ(picture.pixels[3], 0) << id << " is cut out at its corner";
  }
  for (std::int32_t id : shared) {
    kept_picture picture;
    zu::get_bitmap_of_basic(id, picture.visitor());
    EXPECT_EQ(picture.pixels.size(), 16u * 16 * 4) << id;
    EXPECT_EQ(picture.channels, 3u) << id;
  }
}

// What the key visitor makes of a picture, rows of `row_bytes` bytes.
kept_picture masked(std::uint64_t height, std::uint64_t row_bytes, std::uint64_t width,
                    std::uint64_t pixel_bytes, std::uint64_t channels, const bytes& pixels) {
  kept_picture picture;
  zu::detail::key_visitor visitor(picture.visitor());
  zu::call<&zu::bytes_visitor_impl::visit>(
      zu::bytes_visitor(zu::handle_of<zu::bytes_visitor_impl>(visitor)), height, row_bytes, width,
      pixel_bytes, channels, 1, pixels.data());
  return picture;
}

TEST(key_visitor, takes_its_key_from_the_first_pixel_of_the_last_row) {
  // Rows of 3 bytes whose last is padding; the key is 7.
  kept_picture gray = masked(2, 3, 2, 1, 1, {9, 7, 0, 7, 1, 0});
  EXPECT_EQ(gray.row_bytes, 8u);
  EXPECT_EQ(gray.pixel_bytes, 4u);
  EXPECT_EQ(gray.channels, 4u);
  EXPECT_EQ(gray.interleave, 1u);
  EXPECT_EQ(gray.pixels, (bytes{9, 9, 9, 255, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 255}));
  // Two of three bytes are not enough to be cut out.
  kept_picture colours = masked(2, 8, 2, 4, 3, {1, 2, 3, 0, 1, 2, 4, 0, 1, 2, 3, 0, 5, 6, 7, 0});
  EXPECT_EQ(colours.pixels, (bytes{0, 0, 0, 0, 1, 2, 4, 255, 0, 0, 0, 0, 5, 6, 7, 255}));
  kept_picture packed = masked(1, 6, 2, 3, 3, {1, 2, 3, 4, 5, 6});
  EXPECT_EQ(packed.pixels, (bytes{0, 0, 0, 0, 4, 5, 6, 255}));
}

TEST(key_visitor, passes_other_channel_counts_unchanged) {
  for (std::uint64_t channels : {2, 4}) {
    kept_picture same = masked(1, 4, 1, 4, channels, {7, 7, 7, 7});
    EXPECT_EQ(same.calls, 1);
    EXPECT_EQ(same.channels, channels);
    EXPECT_EQ(same.row_bytes, 4u);
    EXPECT_EQ(same.pixels, (bytes{7, 7, 7, 7}));
  }
}

TEST(key_visitor, gives_nothing_where_there_is_no_memory_or_no_picture) {
  kept_picture none;
  zu::detail::key_visitor visitor(none.visitor());
  const std::uint8_t byte = 0;
  std::uint64_t huge = std::uint64_t{1} << 40;
  visitor.visit(huge, 0, huge, 1, 1, 1, &byte);
#ifndef __SANITIZE_ADDRESS__  // which ends the program where memory is asked for that nobody has
  visitor.visit(huge, 0, 256, 1, 1, 1, &byte);
#endif
  visitor.visit(0, 0, 0, 1, 1, 1, &byte);
  visitor.visit(1, 1, 1, 1, 1, 1, nullptr);
  EXPECT_EQ(none.calls, 0);
}

// A host whose localizer has one picture: two pixels of three bytes.
struct test_localizer : zu::referent<zu::localizer_impl> {
  using referent::referent;
  void get_bitmap(std::int32_t id, zu::bytes_visitor visitor) override {
    const std::uint8_t pixels[] = {9, 9, 9, 1, 2, 3};
    if (id == 5) zu::call<&zu::bytes_visitor_impl::visit>(visitor, 1, 6, 2, 3, 3, 1, pixels);
  }
};
struct test_registry : zu::service_registry_impl, zu::localizer_service_impl {
  zu::strong_ref<zu::localizer_impl> kept{zu::handle_of<zu::localizer_impl>(*new test_localizer)};
  void find(const wchar_t*, zu::service_visitor visitor) override {
    zu::call<&zu::localizer_service_visitor_impl::visit>(
        zu::cast<zu::localizer_service_visitor_impl>(visitor),
        zu::localizer_service(zu::handle_of<zu::localizer_service_impl>(*this)));
  }
  void get_localizer(zu::localizer_visitor visitor, zu::bundle_context) override {
    zu::call<&zu::localizer_visitor_impl::visit>(visitor, kept.get());
  }
};
struct test_context : zu::referent<zu::bundle_context_impl> {
  test_registry registry;
  void get_registry(zu::service_registry_visitor visitor) override {
    zu::call<&zu::service_registry_visitor_impl::visit>(
        visitor, zu::service_registry(zu::handle_of<zu::service_registry_impl>(registry)));
  }
};

TEST(bitmap, of_a_localizer_is_masked_on_its_way) {
  zu::strong_ref<zu::bundle_context_impl> context{
      zu::handle_of<zu::bundle_context_impl>(*new test_context)};
  zu::detail::local_factory_impl client;
  zu::call<&zu::service_factory_impl::create>(
      zu::service_factory(zu::handle_of<zu::service_factory_impl>(client)), context.get(),
      zu::handle());
  kept_picture plain, cut, own;
  zu::get_bitmap({5, false}, plain.visitor());
  EXPECT_EQ(plain.pixels, (bytes{9, 9, 9, 1, 2, 3}));
  zu::get_bitmap({5, true}, cut.visitor());
  EXPECT_EQ(cut.pixels, (bytes{0, 0, 0, 0, 1, 2, 3, 255}));
  zu::get_bitmap({101, false}, own.visitor());
  EXPECT_EQ(own.calls, 0) << "this localizer has no such picture";
  zu::get_bitmap_of_basic(231, own.visitor());
  EXPECT_EQ(own.calls, 1) << "shared pictures are not the localizer's";
}

}  // namespace
