#include "src/style/dialogs/style_dialog.h"

#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "src/style/file_warning.h"
#include "zu/platform/zuk_drwc.h"
#include "zu/platform/zuk_msgs.h"
#include "zu/platform/zuk_os.h"

namespace zu::style::detail {
namespace {

using owned_xml = owned<zu_xml_save_style_destroy>;

}  // namespace

template <class traits>
style_exchange_tools<traits>::style_exchange_tools(style* edited, std::function<void()> loaded)
    : edited_(edited), loaded_(std::move(loaded)) {
  copy_.on_execute = [this] { copy(); };
  paste_.on_execute = [this] { paste(); };
  save_.on_execute = [this] { save(); };
  load_.on_execute = [this] { load(); };
}

template <class traits>
void style_exchange_tools<traits>::visit_tools(toolkit::tools_visitor& into) {
  into.toolset()
      .tool(L"zu_common_style_dialog_copy_tool", copy_)
      .tool(L"zu_common_style_dialog_paste_tool", paste_);
  into.toolset()
      .tool(L"zu_common_style_dialog_save_tool", save_)
      .tool(L"zu_common_style_dialog_load_tool", load_);
}

template <class traits> void style_exchange_tools<traits>::copy() {
  owned_xml xml(zu_xml_save_style_create());
  const std::wstring text =
      text_of([&](Tzu_string_adp* a) { traits::save_text(xml.get(), edited_, a); });
  if (!text.empty()) zu_os_set_clipboard_w(traits::clipboard_format, text.c_str(), true);
}

template <class traits> void style_exchange_tools<traits>::paste() {
  const std::wstring text =
      text_of([](Tzu_string_adp* a) { zu_os_get_clipboard_w(traits::clipboard_format, a); });
  owned_xml xml(zu_xml_save_style_create());
  if (!text.empty() && traits::load_text(xml.get(), text.c_str(), edited_)) loaded_();
}

template <class traits> void style_exchange_tools<traits>::save() {
  const std::wstring path = text_of([](Tzu_string_adp* a) {
    zu_ask_save_file_w(load_text(traits::file_filter).c_str(), nullptr, a);
  });
  owned_xml xml(zu_xml_save_style_create());
  if (path.empty() || traits::save_file(xml.get(), path.c_str(), edited_)) return;
  const std::wstring reason =
      text_of([&](Tzu_string_adp* a) { zu_xml_save_style_get_reason_w(xml.get(), a); });
  warn_of_file(path, reason);
}

template <class traits> void style_exchange_tools<traits>::load() {
  const std::wstring path = text_of(
      [](Tzu_string_adp* a) { zu_ask_open_file_w(load_text(traits::file_filter).c_str(), a); });
  owned_xml xml(zu_xml_save_style_create());
  if (!path.empty() && traits::load_file(xml.get(), path.c_str(), edited_)) loaded_();
}

template <class traits, class T> style_dialog<traits, T>::style_dialog() {
  parts_.on_change = [this] { preview_.redraw(); };
  preview_.on_draw = [this](Tzu_drwc* page) {
    Tzu_box_d2 whole{};
    zu_drwc_get_page(page, &whole);
    traits::draw(page, whole.x1, whole.y1, traits::given(own_.get()));
  };
  libraries_.on_pick = favorites_.on_pick = [this](argument from) { picked(from); };
  favorites_.on_style = [this] { return traits::given(own_.get()); };
  buttons_.on_accept = [this] {
    if (edited_ != nullptr) traits::assign(edited_, own_.get());
    return true;
  };
  preview_frame_.place(preview_);
  if (libraries_.has_libraries()) ready_.place(L"zu_style_dialog_libraries", 14905, libraries_);
  ready_.place(L"zu_style_dialog_favorites", 14915, favorites_);
  side_.place(preview_frame_).place(ready_).set_row_stretch(1);
  columns_.place(parts_).place(side_).set_column_stretch(0).set_column_size(0,
                                                                            traits::parts::width);
  root_.place(tools_).place(columns_).place(buttons_).set_row_stretch(1);
  reload();
}

template <class traits, class T> void style_dialog<traits, T>::set(style* edited) {
  edited_ = edited;
  traits::assign(own_.get(), edited);
  reload();
}

template <class traits, class T> void style_dialog<traits, T>::reload() {
  parts_.set(own_.get());
  preview_.redraw();
}

template <class traits, class T> void style_dialog<traits, T>::picked(argument from) {
  traits::assign(own_.get(), from);
  reload();
}

template class style_exchange_tools<point_dialog_traits>;
template class style_exchange_tools<line_dialog_traits>;
template class style_exchange_tools<polygon_dialog_traits>;
template class style_dialog<point_dialog_traits, favorites_point>;
template class style_dialog<line_dialog_traits, favorites_line>;
template class style_dialog<polygon_dialog_traits, favorites_polygon>;

}  // namespace zu::style::detail
