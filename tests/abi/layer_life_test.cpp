// A layer from its service to its end, and its picture, by slots alone.

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/abi/bundle_module.h"
#include "zu/platform/zuk_drwc.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_render.h"
#include "zu/platform/zuk_styles.h"

namespace plain {
namespace {

// Slots of a layer object.
enum {
  bind_entity = 1,
  source_changed = 2,
  update_validity = 4,
  copy_from = 5,
  has_projection = 6,
  get_proj4 = 7,
  get_table_data = 12,
  get_style_manager = 14,
  get_hillshade_style = 17,
  get_isoline_style = 18,
};
// Slots of the render service.
enum { get_type = 2, render = 3, render_selection = 4, is_dynamic = 5 };

class layer_life : public bundle_module {
 protected:
  void SetUp() override {
    bundle_module::SetUp();
    folder_ = std::filesystem::temp_directory_path() /
              ("zugrid_abi_" + std::to_string(static_cast<long>(getpid())));
    std::filesystem::create_directories(folder_);
    create(4, service_.handle());
    ASSERT_EQ(service_.visits.size(), 1u);
    create(6, render_.handle());
    ASSERT_EQ(render_.visits.size(), 1u);
    layer_ = new_layer();
    entity_ = zu_lr2d_create("grid_lr2d");
  }
  void TearDown() override {
    if (!is_empty(layer_)) call<void, Izu_layer*>(layer_, bind_entity, nullptr);
    zu_lr2d_destroy(entity_);
    std::error_code ignored;  // of a folder that is gone already
    std::filesystem::remove_all(folder_, ignored);
    service_.strong.let_go(), service_.watch.let_go();
    render_.strong.let_go(), render_.watch.let_go();
    bundle_module::TearDown();
  }

  Tzu_handle new_layer() {
    receiver layer("zu_layer_2d_visitor_interface_10", holding::none);
    call<void>(service_.visits[0], 3, layer.handle());
    EXPECT_EQ(layer.visits.size(), 1u);
    return layer.visits.at(0);
  }
  void bind() {
    zu_lr2d_set_plugin_interface(entity_, layer_);
    call<void, Izu_layer*>(layer_, bind_entity, entity_);
  }
  template <class pointer> pointer* get(int slot) { return call<pointer*>(layer_, slot); }
  std::wstring text(Tzu_handle object, int slot) {
    text_visitor visitor;
    call<void>(object, slot, visitor.handle());
    EXPECT_EQ(visitor.texts.size(), 1u);
    return visitor.texts.empty() ? L"no call" : visitor.texts[0];
  }
  /// Four cells of 1 by 1 over (0, 0) to (2, 2), all of value 7.
  std::wstring small_grid() {
    std::filesystem::path path = folder_ / "four.asc";
    std::ofstream(path) << "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n7 7\n7 7\n";
    return path.wstring();
  }
  /// Whether a call of a slot of the render service leaves ink on a page over the small grid.
  bool draws(int slot) {
    Tzu_drwc* page = zu_drwc_create_image(20, 20, 96, false);
    Tzu_box_d2 box = {0, 0, 2, 2};
    Izu_render* renderer = zu_render_create(page, &box);
    call<void, Izu_render*, Izu_layer*>(render_.visits[0], slot, renderer, entity_);
    bool ink = zu_drwc_has_ink(page);
    zu_render_destroy(renderer);
    zu_drwc_destroy(page);
    return ink;
  }

