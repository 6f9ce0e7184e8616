#include "src/layer/editors/channel_manager.h"

#include <gtest/gtest.h>

#include "src/bundle/owned.h"
#include "tests/unit/src/layer/editors/panel.h"
#include "tests/unit/src/made_grid.h"
#include "zu/platform/zuk_msgs.h"

namespace tests {
namespace {

using channels = owned<zu_rgb_channels_destroy>;

/// A source of three fields: one of 0 to 75, one of 1000 to 3000 and one without any value.
data::open_reference three_fields() {
  made_grid file("channel_manager.tif", 2, 2, GDT_Float64, 3);
  const char* names[] = {"low", "high", "nothing"};
  for (int band = 1; band <= 3; ++band) {
    file.band(band)->SetDescription(names[band - 1]);
    file.band(band)->SetNoDataValue(-1);
  }
  file.values(1, {0, 25, 50, 75});
  file.values(2, {1000, 1500, 2500, 3000});
  file.values(3, {-1, -1, -1, -1});
  data::open_reference source;
  source.name = file.close();
  source.opener = &zu_datasource_open;
  return source;
}

class channel_panel : public testing::Test {
 protected:
  panel_elements controls() { return panel_elements(panel_.element()); }
  void bind(const wchar_t* field) {
    zu_clr_channel_set_prop_name_w(channel_, field);
    panel_.set_source(source_, channel_);
  }
  std::pair<double, double> limits() {
    return {zu_clr_channel_get_minimum(channel_), zu_clr_channel_get_maximum(channel_)};
  }
  std::pair<double, double> shown() {
    auto all = controls();
    return {call<&floating_input_impl::value>(all.at<floating_input_impl>(0)),
            call<&floating_input_impl::value>(all.at<floating_input_impl>(1))};
  }
  std::pair<double, double> handles() {
    auto bars = controls().at<histogram_impl>();
    return {call<&histogram_impl::minimum>(bars), call<&histogram_impl::maximum>(bars)};
  }
  const Tzu_histogramm_data* bars() {
    struct taker : histogram_data_visitor_impl {
      void visit(const Tzu_histogramm_data* given) override { data = given; }
      const Tzu_histogramm_data* data = nullptr;
    } found;
    call<&histogram_impl::visit_histogram>(
        controls().at<histogram_impl>(),
        histogram_data_visitor(handle_of<histogram_data_visitor_impl>(found)));
    return found.data;
  }

