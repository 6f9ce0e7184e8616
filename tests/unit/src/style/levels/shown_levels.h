#pragma once
// The tree of render levels as a host sees it: a line for each item, indented by its depth.

#include "src/style/levels/levels_element.h"
#include "tests/unit/src/toolkit/element_tree.h"

namespace tests {

/// An item by the one above it; empty for the root's.
struct level_row : outline_item_impl {
  level_row(handle parent, std::uint32_t row) : parent_(parent), row_(row) {}
  handle parent() override { return parent_; }
  std::uint32_t row() override { return row_; }
  outline_item item() { return outline_item(handle_of<outline_item_impl>(*this)); }

 private:
  handle parent_;
  std::uint32_t row_;
};

class shown_levels {
 public:
  explicit shown_levels(handle root) {
    std::vector<handle> all;
    gather(root, all);
    outline_ = find<outline_impl>(all);
    struct : outline_column_visitor_impl {
      void visit(handle column) override { columns.push_back(column); }
      std::vector<handle> columns;
    } taker;
    for (std::uint32_t i = 0; i < call<&outline_impl::column_count>(outline_); ++i)
      call<&outline_impl::visit_column>(
          outline_, i, outline_column_visitor(handle_of<outline_column_visitor_impl>(taker)));
    EXPECT_EQ(taker.columns.size(), 2u);
    style_ = cast<string_outline_column_impl>(taker.columns.at(0));
    level_ = cast<integer_outline_column_impl>(taker.columns.at(1));
  }

  /// "text", or "text = level"; a disabled item's in brackets.
  std::vector<std::wstring> lines() {
    std::vector<std::wstring> all;
    add_lines({}, 0, all);
    return all;
  }
  bool set(const std::vector<std::uint32_t>& way, std::int32_t level) {
    bool taken = false;
    at(way, [&](outline_item item) {
      taken = call<&integer_outline_column_impl::set_value>(level_, item, level);
    });
    return taken;
  }
  bool editable(const std::vector<std::uint32_t>& way) {
    bool is = false;
    at(way, [&](outline_item item) {
      is = call<&integer_outline_column_impl::is_editable>(level_, item);
    });
    return is;
  }
  bool has_picture(const std::vector<std::uint32_t>& way) {
    struct : bitmap_visitor_impl {
      void visit(bitmap) override { seen = true; }
      bool seen = false;
    } taker;
    at(way, [&](outline_item item) {
      call<&string_outline_column_impl::picture>(
          style_, item, bitmap_visitor(handle_of<bitmap_visitor_impl>(taker)));
    });
    return taker.seen;
  }
  std::vector<std::wstring> captions() {
    return {text([&](auto v) { call<&string_outline_column_impl::caption>(style_, v); }),
            text([&](auto v) { call<&integer_outline_column_impl::caption>(level_, v); })};
  }
  of<outline_impl> outline() { return outline_; }
  template <class function> void at(const std::vector<std::uint32_t>& way, const function& use) {
    visit(way, 0, {}, use);
  }

 private:
  template <class function>
  void visit(const std::vector<std::uint32_t>& way, std::size_t depth, handle parent,
             const function& use) {
    if (depth == way.size()) return use(outline_item(parent));
    level_row item(parent, way[depth]);
    visit(way, depth + 1, item.item(), use);
  }
  void add_lines(handle parent, std::size_t depth, std::vector<std::wstring>& all) {
    std::uint32_t count = call<&outline_impl::item_count>(outline_, outline_item(parent));
    EXPECT_EQ(call<&outline_impl::has_items>(outline_, outline_item(parent)), count > 0);
    for (std::uint32_t row = 0; row < count; ++row) {
      level_row named(parent, row);
      outline_item item = named.item();
      std::wstring line =
          text([&](auto v) { call<&string_outline_column_impl::text>(style_, item, v); });
      if (call<&integer_outline_column_impl::has_value>(level_, item))
        line += L" = " + std::to_wstring(call<&integer_outline_column_impl::value>(level_, item));
      if (call<&outline_impl::is_item_disabled>(outline_, item)) line = L"(" + line + L")";
      all.push_back(std::wstring(2 * depth, L' ') + line);
      add_lines(item, depth + 1, all);
    }
  }

  of<outline_impl> outline_;
  of<string_outline_column_impl> style_;
  of<integer_outline_column_impl> level_;
};

}  // namespace tests
