#include "src/layer/editors/isoline_manager.h"

#include <gtest/gtest.h>

#include "src/bundle/owned.h"
#include "tests/unit/src/layer/bound_layer.h"
#include "tests/unit/src/layer/editors/panel.h"
#include "tests/unit/src/made_grid.h"

namespace tests {
namespace {

class isoline_panel : public testing::Test {
 protected:
  isoline_panel() {
    made_grid file("isoline_panel.tif", 2, 2, GDT_Float32, 1);
    file.band(1)->SetDescription("height");
    layer_ = std::make_unique<bound_layer>(file.close());
    style_ = layer_->layer->get_isoline_style();
  }
  void bind() { panel_.set(layer_->host.get(), style_); }
  panel_elements controls() { return panel_elements(panel_.element()); }

  base_language russian_;
  std::unique_ptr<bound_layer> layer_;
  Tzu_isoline_style* style_ = nullptr;
  style::isoline_manager panel_;
};

TEST_F(isoline_panel, has_its_controls_in_order) {
  EXPECT_EQ(controls().captions(),
            (std::vector<std::wstring>{L"Использовать", L"Поле", L"Шаг изолиний", L"Стиль изолиний",
                                       L"Шаг основных изолиний", L"Стиль основных изолиний"}));
  auto all = controls();
  const double starts[] = {100, 500};
  for (int n : {0, 1}) {
    auto step = all.at<floating_input_impl>(n);
    EXPECT_EQ(call<&floating_input_impl::minimum>(step), 0);
    EXPECT_EQ(call<&floating_input_impl::step>(step), 100);
    EXPECT_EQ(call<&floating_input_impl::value>(step), starts[n]);
  }
}

TEST_F(isoline_panel, shows_and_writes_the_style_that_it_is_bound_to) {
  zu_isoline_style_set_use(style_, true);
  zu_isoline_style_set_thin_step(style_, 5);
  zu_isoline_style_set_bold_step(style_, 25);
  bind();
  auto all = controls();
  EXPECT_TRUE(call<&checkbox_impl::is_checked>(all.at<checkbox_impl>()));
  EXPECT_EQ(call<&floating_input_impl::value>(all.at<floating_input_impl>(0)), 5);
  EXPECT_EQ(call<&floating_input_impl::value>(all.at<floating_input_impl>(1)), 25);
  EXPECT_EQ(items(all.at<dropdown_impl>()),
            (std::vector<std::wstring>{L"Поле стилевого оформления", L"height"}));
  enter(all.at<floating_input_impl>(0), 2);
  enter(all.at<floating_input_impl>(1), 10);
  choose(all.at<dropdown_impl>(), 1);
  EXPECT_EQ(zu_isoline_style_get_thin_step(style_), 2);
  EXPECT_EQ(zu_isoline_style_get_bold_step(style_), 10);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_isoline_style_get_propname(style_, a); }),
            L"height");
  tick(all.at<checkbox_impl>(), false);
  EXPECT_FALSE(zu_isoline_style_get_use(style_));
}

TEST_F(isoline_panel, offers_nothing_while_lines_are_not_in_use) {
  bind();
  auto all = controls();
  auto enabled = [&] {
    return std::vector<bool>{call<&dropdown_impl::enabled>(all.at<dropdown_impl>()),
                             call<&floating_input_impl::enabled>(all.at<floating_input_impl>(0)),
                             call<&button_impl::enabled>(all.at<button_impl>(0)),
                             call<&floating_input_impl::enabled>(all.at<floating_input_impl>(1)),
                             call<&button_impl::enabled>(all.at<button_impl>(1))};
  };
  EXPECT_EQ(enabled(), std::vector<bool>(5, false));
  tick(all.at<checkbox_impl>(), true);
  EXPECT_EQ(enabled(), std::vector<bool>(5, true));
}

TEST_F(isoline_panel, tells_nobody_when_nothing_changed) {
  bind();
  panel_views views(controls());
  bind();
  EXPECT_EQ(views.calls(), 0);
}

TEST_F(isoline_panel, of_no_layer_touches_nothing) {
  bind();
  panel_.set(nullptr, nullptr);
  tick(controls().at<checkbox_impl>(), true);
  enter(controls().at<floating_input_impl>(0), 7);
  EXPECT_FALSE(zu_isoline_style_get_use(style_));
  EXPECT_EQ(zu_isoline_style_get_thin_step(style_), 100);
}

}  // namespace
}  // namespace tests
