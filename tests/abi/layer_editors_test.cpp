// Panels of layers as a host gets them, by slot numbers alone.

#include <memory>

#include "tests/abi/bundle_module.h"
#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_lr2d.h"

namespace plain {
namespace {

// Slots of an editor service, of a panel and of its observer.
enum { get_dockers = 2, layer_changed = 3, get_order = 8 };
enum { panel_width = 1, panel_height = 2, panel_enabled = 3, attach_observer = 4 };
enum { enabled_changed = 2 };

constexpr std::size_t grid_row = 7, hillshade_row = 8, isoline_row = 9, points_row = 15,
                      profile_row = 16;

struct observer {
  observer() {
    static const address table[] = {reinterpret_cast<address>(&polymorphic_of_named),
                                    reinterpret_cast<address>(+[](const void*, void*) {}),
                                    reinterpret_cast<address>(+[](const void*, void* self) {
                                      ++static_cast<observer*>(self)->calls;
                                    })};
    handle.table = table, handle.instance = this;
  }
  named head;
  Tzu_handle handle;
  int calls = 0;
};

class layer_editors : public bundle_module {
 protected:
  struct editor {
    receiver service{"zu_layer_2d_editor_extension_service_visitor_interface_98", holding::kept};
    named_receiver dockers;
  };
  /// The service of a row, and its dockers.
  std::unique_ptr<editor> open(std::size_t row) const {
    auto opened = std::make_unique<editor>();
    create(row, opened->service.handle());
    if (!opened->service.visits.empty())
      call<void>(opened->service.visits[0], get_dockers, opened->dockers.handle());
    return opened;
  }
  static Tzu_handle panel(const editor& of, std::size_t n) {
    return query(of.dockers.visits.at(n).object, "zu_panel_interface_1");
  }
};

struct row_of_panels {
  std::size_t row;
  std::int32_t order;
  struct panel {
    const wchar_t* id;
    std::uint32_t width, height;
  };
  std::vector<panel> panels;
};

TEST_F(layer_editors, show_their_panels_in_order_with_their_sizes) {
  const row_of_panels rows[] = {
      {grid_row,
       1,
       {{L"zu_grid_layer2d_plugin_style_editor", 20, 20},
        {L"zu_grid_layer2d_plugin_slice_editor", 50, 50}}},
      {hillshade_row, 1, {{L"zu_grid_layer2d_plugin_hillshade", 80, 80}}},
      {isoline_row, 1, {{L"zu_grid_layer2d_plugin_isoline", 80, 80}}},
      {profile_row, -50, {{L"zu_grid_layer2d_tos4_grid1d_style_editor", 20, 20}}},
  };
  for (const row_of_panels& expected : rows) {
    auto opened = open(expected.row);
    ASSERT_EQ(opened->service.visits.size(), 1u) << expected.row;
    EXPECT_EQ(call<std::int32_t>(opened->service.visits[0], get_order), expected.order);
    ASSERT_EQ(opened->dockers.visits.size(), expected.panels.size());
    for (std::size_t n = 0; n < expected.panels.size(); ++n) {
      EXPECT_EQ(opened->dockers.visits[n].id, expected.panels[n].id);
      EXPECT_EQ(query(opened->dockers.visits[n].object, "zu_docker_interface_92"),
                opened->dockers.visits[n].object);
      Tzu_handle shown = panel(*opened, n);
      EXPECT_EQ(call<std::uint32_t>(shown, panel_width), expected.panels[n].width);
      EXPECT_EQ(call<std::uint32_t>(shown, panel_height), expected.panels[n].height);
      EXPECT_TRUE(call<bool>(shown, panel_enabled));
    }
    call<void>(opened->service.visits[0], get_dockers, Tzu_handle());
  }
}

TEST_F(layer_editors, tell_their_observer_only_of_what_is_another) {
  for (std::size_t row : {grid_row, hillshade_row, isoline_row, profile_row}) {
    auto opened = open(row);
    observer seen;
    Tzu_handle shown = panel(*opened, 0), service = opened->service.visits.at(0);
    call<void>(shown, attach_observer, seen.handle);
    call<void>(service, layer_changed, static_cast<Izu_layer*>(nullptr));
    EXPECT_EQ(seen.calls, 1) << row;
    EXPECT_FALSE(call<bool>(shown, panel_enabled));
    call<void>(service, layer_changed, static_cast<Izu_layer*>(nullptr));
    EXPECT_EQ(seen.calls, 1) << row;
    call<void>(shown, attach_observer, Tzu_handle());
  }
}

TEST_F(layer_editors, of_an_overlay_go_by_the_style_that_the_entity_has) {
  Izu_layer* uniform = zu_lr2d_create("tos_grid_lr2d");
  for (std::size_t row : {hillshade_row, isoline_row}) {
    auto opened = open(row);
    Tzu_handle service = opened->service.visits.at(0);
    call<void>(service, layer_changed, static_cast<Izu_layer*>(nullptr));
    call<void>(service, layer_changed, uniform);
    EXPECT_TRUE(call<bool>(panel(*opened, 0), panel_enabled)) << row;
    call<void>(service, layer_changed, static_cast<Izu_layer*>(nullptr));
  }
  auto grid = open(grid_row);
  call<void>(grid->service.visits.at(0), layer_changed, uniform);
  EXPECT_FALSE(call<bool>(panel(*grid, 0), panel_enabled)) << "no plug-in object";
  zu_lr2d_destroy(uniform);
}

/// The module looks at its host's name while it loads.
class layer_editors_in_zumiraqt : public layer_editors {
 protected:
  void SetUp() override {
    zu_options_set_main_module_path(L"/opt/zumiraqt/bin/zumiraqt");
    layer_editors::SetUp();
    zu_options_set_main_module_path(nullptr);
  }
};

TEST_F(layer_editors_in_zumiraqt, serve_layers_of_points_too) {
  auto opened = open(points_row);
  ASSERT_EQ(opened->service.visits.size(), 1u);
  EXPECT_EQ(call<std::int32_t>(opened->service.visits[0], get_order), -50);
  ASSERT_EQ(opened->dockers.visits.size(), 2u);
  EXPECT_EQ(opened->dockers.visits[0].id, L"zu_grid_layer2d_tos4_coord2d_param_editor");
  EXPECT_EQ(opened->dockers.visits[1].id, L"zu_grid_layer2d_tos4_coord2d_style_editor");
  EXPECT_EQ(call<std::uint32_t>(panel(*opened, 0), panel_width), 45u);
  EXPECT_EQ(call<std::uint32_t>(panel(*opened, 1), panel_width), 20u);
}

}  // namespace
}  // namespace plain
