// What a scene editor and an information tool get of the bundle, by slot numbers alone.

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/abi/bundle_module.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_os.h"

namespace plain {
namespace {

// Slots of the scene editor services.
enum { get_extensions = 2, get_filters = 4, get_order = 8 };
// Slots of a filter.
enum { get_description = 2, get_mask = 3, accepts = 4, add = 5 };
// Slots of an extension.
enum { get_layer_type = 2, get_bitmap = 3, is_first = 4, is_second = 6 };
// Slots of the information service and of what it gives.
enum { is_other = 2, get_object_info = 3, get_values = 1 };

constexpr std::size_t grid_row = 1, other_row = 2, objinfo_row = 10;

struct host_record {
  std::vector<std::string> types;
  std::vector<std::wstring> errors;
};
Izu_layer* refuse(const wchar_t*, const char* type, void* user) {
  static_cast<host_record*>(user)->types.emplace_back(type);
  return nullptr;
}
void note(const wchar_t*, const wchar_t* text, void* user) {
  static_cast<host_record*>(user)->errors.emplace_back(text);
}

class scene_editor : public bundle_module {
 protected:
  void SetUp() override {
    bundle_module::SetUp();
    language_ = zu_res_get_lng();
    zu_res_set_lng(50000);
    create(grid_row, grid_.handle());
    create(other_row, other_.handle());
    ASSERT_EQ(grid_.visits.size(), 1u);
    ASSERT_EQ(other_.visits.size(), 1u);
  }
  void TearDown() override {
    zu_res_set_lng(language_);
    for (receiver* r : {&grid_, &other_}) r->strong.let_go(), r->watch.let_go();
    bundle_module::TearDown();
  }
  static std::vector<Tzu_handle> items(Tzu_handle service, int slot) {
    receiver taker("", holding::none);
    call<void>(service, slot, taker.handle());
    return taker.visits;
  }
  static std::wstring text(Tzu_handle object, int slot) {
    text_visitor visitor;
    call<void>(object, slot, visitor.handle());
    EXPECT_EQ(visitor.texts.size(), 1u);
    return visitor.texts.empty() ? L"no call" : visitor.texts[0];
  }

