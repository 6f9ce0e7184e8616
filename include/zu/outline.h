#pragma once
// Lists and trees with columns. An outline answers what items there are, its columns what an item
// shows; whoever shows them asks for what is in sight and for nothing else.
//
// An item is named by its parent and its row among the parent's items; the root is the empty
// handle. Both sides make such names on the stack, and none outlives the call that it is given to.
// Item operations of a column are given items of its outline. A refused value shows as it was.

#include "zu/toolkit.h"
#include "zu/tools.h"

namespace zu {

/// The name of an item.
struct outline_item_impl : plain_interface<outline_item_impl> {
  static constexpr char name[] = "zu_outline_item_interface_0";
  virtual handle parent() { return {}; }     ///< an item, or empty for one of the root's
  virtual std::uint32_t row() { return 0; }  ///< among the parent's items
  using operations = in_order<&outline_item_impl::parent, &outline_item_impl::row>;
};
using outline_item = of<outline_item_impl>;

/// The same of a flat table. Its slots are those of any item.
struct outline_item_index_impl : plain_interface<outline_item_index_impl> {
  static constexpr char name[] = "zu_outline_item_index_interface_0";
  virtual handle parent() { return {}; }
  virtual std::uint32_t row() { return 0; }
  using operations = in_order<&outline_item_index_impl::parent, &outline_item_index_impl::row>;
};

struct outline_item_visitor_impl : plain_interface<outline_item_visitor_impl> {
  static constexpr char name[] = "zu_outline_item_visitor_interface_0";
  virtual void visit(outline_item) {}
  using operations = in_order<&outline_item_visitor_impl::visit>;
};
using outline_item_visitor = of<outline_item_visitor_impl>;

/// The marks in front of an outline's items that a person sets and clears.
struct outline_checks_impl : plain_interface<outline_checks_impl> {
  static constexpr char name[] = "zu_outline_checks_interface_1";
  virtual bool checked(outline_item) { return false; }
  virtual void set_checked(outline_item, bool) {}
  using operations = in_order<&outline_checks_impl::checked, &outline_checks_impl::set_checked>;
};
using outline_checks = of<outline_checks_impl>;

struct outline_checks_visitor_impl : plain_interface<outline_checks_visitor_impl> {
  static constexpr char name[] = "zu_outline_checks_visitor_interface_1";
  virtual void visit(outline_checks) {}
  using operations = in_order<&outline_checks_visitor_impl::visit>;
};
using outline_checks_visitor = of<outline_checks_visitor_impl>;

/// Takes a column of any kind, by the handle of its own interface.
struct outline_column_visitor_impl : plain_interface<outline_column_visitor_impl> {
  static constexpr char name[] = "zu_outline_column_visitor_interface_0";
  virtual void visit(handle /*column*/) {}
  using operations = in_order<&outline_column_visitor_impl::visit>;
};
using outline_column_visitor = of<outline_column_visitor_impl>;

/// How many items a person may choose.
enum outline_selection : std::uint32_t {
  outline_chooses_none = 0,
  outline_chooses_one = 5,   ///< the current item is the marked one
  outline_chooses_many = 8,  ///< any number of marks, and a current item among or beside them
};

/// Bits of an outline's attributes.
enum outline_attributes : std::uint32_t { outline_shows_captions = 1 };

/// The outline itself. Its view's slot 1 tells that the current item or marks are others, slot 2
/// that items show something else or are fewer or more, slot 3 that the columns are others too.
struct outline_impl : plain_interface<outline_impl> {
  static constexpr char name[] = "zu_outline_interface_32";
  virtual std::uint32_t attributes() { return 0; }  ///< bits of `outline_attributes`
  virtual bool is_disabled() { return false; }
  virtual void visit_root(outline_item_visitor) {}  ///< without a call there is nothing to show
  virtual std::uint32_t column_count() { return 0; }
  virtual void visit_checks(outline_checks_visitor) {}  ///< no call: items have no marks to set
  virtual void visit_column(std::uint32_t, outline_column_visitor) {}
  virtual std::uint32_t visible_rows() { return 0; }    ///< that it would like; 0: whatever fits
  virtual std::uint32_t selection_mode() { return 0; }  ///< one of `outline_selection`
  virtual std::uint32_t width() { return 0; }           ///< in the units of layouts; 0: by content
  virtual bool is_tree() { return true; }               ///< false: no item has items, ever
  virtual void visit_hint(string_visitor) {}
  virtual void visit_empty_text(string_visitor) {}  ///< said where there are no items
  virtual void current(outline_item_visitor) {}     ///< an empty handle or no call: none is current
  virtual void set_current(outline_item) {}
  virtual void activate(outline_item) {}  ///< a double click, or Enter
  virtual bool is_marked(outline_item) { return false; }
  virtual void begin_marking() {}  ///< stands before a row of `set_marked`
  virtual void set_marked(outline_item, bool) {}
  virtual void end_marking() {}                     ///< stands behind a row of `set_marked`
  virtual bool can_move_marked() { return false; }  ///< a person may drag items to other places
  virtual void move_marked(outline_item /*target*/, bool /*behind it*/) {}
  virtual bool is_open(outline_item) { return false; }  ///< at first; then a person decides
  virtual bool is_item_disabled(outline_item) { return false; }
  virtual bool is_item_bold(outline_item) { return false; }
  virtual std::uint32_t item_background(outline_item) { return 0; }  ///< 0xAARRGGBB; 0: the usual
  virtual bool has_items(outline_item) { return false; }
  virtual std::uint32_t item_count(outline_item) { return 0; }
  virtual bool shows_lines() { return false; }  ///< between cells
  virtual bool can_resize_columns() { return true; }
  virtual std::uint32_t lines_per_row() { return 1; }
  virtual bool alternates_rows() { return false; }  ///< every second row is tinted
  /// 0 items are in an order of their own; n > 0 rising by column n - 1; n < 0 falling by column
  /// -n - 1.
  virtual std::int32_t sort_order() { return 0; }
  virtual std::int32_t tree_column() { return 0; }  ///< bears the handles of a tree; -1: none does
  virtual void caption_clicked(std::uint32_t /*column*/, bool /*Shift is down*/) {}
  virtual void attach_view(element_view) {}
  using operations = in_order<
      &outline_impl::attributes, &outline_impl::is_disabled, &outline_impl::visit_root,
      &outline_impl::column_count, &outline_impl::visit_checks, &outline_impl::visit_column,
      &outline_impl::visible_rows, &outline_impl::selection_mode, &outline_impl::width,
      &outline_impl::is_tree, &outline_impl::visit_hint, &outline_impl::visit_empty_text,
      &outline_impl::current, &outline_impl::set_current, &outline_impl::activate,
      &outline_impl::is_marked, &outline_impl::begin_marking, &outline_impl::set_marked,
      &outline_impl::end_marking, &outline_impl::can_move_marked, &outline_impl::move_marked,
      &outline_impl::is_open, &outline_impl::is_item_disabled, &outline_impl::is_item_bold,
      &outline_impl::item_background, &outline_impl::has_items, &outline_impl::item_count,
      &outline_impl::shows_lines, &outline_impl::can_resize_columns, &outline_impl::lines_per_row,
      &outline_impl::alternates_rows, &outline_impl::sort_order, &outline_impl::tree_column,
      &outline_impl::caption_clicked, &outline_impl::attach_view>;
};
using outline = of<outline_impl>;

// --- Columns

/// What every column answers first, in these slots.
template <class x> struct outline_column_interface : plain_interface<x> {
  using listed_in = x;
  virtual void id(string_visitor) {}  ///< by which a host remembers its width
  virtual void caption(string_visitor) {}
  virtual void hint(string_visitor) {}  ///< of the caption
  virtual bool is_visible() { return true; }
  virtual std::uint32_t width() { return 0; }  ///< in the units of layouts; 0: by content
  /// 0 by kind: numbers right, marks and pictures in the middle; 1 left, 2 middle, 3 right.
  virtual std::uint32_t alignment() { return 0; }
  virtual bool is_sortable() { return false; }  ///< a click on the caption is of use
  virtual void item_hint(outline_item, string_visitor) {}
  virtual std::uint32_t item_background(outline_item) { return 0; }  ///< 0xAARRGGBB; 0: the usual
  virtual void click(outline_item) {}  ///< in a cell that cannot be edited where it stands
  template <auto... own>
  using column_order = typename plain_interface<x>::template in_order<
      &outline_column_interface::id, &outline_column_interface::caption,
      &outline_column_interface::hint, &outline_column_interface::is_visible,
      &outline_column_interface::width, &outline_column_interface::alignment,
      &outline_column_interface::is_sortable, &outline_column_interface::item_hint,
      &outline_column_interface::item_background, &outline_column_interface::click, own...>;
};

/// A column of texts.
struct string_outline_column_impl : outline_column_interface<string_outline_column_impl> {
  static constexpr char name[] = "zu_string_outline_column_interface_10";
  virtual void text(outline_item, string_visitor) {}
  virtual bool is_editable(outline_item) { return false; }
  virtual bool is_enabled(outline_item) { return true; }
  virtual bool set_text(outline_item, const wchar_t*) { return false; }  ///< false: refused
  virtual void edited_text(outline_item, string_visitor) {
  }  ///< no call: editing starts with `text`
  virtual std::uint32_t text_color(outline_item) { return 0; }  ///< 0xAARRGGBB; 0: the usual
  virtual void picture(outline_item, bitmap_visitor) {}         ///< in front of the text
  virtual bool has_button(outline_item) { return false; }       ///< "…" at the cell's end
  virtual void press_button(outline_item) {}
  virtual bool is_bold(outline_item) { return false; }
  virtual std::uint32_t longest_text(outline_item) { return 0; }  ///< characters; 0: any
  using operations =
      column_order<&string_outline_column_impl::text, &string_outline_column_impl::is_editable,
                   &string_outline_column_impl::is_enabled, &string_outline_column_impl::set_text,
                   &string_outline_column_impl::edited_text,
                   &string_outline_column_impl::text_color, &string_outline_column_impl::picture,
                   &string_outline_column_impl::has_button,
                   &string_outline_column_impl::press_button, &string_outline_column_impl::is_bold,
                   &string_outline_column_impl::longest_text>;
};

/// Texts with suggestions; any other text may be typed too.
struct assisted_string_outline_column_impl
    : outline_column_interface<assisted_string_outline_column_impl> {
  static constexpr char name[] = "zu_assisted_string_outline_column_interface_7";
  virtual void text(outline_item, string_visitor) {}
  virtual bool is_editable(outline_item) { return false; }
  virtual bool is_enabled(outline_item) { return true; }
  virtual bool set_text(outline_item, const wchar_t*) { return false; }
  virtual void visit_suggestions(outline_item, string_visitor) {
  }  ///< a call each, as editing starts
  using operations = column_order<&assisted_string_outline_column_impl::text,
                                  &assisted_string_outline_column_impl::is_editable,
                                  &assisted_string_outline_column_impl::is_enabled,
                                  &assisted_string_outline_column_impl::set_text,
                                  &assisted_string_outline_column_impl::visit_suggestions>;
};

struct integer_outline_column_impl : outline_column_interface<integer_outline_column_impl> {
  static constexpr char name[] = "zu_integer_outline_column_interface_12";
  virtual std::int32_t value(outline_item) { return 0; }
  virtual bool is_editable(outline_item) { return false; }
  virtual bool is_enabled(outline_item) { return true; }
  virtual bool set_value(outline_item, std::int32_t) { return false; }  ///< false: refused
  virtual bool has_value(outline_item) { return true; }                 ///< false: an empty cell
  virtual std::int32_t minimum(outline_item) { return INT32_MIN; }
  virtual std::int32_t maximum(outline_item) { return INT32_MAX; }
  virtual std::int32_t step(outline_item) { return 1; }
  virtual void text(outline_item, string_visitor) {}  ///< shown instead of the digits
  using operations =
      column_order<&integer_outline_column_impl::value, &integer_outline_column_impl::is_editable,
                   &integer_outline_column_impl::is_enabled,
                   &integer_outline_column_impl::set_value, &integer_outline_column_impl::has_value,
                   &integer_outline_column_impl::minimum, &integer_outline_column_impl::maximum,
                   &integer_outline_column_impl::step, &integer_outline_column_impl::text>;
};

struct floating_outline_column_impl : outline_column_interface<floating_outline_column_impl> {
  static constexpr char name[] = "zu_floating_outline_column_interface_14";
  virtual double value(outline_item) { return 0; }
  virtual bool is_editable(outline_item) { return false; }
  virtual bool is_enabled(outline_item) { return true; }
  virtual bool set_value(outline_item, double) { return false; }  ///< false: refused
  virtual bool has_value(outline_item) { return true; }           ///< false: an empty cell
  virtual double minimum(outline_item) { return -1e300; }
  virtual double maximum(outline_item) { return 1e300; }
  virtual double step(outline_item) { return 1; }
  virtual void text(outline_item, string_visitor) {}          ///< shown instead of the digits
  virtual std::uint32_t decimals(outline_item) { return 0; }  ///< 0: as many as the value needs
  using operations =
      column_order<&floating_outline_column_impl::value, &floating_outline_column_impl::is_editable,
                   &floating_outline_column_impl::is_enabled,
                   &floating_outline_column_impl::set_value,
                   &floating_outline_column_impl::has_value, &floating_outline_column_impl::minimum,
                   &floating_outline_column_impl::maximum, &floating_outline_column_impl::step,
                   &floating_outline_column_impl::text, &floating_outline_column_impl::decimals>;
};

/// Marks. A person changes them with a click or the space bar.
struct boolean_outline_column_impl : outline_column_interface<boolean_outline_column_impl> {
  static constexpr char name[] = "zu_boolean_outline_column_interface_7";
  virtual bool is_checked(outline_item) { return false; }
  virtual bool is_editable(outline_item) { return true; }
  virtual bool is_enabled(outline_item) { return true; }
  virtual void set_checked(outline_item, bool) {}
  virtual bool is_undecided(outline_item) { return false; }  ///< neither on nor off
  using operations = column_order<
      &boolean_outline_column_impl::is_checked, &boolean_outline_column_impl::is_editable,
      &boolean_outline_column_impl::is_enabled, &boolean_outline_column_impl::set_checked,
      &boolean_outline_column_impl::is_undecided>;
};

/// One of several choices.
struct enum_outline_column_impl : outline_column_interface<enum_outline_column_impl> {
  static constexpr char name[] = "zu_enum_outline_column_interface_6";
  virtual std::int32_t current(outline_item) { return -1; }  ///< -1: none
  virtual bool is_editable(outline_item) { return true; }
  virtual bool is_enabled(outline_item) { return true; }
  virtual bool set_current(outline_item, std::int32_t) { return false; }  ///< false: refused
  virtual std::uint32_t count(outline_item) { return 0; }
  virtual void choice_text(outline_item, std::uint32_t, string_visitor) {}
  virtual void choice_picture(outline_item, std::uint32_t, bitmap_visitor) {}
  using operations =
      column_order<&enum_outline_column_impl::current, &enum_outline_column_impl::is_editable,
                   &enum_outline_column_impl::is_enabled, &enum_outline_column_impl::set_current,
                   &enum_outline_column_impl::count, &enum_outline_column_impl::choice_text,
                   &enum_outline_column_impl::choice_picture>;
};

/// Pictures. They are shown at their size, smaller where the row is lower.
struct bitmap_outline_column_impl : outline_column_interface<bitmap_outline_column_impl> {
  static constexpr char name[] = "zu_bitmap_outline_column_interface_5";
  virtual void picture(outline_item, bitmap_visitor) {}
  using operations = column_order<&bitmap_outline_column_impl::picture>;
};

/// Pictures in the size that is wanted of them. A column of pictures may answer to this name too;
/// it is asked instead of its `picture` then.
struct sized_pictures_impl : plain_interface<sized_pictures_impl> {
  static constexpr char name[] = "zu_sized_pictures_interface_0";
  /// So many pixels, at least one each way, of which so many make a millimetre.
  virtual void picture_of(outline_item, std::uint32_t /*width*/, std::uint32_t /*height*/,
                          double /*dots_per_mm*/, bitmap_visitor) {}
  using operations = in_order<&sized_pictures_impl::picture_of>;
};

/// Cells that the column's owner draws.
struct canvas_outline_column_impl : outline_column_interface<canvas_outline_column_impl> {
  static constexpr char name[] = "zu_canvas_outline_column_interface_5";
  virtual void draw(outline_item, Tzu_drwc*) {}      ///< onto a page of the cell's size
  virtual double height(outline_item) { return 0; }  ///< millimetres; 0: a line of text
  using operations =
      column_order<&canvas_outline_column_impl::draw, &canvas_outline_column_impl::height>;
};

// --- The list, a flat outline of one column with fewer words

struct list_impl : plain_interface<list_impl> {
  static constexpr char name[] = "zu_list_interface_3";
  virtual std::uint32_t count() { return 0; }
  virtual void item_text(std::uint32_t, string_visitor) {}
  virtual void item_picture(std::uint32_t, bitmap_visitor) {}
  virtual void item_hint(std::uint32_t, string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual std::uint32_t selection_mode() { return outline_chooses_one; }
  virtual std::int32_t current() { return -1; }  ///< -1: none
  virtual void set_current(std::int32_t) {}
  virtual bool is_marked(std::uint32_t) { return false; }
  virtual void set_marked(std::uint32_t, bool) {}
  virtual void activate(std::uint32_t) {}  ///< a double click, or Enter
  virtual bool is_editable(std::uint32_t) { return false; }
  virtual bool set_text(std::uint32_t, const wchar_t*) { return false; }  ///< false: refused
  virtual void attach_view(element_view) {}  ///< slots as those of an outline's view
  using operations =
      in_order<&list_impl::count, &list_impl::item_text, &list_impl::item_picture,
               &list_impl::item_hint, &list_impl::hint, &list_impl::enabled,
               &list_impl::selection_mode, &list_impl::current, &list_impl::set_current,
               &list_impl::is_marked, &list_impl::set_marked, &list_impl::activate,
               &list_impl::is_editable, &list_impl::set_text, &list_impl::attach_view>;
};

}  // namespace zu