  std::filesystem::path folder_;
  receiver service_{"zu_layer_2d_service_visitor_interface_12", holding::kept};
  receiver render_{"zu_layer_2d_renderer_extension_service_visitor_interface_3", holding::kept};
  Tzu_handle layer_;
  Izu_layer* entity_ = nullptr;
};

TEST_F(layer_life, services_name_their_type) {
  EXPECT_EQ(text(service_.visits[0], 2), L"grid_lr2d");
  EXPECT_EQ(text(render_.visits[0], get_type), L"grid_lr2d");
  receiver externalization("zu_layer_2d_externalization_service_visitor_interface_13",
                           holding::kept);
  create(5, externalization.handle());
  ASSERT_EQ(externalization.visits.size(), 1u);
  EXPECT_EQ(text(externalization.visits[0], 2), L"grid_lr2d");
  EXPECT_EQ(text(externalization.visits[0], 3), L"grid_lr2d");
}

TEST_F(layer_life, layers_share_a_table_and_answer_to_their_version_alone) {
  EXPECT_EQ(query(layer_, "zu_layer_2d_interface_10"), layer_);
  EXPECT_TRUE(is_empty(query(layer_, "zu_layer_2d_interface_9")));
  Tzu_handle other = new_layer();
  EXPECT_EQ(other.table, layer_.table);
  EXPECT_NE(other.instance, layer_.instance);
  call<void, Izu_layer*>(other, bind_entity, nullptr);
}

TEST_F(layer_life, all_21_slots_are_filled) {
  for (int slot = 0; slot < 21; ++slot)
    EXPECT_NE(static_cast<const address*>(layer_.table)[slot], nullptr) << slot;
}

TEST_F(layer_life, binding_makes_the_table_of_the_entity) {
  EXPECT_EQ(get<Tzu_table_data>(get_table_data), nullptr);
  bind();
  Tzu_table_data* table = get<Tzu_table_data>(get_table_data);
  EXPECT_NE(table, nullptr);
  EXPECT_EQ(zu_lr2d_get_data_ptr(entity_), table);
}

TEST_F(layer_life, a_new_layer_has_its_styles_and_takes_part_in_reprojection) {
  EXPECT_NE(get<Tzu_stl_mngr>(get_style_manager), nullptr);
  EXPECT_NE(get<Tzu_hillshade_style>(get_hillshade_style), nullptr);
  EXPECT_NE(get<Tzu_isoline_style>(get_isoline_style), nullptr);
  EXPECT_TRUE(call<bool>(layer_, has_projection));
  EXPECT_EQ(text(layer_, get_proj4), L"");
  call<void>(layer_, get_proj4, Tzu_handle());
}

TEST_F(layer_life, slots_of_other_kinds_of_layers_give_false_and_zero) {
  bind();
  EXPECT_FALSE(call<bool>(layer_, 9));
  EXPECT_FALSE(call<bool>(layer_, 10));
  call<void>(layer_, 11);
  for (int slot : {13, 15, 16, 19}) EXPECT_EQ(get<void>(slot), nullptr) << slot;
}

TEST_F(layer_life, a_file_that_is_not_there_marks_the_layer) {
  bind();
  struct {
    std::wstring source;
    bool missing;
  } const table[] = {
      {L"", true},
      {(folder_ / "none.tif").wstring(), true},
      {small_grid(), false},
      {L"*memory", false},
  };
  for (const auto& row : table) {
    zu_lr2d_set_valid(entity_, !row.missing);
    zu_lr2d_set_wsource(entity_, row.source.c_str());
    call<void>(layer_, update_validity);
    EXPECT_EQ(zu_lr2d_is_missing(entity_), row.missing)
        << std::filesystem::path(row.source).string();
  }
}

TEST_F(layer_life, copying_from_something_else_changes_nothing) {
  bind();
  std::uint64_t changes = zu_lr2d_get_change_count(entity_);
  named stranger;
  static const address table[] = {reinterpret_cast<address>(&polymorphic_of_named)};
  Tzu_handle other;
  other.table = table, other.instance = &stranger;
  call<void>(layer_, copy_from, other);
  call<void>(layer_, copy_from, Tzu_handle());
  EXPECT_EQ(zu_lr2d_get_change_count(entity_), changes);

  Tzu_handle grid = new_layer();
  call<void>(layer_, copy_from, grid);
  EXPECT_GT(zu_lr2d_get_change_count(entity_), changes);
  call<void, Izu_layer*>(grid, bind_entity, nullptr);
}

TEST_F(layer_life, a_grid_layer_is_drawn_by_render_and_not_by_render_selection) {
  bind();
  zu_lr2d_set_wsource(entity_, small_grid().c_str());
  call<void>(layer_, source_changed);
  EXPECT_TRUE(draws(render));
  EXPECT_FALSE(draws(render_selection));
  EXPECT_FALSE(call<bool>(render_.visits[0], is_dynamic));
}

TEST_F(layer_life, a_layer_of_another_type_is_not_drawn) {
  zu_lr2d_destroy(entity_);
  entity_ = zu_lr2d_create("rtr_lr2d");
  bind();
  zu_lr2d_set_wsource(entity_, small_grid().c_str());
  call<void>(layer_, source_changed);
  EXPECT_FALSE(draws(render));
}

TEST_F(layer_life, an_entity_without_a_plug_in_object_is_not_drawn) {
  bind();
  zu_lr2d_set_wsource(entity_, small_grid().c_str());
  call<void>(layer_, source_changed);
  zu_lr2d_set_plugin_interface(entity_, Tzu_handle());
  EXPECT_FALSE(draws(render));
}

}  // namespace
}  // namespace plain
