// The second module's modes in a real map, chosen by their tools and driven by the mouse.

#include <map>

#include "tests/gui/map/map_fixture.h"
#include "zu/tools.h"

namespace zu::desktop {
namespace {

struct tool_list final : tool_set_visitor_impl, tool_visitor_impl {
  std::map<std::wstring, handle> all;
  void visit(tool_set set) override {
    call<&tool_set_impl::visit>(set, tool_visitor(handle_of<tool_visitor_impl>(*this)));
  }
  void visit(const wchar_t* id, handle tool) override { all[id] = tool; }
};

class map_modes : public map_test {
 protected:
  void SetUp() override {
    map_test::SetUp();
    handle bar = map_->use_extension(modules_.viewer_extensions().at(0).service.get());
    call<&toolbar_impl::visit>(of<toolbar_impl>(bar),
                               tool_set_visitor(handle_of<tool_set_visitor_impl>(tools_)));
    ASSERT_TRUE(show());
  }
  void TearDown() override { map_.reset(); }  // before the module
  void choose(const std::wstring& name) {
    handle tool = tools_.all[L"zu_common_plugin_viewer2d_panel_tool_" + name];
    call<&mode_tool_impl::set_checked>(of<mode_tool_impl>(tool), true);
  }
  void drag_and_drop(double x0, double y0, double x1, double y1) {
    QPoint to = place(x1, y1);
    drag(Qt::LeftButton, place(x0, y0), to);
    QTest::mouseRelease(map_.get(), Qt::LeftButton, {}, to);
    ASSERT_TRUE(wait_until_drawn());
  }
  std::uint64_t selected() const {
    return zu_table_data_get_selected_count(zu_lr_get_data_ptr(layer_->entity()));
  }
  static bool is_yellow(const QColor& c) {
    return c.red() > 180 && c.green() > 150 && c.blue() < 90;
  }

  host::bundle modules_{{"zuk_common.so"}};
  tool_list tools_;
};

TEST_F(map_modes, a_drawn_box_selects_cells_and_they_show) {
  choose(L"select_append");
  drag_and_drop(90, 90, 310, 210);
  EXPECT_EQ(selected(), 2u);
  QImage picture = seen();
  EXPECT_TRUE(is_yellow(seen(picture, 150, 150)));
  EXPECT_TRUE(is_yellow(seen(picture, 250, 150)));
  EXPECT_FALSE(is_yellow(seen(picture, 50, 150)));
  EXPECT_FALSE(is_yellow(seen(picture, 150, 50)));
}
TEST_F(map_modes, a_click_selects_the_cell_under_the_pointer) {
  choose(L"select_append");
  drag_and_drop(50, 250, 50, 250);
  EXPECT_EQ(selected(), 1u);
  EXPECT_TRUE(zu_table_data_is_selected_id(zu_lr_get_data_ptr(layer_->entity()), 8));
  EXPECT_TRUE(is_yellow(seen(seen(), 50, 250)));
}
TEST_F(map_modes, a_polygon_is_drawn_while_it_is_made_and_selects_at_a_double_click) {
  choose(L"select_polygon");
  QColor before = seen(seen(), 50, 150);
  for (point_2d p : {point_2d{-5, -5}, {205, -5}, {205, 205}, {-5, 205}})
    QTest::mouseClick(map_.get(), Qt::LeftButton, {}, place(p.x, p.y));
  drag_on(Qt::NoButton, place(-5, 205));  // a hover
  ASSERT_TRUE(wait_until_drawn());
  EXPECT_NE(seen(seen(), 50, 150), before);
  QTest::mouseDClick(map_.get(), Qt::LeftButton, {}, place(-5, 205));
  ASSERT_TRUE(wait_until_drawn());
  EXPECT_EQ(selected(), 4u);
  EXPECT_TRUE(is_yellow(seen(seen(), 50, 150)));
}
TEST_F(map_modes, a_box_zooms_in) {
  choose(L"zoom_in");
  drag_and_drop(100, 100, 200, 175);
  Tzu_box_d2 box{};
  zu_viewer2d_get_box_cr_sml(map_->viewer(), &box);
  EXPECT_NEAR(box.x0, 100, 3);
  EXPECT_NEAR(box.x1, 200, 3);
}
TEST_F(map_modes, the_hand_of_the_bundle_moves_the_map) {
  Tzu_box_d2 before{}, after{};
  zu_viewer2d_get_box_cr_sml(map_->viewer(), &before);
  choose(L"zoom_pan");
  drag_and_drop(100, 100, 200, 150);
  zu_viewer2d_get_box_cr_sml(map_->viewer(), &after);
  EXPECT_NEAR(after.x0, before.x0 - 100, 5);
  EXPECT_NEAR(after.y0, before.y0 - 50, 5);
}

}  // namespace
}  // namespace zu::desktop
