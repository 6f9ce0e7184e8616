#include "host/core/print_page.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/core/failure.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::host {
namespace {

struct ended {
  void operator()(Tzu_drwc* drwc) const { zu_drwc_destroy(drwc); }
  void operator()(Izu_render* render) const { zu_render_destroy(render); }
  void operator()(Tzu_dib* dib) const { zu_dib_destroy(dib); }
};
template <class object> using owner = std::unique_ptr<object, ended>;

constexpr std::uint64_t nx = 9990, ny = 40;

/// A page that shows a map of ten units a pixel, and what is drawn on it for each piece: a bitmap
/// over the render's map box, whose pixels bear the last digits of their place on the map and whose
/// lowest row and column are clear.
class print_page_test : public testing::Test {
 protected:
  void make(std::uint64_t columns, std::uint64_t rows) {
    page_.reset(zu_drwc_create_image(columns, rows, 96, true));
    const Tzu_box_d2 box{1000, 2000, 1000 + 10.0 * double(columns), 2000 + 10.0 * double(rows)};
    render_.reset(zu_render_create(page_.get(), &box));
  }
  void draw_piece() {
    Tzu_box_d2 box = *zu_render_get_map_box_cr(render_.get());
    boxes_.push_back(box);
    Tzu_dib_draw_record record{box, 0, 255, {0, 0, 0}};
    zu_box_d2_apply_matrix3x3(&record.box, zu_render_get_matrix_cr2mm(render_.get()));
    std::uint64_t columns, rows;
    zu_drwc_get_dib_size(page_.get(), &record.box, &columns, &rows);
    ASSERT_LT(columns, 5000u);
    ASSERT_LT(rows, 5000u);
    owner<Tzu_dib> dib(zu_dib_create());
    zu_dib_set_nxy(dib.get(), columns, rows);
    auto first_x = std::llround((box.x0 - 1000) / 10), first_y = std::llround((box.y0 - 2000) / 10);
    for (std::uint64_t y = 0; y < rows; ++y)
      for (std::uint64_t x = 0; x < columns; ++x) {
        auto at_x = static_cast<std::uint64_t>(first_x) + x;
        auto at_y = static_cast<std::uint64_t>(first_y) + y;
        zu_dib_set_rgba(dib.get(), x, y, at_x % 251, at_y % 241, 9, x == 0 || y == 0 ? 255 : 0);
      }
    zu_drwc_draw_dib(page_.get(), &record, dib.get());
  }
  void print() {
    print_page(render_.get(), [&] { draw_piece(); });
  }

  owner<Tzu_drwc> page_;
  owner<Izu_render> render_;
  std::vector<Tzu_box_d2> boxes_;
};

TEST_F(print_page_test, every_dot_shows_its_own_place_and_none_is_clear_but_on_the_frame) {
  make(nx, ny);
  print();
  EXPECT_EQ(boxes_.size(), 3u);  // two would be 4,995 and its overlap
  std::vector<std::uint8_t> rgba(nx * ny * 4);
  zu_drwc_get_pixels(page_.get(), rgba.data());
  for (std::uint64_t y = 1; y < ny; ++y)
    for (std::uint64_t x = 1; x < nx; ++x) {
      const std::uint8_t* p = &rgba[((ny - 1 - y) * nx + x) * 4];
      ASSERT_EQ(p[0], x % 251) << x << " " << y;
      ASSERT_EQ(p[1], y % 241) << x << " " << y;
      ASSERT_EQ(p[3], 255) << x << " " << y;
    }
}

TEST_F(print_page_test, pieces_lap_over_each_other_and_begin_on_nodes_of_the_lines) {
  make(ny, nx);
  print();
  ASSERT_EQ(boxes_.size(), 3u);
  EXPECT_EQ(boxes_.front().y0, 2000);
  EXPECT_EQ(boxes_.back().y1, 2000 + 10.0 * nx);
  for (std::size_t i = 1; i < boxes_.size(); ++i) {
    EXPECT_NEAR(boxes_[i - 1].y1 - boxes_[i].y0, 400, 1e-6);  // twice 20 dots
    EXPECT_NEAR(std::remainder(boxes_[i].y0 - 2000, 50), 0, 1e-6);
  }
}

TEST_F(print_page_test, a_page_below_5000_dots_is_one_piece) {
  make(4999, 20);
  print();
  ASSERT_EQ(boxes_.size(), 1u);
  EXPECT_EQ(boxes_[0].x0, 1000);
  EXPECT_EQ(boxes_[0].x1, 1000 + 49990);
  boxes_.clear();
  make(5000, 20);
  print();
  EXPECT_EQ(boxes_.size(), 2u);
}

TEST_F(print_page_test, afterwards_the_page_is_whole_again) {
  make(6000, 10);
  EXPECT_THROW(print_page(render_.get(), [&] { throw 1; }), int);
  EXPECT_EQ(zu_render_get_map_box_cr(render_.get())->x1, 61000);
  Tzu_box_d2 page;
  zu_drwc_get_page(page_.get(), &page);
  zu_drwc_fill_box(page_.get(), &page, {1, 2, 3, 0});
  std::vector<std::uint8_t> rgba(6000 * 10 * 4);
  zu_drwc_get_pixels(page_.get(), rgba.data());
  EXPECT_EQ(rgba[3], 255);
  EXPECT_EQ(rgba.back(), 255);
}

/// What a host sees of progress; stops the work before piece `last`.
struct seen_progress {
  seen_progress() {
    Tzu_progress_hooks hooks{};
    hooks.user = this;
    hooks.caption = [](void*, const wchar_t* text, void* user) {
      static_cast<seen_progress*>(user)->caption = text;
    };
    hooks.show = [](void*, std::int64_t done, std::int64_t total, void* user) {
      static_cast<seen_progress*>(user)->shown.emplace_back(done, total);
    };
    hooks.stopped = [](void*, void* user) {
      auto& self = *static_cast<seen_progress*>(user);
      return self.shown.back().first == self.last;
    };
    zu_progress_set_hooks(&hooks);
  }
  ~seen_progress() { zu_progress_set_hooks(nullptr); }
  std::wstring caption;
  std::vector<std::pair<std::int64_t, std::int64_t>> shown;
  std::int64_t last = -1;
};

TEST_F(print_page_test, pieces_tell_their_progress_and_can_be_stopped) {
  make(nx, ny);
  seen_progress seen;
  print_page(
      render_.get(), [&] { draw_piece(); }, "hills");
  EXPECT_EQ(seen.caption, L"hills");
  auto pieces = static_cast<std::int64_t>(boxes_.size());
  ASSERT_GT(pieces, 1);
  EXPECT_EQ(seen.shown.back(), std::make_pair(pieces - 1, pieces));
  boxes_.clear();
  seen.last = 1;
  EXPECT_THROW(print(), failure);
  EXPECT_EQ(boxes_.size(), 1u);
}

TEST_F(print_page_test, a_document_whose_side_is_no_whole_number_of_dots_is_drawn_to_its_end) {
  page_.reset(zu_drwc_create_pdf(500, 10, 301));  // 5925.2 dots
  const Tzu_box_d2 box{0, 0, 5000, 100};
  render_.reset(zu_render_create(page_.get(), &box));
  print_page(render_.get(), [&] { boxes_.push_back(*zu_render_get_map_box_cr(render_.get())); });
  ASSERT_EQ(boxes_.size(), 2u);
  EXPECT_EQ(boxes_[0].x0, 0);
  EXPECT_EQ(boxes_[1].x1, 5000);
}

}  // namespace
}  // namespace zu::host
