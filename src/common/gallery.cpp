#include "src/common/gallery.h"

#include <cmath>

#include "src/bundle/texts.h"
#include "zu/platform/zuk_drwc.h"
#include "zu/platform/zuk_stat.h"

namespace zu::gallery {

void histogram_closed::operator()(Tzu_histogramm_data* data) const { zu_histogramm_destroy(data); }

drawn_page::drawn_page(const listener& heard) : bins_(zu_histogramm_create()) {
  constexpr int classes = 64;
  zu_histogramm_set_params(bins_.get(), classes);
  for (int i = 0; i < classes; ++i) {
    double x = (i - 40.0) / 10, y = (i - 15.0) / 6;
    zu_histogramm_set(bins_.get(), static_cast<std::uint64_t>(i),
                      1000 * std::exp(-x * x) + 600 * std::exp(-y * y));
  }
  histogram_.set_bins(bins_.get());
  histogram_.assign(0.2, 0.8);
  histogram_.on_range = [&heard](double minimum, double maximum) {
    heard(load_text(text::histogram) + L": " + std::to_wstring(minimum) + L" – " +
          std::to_wstring(maximum));
  };
  canvas_.set_hint(text::hint);
  canvas_.on_draw = [this](Tzu_drwc* page) { draw(page); };
  canvas_.on_drag = [this](std::uint32_t, point_2d at) {
    strokes_.push_back(at);
    canvas_.redraw();
  };
  canvas_frame_.place(canvas_);
  histogram_frame_.place(histogram_);
  image_frame_.place(image_);
  viewer_frame_.place(viewer_);
  root_.place(canvas_frame_).place(histogram_frame_).place(viewer_frame_).place(image_frame_);
  root_.set_column_stretch(0).set_column_stretch(1).set_row_stretch(0).set_row_stretch(1);
  root_.set_spacing(3);
}

void drawn_page::draw(Tzu_drwc* page) const {
  Tzu_box_d2 box;
  zu_drwc_get_page(page, &box);
  constexpr int steps = 24;
  double width = (box.x1 - box.x0) / steps;
  for (int i = 0; i < steps; ++i) {
    auto level = static_cast<std::uint8_t>(i * 255 / (steps - 1));
    Tzu_box_d2 band{box.x0 + i * width, box.y0, box.x0 + (i + 1) * width, box.y1};
    zu_drwc_fill_box(page, &band, Tzu_color{level, 140, static_cast<std::uint8_t>(255 - level), 0});
  }
  for (point_2d at : strokes_) {
    Tzu_box_d2 dot{at.x - 0.5, at.y - 0.5, at.x + 0.5, at.y + 0.5};
    zu_drwc_fill_box(page, &dot, Tzu_color{0, 0, 0, 0});
  }
  std::wstring caption = load_text(text::canvas);
  zu_drwc_draw_text_w(page, (box.x0 + box.x1) / 2, (box.y0 + box.y1) / 2, 5,
                      zu_anchor_middle_center, Tzu_color{255, 255, 255, 0}, caption.c_str());
}

void drawn_page::change() {
  histogram_.assign(histogram_.minimum() > 0 ? 0 : 0.2, 0.8);
  strokes_.clear();
  canvas_.redraw();
}

void sample_tools::menu::visit_tools(toolkit::tools_visitor& visitor) {
  visitor.tool(L"zu_gallery_first_tool", first).tool(L"zu_gallery_second_tool", second);
}

void sample_tools::visit_tools(toolkit::tools_visitor& visitor) {
  category_.add(menu_);
  choice_.add(text::first).add(text::second).add(text::third).assign(0);
  count_.set_range(1, 20);
  count_.assign(5);
  visitor.toolset().tool(L"zu_gallery_action_tool", action_);
  visitor.tool(L"zu_gallery_toggle_tool", toggle_).tool(L"zu_gallery_many_tool", many_);
  visitor.toolset().tool(L"zu_gallery_count_tool", count_);
  visitor.tool(L"zu_gallery_choice_tool", choice_).tool(L"zu_gallery_menu_tool", category_);
}

void sample_tools::listen(const listener& heard) {
  auto say = [&heard](std::int32_t caption) {
    return [&heard, caption] { heard(load_text(caption)); };
  };
  action_.on_execute = say(text::action);
  menu_.first.on_execute = say(text::first);
  menu_.second.on_execute = say(text::second);
  toggle_.on_execute = [&heard](bool on) {
    heard(load_text(text::toggle_tool) + (on ? L": 1" : L": 0"));
  };
  count_.on_execute = [&heard](std::int32_t count) {
    heard(load_text(text::count_tool) + L": " + std::to_wstring(count));
  };
  choice_.on_execute = [&heard](std::int32_t choice) {
    heard(load_text(text::choice_tool) + L": " + std::to_wstring(choice + 1));
  };
  many_.add(text::first, say(text::first)).add(text::second, say(text::second));
}

void sample_tools::change() {
  toggle_.assign(!toggle_.checked());
  count_.assign(count_.value() % 20 + 1);
  choice_.assign((choice_.current() + 1) % 3);
}

void sample_tools::set_enabled(bool enabled) {
  action_.set_enabled(enabled);
  toggle_.set_enabled(enabled);
  count_.set_enabled(enabled);
  choice_.set_enabled(enabled);
  many_.set_enabled(enabled);
}

tools_page::tools_page(const listener& heard) {
  bar_.tools().listen(heard);
  menu_.tools().listen(heard);
  for (std::int32_t each : {text::first, text::second, text::third}) list_.add(load_text(each));
  list_.set_context_menu(&menu_);
  root_.place(bar_).place(list_).set_row_stretch(1).set_spacing(2);
}

dialog::dialog() {
  heard_ = [this](const std::wstring& what) { log_.assign(what); };
  tabs_.place(L"zu_gallery_texts_tab", text::texts, texts_)
      .place(L"zu_gallery_numbers_tab", text::numbers, numbers_)
      .place(L"zu_gallery_choices_tab", text::choices, choices_)
      .place(L"zu_gallery_lists_tab", text::lists, lists_)
      .place(L"zu_gallery_table_tab", text::table, table_)
      .place(L"zu_gallery_drawn_tab", text::drawn, drawn_)
      .place(L"zu_gallery_tools_tab", text::tools, tools_);
  enabled_.on_state = [this](bool enabled) {
    texts_.set_enabled(enabled);
    numbers_.set_enabled(enabled);
    choices_.set_enabled(enabled);
    lists_.set_enabled(enabled);
    drawn_.set_enabled(enabled);
    tools_.set_enabled(enabled);
  };
  change_.on_click = [this] { change(); };
  log_.set_hint(text::log);
  below_.place(enabled_).place(change_).place(log_).set_column_stretch(2).set_spacing(3);
  root_.place(tabs_).place(below_).place(buttons_).set_row_stretch(0).set_spacing(3);
}

void dialog::change() {
  texts_.change();
  numbers_.change();
  choices_.change();
  lists_.change();
  drawn_.change();
  tools_.change();
}

void tool_service::tools::visit_tools(toolkit::tools_visitor& visitor) {
  show.on_execute = [] {
    dialog shown;
    toolkit::run_dialog(shown);
  };
  visitor.tool(L"zu_gallery_show_tool", show);
}

tool_service::tool_service(handle owner) : referent(owner) {}

}  // namespace zu::gallery
