// A dialog of the bundle, shown by a host that knows names and slot numbers alone.

#include "tests/abi/bundle_module.h"
#include "tests/unit/platform/zuk_file_segy/made_section.h"
#include "zu/platform/zuk_file_segy.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_os.h"

namespace plain {
namespace {

constexpr std::size_t editors_row = 2, dialog_row = 14;
// Slots of a docker, a grid layout, an input with suggestions, of what gives filters and a filter,
// and of a row of buttons.
enum { visit_caption = 2, visit_element = 3, attach_docker_view = 6 };
enum { column_count = 1, row_count = 2, visit_cell = 3 };
enum { text = 1, set_text = 8, commit = 9, visit_suggestions = 10, attach_input_view = 11 };
enum { get_filters = 4, accepts = 4, add = 5 };
enum { button_count = 1, button_role = 4, press = 5 };

std::vector<std::wstring> texts(Tzu_handle object, int slot) {
  text_visitor visitor;
  call<void>(object, slot, visitor.handle());
  return visitor.texts;
}

/// Takes the elements of a tree, layout by layout.
struct tree {
  explicit tree(Tzu_handle docker) { taken(visit_element, docker); }

  Tzu_handle find(const char* name) const {
    for (Tzu_handle element : elements)
      if (Tzu_handle found = query(element, name); !is_empty(found)) return found;
    return {};
  }
  std::vector<Tzu_handle> elements;

 private:
  template <class... args> void taken(int slot, Tzu_handle from, args... where) {
    receiver visitor("zu_element_visitor_interface_1", holding::none);
    call<void>(from, slot, where..., visitor.handle());
    for (Tzu_handle element : visitor.visits) {
      elements.push_back(element);
      Tzu_handle layout = query(element, "zu_grid_layout_interface_91");
      if (is_empty(layout)) continue;
      for (std::uint32_t row = 0; row < call<std::uint32_t>(layout, row_count); ++row)
        for (std::uint32_t column = 0; column < call<std::uint32_t>(layout, column_count); ++column)
          taken(visit_cell, layout, column, row);
    }
  }
};

/// A view that counts what it is told; slots 1 to 3.
struct view_of_host {
  named head;
  int calls = 0;
  Tzu_handle handle() {
    static const auto count = reinterpret_cast<address>(
        +[](const void*, void* self) { ++static_cast<view_of_host*>(self)->calls; });
    static const address table[] = {reinterpret_cast<address>(&polymorphic_of_named), count, count,
                                    count};
    Tzu_handle h;
    h.table = table, h.instance = this;
    return h;
  }
};

/// A person who types feet into the units and presses OK.
int answer(const void*, void*, Tzu_handle shown) {
  Tzu_handle docker = query(shown, "zu_docker_interface_92");
  EXPECT_EQ(texts(docker, visit_caption), std::vector<std::wstring>{L"SEG-Y loading parameters"});
  view_of_host docker_view, input_view;
  call<void>(docker, attach_docker_view, docker_view.handle());
  tree elements(docker);

  Tzu_handle units = elements.find("zu_assisted_input_interface_3");
  EXPECT_EQ(texts(units, text).at(0), texts(units, visit_suggestions).at(0));
  call<void>(units, attach_input_view, input_view.handle());
  EXPECT_TRUE((call<bool, const wchar_t*>(units, set_text, L"0.3048")));
  call<void>(units, commit);
  EXPECT_EQ(texts(units, text), std::vector<std::wstring>{L"0.3048"});
  EXPECT_EQ(input_view.calls, 0) << "the host knows what it typed";

  Tzu_handle buttons = elements.find("zu_button_box_interface_2");
  EXPECT_EQ(call<std::uint32_t>(buttons, button_count), 2u);
  EXPECT_EQ((call<std::uint32_t, std::uint32_t>(buttons, button_role, 0)), 2u);
  bool closes = call<bool, std::int32_t>(buttons, press, 0);
  call<void>(units, attach_input_view, Tzu_handle());
  call<void>(docker, attach_docker_view, Tzu_handle());
  return closes ? 1 : 0;
}

Izu_layer* refuse(const wchar_t*, const char*, void*) { return nullptr; }
void forget(const wchar_t*, const wchar_t*, void*) {}

using shown_dialog = bundle_module;

TEST_F(shown_dialog, is_driven_by_names_and_slots_alone) {
  std::int32_t language = zu_res_get_lng();
  zu_res_set_lng(50000);
  tests::section_folder folder;
  tests::made_section section(8, 1);
  for (int x : {100, 300}) section.trace({"a"}).field(73, 4, x).field(77, 4, 200).field(71, 2, 1);
  section.save(folder / "a.sgy");
  std::string narrow = folder / "a.sgy";
  std::wstring path(narrow.begin(), narrow.end());

  receiver service("zu_modal_dialog_service_visitor_interface_102", holding::kept);
  create(dialog_row, service.handle());
  named_receiver dialog;
  call<void>(service.visits.at(0), 2, dialog.handle());
  static const address table[] = {reinterpret_cast<address>(&polymorphic_of_named),
                                  reinterpret_cast<address>(&answer)};
  named runner_object;
  Tzu_handle runner;
  runner.table = table, runner.instance = &runner_object;
  call<void>(dialog.visits.at(0).object, 1, runner);

  receiver editors("zu_scene_2d_editor_extension_service_visitor_interface_94", holding::kept);
  create(editors_row, editors.handle());
  receiver filters("", holding::none);
  call<void>(editors.visits.at(0), get_filters, filters.handle());
  Tzu_lr_builder* builder = zu_lr_builder_create(&refuse, &forget, nullptr);
  for (Tzu_handle filter : filters.visits)
    if (call<bool, const wchar_t*>(filter, accepts, path.c_str()))
      call<void, Tzu_lr_builder*, const wchar_t*>(filter, add, builder, path.c_str());
  zu_lr_builder_destroy(builder);

  ASSERT_TRUE(zu_segy_file_has_params(path.c_str()));
  Tzu_segy_prms* stored = zu_segy_prms_create();
  Tzu_segy_file* file = zu_segy_file_open(path.c_str(), 1);
  zu_segy_file_get_parameters(file, stored);
  EXPECT_EQ(zu_segy_prms_get_coord_coeff(stored), 0.3048);
  zu_segy_file_close(file);
  zu_segy_prms_destroy(stored);
  for (receiver* r : {&service, &editors}) r->strong.let_go(), r->watch.let_go();
  zu_res_set_lng(language);
}

}  // namespace
}  // namespace plain
