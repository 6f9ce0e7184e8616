#pragma once
// The styles of one kind in the libraries of the person, and the choice of a library.

#include <functional>

#include "src/style/dialogs/dialog_kinds.h"
#include "src/toolkit/outline.h"
#include "src/toolkit/outline_columns.h"

namespace zu::style::detail {

/// The styles of a library, each with its sample and its caption.
template <class traits> class lib_style_outline : public toolkit::outline_table {
 public:
  lib_style_outline();
  /// Not owned; null shows nothing.
  void set_library(Tzu_style_lib* library);
  /// A person chose this style, which is the library's.
  std::function<void(typename traits::argument)> on_pick;

  std::uint32_t attributes() override { return 0; }
  std::uint32_t visible_rows() override { return 6; }
  void visit_empty_text(string_visitor visitor) override { toolkit::visit_text(14916, visitor); }
  std::uint32_t row_count() override;
  std::int64_t current_row() override { return current_; }
  void set_current_row(std::int64_t row) override;

 private:
  Tzu_idx_style* entry(std::uint32_t row) const;
  Tzu_style_list* list() const {
    return library_ != nullptr ? traits::library_list(library_) : nullptr;
  }

  Tzu_style_lib* library_ = nullptr;
  std::int64_t current_ = -1;
  toolkit::outline_bitmap_column_view sample_{L"zu_lib_style_sample", 14905};
  toolkit::outline_string_column_view caption_{L"zu_lib_style_caption", 14905};
};

/// The choice of a library over its styles. Without libraries there is nothing to show.
template <class traits> class library_picker : public toolkit::with_element {
 public:
  library_picker();
  bool has_libraries() { return libraries_.count() > 0; }
  std::function<void(typename traits::argument)> on_pick;

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void show_library(std::uint64_t index);

  toolkit::labeled_element<toolkit::dropdownex<std::uint64_t>> libraries_{14905};
  toolkit::grid_layout<2, 1> choice_;
  lib_style_outline<traits> styles_;
  toolkit::grid_layout<1, 2> root_;
};

}  // namespace zu::style::detail
