#pragma once
// The palettes of a list, and the colours of a palette.

#include "src/style/palettes/marked_table.h"
#include "src/toolkit/outline_columns.h"
#include "zu/platform/zuk_palettes.h"

namespace zu::style::detail {

class palettes_table : public marked_table {
 public:
  explicit palettes_table(Tzu_clr_palettes* list);  ///< not owned

  Tzu_clr_palette* current() const;  ///< or null
  /// An empty one at the end, with a caption that no other has; becomes the chosen one.
  void add();
  /// Copies at the end; they become the chosen ones.
  void add_copies(Tzu_clr_palettes* from);
  void remove_chosen();
  /// A list with copies of the chosen ones.
  owned<zu_clr_palettes_destroy> chosen_palettes() const;

  std::uint32_t row_count() override;
  std::uint32_t visible_rows() override { return 12; }
  std::uint32_t width() override { return 47; }
  void visit_empty_text(string_visitor visitor) override;

 private:
  void move(const Tzu_int_set* marked, std::uint64_t index) override;
  bool has(const std::wstring& caption) const;

  Tzu_clr_palettes* list_;
  toolkit::outline_string_column_view caption_{L"zu_clr_palettes_caption_column", 13661};
  toolkit::outline_bitmap_column_view strip_{L"zu_clr_palettes_strip_column", 14705};
};

class colors_table : public marked_table {
 public:
  colors_table();

  void set_palette(Tzu_clr_palette* palette);  ///< not owned; null shows nothing
  Tzu_clr_palette* palette() const { return palette_; }
  /// Has the person choose a colour and puts it at the end.
  void add();
  void remove_chosen();
  /// The colours of a numbered array take the place of the palette's.
  void import(std::int32_t array);
  void invert();

  std::uint32_t row_count() override;
  std::uint32_t visible_rows() override { return 12; }
  std::uint32_t width() override { return 47; }
  void activate(outline_item item) override;

 private:
  void move(const Tzu_int_set* marked, std::uint64_t index) override;
  Tzu_color color_of(outline_item item) const;

  Tzu_clr_palette* palette_ = nullptr;
  toolkit::outline_string_column_view color_{L"zu_clr_palettes_color_column", 13662};
};

std::wstring caption_of(const Tzu_clr_palette* palette);
/// A text with "%d" and "%ls" replaced by values, in their order.
std::wstring filled_in(std::int32_t text, const std::vector<std::wstring>& values);

}  // namespace zu::style::detail
