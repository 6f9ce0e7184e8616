#include "src/style/class_dialogs/value_scale_dialog.h"

#include "src/bundle/texts.h"
#include "src/data/grid_datasource.h"
#include "src/style/classes/scale_dialogs.h"
#include "src/toolkit/dialog.h"

namespace zu {
namespace dialog {
namespace {

constexpr int rebuilds = 0, modifies = 1;
constexpr std::int32_t cut_text = 10460, count_text = 10461;

}  // namespace

value_scale::value_scale(Tzu_val_scale* scale, const data::open_reference& source,
                         const std::wstring& field)
    : scale_(scale), source_(source), field_(field) {
  offer_fields();
  fields_.on_change = [this](const std::wstring& chosen) {
    field_ = chosen;
    load();
  };
  way_.add(10453).add(10454);
  way_.assign(rebuilds);
  way_.on_change = [this](int) { enable_params(); };
  add_.assign(true);
  remove_.assign(false);
  change_captions_.assign(false);
  buttons_.on_accept = [this] {
    take();
    return true;
  };
  field_row_.place(fields_).set_column_stretch(1);
  values_group_.place(field_row_).place(values_).place(count_);
  values_group_.cells().set_row_stretch(1);
  params_.place(add_, 2).place(remove_, 2).place(change_captions_, 2).place(captions_field_);
  params_.cells().set_column_stretch(1);
  root_.place(values_group_).place(way_).place(params_).place(buttons_);
  root_.set_row_stretch(0);
  enable_params();
  load();
}

void value_scale::offer_fields() {
  data::grid_datasource grid;
  if (!grid.open(source_, data::open_read_only)) return;
  std::int64_t count = grid.number_of_fields();
  for (std::int64_t i = 0; i < count; ++i) {
    std::wstring name = grid.field_name(i);
    fields_.add(name, 0, name);
    captions_field_.add(name, 0, name);
  }
  // A name in another case finds its field too.
  std::int64_t found = grid.find_field(field_);
  if (found >= 0) field_ = grid.field_name(found);
  fields_.assign(static_cast<std::int32_t>(found));
}

void value_scale::load() {
  if (source_.opener != nullptr) values_.load(source_, field_);
  std::wstring line = load_text(values_.has_all() ? count_text : cut_text);
  if (std::size_t at = line.find(L"%d"); at != std::wstring::npos)
    line.replace(at, 2, std::to_wstring(values_.values().size()));
  count_.set_format(line);
}

void value_scale::enable_params() {
  bool enabled = way_.current() == modifies;
  add_.set_enabled(enabled);
  remove_.set_enabled(enabled);
  change_captions_.set_enabled(enabled);
  captions_field_.set_enabled(enabled);
}

void value_scale::take() {
  const style::unique_texts& values = values_.values();
  if (way_.current() == rebuilds) return style::rebuild(scale_, values);
  if (add_.is_checked()) style::add_new_values(scale_, values);
  if (remove_.is_checked()) style::remove_missing_values(scale_, values);
  if (change_captions_.is_checked())
    style::change_captions(scale_, source_, field_, captions_field_.value());
}

}  // namespace dialog

namespace style {

bool run_value_scale_dialog(Tzu_val_scale* scale, const data::open_reference& source,
                            const std::wstring& field) {
  if (scale == nullptr) return false;
  if (source.opener != nullptr) {
    data::grid_datasource grid;
    if (!grid.open(source, data::open_read_only) || grid.find_field(field) < 0) return false;
  }
  dialog::value_scale dialog(scale, source, field);
  return toolkit::run_dialog(dialog);
}

}  // namespace style
}  // namespace zu
