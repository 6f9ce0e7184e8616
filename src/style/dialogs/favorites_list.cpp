#include "src/style/dialogs/favorites_list.h"

#include <random>

#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "src/style/file_warning.h"
#include "zu/platform/zuk_ini_data.h"
#include "zu/platform/zuk_msgs.h"
#include "zu/platform/zuk_os.h"

namespace zu::style {
namespace {

constexpr std::int32_t tools_category = 10474, file_filter = 10475;
constexpr std::int32_t form_version = 2;  // of the person's own files, in their names

using owned_xml = owned<zu_xml_save_2d_destroy>;

/// Merging keeps one style of a number: a new one has a number that hardly any list has.
std::int32_t new_number(const Tzu_style_list* list) {
  std::random_device chance;
  std::uniform_int_distribution<std::int32_t> numbers(1, INT32_MAX);
  std::int32_t number = numbers(chance);
  while (zu_style_list_find_idx(list, number) >= 0) number = numbers(chance);
  return number;
}

}  // namespace

std::wstring favorites_path(const wchar_t* file, bool seed) {
  owned<zu_ini_data_destroy> data(zu_ini_data_create(L"stylefav"));
  const std::wstring folder =
      text_of([&](Tzu_string_adp* a) { zu_ini_data_get_storage_path(data.get(), a); });
  const std::wstring name = file, stem = name.substr(0, name.rfind(L"._ls"));
  std::wstring own;
  if (!folder.empty()) own = folder + L"/" + stem + L"." + std::to_wstring(form_version) + L"._ls";
  if (!seed || zu_os_file_exists(own.c_str())) return own;
  return zu_options_get_style_libs_path() + (L"/favorites/" + name);
}

template <class T> favorites_tools<T>::favorites_tools(favorites_list<T>& list) {
  append_.on_execute = [&list] { list.append(); };
  remove_.on_execute = [&list] { list.remove(); };
  save_.on_execute = [&list] { list.save(); };
  load_.on_execute = [&list] { list.load(); };
  for (auto* tool : {&append_, &remove_, &save_, &load_}) tool->set_categories({tools_category});
}

template <class T> void favorites_tools<T>::visit_tools(toolkit::tools_visitor& into) {
  into.toolset()
      .tool(L"zu_common_style_favorites_append_tool", append_)
      .tool(L"zu_common_style_favorites_remove_tool", remove_);
  into.toolset()
      .tool(L"zu_common_style_favorites_save_tool", save_)
      .tool(L"zu_common_style_favorites_load_tool", load_);
}

template <class T> favorites_list<T>::favorites_list() {
  zu_xml_data_load_style_lib_file(favorites_path(T::file, true).c_str(), library_.get());
  styles_ = traits::library_list(library_.get());
  outline_.on_pick = [this](argument picked) {
    if (on_pick) on_pick(picked);
  };
  show();
  root_.place(tools_).place(outline_).set_row_stretch(1);
}

template <class T> favorites_list<T>::~favorites_list() {
  const std::wstring path = favorites_path(T::file, false);
  if (!path.empty()) write(path, changed_);
}

template <class T> void favorites_list<T>::write(const std::wstring& path, bool aloud) {
  owned_xml xml(zu_xml_save_2d_create());
  if (zu_xml_data_save_style_lib(xml.get(), path.c_str(), library_.get()) || !aloud) return;
  warn_of_file(path,
               text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml.get(), a); }));
}

template <class T> void favorites_list<T>::append() {
  if (!on_style) return;
  Tzu_idx_style* entry = zu_style_list_insert(styles_, 0, new_number(styles_));
  if (entry == nullptr) return;
  traits::assign(traits::library_style(entry), on_style());
  zu_idx_style_set_version(entry, 1);
  changed_ = true;
  show();
}

template <class T> void favorites_list<T>::remove() {
  if (outline_.current_row() < 0) return;
  zu_style_list_remove(styles_, static_cast<std::uint64_t>(outline_.current_row()));
  changed_ = true;
  show();
}

template <class T> void favorites_list<T>::save() {
  const std::wstring path = text_of(
      [](Tzu_string_adp* a) { zu_ask_save_file_w(load_text(file_filter).c_str(), nullptr, a); });
  if (!path.empty()) write(path, true);
}

template <class T> void favorites_list<T>::load() {
  const std::wstring path =
      text_of([](Tzu_string_adp* a) { zu_ask_open_file_w(load_text(file_filter).c_str(), a); });
  owned_xml xml(zu_xml_save_2d_create());
  owned<zu_style_lib_destroy> loaded(zu_style_lib_create());
  if (path.empty() || !zu_xml_data_load_style_lib(xml.get(), path.c_str(), loaded.get())) return;
  zu_style_lib_merge(library_.get(), loaded.get());
  changed_ = true;
  show();
}

/// None is the current one then.
template <class T> void favorites_list<T>::show() { outline_.set_library(library_.get()); }

template class favorites_list<favorites_point>;
template class favorites_list<favorites_line>;
template class favorites_list<favorites_polygon>;

}  // namespace zu::style
