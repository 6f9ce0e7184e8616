#include "src/style/palettes/clr_palettes_dialog.h"

#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "src/style/file_warning.h"
#include "src/toolkit/dialog.h"
#include "zu/platform/zuk_ini_data.h"
#include "zu/platform/zuk_msgs.h"
#include "zu/platform/zuk_xml_data.h"

namespace zu {
namespace style::detail {
namespace {

constexpr std::int32_t file_filter = 13660;

/// Arrays that no tool of a page offers.
constexpr array_entry further_arrays[] = {{L"zu_clr_palettes_tool_hue_circle", 10, 14701},
                                          {L"zu_clr_palettes_tool_tidal", 11, 14702},
                                          {L"zu_clr_palettes_tool_ember", 12, 14703},
                                          {L"zu_clr_palettes_tool_violet_white_orange", 26, 14704}};

bool is_gradient(std::int32_t array) {
  for (const array_entry& each : gradient_entries())
    if (each.array == array) return true;
  return false;
}

/// Has `work(xml, path)` done with a file, and says why it could not be.
template <class function> bool with_file(const std::wstring& path, function&& work) {
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  if (work(xml.get(), path.c_str())) return true;
  std::wstring reason =
      text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml.get(), a); });
  warn_of_file(path, reason);
  return false;
}

}  // namespace

palette_tools::palette_tools(palettes_table& table) : tool_list(L""), table_(table) {
  add_action(L"zu_clr_palettes_tool_add", 13651, [this] { table_.add(); });
  remove_ = &add_action(L"zu_clr_palettes_tool_remove", 13653, [this] { table_.remove_chosen(); });
  begin_set();
  save_ = &add_action(L"zu_clr_palettes_tool_save", 13654, [this] { save(); });
  add_action(L"zu_clr_palettes_tool_load", 13655, [this] { load(); });
}

void palette_tools::follow_choice() {
  const bool any = !table_.chosen().empty();
  remove_->set_enabled(any);
  save_->set_enabled(any);
}

void palette_tools::save() const {
  const std::wstring path = text_of(
      [](Tzu_string_adp* a) { zu_ask_save_file_w(load_text(file_filter).c_str(), nullptr, a); });
  if (path.empty()) return;
  with_file(path, [this](Tzu_xml_save_2d* xml, const wchar_t* to) {
    return zu_xml_data_save_clr_palettes(xml, to, table_.chosen_palettes().get());
  });
}

void palette_tools::load() {
  const std::wstring path =
      text_of([](Tzu_string_adp* a) { zu_ask_open_file_w(load_text(file_filter).c_str(), a); });
  if (path.empty()) return;
  owned<zu_clr_palettes_destroy> read(zu_clr_palettes_create());
  if (with_file(path, [&](Tzu_xml_save_2d* xml, const wchar_t* from) {
        return zu_xml_data_load_clr_palettes(xml, from, read.get());
      }))
    table_.add_copies(read.get());
}

color_tools::color_tools(colors_table& table) : tool_list(L""), table_(table) {
  add_ = &add_action(L"zu_clr_palettes_tool_add_color", 13656, [this] { table_.add(); });
  remove_ =
      &add_action(L"zu_clr_palettes_tool_remove_color", 13657, [this] { table_.remove_chosen(); });
  begin_set();
  auto offer = [this](const array_entry& entry) {
    array_menu_.add(entry.id, arrays_.emplace_back(entry, spread::ramp, [this](std::int32_t array) {
      table_.import(array);
    }));
  };
  for (const array_entry& each : gradient_entries()) offer(each);
  for (const array_entry& each : palette_entries())
    if (!is_gradient(each.array)) offer(each);
  for (const array_entry& each : further_arrays) offer(each);
  import_ = &add_menu(L"zu_clr_palettes_tool_import", 13665, array_menu_);
  invert_ = &add_action(L"zu_clr_palettes_tool_invert", 13666, [this] { table_.invert(); });
}

void color_tools::follow_choice() {
  const bool has_palette = table_.palette() != nullptr;
  add_->set_enabled(has_palette);
  import_->set_enabled(has_palette);
  invert_->set_enabled(has_palette && table_.row_count() > 1);
  remove_->set_enabled(!table_.chosen().empty());
}

}  // namespace style::detail

namespace dialog {

clr_palettes::clr_palettes(const Tzu_clr_palettes* edited)
    : list_(zu_clr_palettes_create()), palettes_(list_.get()) {
  zu_clr_palettes_assign(list_.get(), edited);
  palettes_.on_choice = [this] { follow_choice(); };
  palettes_.on_edit = [this] { changed_ = true; };
  colors_.on_choice = [this] { color_bar_.tools().follow_choice(); };
  colors_.on_edit = [this] {
    changed_ = true;
    color_bar_.tools().follow_choice();
    palettes_.redraw();
  };
  left_.place(palette_bar_).place(palettes_).set_row_stretch(1);
  right_.place(color_bar_).place(colors_).set_row_stretch(1);
  panes_.place(left_).place(right_).set_column_stretch(0).set_column_stretch(1).set_row_stretch(0);
  root_.place(panes_).place(buttons_).set_row_stretch(0);
  if (palettes_.row_count() > 0) palettes_.choose({0});
  follow_choice();
}

void clr_palettes::follow_choice() {
  colors_.set_palette(palettes_.current());
  palette_bar_.tools().follow_choice();
  color_bar_.tools().follow_choice();
}

}  // namespace dialog

bool run_clr_palettes_dialog() {
  dialog::clr_palettes content(zu_get_user_palettes());
  if (!toolkit::run_dialog(content)) return false;
  if (!content.is_changed()) return true;
  zu_clr_palettes_assign(zu_get_user_palettes(), content.list());
  owned<zu_ini_data_destroy> data(zu_ini_data_create(L"user_palettes"));
  const std::wstring folder =
      text_of([&](Tzu_string_adp* a) { zu_ini_data_get_storage_path(data.get(), a); });
  style::detail::with_file(
      folder + L"/user_palettes.clrs", [](Tzu_xml_save_2d* xml, const wchar_t* path) {
        return zu_xml_data_save_clr_palettes(xml, path, zu_get_user_palettes());
      });
  return true;
}

}  // namespace zu
