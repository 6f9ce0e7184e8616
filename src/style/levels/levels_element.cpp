#include "src/style/levels/levels_element.h"

#include <algorithm>

#include "src/style/page/pixels.h"

namespace zu::style {
namespace detail {
namespace {

/// An item by its parent, which it must not outlive.
class named_item : public outline_item_impl {
 public:
  named_item(handle parent, std::uint32_t row) : parent_(parent), row_(row) {}
  handle parent() override { return parent_; }
  std::uint32_t row() override { return row_; }

 private:
  handle parent_;
  std::uint32_t row_;
};

/// Gives the item at the end of the way.
void visit_item(const std::uint32_t* row, const std::uint32_t* end, handle parent,
                outline_item_visitor visitor) {
  if (row == end) {
    call<&outline_item_visitor_impl::visit>(visitor, outline_item(parent));
    return;
  }
  named_item item(parent, *row);
  visit_item(row + 1, end, handle_of<outline_item_impl>(item), visitor);
}

}  // namespace

level_outline::level_outline() { add_column(style_).add_column(level_); }

void level_outline::set(Tzu_stl_mngr* mngr) {
  root_ = mngr != nullptr ? std::make_unique<mngr_item>(mngr) : nullptr;
  current_.clear();
  redraw();
}

level_outline::rows level_outline::way_to(handle item) {
  rows way;
  for (; item; item = call<&outline_item_impl::parent>(item))
    way.push_back(call<&outline_item_impl::row>(item));
  std::reverse(way.begin(), way.end());
  return way;
}

base_item* level_outline::at(outline_item item) {
  base_item* found = root_.get();
  for (std::uint32_t row : way_to(item)) found = found != nullptr ? found->item(row) : nullptr;
  return found;
}

std::uint32_t level_outline::item_count(outline_item item) {
  base_item* found = at(item);
  return found != nullptr ? found->item_count() : 0;
}

// Many rows start closed, so that a person finds the one to open.
bool level_outline::is_open(outline_item item) {
  bool is_row = item && !call<&outline_item_impl::parent>(item);
  return !is_row || item_count({}) == 1;
}
bool level_outline::is_item_disabled(outline_item item) {
  base_item* found = at(item);
  return found != nullptr && !found->shows();
}
void level_outline::current(outline_item_visitor visitor) {
  visit_item(current_.data(), current_.data() + current_.size(), {}, visitor);
}
void level_outline::set_current(outline_item item) { current_ = way_to(item); }
bool level_outline::is_marked(outline_item item) { return item && way_to(item) == current_; }

void level_outline::cpx_lr_column::text(outline_item item, string_visitor visitor) {
  if (base_item* found = at(item))
    call<&string_visitor_impl::visit>(visitor, found->text().c_str());
}
void level_outline::cpx_lr_column::picture(outline_item item, bitmap_visitor visitor) {
  constexpr std::uint64_t width = 36, height = 16;
  constexpr double dots_per_mm = 96 / 25.4;  // of an ordinary screen
  base_item* found = at(item);
  owned<zu_dib_destroy> pixels(zu_dib_create());
  if (found != nullptr && found->draw(width, height, dots_per_mm, pixels.get()))
    visit_pixels(pixels.get(), visitor);
}
bool level_outline::cpx_lr_column::is_enabled(outline_item item) {
  base_item* found = at(item);
  return found != nullptr && found->shows();
}

std::int32_t level_outline::cpx_render_level_column::value(outline_item item) {
  base_item* found = at(item);
  return found != nullptr ? found->level() : 0;
}
bool level_outline::cpx_render_level_column::set_value(outline_item item, std::int32_t level) {
  base_item* found = at(item);
  if (found == nullptr || !found->has_level() || level < -most || level > most) return false;
  found->set_level(level);
  return true;
}
bool level_outline::cpx_render_level_column::has_value(outline_item item) {
  base_item* found = at(item);
  return found != nullptr && found->has_level();
}
bool level_outline::cpx_render_level_column::is_enabled(outline_item item) {
  base_item* found = at(item);
  return found != nullptr && found->shows();
}

}  // namespace detail

levels_element::levels_element() {
  frame_.set_checkable(true);
  frame_.on_check = [this](bool use) {
    if (on_use) on_use(use);
  };
  frame_.place(outline_);
  frame_.cells().set_row_stretch(0).set_column_stretch(0);
}

}  // namespace zu::style