  receiver grid_{"zu_scene_2d_editor_extension_service_visitor_interface_94", holding::kept};
  receiver other_{"zu_scene_2d_editor_extension_service_visitor_interface_94", holding::kept};
  std::int32_t language_ = 0;
};

TEST_F(scene_editor, services_stand_in_their_namespace_with_their_order) {
  EXPECT_EQ(factories().at(grid_row).id, L"zugrid/scene/2d");
  EXPECT_EQ(factories().at(other_row).id, L"zugrid/scene/2d");
  EXPECT_EQ(call<std::int32_t>(grid_.visits[0], get_order), 125);
  EXPECT_EQ(call<std::int32_t>(other_.visits[0], get_order), -50);
}

TEST_F(scene_editor, extensions_name_their_layer_types) {
  std::vector<Tzu_handle> grid = items(grid_.visits[0], get_extensions);
  ASSERT_EQ(grid.size(), 1u);
  EXPECT_EQ(text(grid[0], get_layer_type), L"grid_lr2d");
  std::vector<std::wstring> types;
  for (Tzu_handle extension : items(other_.visits[0], get_extensions)) {
    types.push_back(text(extension, get_layer_type));
    EXPECT_EQ(query(extension, "zu_scene_2d_editor_extension_interface_1"), extension);
    EXPECT_TRUE(is_empty(query(extension, "zu_scene_2d_editor_extension_interface_0")));
    EXPECT_FALSE(call<bool>(extension, is_first));
    EXPECT_FALSE(call<bool>(extension, is_second));
    call<void>(extension, get_bitmap, Tzu_handle());
  }
  EXPECT_EQ(types, (std::vector<std::wstring>{L"rtr_lr2d", L"tos_grid_lr2d", L"tos_slice_lr2d",
                                              L"tos_2crd_lr2d", L"tos_grid_lr1d"}));
}

TEST_F(scene_editor, lists_are_for_those_who_ask) {
  for (Tzu_handle service : {grid_.visits[0], other_.visits[0]}) {
    call<void>(service, get_extensions, Tzu_handle());
    call<void>(service, get_filters, Tzu_handle());
  }
}

TEST_F(scene_editor, the_filter_of_grids_answers_in_all_its_slots) {
  std::vector<Tzu_handle> filters = items(grid_.visits[0], get_filters);
  ASSERT_EQ(filters.size(), 1u);
  Tzu_handle filter = filters[0];
  EXPECT_EQ(query(filter, "zu_scene_editor_filter_interface_0"), filter);
  call<void>(filter, 1, std::uint8_t{1});
  EXPECT_EQ(text(filter, get_description), L"Grid Files");
  EXPECT_EQ(text(filter, get_mask).substr(0, 12), L"*.adf;*.asc;");
  EXPECT_TRUE((call<bool, const wchar_t*>(filter, accepts, L"/a/b.GRD")));
  EXPECT_FALSE((call<bool, const wchar_t*>(filter, accepts, L"/a/b.png")));

  host_record record;
  Tzu_lr_builder* builder = zu_lr_builder_create(&refuse, &note, &record);
  call<void, Tzu_lr_builder*, const wchar_t*>(filter, add, builder, L"/a/b.grd");
  zu_lr_builder_destroy(builder);
  EXPECT_EQ(record.types, std::vector<std::string>{"grid_lr2d"});
  EXPECT_EQ(record.errors, std::vector<std::wstring>{L"Grid files are not supported."});
}

// --- The information tool

struct values_taker {
  named head;
  std::vector<std::pair<std::wstring, std::wstring>> values;
};
void take_value(const void*, void* instance, const wchar_t* name, const wchar_t* value) {
  static_cast<values_taker*>(instance)->values.emplace_back(name, value);
}

struct info_taker {
  named head;
  std::vector<std::wstring> titles;
  values_taker taken;
};
void take_info(const void*, void* instance, std::uint64_t zero, const wchar_t* title,
               Tzu_handle object) {
  auto* taker = static_cast<info_taker*>(instance);
  EXPECT_EQ(zero, 0u);
  taker->titles.emplace_back(title);
  static const address table[] = {reinterpret_cast<address>(&polymorphic_of_named),
                                  reinterpret_cast<address>(&take_value)};
  Tzu_handle visitor;
  visitor.table = table, visitor.instance = &taker->taken;
  call<void>(object, get_values, visitor);
}

using information = bundle_module;

TEST_F(information, tells_the_cell_under_a_point) {
  std::int32_t language = zu_res_get_lng();
  zu_res_set_lng(0);
  std::filesystem::path path = std::filesystem::temp_directory_path() /
                               ("zugrid_abi_info_" + std::to_string(getpid()) + ".asc");
  std::ofstream(path) << "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n7 8\n5 6\n";
  Izu_layer* layer = zu_lr2d_create("grid_lr2d");
  zu_lr2d_set_wsource(layer, path.wstring().c_str());

  receiver service("zu_objinfo_service_visitor_interface_6", holding::kept);
  create(objinfo_row, service.handle());
  ASSERT_EQ(service.visits.size(), 1u);
  EXPECT_FALSE(call<bool>(service.visits[0], is_other));

  static const address table[] = {reinterpret_cast<address>(&polymorphic_of_named),
                                  reinterpret_cast<address>(&take_info)};
  info_taker taker;
  Tzu_handle visitor;
  visitor.table = table, visitor.instance = &taker;
  auto ask = [&](double x, double y) {
    call<void, Izu_layer*, double, double, void*>(service.visits[0], get_object_info, layer, x, y,
                                                  nullptr, visitor);
  };
  ask(1.5, 0.5);
  EXPECT_EQ(taker.titles, std::vector<std::wstring>{L"Пикет 2, Профиль 1"});
  ASSERT_EQ(taker.taken.values.size(), 1u);
  EXPECT_EQ(taker.taken.values[0].second, L"6");
  ask(2.5, 0.5);
  EXPECT_EQ(taker.titles.size(), 1u);

  zu_lr2d_destroy(layer);
  std::filesystem::remove(path);
  zu_res_set_lng(language);
}

}  // namespace
}  // namespace plain
