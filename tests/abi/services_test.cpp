// Services: one object as long as anybody holds it, made for whoever answers to the right name.

#include <ostream>

#include "tests/abi/bundle_module.h"

namespace plain {
namespace {

struct service {
  std::size_t row;
  const char* visitor;
  const char* of_other_version;
  const char* name;
};
void PrintTo(const service& s, std::ostream* out) { *out << "row " << s.row; }

// One of each kind, and every dialog.
std::vector<service> all_services() {
  const service scene_editor = {1, "zu_scene_2d_editor_extension_service_visitor_interface_94",
                                "zu_scene_2d_editor_extension_service_visitor_interface_93",
                                "zu_scene_2d_editor_extension_service_interface_94"};
  service other_scene_editor = scene_editor;
  other_scene_editor.row = 2;
  std::vector<service> all = {
      scene_editor,
      other_scene_editor,
      {4, "zu_layer_2d_service_visitor_interface_12", "zu_layer_2d_service_visitor_interface_11",
       "zu_layer_2d_service_interface_12"},
      {5, "zu_layer_2d_externalization_service_visitor_interface_13",
       "zu_layer_2d_externalization_service_visitor_interface_12",
       "zu_layer_2d_externalization_service_interface_13"},
      {6, "zu_layer_2d_renderer_extension_service_visitor_interface_3",
       "zu_layer_2d_renderer_extension_service_visitor_interface_4",
       "zu_layer_2d_renderer_extension_service_interface_3"},
      {10, "zu_objinfo_service_visitor_interface_6", "zu_objinfo_service_visitor_interface_5",
       "zu_objinfo_service_interface_6"},
  };
  for (std::size_t row : {7, 8, 9, 16})
    all.push_back({row, "zu_layer_2d_editor_extension_service_visitor_interface_98",
                   "zu_layer_2d_editor_extension_service_visitor_interface_97",
                   "zu_layer_2d_editor_extension_service_interface_98"});
  std::vector<std::size_t> dialogs = {3, 14};
  for (std::size_t row = 20; row <= 39; ++row) dialogs.push_back(row);
  for (std::size_t row : dialogs)
    all.push_back({row, "zu_modal_dialog_service_visitor_interface_102",
                   "zu_modal_dialog_service_visitor_interface_101",
                   "zu_modal_dialog_service_interface_102"});
  return all;
}

class services : public bundle_module, public testing::WithParamInterface<service> {};
INSTANTIATE_TEST_SUITE_P(of, services, testing::ValuesIn(all_services()),
                         [](const auto& info) { return "row_" + std::to_string(info.param.row); });

TEST_P(services, are_one_object_while_held) {
  receiver first(GetParam().visitor, holding::kept), second(GetParam().visitor, holding::kept);
  create(GetParam().row, first.handle());
  create(GetParam().row, second.handle());
  ASSERT_EQ(first.visits.size(), 1u);
  ASSERT_EQ(second.visits.size(), 1u);
  EXPECT_FALSE(is_empty(first.visits[0]));
  EXPECT_EQ(first.visits[0], second.visits[0]);
  EXPECT_EQ(query(first.visits[0], GetParam().name), first.visits[0]);

  first.strong.let_go();
  EXPECT_EQ(second.watch.released, 0);
  second.strong.let_go();
  EXPECT_EQ(second.watch.released, 1);
}

TEST_P(services, die_when_their_receiver_keeps_nothing) {
  receiver watching(GetParam().visitor, holding::watched);
  create(GetParam().row, watching.handle());
  EXPECT_EQ(watching.watch.released, 1);
  create(GetParam().row, watching.handle());
  EXPECT_EQ(watching.watch.released, 2);
  EXPECT_EQ(watching.visits.size(), 2u);
}

TEST_P(services, are_not_made_for_a_receiver_of_another_name) {
  counted owner;
  owner.head.name = "zu_service_owner";
  static const address owner_table[] = {reinterpret_cast<address>(&polymorphic_of_named),
                                        reinterpret_cast<address>(&referent_of_counted)};
  owner.head.self.table = owner_table, owner.head.self.instance = &owner;
  for (const char* name : {GetParam().of_other_version, GetParam().name, ""}) {
    receiver wrong(name, holding::kept);
    create(GetParam().row, wrong.handle(), owner.head.self);
    EXPECT_TRUE(wrong.visits.empty()) << name;
  }
  create(GetParam().row, Tzu_handle(), owner.head.self);
  EXPECT_EQ(owner.attached, 0);
}

TEST_P(services, hold_the_owner_that_they_were_made_with) {
  static const address owner_table[] = {reinterpret_cast<address>(&polymorphic_of_named),
                                        reinterpret_cast<address>(&referent_of_counted)};
  counted owner, later;
  for (counted* each : {&owner, &later}) {
    each->head.self.table = owner_table;
    each->head.self.instance = each;
  }
  receiver first(GetParam().visitor, holding::kept), second(GetParam().visitor, holding::kept);
  create(GetParam().row, first.handle(), owner.head.self);
  create(GetParam().row, second.handle(), later.head.self);
  EXPECT_EQ(owner.attached, 1);
  EXPECT_EQ(owner.referrers.size(), 1u);
  EXPECT_EQ(later.attached, 0) << "the service was alive already";

  first.strong.let_go();
  EXPECT_EQ(owner.referrers.size(), 1u);
  second.strong.let_go();
  EXPECT_TRUE(owner.referrers.empty()) << "a referrer or a pin was left behind";
}

// --- Dialogs

using dialogs = bundle_module;

TEST_F(dialogs, have_the_ids_that_hosts_know) {
  const std::vector<std::pair<std::size_t, std::wstring>> expected = {
      {3, L""},
      {14, L"zu_segy_params_dialog"},
      {20, L"zu_clr_palettes_dialog"},
      {21, L"zu_common_plugin_style_adavanced_dialog"},
      {22, L"zu_common_plugin_data_grid_schema_dialog"},
      {23, L"zu_segy_preview_dialog"},
      {24, L"zu_common_figure_dialog"},
      {25, L"zu_common_polygon_style_dialog"},
      {26, L"zu_common_line_style_dialog"},
      {27, L"zu_common_point_style_dialog"},
      {28, L"zu_common_lib_style_dialog"},
      {29, L"zu_common_cpx_polygon_style_dialog"},
      {30, L"zu_common_cpx_line_style_dialog"},
      {31, L"zu_common_cpx_point_style_dialog"},
      {32, L"zu_common_plugin_range_scale_dialog"},
      {33, L"zu_common_plugin_value_scale_dialog"},
      {34, L"zu_plugin_common_data_filter_dailog"},
      {35, L"zu_tld_plugin_text_effects_dialog"},
      {36, L"zu_txt_common_setting_dialog"},
      {37, L"zu_txt_style_dialog"},
      {38, L"zu_stl_mngr_list_setting_dialog"},
      {39, L"zu_common_plugin_data_calculator_dialog"},
  };
  for (const auto& [row, id] : expected) {
    receiver service("zu_modal_dialog_service_visitor_interface_102", holding::kept);
    create(row, service.handle());
    ASSERT_EQ(service.visits.size(), 1u) << row;
    named_receiver dialog;
    call<void>(service.visits[0], 2, dialog.handle());
    ASSERT_EQ(dialog.visits.size(), 1u) << row;
    EXPECT_EQ(dialog.visits[0].id, id) << row;
    EXPECT_EQ(query(dialog.visits[0].object, "zu_modal_dialog_interface_101"),
              dialog.visits[0].object)
        << row;
  }
}

TEST_F(dialogs, take_a_runner_and_do_not_run_it) {
  static int runs;
  runs = 0;
  static const address table[] = {
      reinterpret_cast<address>(&polymorphic_of_named),
      reinterpret_cast<address>(+[](const void*, void*, Tzu_handle) { return ++runs; })};
  named runner_object;
  Tzu_handle runner;
  runner.table = table, runner.instance = &runner_object;

  receiver service("zu_modal_dialog_service_visitor_interface_102", holding::kept);
  create(32, service.handle());
  ASSERT_EQ(service.visits.size(), 1u);
  named_receiver dialog;
  call<void>(service.visits[0], 2, dialog.handle());
  ASSERT_EQ(dialog.visits.size(), 1u);
  call<void>(dialog.visits[0].object, 1, runner);
  EXPECT_EQ(runs, 0);
}

TEST_F(dialogs, visit_nobody_through_an_empty_handle) {
  receiver service("zu_modal_dialog_service_visitor_interface_102", holding::kept);
  create(3, service.handle());
  ASSERT_EQ(service.visits.size(), 1u);
  call<void>(service.visits[0], 2, Tzu_handle());
}

// --- Factories that serve nobody

using silent_factories = bundle_module;

TEST_F(silent_factories, row_15_is_silent_in_a_host_of_another_name) {
  receiver editor("zu_layer_2d_editor_extension_service_visitor_interface_98", holding::kept);
  create(15, editor.handle());
  EXPECT_TRUE(editor.visits.empty());
}

}  // namespace
}  // namespace plain