  base_language russian_;
  data::open_reference source_ = three_fields();
  channels set_{zu_rgb_channels_create()};
  Tzu_clr_channel* channel_ = zu_rgb_channels_get_gray(set_.get());
  style::channel_manager<style::color_channel_model> panel_;
};

using numbers = std::pair<double, double>;

TEST_F(channel_panel, has_its_controls_in_order) {
  EXPECT_EQ(controls().captions(),
            (std::vector<std::wstring>{L"Поле разбиения", L"Минимум", L"Максимум"}));
  auto all = controls();
  EXPECT_TRUE(all.at<histogram_impl>());
  for (int n : {0, 1})
    EXPECT_EQ(call<&floating_input_impl::width>(all.at<floating_input_impl>(n)), 10u);
}

TEST_F(channel_panel, cuts_the_limits_to_the_data_when_it_is_bound) {
  bind(L"low");
  EXPECT_EQ(limits(), numbers(0, 75)) << "of 0 to 255";
  EXPECT_EQ(shown(), numbers(0, 75));
  EXPECT_EQ(handles(), numbers(0, 1));
  EXPECT_NE(bars(), nullptr);
  EXPECT_EQ(items(controls().at<dropdown_impl>()),
            (std::vector<std::wstring>{L"low", L"high", L"nothing"}));
  EXPECT_EQ(call<&dropdown_impl::current>(controls().at<dropdown_impl>()), 0);
}

TEST_F(channel_panel, without_a_field_asks_nothing_more) {
  bind(L"");
  EXPECT_EQ(limits(), numbers(0, 255));
  EXPECT_EQ(bars(), nullptr);
  EXPECT_EQ(call<&dropdown_impl::current>(controls().at<dropdown_impl>()), -1);
}

TEST_F(channel_panel, a_chosen_field_brings_its_own_limits) {
  bind(L"low");
  zu_clr_channel_set_limits(channel_, 10, 20);
  choose(controls().at<dropdown_impl>(), 1);
  EXPECT_EQ(limits(), numbers(1000, 3000)) << "the old ones are lost";
  EXPECT_EQ(shown(), numbers(1000, 3000));
}

TEST_F(channel_panel, a_field_without_values_is_spread_over_0_to_255) {
  bind(L"low");
  choose(controls().at<dropdown_impl>(), 2);
  EXPECT_EQ(limits(), numbers(0, 255));
  EXPECT_EQ(shown(), numbers(0, 255));
}

TEST_F(channel_panel, typed_limits_are_written_at_once_and_not_kept_in_order) {
  bind(L"low");
  enter(controls().at<floating_input_impl>(0), 60);
  enter(controls().at<floating_input_impl>(1), 30);
  EXPECT_EQ(limits(), numbers(60, 30));
  EXPECT_EQ(handles(), numbers(0.8, 0.4));
}

TEST_F(channel_panel, a_slider_is_followed_while_it_moves) {
  bind(L"low");
  auto slider = controls().at<slider_impl>(0);
  EXPECT_EQ(call<&slider_impl::maximum>(slider), 750) << "steps of 0.1";
  call<&slider_impl::set_value>(slider, 300);
  EXPECT_EQ(limits(), numbers(30, 75));
}

TEST_F(channel_panel, dragged_handles_set_both_limits_and_move_the_numbers) {
  bind(L"high");
  zu_clr_channel_set_limits(channel_, 1000, 3000);
  panel_.set_source(source_, channel_);
  auto bars = controls().at<histogram_impl>();
  call<&histogram_impl::set_range>(bars, 0.25, 1.0);
  EXPECT_EQ(limits(), numbers(1500, 3000));
  EXPECT_EQ(shown(), numbers(1500, 3000));
  call<&histogram_impl::set_range>(bars, 0.25, 1.0 / 3);
  EXPECT_EQ(limits(), numbers(1500, 1667)) << "a tenth of a step of 10 is what is kept";
}

TEST_F(channel_panel, a_handle_that_stands_keeps_its_number) {
  bind(L"low");
  zu_clr_channel_set_limits(channel_, 12.3456789, 70);
  panel_.set_source(source_, channel_);
  call<&histogram_impl::set_range>(controls().at<histogram_impl>(), handles().first, 0.8);
  EXPECT_EQ(limits(), numbers(12.3456789, 60));
}

TEST_F(channel_panel, without_a_channel_is_empty) {
  bind(L"low");
  panel_.clear();
  EXPECT_EQ(bars(), nullptr);
  EXPECT_TRUE(items(controls().at<dropdown_impl>()).empty());
  enter(controls().at<floating_input_impl>(0), 5);
  call<&histogram_impl::set_range>(controls().at<histogram_impl>(), 0.2, 0.4);
  EXPECT_EQ(limits(), numbers(0, 75));
}

TEST_F(channel_panel, of_a_source_that_is_gone_leaves_the_limits) {
  source_.name += L".gone";
  bind(L"low");
  EXPECT_EQ(limits(), numbers(0, 255));
  EXPECT_EQ(bars(), nullptr);
  EXPECT_TRUE(items(controls().at<dropdown_impl>()).empty());
}

TEST_F(channel_panel, makes_a_histogram_once_for_a_field) {
  bind(L"low");
  const Tzu_histogramm_data* first = bars();
  std::filesystem::remove(source_.name);
  panel_.set_source(source_, channel_);
  EXPECT_EQ(bars(), first) << "it lives with the channel";
}

TEST_F(channel_panel, a_person_need_not_wait_for_a_histogram) {
  Tzu_progress_hooks hooks{};
  int asked = 0;
  hooks.user = &asked;
  hooks.stopped = [](void*, void* user) { return ++*static_cast<int*>(user) > 0; };
  zu_progress_set_hooks(&hooks);
  bind(L"low");
  zu_progress_set_hooks(nullptr);
  EXPECT_EQ(asked, 1) << "and is not asked again";
  EXPECT_EQ(bars(), nullptr);
  EXPECT_EQ(limits(), numbers(0, 255));
}

TEST(rgb_channels, stand_in_tabs_under_their_colours) {
  base_language russian;
  style::rgb_channel_manager<style::color_channel_model> panel;
  struct taker : docker_visitor_impl {
    void visit(const wchar_t* id, docker tab) override {
      ids.emplace_back(id);
      captions.push_back(
          text([&](string_visitor v) { call<&docker_impl::visit_caption>(tab, v); }));
    }
    std::vector<std::wstring> ids, captions;
  } tabs;
  for (std::uint32_t i = 0; i < panel.count(); ++i)
    panel.visit_tab(i, docker_visitor(handle_of<docker_visitor_impl>(tabs)));
  EXPECT_EQ(tabs.ids, (std::vector<std::wstring>{L"zu_common_rgb_channel_manager_red",
                                                 L"zu_common_rgb_channel_manager_green",
                                                 L"zu_common_rgb_channel_manager_blue"}));
  EXPECT_EQ(tabs.captions, (std::vector<std::wstring>{L"Красный", L"Зелёный", L"Синий"}));
}

}  // namespace
}  // namespace tests
