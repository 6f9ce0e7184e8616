#include "src/common/gallery_pages.h"

#include <algorithm>

#include "src/bundle/texts.h"

namespace zu::gallery {
namespace {

std::wstring said(std::int32_t caption, const std::wstring& value) {
  return load_text(caption) + L": " + value;
}

/// Tells what became of an input.
template <class input> void report(input& element, std::int32_t caption, const listener& heard) {
  element.on_commit = [&heard, caption](const std::wstring& now) { heard(said(caption, now)); };
}
template <class input>
void report_number(input& element, std::int32_t caption, const listener& heard) {
  element.on_change = [&heard, caption](auto now) { heard(said(caption, std::to_wstring(now))); };
}

}  // namespace

texts_page::texts_page(const listener& heard) {
  disabled_label_.set_enabled(false);
  plain_.assign(L"Zugrid");
  plain_.set_hint(text::hint);
  digits_.assign(L"2026");
  digits_.validate = [](const std::wstring& now) {
    return std::all_of(now.begin(), now.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
  };
  disabled_.assign(L"Zugrid");
  disabled_.set_enabled(false);
  read_only_.assign(L"Zugrid");
  read_only_.set_read_only(true);
  hidden_.set_visible(false);
  show_hidden_.assign(false);
  show_hidden_.on_state = [this](bool shown) { hidden_.set_visible(shown); };
  assisted_.suggest(text::first).suggest(text::second).suggest(text::third);
  lines_.assign(L"z = 0.5 * x\ny = 2");
  lines_.set_lines(4);
  monospaced_.assign(L"if (x > 0)\n  x + 1");
  monospaced_.set_lines(4);
  monospaced_.set_monospaced(true);
  output_.assign(L"415000, 6183000");
  lines_output_.assign(L"EPSG:32637\nWGS 84 / UTM zone 37N");
  lines_output_.set_lines(4);
  report(plain_, text::plain, heard);
  report(digits_, text::refuses_letters, heard);
  report(hidden_, text::plain, heard);
  report(assisted_, text::suggestions, heard);
  report(lines_, text::several_lines, heard);
  report(monospaced_, text::monospaced, heard);
  root_.place(long_label_, 3).place(disabled_label_);
  root_.place(plain_).place(digits_).place(disabled_).place(read_only_);
  root_.place(assisted_).place(output_);
  root_.place(show_hidden_, 2).place(hidden_);
  root_.place(lines_).place(monospaced_);
  root_.place(lines_output_, 3);
  root_.set_column_stretch(1).set_column_stretch(3).set_row_stretch(6).set_spacing(2);
}

void texts_page::change() {
  plain_.assign(plain_.value() + L"!");
  assisted_.assign(load_text(text::second));
  lines_.assign(lines_.value() + L"\n+ 1");
  output_.assign(output_.value() + L"!");
}

void texts_page::set_enabled(bool enabled) {
  plain_.set_enabled(enabled);
  digits_.set_enabled(enabled);
  assisted_.set_enabled(enabled);
  lines_.set_enabled(enabled);
  monospaced_.set_enabled(enabled);
  show_hidden_.set_enabled(enabled);
}

numbers_page::numbers_page(const listener& heard) {
  whole_.set_range(-100, 100);
  whole_.set_hint(text::hint);
  even_.set_range(0, 100, 2);
  even_.validate = [](std::int32_t now) { return now % 2 == 0; };
  disabled_.assign(7);
  disabled_.set_enabled(false);
  read_only_.assign(7);
  read_only_.set_read_only(true);
  real_.assign(0.1);
  real_.set_range(-1e6, 1e6, 0.1);
  two_decimals_.assign(2.5);
  two_decimals_.set_decimals(2);
  two_decimals_.set_range(0, 10, 0.25);
  percent_.set_range(0, 100);
  percent_.assign(75);
  slider_.set_range(0, 100, 1);
  slider_.assign(40);
  real_slider_.set_range(0, 1, 0.05);
  real_slider_.assign(0.5);
  bare_slider_.assign(30);
  whole_output_.assign(400000000);
  real_output_.assign(0.30000000000000004);
  report_number(whole_, text::whole, heard);
  report_number(even_, text::refuses_odd, heard);
  report_number(real_, text::real, heard);
  report_number(two_decimals_, text::two_decimals, heard);
  report_number(percent_, text::opacity, heard);
  report_number(slider_, text::opacity, heard);
  report_number(real_slider_, text::position, heard);
  bare_slider_.on_move = [this](std::int32_t at) { whole_output_.assign(at); };
  root_.place(whole_).skip().place(even_).skip().place(disabled_).skip().place(read_only_).skip();
  root_.place(real_).skip().place(two_decimals_).skip().place(percent_);
  root_.place(slider_).skip().place(real_slider_).skip().place(bare_slider_).skip();
  root_.place(whole_output_).skip().place(real_output_);
  root_.set_column_stretch(1).set_row_stretch(11).set_spacing(2);
}

void numbers_page::change() {
  whole_.assign(std::min(whole_.value() + 1, whole_.maximum()));
  real_.assign(real_.value() + 0.1);
  slider_.assign((slider_.value() + 10) % 100);
  percent_.set_range(0, percent_.maximum() == 100 ? 80 : 100);
}

void numbers_page::set_enabled(bool enabled) {
  whole_.set_enabled(enabled);
  even_.set_enabled(enabled);
  real_.set_enabled(enabled);
  two_decimals_.set_enabled(enabled);
  percent_.set_enabled(enabled);
  slider_.set_enabled(enabled);
  real_slider_.set_enabled(enabled);
  bare_slider_.set_enabled(enabled);
}

choices_page::choices_page(const listener& heard) {
  undecided_.assign_state(toolkit::checkbox::undecided);
  disabled_mark_.set_enabled(false);
  mark_.on_state = [&heard](bool on) { heard(said(text::mark, on ? L"1" : L"0")); };
  group_.add(text::first).add(text::second).add(text::third).assign(0);
  group_.on_change = [&heard](int now) { heard(said(text::group, std::to_wstring(now + 1))); };
  inside_.assign(L"Zugrid");
  checkable_.set_checkable(true);
  checkable_.place(inside_);
  for (auto* each : {&dropdown_, &disabled_dropdown_})
    each->add(text::first, 0, 0).add(text::second, 0, 1).add(text::third, 0, 2);
  pictures_.add(text::first, -656, 0).add(text::second, -657, 1).add(text::third, -658, 2);
  disabled_dropdown_.set_enabled(false);
  for (auto* each : {&page_one_, &page_two_, &page_three_}) each->set_format(L"%ls …");
  pages_.place(page_one_).place(page_two_).place(page_three_);
  dropdown_.on_change = [this, &heard](int now) {
    pages_.assign(static_cast<std::uint32_t>(now));
    heard(said(text::dropdown, std::to_wstring(now + 1)));
  };
  toggle_.set_toggle(true);
  disabled_button_.set_enabled(false);
  button_.on_click = [&heard] { heard(load_text(text::button)); };
  picture_.on_click = [&heard] { heard(load_text(text::picture_button)); };
  toggle_.on_click = [this, &heard] {
    heard(said(text::toggle_button, toggle_.pressed() ? L"1" : L"0"));
  };
  link_.on_click = [&heard] { heard(load_text(text::link)); };
  row_of_buttons_.add(text::first, 1).add(text::second, 4);
  row_of_buttons_.on_click = [&heard](std::uint32_t role) {
    heard(said(text::button, std::to_wstring(role)));
  };
  marks_.place(mark_).place(undecided_).place(disabled_mark_).set_spacing(4);
  dropdowns_.place(dropdown_).skip().place(pages_).place(pictures_).place(disabled_dropdown_);
  dropdowns_.set_column_stretch(1).set_spacing(2);
  buttons_.place(button_).place(picture_).place(toggle_).place(disabled_button_).place(link_);
  buttons_.set_spacing(2).set_column_stretch(4);
  root_.place(marks_).place(group_).place(checkable_).place(dropdowns_).place(buttons_);
  root_.place(row_of_buttons_).set_spacing(3);
}

void choices_page::change() {
  mark_.assign(!mark_.is_checked());
  group_.assign((group_.current() + 1) % 3);
  dropdown_.assign((dropdown_.current() + 1) % 3);
  pages_.assign(static_cast<std::uint32_t>(dropdown_.current()));
  toggle_.assign(!toggle_.pressed());
  checkable_.assign(!checkable_.checked());
}

void choices_page::set_enabled(bool enabled) {
  mark_.set_enabled(enabled);
  undecided_.set_enabled(enabled);
  dropdown_.set_enabled(enabled);
  pictures_.set_enabled(enabled);
  button_.set_enabled(enabled);
  picture_.set_enabled(enabled);
  toggle_.set_enabled(enabled);
  link_.set_enabled(enabled);
  for (int i = 0; i < group_.count(); ++i) group_.at(i).set_enabled(enabled);
}

}  // namespace zu::gallery
