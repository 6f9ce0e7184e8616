#pragma once
// The page on which a person writes the classes themselves.

#include "src/style/class_dialogs/method_pages.h"
#include "src/toolkit/outline_columns.h"
#include "src/toolkit/outline_view.h"

namespace zu::style::detail {

/// A table of classes, each with a minimum and a maximum.
class manual_page : public method_page {
 public:
  explicit manual_page(const known_field& field);
  void load(const Tzu_rng_scale* scale) override;
  void build(Tzu_rng_scale* scale) override;
  handle element() override { return toolkit::handle_of_element(root_); }

  /// The classes alone, as they are in a scale.
  void load_rows(const Tzu_rng_scale* scale);
  /// A class behind the current one, or the last, up to the next one or the field's maximum.
  void add_row();
  void remove_row();  ///< the current one

 private:
  class limit_column : public floating_outline_column_impl {
   public:
    limit_column(manual_page& page, double class_limits::*limit, const wchar_t* id,
                 std::int32_t caption)
        : page_(page), limit_(limit), id_(id), caption_(caption) {}
    void id(string_visitor visitor) override { call<&string_visitor_impl::visit>(visitor, id_); }
    void caption(string_visitor visitor) override { toolkit::visit_text(caption_, visitor); }
    std::uint32_t width() override { return 20; }
    double value(outline_item item) override;
    bool is_editable(outline_item) override { return true; }
    bool set_value(outline_item item, double value) override;

   private:
    manual_page& page_;
    double class_limits::*limit_;
    const wchar_t* id_;
    std::int32_t caption_;
  };
  void choose(std::int64_t row);
  void changed_rows(std::int64_t current);

  std::vector<class_limits> rows_;
  std::int64_t current_ = -1;
  limit_column minimum_{*this, &class_limits::minimum,
                        L"zu_common_plugin_range_scale_manual_minimum_column", 10428};
  limit_column maximum_{*this, &class_limits::maximum,
                        L"zu_common_plugin_range_scale_manual_maximum_column", 10429};
  toolkit::outline_table_view table_;
  toolkit::button add_{-703}, remove_{-704};
  rounding_input digits_;
  toolkit::grid_layout<3, 1> buttons_;
  toolkit::grid_layout<2, 1> rounding_;
  toolkit::grid_layout<1, 3> root_;
};

}  // namespace zu::style::detail
