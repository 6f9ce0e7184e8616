// The bundle's own handle and the list of its factories.

#include <dlfcn.h>

#include "tests/abi/bundle_module.h"

namespace plain {
namespace {

using bundle_handle = bundle_module;

TEST_F(bundle_handle, holds_the_hosts_pointer_and_one_table) {
  int mine = 0, other = 0;
  Tzu_handle first = bundle(&mine), second = bundle(&other);
  EXPECT_EQ(first.instance, &mine);
  EXPECT_EQ(second.instance, &other);
  EXPECT_NE(first.table, nullptr);
  EXPECT_EQ(first.table, second.table);
}

TEST_F(bundle_handle, answers_no_name) {
  int mine = 0;
  Tzu_handle polymorphic = call<Tzu_handle>(bundle(&mine), 0);
  EXPECT_EQ(polymorphic.instance, &mine);
  ASSERT_NE(polymorphic.table, nullptr);
  for (const char* name : {"zu_bundle_interface_1", "zu_bundle_interface_0",
                           "zu_service_factory_interface_1", "zu_referent_interface_1", ""}) {
    const void* table = &mine;
    void* instance = &mine;
    call<void, const char*, const void**, void**>(polymorphic, 0, name, &table, &instance);
    EXPECT_EQ(table, nullptr) << name;
    EXPECT_EQ(instance, nullptr) << name;
  }
}

TEST_F(bundle_handle, has_the_exported_empty_function_in_its_unused_slots) {
  void* empty = dlsym(module_, "scary_vcl_bug_crashes_everything_on_unloading");
  ASSERT_NE(empty, nullptr);
  auto* table = static_cast<const address*>(bundle().table);
  for (int slot = 2; slot <= 5; ++slot)
    EXPECT_EQ(reinterpret_cast<void*>(table[slot]), empty) << slot;
  reinterpret_cast<address>(empty)();
}

TEST_F(bundle_handle, ignores_its_instance) {
  named_receiver receiver;
  Tzu_handle none = bundle();
  none.instance = nullptr;
  call<void>(none, 1, receiver.handle());
  EXPECT_EQ(receiver.visits.size(), 40u);
}

TEST_F(bundle_handle, enumerates_nothing_to_an_empty_receiver) {
  named_receiver receiver;
  Tzu_handle no_table = receiver.handle(), no_instance = receiver.handle();
  no_table.table = nullptr;
  no_instance.instance = nullptr;
  call<void>(bundle(), 1, Tzu_handle());
  call<void>(bundle(), 1, no_table);
  call<void>(bundle(), 1, no_instance);
  EXPECT_TRUE(receiver.visits.empty());
}

TEST_F(bundle_handle, offers_its_factories_in_a_fixed_order) {
  const std::wstring none, scene = L"zugrid/scene/2d", layer = L"zugrid/layer/2d",
                           tool = L"zugrid/tool";
  std::vector<std::wstring> expected = {
      none,                       // localizer client
      scene, scene, none,         // 1 to 3
      layer, layer, none,         // the three services of grid layers
      layer, layer, layer,        // 7 to 9, editors
      none,  tool,  none,  none,  // 10 to 13
      none,  layer, layer,        // 14 to 16
      none,  none,  none,         // 17 to 19
  };
  expected.resize(40);  // 20 to 39, dialogs
  std::vector<std::wstring> offered;
  for (const auto& visit : factories()) offered.push_back(visit.id);
  EXPECT_EQ(offered, expected);
}

TEST_F(bundle_handle, offers_the_same_factories_each_time) {
  auto first = factories(), second = factories();
  ASSERT_EQ(first.size(), second.size());
  for (std::size_t i = 0; i < first.size(); ++i) {
    EXPECT_EQ(first[i].object, second[i].object) << i;
    for (std::size_t k = 0; k < i; ++k)
      EXPECT_NE(first[i].object, first[k].object) << i << " " << k;
  }
}

TEST_F(bundle_handle, factories_answer_to_their_version_alone) {
  auto all = factories();
  for (std::size_t row = 1; row < all.size(); ++row) {
    EXPECT_EQ(query(all[row].object, "zu_service_factory_interface_1"), all[row].object) << row;
    EXPECT_TRUE(is_empty(query(all[row].object, "zu_service_factory_interface_2"))) << row;
    EXPECT_TRUE(is_empty(query(all[row].object, "zu_layer_2d_service_interface_12"))) << row;
  }
}

TEST_F(bundle_handle, leaves_the_process_when_the_host_lets_go) {
  create(4, Tzu_handle());
  dlclose(module_);
  module_ = dlopen(bundle_path().c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NOLOAD);
  EXPECT_EQ(module_, nullptr);
}

}  // namespace
}  // namespace plain
