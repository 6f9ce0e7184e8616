#include "src/layer/editors/layer_editors.h"

#include <gtest/gtest.h>

#include "tests/unit/src/layer/bound_layer.h"
#include "tests/unit/src/layer/editors/panel.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/made_pgrid.h"

namespace tests {
namespace {

using entity = owned<zu_lr2d_destroy>;

struct counting_observer : panel_observer_impl {
  void enabled_changed() override { ++calls; }
  int calls = 0;
};

/// The dockers of a service, each with an observer.
template <class T> class serving {
 public:
  serving() {
    struct taker : docker_visitor_impl {
      explicit taker(serving& to) : to_(to) {}
      void visit(const wchar_t* id, docker panel) override {
        to_.ids.emplace_back(id);
        to_.panels.push_back(cast<panel_impl>(panel));
        call<&panel_impl::attach_observer>(
            to_.panels.back(),
            panel_observer(handle_of<panel_observer_impl>(to_.observers.emplace_back())));
        element_taker root;
        call<&docker_impl::visit_element>(panel, root.visitor());
        to_.roots.push_back(root.only());
      }
      serving& to_;
    } visitor(*this);
    service->get_dockers(docker_visitor(handle_of<docker_visitor_impl>(visitor)));
  }
  ~serving() {
    for (panel each : panels) call<&panel_impl::attach_observer>(each, panel_observer());
  }
  std::vector<std::pair<std::uint32_t, std::uint32_t>> sizes() const {
    std::vector<std::pair<std::uint32_t, std::uint32_t>> all;
    for (panel each : panels)
      all.emplace_back(call<&panel_impl::width>(each), call<&panel_impl::height>(each));
    return all;
  }
  std::vector<bool> enabled() const {
    std::vector<bool> all;
    for (panel each : panels) all.push_back(call<&panel_impl::enabled>(each));
    return all;
  }
  std::vector<int> told() const {
    std::vector<int> all;
    for (const counting_observer& each : observers) all.push_back(each.calls);
    return all;
  }
  panel_elements controls(std::size_t n) const { return panel_elements(roots.at(n)); }

  std::unique_ptr<T> service = std::make_unique<T>();
  std::vector<std::wstring> ids;
  std::vector<panel> panels;
  std::vector<handle> roots;
  std::list<counting_observer> observers;
};

std::wstring plane() {
  made_grid file("layer_editors.tif", 2, 2, GDT_Float32, 1);
  return file.close();
}
/// Three slices of 2 x 1 nodes.
std::wstring volume() {
  made_pgrid file("layer_editors.pgrid");
  file.grid.type = zu_tos4_volume;
  file.grid.size[0] = 2, file.grid.size[1] = 1, file.grid.size[2] = 3;
  file.add(L"v", {1, 2, 3, 4, 5, 6});
  return file.close();
}

using ids = std::vector<std::wstring>;
using sizes = std::vector<std::pair<std::uint32_t, std::uint32_t>>;
using states = std::vector<bool>;

TEST(layer_editors, have_their_panels_in_order) {
  serving<grid_layer2d_editor> grid;
  EXPECT_EQ(grid.ids,
            (ids{L"zu_grid_layer2d_plugin_style_editor", L"zu_grid_layer2d_plugin_slice_editor"}));
  EXPECT_EQ(grid.sizes(), (sizes{{20, 20}, {50, 50}}));
  EXPECT_EQ(grid.enabled(), (states{true, true}));
  EXPECT_EQ(grid.service->get_order(), 1);
  serving<grid_layer2d_hillshade> hillshade;
  EXPECT_EQ(hillshade.ids, ids{L"zu_grid_layer2d_plugin_hillshade"});
  EXPECT_EQ(hillshade.sizes(), (sizes{{80, 80}}));
  EXPECT_EQ(hillshade.service->get_order(), 1);
  serving<grid_layer2d_isoline> isoline;
  EXPECT_EQ(isoline.ids, ids{L"zu_grid_layer2d_plugin_isoline"});
  EXPECT_EQ(isoline.sizes(), (sizes{{80, 80}}));
  serving<tos4_coord_xy_layer2d_editor> points;
  EXPECT_EQ(points.ids, (ids{L"zu_grid_layer2d_tos4_coord2d_param_editor",
                             L"zu_grid_layer2d_tos4_coord2d_style_editor"}));
  EXPECT_EQ(points.sizes(), (sizes{{45, 45}, {20, 20}}));
  EXPECT_EQ(points.service->get_order(), -50);
  serving<tos4_grid1d_layer2d_editor> profile;
  EXPECT_EQ(profile.ids, ids{L"zu_grid_layer2d_tos4_grid1d_style_editor"});
  EXPECT_EQ(profile.sizes(), (sizes{{20, 20}}));
  EXPECT_EQ(profile.enabled(), states{true});
  EXPECT_EQ(profile.service->get_order(), -50);
}

TEST(layer_editors, show_their_panels_to_nobody_through_an_empty_handle) {
  grid_layer2d_editor grid;
  grid.get_dockers({});
}

TEST(grid_editor, of_one_slice_has_no_panel_of_slices) {
  bound_layer layer(plane());
  serving<grid_layer2d_editor> editor;
  editor.service->layer_changed(layer.host.get());
  EXPECT_EQ(editor.enabled(), (states{true, false}));
  EXPECT_EQ(editor.told(), (std::vector<int>{0, 1}));
  editor.service->layer_changed(nullptr);
}

TEST(grid_editor, tells_nobody_of_the_same_layer_again) {
  bound_layer layer(plane());
  serving<grid_layer2d_editor> editor;
  editor.service->layer_changed(layer.host.get());
  panel_views views(editor.controls(0));
  editor.service->layer_changed(layer.host.get());
  EXPECT_EQ(views.calls(), 0);
  EXPECT_EQ(editor.told(), (std::vector<int>{0, 1}));
  editor.service->layer_changed(nullptr);
  EXPECT_EQ(editor.enabled(), (states{false, false}));
  EXPECT_EQ(editor.told(), (std::vector<int>{1, 1}));
}

TEST(grid_editor, counts_slices_from_1) {
  bound_layer layer(volume());
  layer.layer->set_slice_index(1);
  serving<grid_layer2d_editor> editor;
  panel_views views(editor.controls(1));
  editor.service->layer_changed(layer.host.get());
  EXPECT_EQ(editor.enabled(), (states{true, true}));
  EXPECT_GT(views.calls(), 0);
  auto number = editor.controls(1).at<integer_input_impl>();
  EXPECT_EQ(call<&integer_input_impl::minimum>(number), 1);
  EXPECT_EQ(call<&integer_input_impl::maximum>(number), 3);
  EXPECT_EQ(call<&integer_input_impl::value>(number), 2);
  enter(number, 3);
  EXPECT_EQ(layer.layer->slice_index(), 2);
  call<&slider_impl::set_value>(editor.controls(1).at<slider_impl>(), 0);
  EXPECT_EQ(layer.layer->slice_index(), 0);
  editor.service->layer_changed(nullptr);
  enter(number, 3);
  EXPECT_EQ(layer.layer->slice_index(), 0) << "the layer was let go of";
}

TEST(layer_editors, of_a_picture_are_not_those_of_a_grid) {
  entity picture(zu_lr2d_create("rtr_lr2d"));
  serving<grid_layer2d_editor> grid;
  serving<grid_layer2d_hillshade> hillshade;
  serving<grid_layer2d_isoline> isoline;
  grid.service->layer_changed(picture.get());
  hillshade.service->layer_changed(picture.get());
  isoline.service->layer_changed(picture.get());
  EXPECT_EQ(grid.enabled(), (states{false, false}));
  EXPECT_EQ(hillshade.enabled(), states{zu_lr2d_get_hillshade_style(picture.get()) != nullptr});
  EXPECT_EQ(isoline.enabled(), states{zu_lr2d_get_isoline_style(picture.get()) != nullptr});
}

TEST(layer_editors, of_overlays_serve_any_layer_with_the_style) {
  entity uniform(zu_lr2d_create("tos_grid_lr2d"));
  serving<grid_layer2d_hillshade> hillshade;
  serving<grid_layer2d_isoline> isoline;
  hillshade.service->layer_changed(uniform.get());
  isoline.service->layer_changed(uniform.get());
  EXPECT_EQ(hillshade.enabled(), states{true});
  EXPECT_EQ(isoline.enabled(), states{true});
  tick(hillshade.controls(0).at<checkbox_impl>(), true);
  tick(isoline.controls(0).at<checkbox_impl>(), true);
  EXPECT_TRUE(zu_hillshade_style_get_use(zu_lr2d_get_hillshade_style(uniform.get())));
  EXPECT_TRUE(zu_isoline_style_get_use(zu_lr2d_get_isoline_style(uniform.get())));
  hillshade.service->layer_changed(nullptr);
  isoline.service->layer_changed(nullptr);
  EXPECT_EQ(hillshade.enabled(), states{false});
  EXPECT_EQ(isoline.enabled(), states{false});
}

TEST(layer_editors, of_one_type_want_exactly_that_type) {
  entity points(zu_lr2d_create("tos_2crd_lr2d")), profile(zu_lr2d_create("tos_grid_lr1d"));
  serving<tos4_coord_xy_layer2d_editor> of_points;
  serving<tos4_grid1d_layer2d_editor> of_profiles;
  of_points.service->layer_changed(profile.get());
  of_profiles.service->layer_changed(points.get());
  EXPECT_EQ(of_points.enabled(), (states{false, false}));
  EXPECT_EQ(of_profiles.enabled(), states{false});
  of_points.service->layer_changed(points.get());
  of_profiles.service->layer_changed(profile.get());
  EXPECT_EQ(of_points.enabled(), (states{true, true}));
  EXPECT_EQ(of_profiles.enabled(), states{true});
  of_points.service->layer_changed(nullptr);
  of_profiles.service->layer_changed(nullptr);
}

TEST(points_editor, sets_the_size_of_points_and_names_the_fields) {
  made_pgrid file("points_editor.pgrid");
  file.grid.type = zu_tos4_two_columns;
  file.grid.size[0] = 2;
  file.add(L"east", {10, 20});
  file.add(L"north", {30, 40});
  file.coordinate(0, 0);
  file.coordinate(1, 1);
  entity points(zu_lr2d_create("tos_2crd_lr2d"));
  zu_lr2d_set_wsource(points.get(), file.close().c_str());
  serving<tos4_coord_xy_layer2d_editor> editor;
  editor.service->layer_changed(points.get());
  auto size = editor.controls(0).at<floating_input_impl>();
  EXPECT_EQ(call<&floating_input_impl::value>(size), 1);
  enter(size, 2.5);
  EXPECT_EQ(zu_tos_2crd_lr2d_get_point_size(points.get()), 2.5);
  auto name = [&](int n) {
    auto shown = editor.controls(0).at<output_impl>(n);
    return text([&](string_visitor v) { call<&output_impl::text>(shown, v); });
  };
  EXPECT_EQ(name(0), L"east");
  EXPECT_EQ(name(1), L"north");
  editor.service->layer_changed(nullptr);
}

}  // namespace
}  // namespace tests
