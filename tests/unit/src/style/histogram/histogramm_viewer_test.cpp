// Boundaries on a histogram, as a host's pointer meets them.

#include "src/style/histogram/histogramm_viewer.h"

#include <gtest/gtest.h>

#include "tests/unit/src/viewer/counting_window.h"

namespace zu::element::detail {
namespace {

/// A window of 20 by 10 mm that shows values 0 to 200: 10 a millimetre, so that a boundary is
/// caught within 50 of it.
struct shown_histogram {
  owned<zu_stat_destroy> stat{zu_stat_create()};
  owned<zu_stl_mngr_destroy> manager{zu_clr_stl_mngr_create()};
  histogramm_viewer element;
  tests::counting_window window{true};

  explicit shown_histogram(const std::vector<double>& bounds, bool counted = true) {
    if (counted) {
      Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat.get(), nullptr);
      zu_histogramm_set_limits(histogram, 0, 200);
      zu_histogramm_set_params(histogram, 4);
      for (std::uint64_t i = 0; i < 4; ++i) zu_histogramm_set(histogram, i, double(i));
      zu_stat_set_histogramm(stat.get(), true);
    }
    element.set_stat(stat.get());
    Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager.get());
    zu_rng_scale_set_size(scale, bounds.size() - 1);
    for (std::uint64_t i = 0; i + 1 < bounds.size(); ++i) {
      zu_rng_scale_set_min(scale, i, bounds[i]);
      zu_rng_scale_set_max(scale, i, bounds[i + 1]);
    }
    zu_rng_scale_set_min_value(scale, bounds.front());
    zu_rng_scale_set_max_value(scale, bounds.back());
    element.assign(scale);
    element.panel().attach_viewer(window.viewer());
    window.zoom({0, 0, 200, 100});
  }
  ~shown_histogram() { element.panel().attach_viewer(nullptr); }

  viewer_extension_mode mode() { return element.extension().current_mode(); }
  void press(double x) {
    call<&viewer_extension_mode_impl::press>(mode(), std::uint32_t{pointer_left}, point_2d{x, 0});
  }
  void drag(double x) {
    call<&viewer_extension_mode_impl::drag>(mode(), std::uint32_t{pointer_left}, point_2d{x, 0});
  }
  void release(double x) { call<&viewer_extension_mode_impl::release>(mode(), 0u, point_2d{x, 0}); }
  void drag_from_to(double from, double to) {
    press(from);
    drag(to);
    release(to);
  }
};

using numbers = std::vector<double>;

