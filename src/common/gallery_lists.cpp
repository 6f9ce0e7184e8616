#include "src/common/gallery_lists.h"

#include "src/bundle/texts.h"
#include "zu/platform/zuk_drwc.h"

namespace zu::gallery {
namespace {

constexpr std::int32_t kinds[] = {text::first, text::second, text::third};
constexpr std::int32_t pictures[] = {-656, -657, -658};

void give(const std::wstring& text, string_visitor visitor) {
  call<&string_visitor_impl::visit>(visitor, text.c_str());
}

/// An item of a tree, by its parent and row.
class tree_item : public outline_item_impl {
 public:
  tree_item(outline_item parent, std::uint32_t row) : parent_(parent), row_(row) {}
  handle parent() override { return parent_; }
  std::uint32_t row() override { return row_; }

 private:
  outline_item parent_;
  std::uint32_t row_;
};

int depth_of(outline_item item) {
  int depth = 0;
  for (handle at = item; at; at = call<&outline_item_impl::parent>(at)) ++depth;
  return depth;
}

/// Numbers of the rows from the root on, "2.1.3".
std::wstring path_of(outline_item item) {
  if (!item) return {};
  std::wstring above = path_of(outline_item(call<&outline_item_impl::parent>(item)));
  std::wstring own = std::to_wstring(call<&outline_item_impl::row>(item) + 1);
  return above.empty() ? own : above + L"." + own;
}

// Cells of the table.

struct caption_cell : grid_string_cell_impl {
  explicit caption_cell(std::int32_t caption) : caption(caption) {}
  void text(string_visitor visitor) override { toolkit::visit_text(caption, visitor); }
  bool is_read_only() override { return true; }
  std::int32_t caption;
};
struct string_cell : grid_string_cell_impl {
  explicit string_cell(std::uint64_t row) : row(row) {}
  void text(string_visitor visitor) override {
    give(load_text(text::item) + L" " + std::to_wstring(row + 1), visitor);
  }
  bool is_read_only() override { return true; }
  std::uint64_t row;
};
struct integer_cell : grid_integer_cell_impl {
  explicit integer_cell(std::uint64_t row) : row(row) {}
  void text(string_visitor visitor) override { give(std::to_wstring(value()), visitor); }
  std::int32_t value() override { return static_cast<std::int32_t>(row % 1000); }
  bool is_read_only() override { return true; }
  std::uint64_t row;
};
struct floating_cell : grid_floating_cell_impl {
  explicit floating_cell(std::uint64_t row) : row(row) {}
  void text(string_visitor visitor) override {
    give(std::to_wstring(row / 8) + (row % 8 < 4 ? L"" : L".5"), visitor);
  }
  double value() override {
    std::uint64_t eighth = row / 8;
    return static_cast<double>(eighth) + (row % 8 < 4 ? 0.0 : 0.5);  // as its text says
  }
  bool is_read_only() override { return true; }
  std::uint64_t row;
};
struct picture_cell : grid_bitmap_cell_impl {
  explicit picture_cell(std::uint64_t row) : row(row) {}
  void picture(bitmap_visitor visitor) override {
    toolkit::visit_bitmap(pictures[row % 3], visitor);
  }
  bool is_read_only() override { return true; }
  std::uint64_t row;
};

template <class interface> void give_cell(interface& cell, grid_cell_visitor visitor) {
  call<&grid_cell_visitor_impl::visit>(visitor, handle(handle_of<interface>(cell)));
}

}  // namespace

void name_column::text(outline_item item, string_visitor visitor) { give(at(item).name, visitor); }
bool name_column::set_text(outline_item item, const wchar_t* text) {
  if (text == nullptr || *text == L'\0') return false;
  at(item).name = text;
  return true;
}
void unit_column::text(outline_item item, string_visitor visitor) { give(at(item).unit, visitor); }
bool unit_column::set_text(outline_item item, const wchar_t* text) {
  at(item).unit = text != nullptr ? text : L"";
  return true;
}
void unit_column::visit_suggestions(outline_item, string_visitor visitor) {
  for (const wchar_t* unit : {L"m", L"km", L"ms"}) give(unit, visitor);
}
bool count_column::set_value(outline_item item, std::int32_t value) {
  at(item).count = value;
  return true;
}
bool value_column::set_value(outline_item item, double value) {
  at(item).value = value;
  return true;
}
bool kind_column::set_current(outline_item item, std::int32_t kind) {
  at(item).kind = kind;
  return true;
}
void kind_column::choice_text(outline_item, std::uint32_t choice, string_visitor visitor) {
  if (choice < std::size(kinds)) toolkit::visit_text(kinds[choice], visitor);
}
void picture_column::picture(outline_item item, bitmap_visitor visitor) {
  toolkit::visit_bitmap(pictures[toolkit::row_of(item) % std::size(pictures)], visitor);
}
void drawing_column::draw(outline_item item, Tzu_drwc* page) {
  Tzu_box_d2 box;
  zu_drwc_get_page(page, &box);
  std::uint8_t shade = static_cast<std::uint8_t>(40 + toolkit::row_of(item) * 40 % 200);
  box.x1 = box.x0 + (box.x1 - box.x0) * (toolkit::row_of(item) % 5 + 1) / 5.0;
  zu_drwc_fill_box(page, &box, Tzu_color{shade, 120, 200, 0});
}

lists_page::lists_page() {
  fill_rows();
  fill_tree();
  empty_.on_visit_empty_text = [](string_visitor v) { toolkit::visit_text(text::empty, v); };
  for (std::int32_t each : kinds) list_.add(load_text(each));
  list_.choose(1);
  below_.place(tree_).place(list_).place(empty_).set_spacing(3);
  for (int i = 0; i < 3; ++i) below_.set_column_stretch(i);
  root_.place(table_).place(below_).set_row_stretch(0).set_row_stretch(1).set_spacing(3);
}

void lists_page::fill_rows() {
  for (std::int32_t i = 0; i < 8; ++i)
    rows_.push_back({load_text(text::item) + L" " + std::to_wstring(i + 1), i % 2 == 0 ? L"m" : L"",
                     i * 10, i * 0.25, i % 3 != 0, i % 3, false});
  table_.on_row_count = [this] { return static_cast<std::uint32_t>(rows_.size()); };
  table_.on_current_row = [this] { return current_; };
  table_.on_set_current_row = [this](std::int64_t row) { current_ = row; };
  table_.on_selection_mode = [] { return std::uint32_t{outline_chooses_one}; };
  table_.on_is_disabled = [this] { return !enabled_; };
  table_.on_alternates_rows = [] { return true; };
  table_.on_visit_checks = [this](outline_checks_visitor visitor) {
    call<&outline_checks_visitor_impl::visit>(
        visitor, outline_checks(handle_of<outline_checks_impl>(checks_)));
  };
  table_.add_column(number_).add_column(name_).add_column(unit_).add_column(count_);
  table_.add_column(value_).add_column(shown_).add_column(kind_).add_column(picture_);
  table_.add_column(drawing_);
}

void lists_page::fill_tree() {
  tree_.on_attributes = [] { return std::uint32_t{outline_shows_captions}; };
  tree_.on_visit_root = [](outline_item_visitor visitor) {
    call<&outline_item_visitor_impl::visit>(visitor, outline_item());
  };
  tree_.on_has_items = [](outline_item item) { return depth_of(item) < 3; };
  tree_.on_item_count = [](outline_item item) { return depth_of(item) < 3 ? 3U : 0U; };
  tree_.on_is_open = [](outline_item item) { return depth_of(item) == 1; };
  tree_.on_selection_mode = [] { return std::uint32_t{outline_chooses_one}; };
  tree_text_.on_text = [](outline_item item, string_visitor visitor) {
    give(load_text(text::item) + L" " + path_of(item), visitor);
  };
  tree_.add_column(tree_text_);
}

void lists_page::change() {
  rows_.push_back({load_text(text::item) + L" " + std::to_wstring(rows_.size() + 1), L"km",
                   static_cast<std::int32_t>(rows_.size()), 1, true, 0, true});
  current_ = static_cast<std::int64_t>(rows_.size()) - 1;
  table_.redraw();
  list_.choose((list_.current() + 1) % 3);
}

void lists_page::set_enabled(bool enabled) {
  enabled_ = enabled;
  table_.redraw();
  list_.set_enabled(enabled);
}

void table_page::column_header_cell(std::uint32_t column, grid_cell_visitor visitor) {
  constexpr std::int32_t captions[] = {text::name, text::whole, text::real, text::picture};
  caption_cell cell(captions[column]);
  give_cell<grid_string_cell_impl>(cell, visitor);
}
void table_page::row_header_cell(std::uint32_t column, std::uint64_t row,
                                 grid_cell_visitor visitor) {
  if (column == 0) {
    toolkit::grid_row_cell cell(*this, column, row);
    give_cell<grid_string_cell_impl>(cell, visitor);
  } else {
    toolkit::grid_check_cell cell(*this, column, row + fixed_rows());
    give_cell<grid_check_cell_impl>(cell, visitor);
  }
}
void table_page::corner_cell(std::uint32_t column, std::uint64_t, grid_cell_visitor visitor) {
  caption_cell cell(column == 0 ? text::number : 0);
  give_cell<grid_string_cell_impl>(cell, visitor);
}
void table_page::data_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) {
  if (column == 0) {
    string_cell cell(row);
    give_cell<grid_string_cell_impl>(cell, visitor);
  } else if (column == 1) {
    integer_cell cell(row);
    give_cell<grid_integer_cell_impl>(cell, visitor);
  } else if (column == 2) {
    floating_cell cell(row);
    give_cell<grid_floating_cell_impl>(cell, visitor);
  } else {
    picture_cell cell(row);
    give_cell<grid_bitmap_cell_impl>(cell, visitor);
  }
}

}  // namespace zu::gallery
