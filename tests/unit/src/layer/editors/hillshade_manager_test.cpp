#include "src/layer/editors/hillshade_manager.h"

#include <gtest/gtest.h>

#include "src/bundle/owned.h"
#include "tests/unit/src/layer/bound_layer.h"
#include "tests/unit/src/layer/editors/panel.h"
#include "tests/unit/src/made_grid.h"

namespace tests {
namespace {

class hillshade_panel : public testing::Test {
 protected:
  hillshade_panel() {
    made_grid file("hillshade_panel.tif", 2, 2, GDT_Float32, 2);
    file.band(1)->SetDescription("height");
    file.band(2)->SetDescription("depth");
    layer_ = std::make_unique<bound_layer>(file.close());
    style_ = layer_->layer->get_hillshade_style();
  }
  void bind() { panel_.set(layer_->host.get(), style_); }
  panel_elements controls() { return panel_elements(panel_.element()); }
  static of<slider_impl> slider(const panel_elements& all, int n) { return all.at<slider_impl>(n); }
  std::wstring field() {
    return text_of([&](Tzu_string_adp* a) { zu_hillshade_style_get_propname(style_, a); });
  }

  base_language russian_;
  std::unique_ptr<bound_layer> layer_;
  Tzu_hillshade_style* style_ = nullptr;
  style::hillshade_manager panel_;
};

enum { use_box, multidirectional_box };
enum { z_factor, altitude, azimuth };
enum { altitude_slider, azimuth_slider, blend_slider };

TEST_F(hillshade_panel, has_its_controls_in_order) {
  EXPECT_EQ(controls().captions(),
            (std::vector<std::wstring>{L"Использовать", L"Поле", L"Масштаб по Z", L"Высота",
                                       L"Азимут", L"Смешивать", L"Разнонаправленно"}));
  auto all = controls();
  EXPECT_EQ(call<&floating_input_impl::maximum>(all.at<floating_input_impl>(altitude)), 90);
  EXPECT_EQ(call<&floating_input_impl::step>(all.at<floating_input_impl>(altitude)), 5);
  EXPECT_EQ(call<&floating_input_impl::maximum>(all.at<floating_input_impl>(azimuth)), 360);
  EXPECT_EQ(call<&floating_input_impl::step>(all.at<floating_input_impl>(azimuth)), 1);
  EXPECT_EQ(call<&slider_impl::maximum>(slider(all, blend_slider)), 100);
  EXPECT_EQ(call<&slider_impl::tick>(slider(all, blend_slider)), 10);
  EXPECT_EQ(call<&slider_impl::value>(slider(all, blend_slider)), 50);
}

TEST_F(hillshade_panel, shows_the_style_that_it_is_bound_to) {
  zu_hillshade_style_set_use(style_, true);
  zu_hillshade_style_set_propname(style_, L"depth");
  zu_hillshade_style_set_z_coeff(style_, 2.5);
  zu_hillshade_style_set_sun_slope_degree(style_, 30);
  zu_hillshade_style_set_sun_aspect_degree(style_, 200);
  zu_hillshade_style_set_part(style_, 0.29);
  bind();
  auto all = controls();
  EXPECT_TRUE(call<&checkbox_impl::is_checked>(all.at<checkbox_impl>(use_box)));
  EXPECT_EQ(items(all.at<dropdown_impl>()),
            (std::vector<std::wstring>{L"Поле стилевого оформления", L"height", L"depth"}));
  EXPECT_EQ(call<&dropdown_impl::current>(all.at<dropdown_impl>()), 2);
  EXPECT_EQ(call<&floating_input_impl::value>(all.at<floating_input_impl>(z_factor)), 2.5);
  EXPECT_EQ(call<&floating_input_impl::value>(all.at<floating_input_impl>(altitude)), 30);
  EXPECT_EQ(call<&slider_impl::value>(slider(all, altitude_slider)), 6);
  EXPECT_EQ(call<&floating_input_impl::value>(all.at<floating_input_impl>(azimuth)), 200);
  EXPECT_EQ(call<&slider_impl::value>(slider(all, blend_slider)), 29);
}

TEST_F(hillshade_panel, writes_each_change_at_once) {
  bind();
  auto all = controls();
  tick(all.at<checkbox_impl>(use_box), true);
  EXPECT_TRUE(zu_hillshade_style_get_use(style_));
  choose(all.at<dropdown_impl>(), 1);
  EXPECT_EQ(field(), L"height");
  choose(all.at<dropdown_impl>(), 0);
  EXPECT_EQ(field(), L"");
  enter(all.at<floating_input_impl>(z_factor), 0.1);
  EXPECT_EQ(zu_hillshade_style_get_z_coeff(style_), 0.1);
  enter(all.at<floating_input_impl>(altitude), 12);
  EXPECT_EQ(zu_hillshade_style_get_sun_slope_degree(style_), 12);
  call<&slider_impl::set_value>(slider(all, altitude_slider), 4);
  EXPECT_EQ(zu_hillshade_style_get_sun_slope_degree(style_), 20) << "while it is dragged";
  call<&slider_impl::set_value>(slider(all, azimuth_slider), 77);
  EXPECT_EQ(zu_hillshade_style_get_sun_aspect_degree(style_), 77);
  call<&slider_impl::set_value>(slider(all, blend_slider), 80);
  EXPECT_EQ(zu_hillshade_style_get_part(style_), 0.8);
  tick(all.at<checkbox_impl>(multidirectional_box), true);
  EXPECT_TRUE(zu_hillshade_style_get_multidir(style_));
}

TEST_F(hillshade_panel, enables_what_has_an_effect) {
  bind();
  auto all = controls();
  auto enabled = [&] {
    std::vector<bool> states;
    states.push_back(call<&dropdown_impl::enabled>(all.at<dropdown_impl>()));
    for (int n : {z_factor, altitude, azimuth})
      states.push_back(call<&floating_input_impl::enabled>(all.at<floating_input_impl>(n)));
    for (int n : {altitude_slider, azimuth_slider, blend_slider})
      states.push_back(call<&slider_impl::enabled>(slider(all, n)));
    states.push_back(call<&checkbox_impl::enabled>(all.at<checkbox_impl>(multidirectional_box)));
    return states;
  };
  EXPECT_EQ(enabled(), std::vector<bool>(8, false));
  tick(all.at<checkbox_impl>(use_box), true);
  EXPECT_EQ(enabled(), std::vector<bool>(8, true));
  tick(all.at<checkbox_impl>(multidirectional_box), true);
  EXPECT_EQ(enabled(), (std::vector<bool>{true, true, true, false, true, false, true, true}));
  tick(all.at<checkbox_impl>(use_box), false);
  EXPECT_EQ(enabled(), std::vector<bool>(8, false));
  EXPECT_TRUE(call<&checkbox_impl::enabled>(all.at<checkbox_impl>(use_box)));
}

TEST_F(hillshade_panel, tells_nobody_when_nothing_changed) {
  bind();
  panel_elements all = controls();
  panel_views views(all);
  bind();
  EXPECT_EQ(views.calls(), 0);
  zu_hillshade_style_set_part(style_, 0.1);
  bind();
  EXPECT_EQ(views.calls(), 1);
}

TEST_F(hillshade_panel, of_no_layer_touches_nothing) {
  bind();
  panel_.set(nullptr, nullptr);
  tick(controls().at<checkbox_impl>(use_box), true);
  enter(controls().at<floating_input_impl>(z_factor), 7);
  EXPECT_FALSE(zu_hillshade_style_get_use(style_));
  EXPECT_EQ(zu_hillshade_style_get_z_coeff(style_), 1);
}

}  // namespace
}  // namespace tests
