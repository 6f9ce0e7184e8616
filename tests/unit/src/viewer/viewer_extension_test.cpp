// Extensions, who follows them, and the panel that brings a viewer.

#include "src/viewer/viewer_extension.h"

#include <gtest/gtest.h>

#include "src/viewer/viewer2d_panel.h"
#include "src/viewer/viewer_manager.h"
#include "src/viewer/zoom_to_data.h"
#include "tests/unit/src/viewer/counting_window.h"

namespace zu::toolkit {
namespace {

struct mode final : viewer_extension_mode {
  Tzu_viewer* viewer = nullptr;
  void set_viewer(Tzu_viewer* given) override { viewer = given; }
  zu::viewer_extension_mode get() { return handle_of<viewer_extension_mode_impl>(*this); }
};
struct extension_view final : element_view_impl {
  int changes = 0;
  void value_changed() override { ++changes; }
};

class viewer_extensions : public testing::Test {
 protected:
  void SetUp() override {
    connection_ = manager_.changed.connect([this] { ++changes_; });
    for (viewer_extension* e : {&first_, &second_}) e->attach({});  // a pin: they are members
    first_.add(one_);
    first_.add(two_);
  }
  viewer_manager manager_;
  int changes_ = 0;
  events::connection connection_;
  mode one_, two_;
  viewer_extension first_{&manager_}, second_{&manager_};
};

TEST_F(viewer_extensions, activating_one_twice_is_told_once) {
  first_.activated();
  first_.activated();
  EXPECT_EQ(changes_, 1);
  EXPECT_EQ(manager_.active(), &first_);
  second_.activated();
  EXPECT_EQ(changes_, 2);
}
TEST_F(viewer_extensions, deactivating_one_that_is_not_active_is_ignored) {
  first_.activated();
  second_.deactivated();
  EXPECT_EQ(manager_.active(), &first_);
  EXPECT_EQ(changes_, 1);
  first_.deactivated();
  EXPECT_EQ(manager_.active(), nullptr);
  EXPECT_EQ(manager_.active_object(), nullptr);
  EXPECT_EQ(changes_, 2);
}
TEST_F(viewer_extensions, one_that_dies_is_active_no_more) {
  {
    viewer_extension third(&manager_);
    third.activated();
  }
  EXPECT_EQ(manager_.active(), nullptr);
}
TEST_F(viewer_extensions, changes_of_the_active_one_alone_are_told) {
  tests::counting_window window;
  first_.activated();
  second_.set_viewer(window.viewer());
  EXPECT_EQ(changes_, 1);
  first_.set_viewer(window.viewer());
  EXPECT_EQ(changes_, 2);
  EXPECT_EQ(manager_.active_object(), window.viewer());
  EXPECT_EQ(two_.viewer, window.viewer());
}
TEST_F(viewer_extensions, the_scene_of_the_active_viewer_is_followed_while_somebody_wants_it) {
  tests::counting_window window;
  owned<zu_scn_2d_destroy> scene(zu_scn_2d_create());
  zu_viewer2d_set_scn_2d(window.get(), scene.get());
  int told = 0;
  events::connection c = manager_.scene_changed.connect([&] { ++told; });
  first_.set_viewer(window.viewer());
  first_.activated();
  zu_scn_2d_set_pj4wstr(scene.get(), L"EPSG:4326");
  EXPECT_EQ(told, 0);
  manager_.follow_scene();
  zu_scn_2d_set_pj4wstr(scene.get(), L"EPSG:3857");
  EXPECT_EQ(told, 1);
  first_.deactivated();
  zu_scn_2d_set_pj4wstr(scene.get(), L"EPSG:4326");
  EXPECT_EQ(told, 1);
  first_.activated();
  manager_.unfollow_scene();
  zu_scn_2d_set_pj4wstr(scene.get(), L"EPSG:3857");
  EXPECT_EQ(told, 1);
}
TEST_F(viewer_extensions, a_mode_is_chosen_and_left) {
  extension_view view;
  first_.attach_view(handle_of<element_view_impl>(view));
  int finished = 0;
  one_.on_finish = [&] { ++finished; };
  EXPECT_FALSE(first_.current_mode());
  first_.set_current_mode(one_.get());
  first_.set_current_mode(one_.get());
  EXPECT_EQ(view.changes, 1);
  EXPECT_TRUE(first_.current_mode() == one_.get());
  first_.set_current_mode(two_.get());
  EXPECT_EQ(finished, 1);
  mode foreign;
  first_.set_current_mode(foreign.get());
  EXPECT_TRUE(first_.current_mode() == two_.get());
  first_.set_current_mode({});
  EXPECT_FALSE(first_.current_mode());
  EXPECT_EQ(view.changes, 3);
}
TEST_F(viewer_extensions, activation_ends_what_the_mode_was_at_and_keeps_it_in_force) {
  int finished = 0;
  one_.on_finish = [&] { ++finished; };
  first_.set_current_mode(one_.get());
  first_.activated();
  EXPECT_EQ(finished, 1);
  EXPECT_TRUE(first_.current_mode() == one_.get());
}
TEST_F(viewer_extensions, modes_are_visited_in_their_order) {
  struct receiver final : viewer_extension_mode_visitor_impl {
    std::vector<handle> all;
    void visit(zu::viewer_extension_mode m) override { all.push_back(m); }
  } taken;
  first_.visit_modes(
      viewer_extension_mode_visitor(handle_of<viewer_extension_mode_visitor_impl>(taken)));
  ASSERT_EQ(taken.all.size(), 2u);
  EXPECT_TRUE(taken.all[0] == one_.get());
  EXPECT_TRUE(taken.all[1] == two_.get());
}

TEST(viewer2d_panel, a_viewer_gets_the_scene_when_it_comes) {
  tests::counting_window window;
  std::vector<Tzu_viewer*> told;
  {
    viewer2d_panel panel;
    panel.on_viewer = [&](Tzu_viewer* viewer) { told.push_back(viewer); };
    EXPECT_EQ(panel.width(), 20);
    EXPECT_EQ(panel.height(), 20);
    panel.attach_viewer(window.viewer());
    EXPECT_EQ(zu_viewer2d_get_scn_2d(window.get()), panel.scene());
    EXPECT_EQ(panel.viewer(), window.get());
    panel.attach_viewer(nullptr);
    EXPECT_EQ(panel.viewer(), nullptr);
    panel.attach_viewer(window.viewer());
  }
  EXPECT_EQ(told, (std::vector<Tzu_viewer*>{window.viewer(), nullptr, window.viewer()}));
  EXPECT_EQ(zu_viewer2d_get_scn_2d(window.get()), nullptr);
}

TEST(zoom_to_data, a_box_without_extent_becomes_twice_ten_millimetres) {
  tests::counting_window window;  // ten units a millimetre
  EXPECT_BOX(of_least_extent(window.get(), {5, 5, 5, 5}), -95, -95, 105, 105);
  EXPECT_BOX(of_least_extent(window.get(), {0, 0, 99, 100}), -50.5, 0, 149.5, 100);
  EXPECT_BOX(of_least_extent(nullptr, {5, 5, 5, 5}), 5, 5, 5, 5);
}
TEST(zoom_to_data, shows_the_box_and_a_margin) {
  tests::counting_window window;
  zoom_to_data(window.get(), {0, 0, 1000, 500});
  EXPECT_BOX(window.box(), -20, -10, 1020, 510);
  EXPECT_EQ(window.redraws, 1);
  zoom_to_data(nullptr, {0, 0, 1, 1});
}

}  // namespace
}  // namespace zu::toolkit
