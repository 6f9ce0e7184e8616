#pragma once
// The characters of a font, of which a person picks one.

#include <vector>

#include "src/style/pickers/symbol_grid.h"
#include "src/toolkit/inputs.h"
#include "src/toolkit/layouts.h"

namespace zu::style {

namespace detail {

class character_grid : public symbol_grid {
 public:
  character_grid();
  /// Reads the characters of the font anew if it is another.
  void set_font(const Tzu_fnt_type* font);
  const Tzu_fnt_type* font() const { return font_.get(); }
  std::optional<std::uint64_t> index_of(std::uint32_t character) const;
  std::uint32_t character(std::uint64_t index) const { return characters_[index]; }

  std::uint64_t count() const override { return characters_.size(); }
  void put(Tzu_bpnt_style* point, std::uint64_t index) const override;
  std::wstring text_of(std::uint64_t index) const override;

 private:
  void read();

  owned<zu_fnt_type_destroy> font_{zu_fnt_type_create()};
  std::vector<std::uint32_t> characters_;  // rising
};

}  // namespace detail

class charmap_input : public toolkit::with_element {
 public:
  charmap_input();

  std::uint32_t symbol() const { return symbol_; }
  const Tzu_fnt_type* font() const { return characters_.font(); }
  /// The character stays, though another font may not have it.
  void set_font(const Tzu_fnt_type* font);
  /// Shows the character and the font of a point.
  void assign(const Tzu_bpnt_style* from);
  /// Sets character and font together, and that they are used.
  void apply_to(Tzu_bpnt_style* to) const;
  void set_enabled(bool enabled);

  std::function<void()> on_change;  ///< a person picked another character

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void show(std::uint32_t symbol);
  void picked();

  std::uint32_t symbol_ = U'*';
  detail::character_grid characters_;
  toolkit::output current_;
  toolkit::grid_layout<1, 2> root_;
};

}  // namespace zu::style
