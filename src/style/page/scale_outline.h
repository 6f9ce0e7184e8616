#pragma once
// The table of a scale's rows.

#include "src/style/page/scale_columns.h"

namespace zu::style::detail {

/// The first columns of each kind of scale.
template <class model> struct key_columns;

/// Ids of columns begin with the kind of their scale.
#define ZU_SCALE_COLUMN(kind, name) L"zu_common_scale_outline_" kind L"_" name L"_column"

template <class style_traits> struct key_columns<scale_model<style_traits, value_scale_traits>> {
  using model = scale_model<style_traits, value_scale_traits>;
  static constexpr std::uint32_t caption_width = 0;
  static constexpr const wchar_t* ids[] = {
      ZU_SCALE_COLUMN(L"value", L"caption"), ZU_SCALE_COLUMN(L"value", L"visible"),
      ZU_SCALE_COLUMN(L"value", L"prim_style"), ZU_SCALE_COLUMN(L"value", L"sel_style")};
  explicit key_columns(model& m) : value(m, ZU_SCALE_COLUMN(L"value", L"value"), 10320, 8) {}
  template <class outline> void add_to(outline& table) { table.add_column(value); }

  scale_outline_value_column<model> value;
};

template <class style_traits> struct key_columns<scale_model<style_traits, range_scale_traits>> {
  using model = scale_model<style_traits, range_scale_traits>;
  static constexpr std::uint32_t caption_width = 0;
  static constexpr const wchar_t* ids[] = {
      ZU_SCALE_COLUMN(L"range", L"caption"), ZU_SCALE_COLUMN(L"range", L"visible"),
      ZU_SCALE_COLUMN(L"range", L"prim_style"), ZU_SCALE_COLUMN(L"range", L"sel_style")};
  explicit key_columns(model& m)
      : minimum(m, ZU_SCALE_COLUMN(L"range", L"min"), 10322, 7),
        maximum(m, ZU_SCALE_COLUMN(L"range", L"max"), 10323, 7) {}
  template <class outline> void add_to(outline& table) {
    table.add_column(minimum).add_column(maximum);
  }

  scale_outline_min_column<model> minimum;
  scale_outline_max_column<model> maximum;
};

template <class style_traits> struct key_columns<scale_model<style_traits, rule_scale_traits>> {
  using model = scale_model<style_traits, rule_scale_traits>;
  static constexpr std::uint32_t caption_width = 9;
  static constexpr const wchar_t* ids[] = {
      ZU_SCALE_COLUMN(L"rule", L"caption"), ZU_SCALE_COLUMN(L"rule", L"visible"),
      ZU_SCALE_COLUMN(L"rule", L"prim_style"), ZU_SCALE_COLUMN(L"rule", L"sel_style")};
  explicit key_columns(model& m) : rule(m, ZU_SCALE_COLUMN(L"rule", L"rule"), 10321, 0) {}
  template <class outline> void add_to(outline& table) { table.add_column(rule); }

  scale_outline_rule_column<model> rule;
};

#undef ZU_SCALE_COLUMN

/// Shows what the model says now, and again whenever that changes.
template <class model> class scale_outline : public toolkit::outline_table {
 public:
  explicit scale_outline(model& m)
      : model_(m),
        keys_(m),
        caption_(m, ids[0], 10324, key_columns<model>::caption_width),
        visible_(m, ids[1], 10325, 5),
        primary_(m, ids[2], 14519, 14519, primary),
        selection_(m, ids[3], 14558, 14520, selection) {
    keys_.add_to(*this);
    add_column(caption_).add_column(visible_).add_column(primary_).add_column(selection_);
    connection_ = m.changed.connect([this] { redraw(); });
  }

  void set_enabled(bool enabled) {
    if (replace(enabled_, enabled)) redraw();
  }

  bool is_disabled() override { return !enabled_; }
  std::uint32_t row_count() override { return static_cast<std::uint32_t>(model_.row_count()); }
  std::int64_t current_row() override {
    const std::int64_t row = model_.active_row();
    return row >= 0 && row < model_.row_count() ? row : -1;
  }
  void set_current_row(std::int64_t row) override { model_.set_active_row(row); }
  std::uint32_t selection_mode() override { return outline_chooses_many; }
  bool is_marked(outline_item item) override { return model_.is_marked(toolkit::row_of(item)); }
  void set_marked(outline_item item, bool marked) override {
    model_.set_marked(toolkit::row_of(item), marked);
  }
  bool can_move_marked() override { return true; }
  void move_marked(outline_item target, bool behind) override {
    model_.move_marked(std::int64_t{toolkit::row_of(target)} + behind);
  }
  std::uint32_t visible_rows() override { return 12; }
  void visit_empty_text(string_visitor visitor) override {
    if (!model_.source.name.empty() && model_.field().empty()) toolkit::visit_text(14557, visitor);
  }

 private:
  static constexpr const auto& ids = key_columns<model>::ids;

  model& model_;
  bool enabled_ = true;
  key_columns<model> keys_;
  scale_outline_caption_column<model> caption_;
  scale_outline_visible_column<model> visible_;
  scale_outline_style_column<model> primary_, selection_;
  events::connection connection_;
};

}  // namespace zu::style::detail
