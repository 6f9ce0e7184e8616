#pragma once
// Columns of the rows of a scale. Each asks the model for every cell, and tells `changed` when a
// person has committed something else.

#include "src/bundle/owned.h"
#include "src/style/page/pixels.h"
#include "src/style/scale_model.h"
#include "src/toolkit/outline.h"

namespace zu::style::detail {

inline void give(const std::wstring& text, string_visitor visitor) {
  call<&string_visitor_impl::visit>(visitor, text.c_str());
}

/// A column of kind `x` of a model; `id` must outlive it.
template <class model, class x> class scale_column : public x {
 public:
  /// `width` is in units of layouts; 0 takes what the other columns leave.
  scale_column(model& m, const wchar_t* id, std::int32_t caption, std::uint32_t width)
      : model_(m), id_(id), caption_(caption), width_(width) {}
  void id(string_visitor visitor) override { call<&string_visitor_impl::visit>(visitor, id_); }
  void caption(string_visitor visitor) override { toolkit::visit_text(caption_, visitor); }
  std::uint32_t width() override { return width_; }

 protected:
  static std::int64_t row(outline_item item) { return toolkit::row_of(item); }
  model& model_;

 private:
  const wchar_t* id_;
  std::int32_t caption_;
  std::uint32_t width_;
};

template <class model>
class scale_outline_caption_column : public scale_column<model, string_outline_column_impl> {
 public:
  using scale_column<model, string_outline_column_impl>::scale_column;
  void text(outline_item item, string_visitor visitor) override {
    give(this->model_.get_caption(this->row(item)), visitor);
  }
  void item_hint(outline_item item, string_visitor visitor) override {
    give(this->model_.get_row_text(this->row(item)), visitor);
  }
  bool is_editable(outline_item) override { return true; }
  bool set_text(outline_item item, const wchar_t* text) override {
    this->model_.set_caption(this->row(item), text != nullptr ? text : L"");
    this->model_.changed();
    return true;
  }
};

template <class model>
class scale_outline_value_column : public scale_column<model, string_outline_column_impl> {
 public:
  using scale_column<model, string_outline_column_impl>::scale_column;
  void text(outline_item item, string_visitor visitor) override {
    give(this->model_.get_value(this->row(item)), visitor);
  }
  bool is_editable(outline_item) override { return true; }
  bool set_text(outline_item item, const wchar_t* text) override {
    this->model_.set_value(this->row(item), text != nullptr ? text : L"");
    this->model_.changed();
    return true;
  }
};

/// Rules are read here; they are written by their own editor.
template <class model>
class scale_outline_rule_column : public scale_column<model, string_outline_column_impl> {
 public:
  using scale_column<model, string_outline_column_impl>::scale_column;
  void text(outline_item item, string_visitor visitor) override {
    give(this->model_.get_value(this->row(item)), visitor);
  }
};

/// A limit of a class: a text that is no number is refused.
template <class model>
class scale_outline_limit_column : public scale_column<model, string_outline_column_impl> {
 public:
  using scale_column<model, string_outline_column_impl>::scale_column;
  std::uint32_t alignment() override { return 3; }
  bool is_editable(outline_item) override { return true; }
  bool set_text(outline_item item, const wchar_t* text) override {
    if (text == nullptr || !parse_number(text)) return false;
    set(this->row(item), text);
    this->model_.changed();
    return true;
  }

 private:
  virtual void set(std::int64_t row, const std::wstring& number) = 0;
};

template <class model> class scale_outline_min_column : public scale_outline_limit_column<model> {
 public:
  using scale_outline_limit_column<model>::scale_outline_limit_column;
  void text(outline_item item, string_visitor visitor) override {
    give(this->model_.get_min(this->row(item)), visitor);
  }

 private:
  void set(std::int64_t row, const std::wstring& number) override {
    this->model_.set_min(row, number);
  }
};

template <class model> class scale_outline_max_column : public scale_outline_limit_column<model> {
 public:
  using scale_outline_limit_column<model>::scale_outline_limit_column;
  void text(outline_item item, string_visitor visitor) override {
    give(this->model_.get_max(this->row(item)), visitor);
  }
  /// Infinity stays where it is.
  bool is_editable(outline_item item) override {
    return this->row(item) + 1 < this->model_.row_count();
  }

 private:
  void set(std::int64_t row, const std::wstring& number) override {
    this->model_.set_max(row, number);
  }
};

/// A mark for one row holds for all marked ones if they are several, whichever row it is in.
template <class model>
class scale_outline_visible_column : public scale_column<model, boolean_outline_column_impl> {
 public:
  using scale_column<model, boolean_outline_column_impl>::scale_column;
  bool is_checked(outline_item item) override { return this->model_.get_visible(this->row(item)); }
  void set_checked(outline_item item, bool checked) override {
    if (this->model_.several_marked()) return this->model_.set_visible_marked(checked);
    this->model_.set_visible(this->row(item), checked);
    this->model_.changed();
  }
};

/// Samples of one of a row's two styles.
template <class model>
class scale_outline_style_column : public scale_column<model, bitmap_outline_column_impl>,
                                   public sized_pictures_impl {
 public:
  scale_outline_style_column(model& m, const wchar_t* id, std::int32_t caption, std::int32_t hint,
                             std::int32_t kind)
      : scale_column<model, bitmap_outline_column_impl>(m, id, caption, 5),
        hint_(hint),
        kind_(kind) {}

  int query_interface(const char* name, const void** table, void** instance) override {
    const int difference = bitmap_outline_column_impl::query_interface(name, table, instance);
    return difference == 0 ? 0 : sized_pictures_impl::query_interface(name, table, instance);
  }
  handle polymorphic_handle() override { return bitmap_outline_column_impl::polymorphic_handle(); }

  void hint(string_visitor visitor) override { toolkit::visit_text(hint_, visitor); }
  void item_hint(outline_item, string_visitor visitor) override {
    toolkit::visit_text(14556, visitor);
  }
  void picture(outline_item item, bitmap_visitor visitor) override {
    picture_of(item, 40, 16, 96 / 25.4, visitor);
  }
  void picture_of(outline_item item, std::uint32_t width, std::uint32_t height, double dots_per_mm,
                  bitmap_visitor visitor) override {
    owned<zu_dib_destroy> dib(zu_dib_create());
    if (dib && model::style_traits::draw(this->model_.get_style_prm(this->row(item)), kind_, width,
                                         height, dots_per_mm, dib.get()))
      visit_pixels(dib.get(), visitor);
  }
  void click(outline_item item) override {
    const std::int64_t row = this->row(item);
    this->model_.several_marked() ? this->model_.edit_style_for_marked(row, kind_)
                                  : this->model_.edit_style(row, kind_);
  }

 private:
  std::int32_t hint_, kind_;
};

}  // namespace zu::style::detail
