#include "src/layer/editors/grid2d_style.h"

#include <gtest/gtest.h>

#include "tests/unit/src/layer/bound_layer.h"
#include "tests/unit/src/layer/editors/panel.h"
#include "tests/unit/src/made_grid.h"

namespace tests {
namespace {

std::wstring float_grid() {
  made_grid file("grid2d_style_float.tif", 2, 2, GDT_Float32, 2);
  file.band(1)->SetDescription("a");
  file.band(2)->SetDescription("b");
  file.values(1, {0, 10, 20, 30});
  file.values(2, {100, 110, 120, 200});
  return file.close();
}
std::wstring picture() {
  made_grid file("grid2d_style_picture.tif", 2, 2, GDT_Byte, 3, {"PHOTOMETRIC=RGB"});
  return file.close();
}

class style_panel : public testing::Test {
 protected:
  panel_elements controls() { return panel_elements(panel_.element()); }
  of<dropdown_impl> draw_type() { return controls().at<dropdown_impl>(0); }
  std::int32_t chosen() { return call<&dropdown_impl::current>(draw_type()); }
  std::uint32_t page() {
    return call<&stack_layout_impl::current>(controls().at<stack_layout_impl>(0));
  }
  /// Of the whole layer: behind what the pages have.
  of<integer_input_impl> opacity() { return controls().at<integer_input_impl>(0); }
  std::wstring gray_field(grid_layer2d& layer) {
    return text_of([&](Tzu_string_adp* a) {
      zu_clr_channel_get_prop_name_w(zu_rgb_channels_get_gray(layer.rgb_channels()), a);
    });
  }
  std::pair<double, double> gray_limits(grid_layer2d& layer) {
    Tzu_clr_channel* gray = zu_rgb_channels_get_gray(layer.rgb_channels());
    return {zu_clr_channel_get_minimum(gray), zu_clr_channel_get_maximum(gray)};
  }

  base_language russian_;
  element::grid2d_style panel_;
};

using names = std::vector<std::wstring>;

TEST_F(style_panel, offers_the_ways_that_a_source_can_be_drawn) {
  bound_layer layer(float_grid()), image(picture());
  image.layer->source_changed();
  panel_.set_layer(layer.layer);
  EXPECT_EQ(items(draw_type()), (names{L"По шкале", L"Градации серого", L"По трем каналам"}));
  EXPECT_EQ(chosen(), 0);
  EXPECT_EQ(page(), 1u);
  panel_.set_layer(image.layer);
  EXPECT_EQ(items(draw_type()),
            (names{L"Растр", L"По шкале", L"Градации серого", L"По трем каналам"}));
  EXPECT_EQ(chosen(), 0);
  EXPECT_EQ(page(), 0u);
}

TEST_F(style_panel, writes_the_value_of_the_item_and_shows_its_page) {
  bound_layer layer(float_grid());
  panel_.set_layer(layer.layer);
  struct step {
    std::int32_t item;
    std::uint32_t type, page;
  };
  for (step s : {step{1, 2, 2}, step{2, 3, 3}, step{0, 0, 1}}) {
    choose(draw_type(), s.item);
    EXPECT_EQ(layer.layer->draw_type(), s.type);
    EXPECT_EQ(page(), s.page);
  }
  bound_layer image(picture());
  panel_.set_layer(image.layer);
  choose(draw_type(), 0);
  EXPECT_EQ(image.layer->draw_type(), 1u);
  EXPECT_EQ(page(), 0u);
}

TEST_F(style_panel, of_a_grid_that_is_drawn_as_the_image_that_it_is_not_chooses_nothing) {
  bound_layer layer(float_grid());
  layer.layer->set_draw_type(1);
  panel_.set_layer(layer.layer);
  EXPECT_EQ(items(draw_type()).size(), 3u);
  EXPECT_EQ(chosen(), -1);
  EXPECT_EQ(page(), 0u);
}

TEST_F(style_panel, channels_keep_their_fields_over_a_change_of_the_way) {
  bound_layer layer(float_grid());
  layer.layer->set_draw_type(2);
  panel_.set_layer(layer.layer);
  // Behind the draw type and the dropdowns of the page of scales.
  zu_clr_channel_set_prop_name_w(zu_rgb_channels_get_gray(layer.layer->rgb_channels()), L"b");
  choose(draw_type(), 2);
  choose(draw_type(), 1);
  EXPECT_EQ(gray_field(*layer.layer), L"b");
  EXPECT_EQ(gray_limits(*layer.layer), std::pair(100.0, 200.0));
}

TEST_F(style_panel, opacity_is_shown_as_it_is_and_written_up_to_100) {
  bound_layer layer(float_grid());
  layer.layer->set_opacity(40);
  panel_.set_layer(layer.layer);
  EXPECT_EQ(call<&integer_input_impl::value>(opacity()), 40);
  EXPECT_EQ(call<&integer_input_impl::minimum>(opacity()), 0);
  EXPECT_EQ(call<&integer_input_impl::maximum>(opacity()), 100);
  enter(opacity(), 75);
  EXPECT_EQ(layer.layer->opacity(), 75u);
  enter(opacity(), 150);
  EXPECT_EQ(layer.layer->opacity(), 100u);
}

TEST_F(style_panel, without_a_layer_is_empty_and_writes_nothing) {
  bound_layer layer(float_grid());
  layer.layer->set_opacity(40);
  layer.layer->set_draw_type(2);
  panel_.set_layer(layer.layer);
  panel_.set_layer(nullptr);
  EXPECT_EQ(page(), 0u);
  EXPECT_EQ(call<&integer_input_impl::value>(opacity()), 40) << "stands";
  enter(opacity(), 75);
  choose(draw_type(), 0);
  EXPECT_EQ(layer.layer->opacity(), 40u);
  EXPECT_EQ(layer.layer->draw_type(), 2u);
}

TEST_F(style_panel, the_same_layer_again_is_not_read_again) {
  bound_layer layer(float_grid());
  panel_.set_layer(layer.layer);
  layer.layer->set_opacity(40);
  panel_.set_layer(layer.layer);
  EXPECT_EQ(call<&integer_input_impl::value>(opacity()), 0);
  panel_.reload();
  EXPECT_EQ(call<&integer_input_impl::value>(opacity()), 40);
}

TEST_F(style_panel, another_source_has_another_histogram) {
  bound_layer layer(float_grid());
  Tzu_clr_channel* gray = zu_rgb_channels_get_gray(layer.layer->rgb_channels());
  zu_clr_channel_set_prop_name_w(gray, L"a");
  layer.layer->set_draw_type(2);
  panel_.set_layer(layer.layer);
  EXPECT_EQ(gray_limits(*layer.layer), std::pair(0.0, 30.0));
  panel_.set_layer(nullptr);
  made_grid other("grid2d_style_other.tif", 2, 2, GDT_Float32, 1);
  other.band(1)->SetDescription("a");
  other.values(1, {7, 8, 9, 10});
  zu_lr2d_set_wsource(layer.host.get(), other.close().c_str());
  layer.layer->source_changed();
  panel_.set_layer(layer.layer);
  EXPECT_EQ(gray_limits(*layer.layer), std::pair(7.0, 10.0));
}

TEST_F(style_panel, of_a_source_that_is_gone_still_offers_what_needs_none) {
  bound_layer layer(L"/nowhere/at/all.tif");
  panel_.set_layer(layer.layer);
  EXPECT_EQ(items(draw_type()).size(), 3u);
  choose(draw_type(), 1);
  EXPECT_EQ(gray_limits(*layer.layer), std::pair(0.0, 255.0));
}

}  // namespace
}  // namespace tests