TEST(histogramm_viewer, a_drag_moves_the_boundary_under_the_pointer_to_both_sides_of_it) {
  shown_histogram h({0, 100, 200});
  int changes = 0;
  h.element.on_change = [&] { ++changes; };
  h.drag_from_to(101, 160);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 160, 200}));
  EXPECT_EQ(zu_rng_scale_get_max(h.element.scale(), 0), 160);
  EXPECT_EQ(zu_rng_scale_get_min(h.element.scale(), 1), 160);
  EXPECT_EQ(changes, 1);
}
TEST(histogramm_viewer, a_drag_of_less_than_five_millimetres_moves_nothing) {
  shown_histogram h({0, 100, 200});
  h.drag_from_to(100, 149);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 100, 200}));
  h.drag_from_to(100, 150);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 150, 200}));
}
TEST(histogramm_viewer, once_under_way_a_drag_follows_back_to_where_it_began) {
  shown_histogram h({0, 100, 200});
  h.press(100);
  h.drag(160);
  h.drag(101);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 101, 200}));
}
TEST(histogramm_viewer, no_boundary_passes_its_neighbours) {
  shown_histogram h({0, 80, 120, 200});
  h.drag_from_to(110, 500);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 80, 200, 200}));
  h.drag_from_to(80, -500);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 0, 200, 200}));
}
TEST(histogramm_viewer, of_two_in_reach_the_next_goes_right_and_the_one_before_goes_left) {
  shown_histogram right({0, 90, 110, 300});
  right.drag_from_to(100, 160);
  EXPECT_EQ(right.element.bounds(), (numbers{0, 90, 160, 300}));
  shown_histogram left({-100, 90, 110, 300});
  left.drag_from_to(100, 30);
  EXPECT_EQ(left.element.bounds(), (numbers{-100, 30, 110, 300}));
}
TEST(histogramm_viewer, equal_boundaries_come_apart_to_either_side) {
  shown_histogram h({0, 100, 100, 200});
  h.drag_from_to(100, 160);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 100, 160, 200}));
  shown_histogram other({0, 100, 100, 200});
  other.drag_from_to(100, 40);
  EXPECT_EQ(other.element.bounds(), (numbers{0, 40, 100, 200}));
}
TEST(histogramm_viewer, the_outer_ends_move_with_the_outer_values_and_keep_the_order) {
  shown_histogram h({60, 140});
  h.drag_from_to(60, -10);
  EXPECT_EQ(h.element.bounds(), (numbers{-10, 140}));
  EXPECT_EQ(zu_rng_scale_get_min_value(h.element.scale()), -10);
  h.drag_from_to(140, 210);
  EXPECT_EQ(zu_rng_scale_get_max_value(h.element.scale()), 210);
}
TEST(histogramm_viewer, the_pointer_shows_what_it_would_catch) {
  shown_histogram h({0, 100, 300});
  auto kind_at = [&](double x) {
    call<&viewer_extension_mode_impl::hover>(h.mode(), 0u, point_2d{x, 0});
    struct counter final : bitmap_visitor_impl {
      int calls = 0;
      void visit(bitmap) override { ++calls; }
    } seen;
    call<&viewer_extension_mode_impl::cursor>(h.mode(),
                                              bitmap_visitor(handle_of<bitmap_visitor_impl>(seen)));
    return seen.calls;
  };
  EXPECT_EQ(kind_at(100), 1);
  EXPECT_EQ(kind_at(0), 1);
  EXPECT_EQ(kind_at(200), 0);
}
TEST(histogramm_viewer, without_a_histogram_the_pointer_finds_nothing) {
  shown_histogram h({0, 100, 200}, false);
  h.drag_from_to(100, 190);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 100, 200}));
}
TEST(histogramm_viewer, a_press_with_another_button_catches_nothing) {
  shown_histogram h({0, 100, 200});
  call<&viewer_extension_mode_impl::press>(h.mode(), 0u, point_2d{100, 0});
  h.drag(190);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 100, 200}));
}
TEST(histogramm_viewer, a_number_of_ranges_divides_what_lies_between_the_ends) {
  shown_histogram h({0, 10, 200});
  h.element.set_count(4);
  EXPECT_EQ(h.element.bounds(), (numbers{0, 50, 100, 150, 200}));
}
TEST(histogramm_viewer, the_wheel_acts_along_x_and_the_axes_have_scales_of_their_own) {
  shown_histogram h({0, 200});
  EXPECT_EQ(zu_viewer2d_get_wheel_mode(h.window.get()), zu_wheel_zoom_x);
  EXPECT_TRUE(zu_viewer2d_is_anisotropic(h.window.get()));
}
TEST(histogramm_viewer, a_histogram_that_is_there_is_not_counted_anew) {
  shown_histogram h({0, 200});
  h.element.set_source({L"/no/such/file", nullptr, nullptr, nullptr}, L"z");
  h.element.make_histogramm();
  EXPECT_TRUE(zu_stat_has_histogramm(h.stat.get()));
  EXPECT_TRUE(h.element.display().bars);
}
TEST(histogramm_viewer, a_source_that_does_not_open_leaves_the_scene_empty) {
  shown_histogram h({0, 200}, false);
  h.element.set_source({L"/no/such/file", nullptr, nullptr, nullptr}, L"z");
  h.element.make_histogramm();
  EXPECT_FALSE(h.element.display().bars);
}

}  // namespace
}  // namespace zu::element::detail
