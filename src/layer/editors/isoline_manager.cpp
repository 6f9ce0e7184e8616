#include "src/layer/editors/isoline_manager.h"

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"

namespace zu::style {
namespace {

using line = owned<zu_pln_style_destroy>;

line line_of(const Tzu_isoline_style* style,
             void (*get)(const Tzu_isoline_style*, Tzu_pln_style*)) {
  line made(zu_pln_style_create());
  get(style, made.get());
  return made;
}

}  // namespace

isoline_manager::isoline_manager() {
  constexpr double most = std::numeric_limits<double>::max();
  use_.on_state = [this](bool on) {
    zu_isoline_style_set_use(style_, on);
    enable();
  };
  field_.on_change = [this](const std::wstring& name) {
    zu_isoline_style_set_propname(style_, name.c_str());
  };
  thin_step_.set_range(0, most, 100);
  thin_step_.assign(100);
  thin_step_.on_change = [this](double step) { zu_isoline_style_set_thin_step(style_, step); };
  thin_style_.on_change = [this](const Tzu_pln_style* chosen) {
    zu_isoline_style_set_thin_style(style_, chosen);
  };
  bold_step_.set_range(0, most, 100);
  bold_step_.assign(500);
  bold_step_.on_change = [this](double step) { zu_isoline_style_set_bold_step(style_, step); };
  bold_style_.on_change = [this](const Tzu_pln_style* chosen) {
    zu_isoline_style_set_bold_style(style_, chosen);
  };
  root_.place(use_, 2).place(field_).place(thin_step_).place(thin_style_, 2);
  root_.place(bold_step_).place(bold_style_, 2);
  root_.set_column_stretch(1).set_row_stretch(6);
  use_.assign(false);
  enable();
}

void isoline_manager::set(Izu_layer* layer, Tzu_isoline_style* style) {
  style_ = style;
  // Without a layer the panel is not seen: what it shows stands, and with it a person's place in
  // it.
  if (style == nullptr) return;
  use_.assign(zu_isoline_style_get_use(style));
  reload(layer);
  enable();
}

void isoline_manager::reload(Izu_layer* layer) {
  field_.assign_field(element::source_of(layer), text_of([&](Tzu_string_adp* a) {
                        zu_isoline_style_get_propname(style_, a);
                      }));
  thin_step_.assign(zu_isoline_style_get_thin_step(style_));
  bold_step_.assign(zu_isoline_style_get_bold_step(style_));
  thin_style_.assign(line_of(style_, &zu_isoline_style_get_thin_style).get());
  bold_style_.assign(line_of(style_, &zu_isoline_style_get_bold_style).get());
}

void isoline_manager::enable() {
  bool on = use_.is_checked();
  field_.set_enabled(on);
  thin_step_.set_enabled(on);
  thin_style_.set_enabled(on);
  bold_step_.set_enabled(on);
  bold_style_.set_enabled(on);
}

}  // namespace zu::style
