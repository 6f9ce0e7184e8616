#include "src/style/pickers/symbol_grid.h"

#include "src/style/page/pixels.h"
#include "zu/platform/zuk_bmp_dc.h"

namespace zu::style {
namespace {

constexpr std::uint64_t side = 24;             // pixels
constexpr double dots_per_mm = 4, size = 4.5;  // a symbol in millimetres of such a picture
constexpr std::uint32_t paper = 0xFFFFFFFF;    // symbols are black on it, whatever the theme

/// One symbol of a table.
class symbol_cell final : public grid_bitmap_cell_impl {
 public:
  symbol_cell(symbol_grid& owner, std::uint64_t index) : owner_(owner), index_(index) {}
  void picture(bitmap_visitor visitor) override {
    auto shown = preview_point();
    owner_.put(zu_pnt_style_get_bpnt_style_ptr(shown.get()), index_);
    visit_point(shown.get(), visitor);
  }
  void text(string_visitor visitor) override { visit(visitor); }
  void hint(string_visitor visitor) override { visit(visitor); }
  bool is_enabled() override { return owner_.enabled(); }
  std::uint32_t background() override { return paper; }
  void click() override { owner_.pick(index_); }

 private:
  void visit(string_visitor visitor) const {
    call<&string_visitor_impl::visit>(visitor, owner_.text_of(index_).c_str());
  }

  symbol_grid& owner_;
  std::uint64_t index_;
};

}  // namespace

owned<zu_pnt_style_destroy> preview_point() {
  owned<zu_pnt_style_destroy> made(zu_pnt_style_create());
  zu_pnt_style_set_pnt_visible(made.get(), true);
  Tzu_bpnt_style* point = zu_pnt_style_get_bpnt_style_ptr(made.get());
  zu_bpnt_style_set_size(point, size);
  zu_bpnt_style_set_color(point, zu_clr_init_int(0));
  return made;
}

void visit_point(const Tzu_pnt_style* style, bitmap_visitor visitor) {
  owned<zu_dib_destroy> dib(zu_dib_create());
  if (zu_preview_pnt(style, side, side, dots_per_mm, dib.get()))
    detail::visit_pixels(dib.get(), visitor);
}

symbol_grid::symbol_grid(std::uint32_t columns) : columns_(columns) {}

void symbol_grid::assign(std::optional<std::uint64_t> index) {
  if (index && *index >= count()) index.reset();
  if (replace(picked_, index)) redraw();
}

void symbol_grid::pick(std::uint64_t index) {
  if (index >= count()) return;
  assign(index);
  if (on_pick) on_pick();
}

void symbol_grid::set_enabled(bool enabled) {
  if (replace(enabled_, enabled)) redraw();
}

void symbol_grid::data_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) {
  std::uint64_t index = row * columns_ + column;
  if (column >= columns_ || index >= count()) return;
  symbol_cell cell(*this, index);
  call<&grid_cell_visitor_impl::visit>(visitor, handle_of<grid_bitmap_cell_impl>(cell));
}

/// Keys move from symbol to symbol and pick what they come to.
void symbol_grid::set_current(std::uint32_t column, std::uint64_t row) {
  std::uint64_t index = row * columns_ + column;
  if (index != picked_) pick(index);
}

bool symbol_grid::current(std::uint32_t* column, std::uint64_t* row) {
  if (!picked_) return false;
  *column = static_cast<std::uint32_t>(*picked_ % columns_);
  *row = *picked_ / columns_;
  return true;
}

}  // namespace zu::style
