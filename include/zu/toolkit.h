#pragma once
// User interface as plain objects. Whoever describes one serves elements; the host asks each
// element what it shows, builds the control, and leaves a view with it, which the element tells of
// changes.
//
// What a person does reaches an element by its setters; an element may refuse, and the host shows
// the old value again. Texts go to a string visitor: an element without one makes no call.
// Operations are in table order; an element is asked for its interface by query.

#include <cstdint>

#include "zu/handle.h"
#include "zu/strings.h"

extern "C" {
typedef struct Tzu_drwc Tzu_drwc;
typedef struct Tzu_histogramm_data Tzu_histogramm_data;
}

namespace zu {

// --- Views: the host's side of an element. Slot 1 tells of a value, 2 asks to show the element
// anew, 3 tells that its list or range is another. Any of them may be called through any view
// interface that has the slot with the same arguments. A host ends a view by attaching an empty
// handle.

struct element_view_impl : plain_interface<element_view_impl> {
  static constexpr char name[] = "zu_element_view_interface_1";
  virtual void value_changed() {}
  virtual void redraw() {}
  virtual void list_changed() {}
  using operations = in_order<&element_view_impl::value_changed, &element_view_impl::redraw,
                              &element_view_impl::list_changed>;
};
using element_view = of<element_view_impl>;

struct integer_view_impl : plain_interface<integer_view_impl> {
  static constexpr char name[] = "zu_integer_view_interface_1";
  virtual void value_changed(std::int32_t) {}
  virtual void redraw() {}
  virtual void range_changed() {}
  using operations = in_order<&integer_view_impl::value_changed, &integer_view_impl::redraw,
                              &integer_view_impl::range_changed>;
};
using integer_view = of<integer_view_impl>;

struct floating_view_impl : plain_interface<floating_view_impl> {
  static constexpr char name[] = "zu_floating_view_interface_1";
  virtual void value_changed(double) {}
  virtual void redraw() {}
  virtual void range_changed() {}
  using operations = in_order<&floating_view_impl::value_changed, &floating_view_impl::redraw,
                              &floating_view_impl::range_changed>;
};
using floating_view = of<floating_view_impl>;

// --- What elements show

/// A picture of whoever serves it; lives during the visit.
struct bitmap_impl : plain_interface<bitmap_impl> {
  static constexpr char name[] = "zu_bitmap_interface_4";
  virtual void pixels(bytes_visitor) {}  ///< no call if there is none
  /// Number of the picture, below 0 for those that all parts share: a host may have a better one.
  virtual std::int32_t id() { return 0; }
  using operations = in_order<&bitmap_impl::pixels, &bitmap_impl::id>;
};
using bitmap = of<bitmap_impl>;

struct bitmap_visitor_impl : plain_interface<bitmap_visitor_impl> {
  static constexpr char name[] = "zu_bitmap_visitor_interface_4";
  virtual void visit(bitmap) {}
  using operations = in_order<&bitmap_visitor_impl::visit>;
};
using bitmap_visitor = of<bitmap_visitor_impl>;

/// Takes an element of any kind, by the handle of its own interface.
struct element_visitor_impl : plain_interface<element_visitor_impl> {
  static constexpr char name[] = "zu_element_visitor_interface_1";
  virtual void visit(handle /*element*/) {}
  using operations = in_order<&element_visitor_impl::visit>;
};
using element_visitor = of<element_visitor_impl>;

// --- Layouts

/// Cells in columns and rows. Sizes are in units of about a character's half height; 0 is by
/// content.
struct grid_layout_impl : plain_interface<grid_layout_impl> {
  static constexpr char name[] = "zu_grid_layout_interface_91";
  virtual std::uint32_t column_count() { return 0; }
  virtual std::uint32_t row_count() { return 0; }
  /// No call for an empty cell; a child over several cells stands in the one of least numbers.
  virtual void visit_cell(std::uint32_t /*column*/, std::uint32_t /*row*/, element_visitor) {}
  virtual std::uint32_t column_span(std::uint32_t /*column*/, std::uint32_t /*row*/) { return 1; }
  virtual std::uint32_t row_span(std::uint32_t /*column*/, std::uint32_t /*row*/) { return 1; }
  virtual bool column_stretch(std::uint32_t) { return false; }  ///< takes spare width
  virtual bool row_stretch(std::uint32_t) { return false; }
  virtual bool column_visible(std::uint32_t) { return true; }
  virtual bool row_visible(std::uint32_t) { return true; }
  virtual std::uint32_t column_size(std::uint32_t) { return 0; }
  virtual std::uint32_t row_size(std::uint32_t) { return 0; }
  virtual std::uint32_t spacing() { return 0; }
  virtual void attach_view(element_view) {}
  using operations = in_order<&grid_layout_impl::column_count, &grid_layout_impl::row_count,
                              &grid_layout_impl::visit_cell, &grid_layout_impl::column_span,
                              &grid_layout_impl::row_span, &grid_layout_impl::column_stretch,
                              &grid_layout_impl::row_stretch, &grid_layout_impl::column_visible,
                              &grid_layout_impl::row_visible, &grid_layout_impl::column_size,
                              &grid_layout_impl::row_size, &grid_layout_impl::spacing,
                              &grid_layout_impl::attach_view>;
};
using grid_layout = of<grid_layout_impl>;

/// A layout with a frame.
struct groupbox_impl : plain_interface<groupbox_impl> {
  static constexpr char name[] = "zu_groupbox_interface_92";
  virtual void caption(string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual handle layout() { return {}; }      ///< of the inner layout
  virtual bool checkable() { return false; }  ///< the frame has a mark that enables its inside
  virtual void attach_view(element_view) {}
  virtual bool checked() { return true; }
  virtual void set_checked(bool) {}
  using operations = in_order<&groupbox_impl::caption, &groupbox_impl::hint, &groupbox_impl::layout,
                              &groupbox_impl::checkable, &groupbox_impl::attach_view,
                              &groupbox_impl::checked, &groupbox_impl::set_checked>;
};

/// Pages of which one shows.
struct stack_layout_impl : plain_interface<stack_layout_impl> {
  static constexpr char name[] = "zu_stack_layout_interface_67";
  virtual std::uint32_t count() { return 0; }
  virtual void visit_page(std::uint32_t, element_visitor) {}
  virtual std::uint32_t current() { return 0; }
  virtual void attach_view(element_view) {}
  using operations = in_order<&stack_layout_impl::count, &stack_layout_impl::visit_page,
                              &stack_layout_impl::current, &stack_layout_impl::attach_view>;
};

/// A titled panel around a tree of elements: docked, a tab, or the inside of a dialog.
struct docker_impl : plain_interface<docker_impl> {
  static constexpr char name[] = "zu_docker_interface_92";
  virtual void visit_image(bitmap_visitor) {}
  virtual void visit_caption(string_visitor) {}
  virtual void visit_element(element_visitor) {}
  virtual std::uint32_t mode() { return 0; }
  virtual std::int32_t preferred_size() { return -1; }  ///< -1: by content
  virtual void attach_view(element_view) {}
  using operations =
      in_order<&docker_impl::visit_image, &docker_impl::visit_caption, &docker_impl::visit_element,
               &docker_impl::mode, &docker_impl::preferred_size, &docker_impl::attach_view>;
};
using docker = of<docker_impl>;

struct docker_visitor_impl : plain_interface<docker_visitor_impl> {
  static constexpr char name[] = "zu_docker_visitor_interface_92";
  virtual void visit(const wchar_t* /*id*/, docker) {}
  using operations = in_order<&docker_visitor_impl::visit>;
};
using docker_visitor = of<docker_visitor_impl>;

/// Tabs, each a docker under a name by which a host remembers the last one.
struct tab_layout_impl : plain_interface<tab_layout_impl> {
  static constexpr char name[] = "zu_tab_layout_interface_91";
  virtual std::uint32_t count() { return 0; }
  virtual void visit_tab(std::uint32_t, docker_visitor) {}
  virtual std::int32_t current() { return 0; }
  virtual void set_current(std::int32_t) {}
  virtual void attach_view(element_view) {}
  using operations =
      in_order<&tab_layout_impl::count, &tab_layout_impl::visit_tab, &tab_layout_impl::current,
               &tab_layout_impl::set_current, &tab_layout_impl::attach_view>;
};

// --- The row of standard buttons of a dialog

/// Hears of a pressed button that is none of the standard ones.
struct button_box_handler_impl : plain_interface<button_box_handler_impl> {
  static constexpr char name[] = "zu_button_box_handler_interface_0";
  virtual void pressed(std::uint32_t /*role*/) {}
  using operations = in_order<&button_box_handler_impl::pressed>;
};
using button_box_handler = of<button_box_handler_impl>;

struct button_box_impl : plain_interface<button_box_impl> {
  static constexpr char name[] = "zu_button_box_interface_2";
  virtual std::uint32_t count() { return 0; }
  virtual std::uint32_t kind(std::uint32_t) { return 0; }  ///< 1 a button
  virtual void caption(std::uint32_t, string_visitor) {}
  /// 1 and 2 accept, 4 and 8 cancel, 16 applies, 32 is yes and 64 no.
  virtual std::uint32_t role(std::uint32_t) { return 0; }
  virtual bool press(std::int32_t) { return true; }  ///< true lets the dialog close
  virtual void attach_handler(button_box_handler) {}
  virtual void attach_view(element_view) {}
  using operations =
      in_order<&button_box_impl::count, &button_box_impl::kind, &button_box_impl::caption,
               &button_box_impl::role, &button_box_impl::press, &button_box_impl::attach_handler,
               &button_box_impl::attach_view>;
};

// --- Texts and pictures

struct label_impl : plain_interface<label_impl> {
  static constexpr char name[] = "zu_label_interface_2";
  virtual void text(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual void attach_view(element_view) {}
  using operations = in_order<&label_impl::text, &label_impl::enabled, &label_impl::attach_view>;
};

struct image_impl : plain_interface<image_impl> {
  static constexpr char name[] = "zu_image_interface_4";
  virtual void picture(bitmap_visitor) {}
  virtual bool enabled() { return true; }
  virtual bool visible() { return true; }
  virtual void attach_view(element_view) {}
  using operations = in_order<&image_impl::picture, &image_impl::enabled, &image_impl::visible,
                              &image_impl::attach_view>;
};

// --- Buttons

struct button_impl : plain_interface<button_impl> {
  static constexpr char name[] = "zu_button_interface_4";
  virtual void picture(bitmap_visitor) {}
  virtual void caption(string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual handle image() { return {}; }  ///< an image element shown instead of a picture, or empty
  virtual bool enabled() { return true; }
  virtual bool visible() { return true; }
  virtual bool pressed() { return false; }
  virtual bool toggle() { return false; }  ///< stays down until the next press
  virtual void press() {}
  virtual void attach_view(element_view) {}
  virtual bool is_link() { return false; }  ///< shown as a link
  using operations = in_order<&button_impl::picture, &button_impl::caption, &button_impl::hint,
                              &button_impl::image, &button_impl::enabled, &button_impl::visible,
                              &button_impl::pressed, &button_impl::toggle, &button_impl::press,
                              &button_impl::attach_view, &button_impl::is_link>;
};

struct radiobutton_impl : plain_interface<radiobutton_impl> {
  static constexpr char name[] = "zu_radiobutton_interface_1";
  virtual void picture(bitmap_visitor) {}
  virtual void caption(string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual handle image() { return {}; }
  virtual bool enabled() { return true; }
  virtual bool visible() { return true; }
  virtual bool pressed() { return false; }
  virtual void press() {}
  virtual void attach_view(element_view) {}
  using operations =
      in_order<&radiobutton_impl::picture, &radiobutton_impl::caption, &radiobutton_impl::hint,
               &radiobutton_impl::image, &radiobutton_impl::enabled, &radiobutton_impl::visible,
               &radiobutton_impl::pressed, &radiobutton_impl::press,
               &radiobutton_impl::attach_view>;
};

struct checkbox_impl : plain_interface<checkbox_impl> {
  static constexpr char name[] = "zu_checkbox_interface_2";
  virtual void caption(string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual bool is_undecided() { return false; }
  virtual bool is_checked() { return false; }
  virtual void set_checked(bool) {}
  virtual void attach_view(element_view) {}
  using operations =
      in_order<&checkbox_impl::caption, &checkbox_impl::hint, &checkbox_impl::enabled,
               &checkbox_impl::is_undecided, &checkbox_impl::is_checked,
               &checkbox_impl::set_checked, &checkbox_impl::attach_view>;
};

// --- Inputs. Widths are in characters, heights in lines; 0 is by content. What a person types goes
// to the setter, which may refuse it by false; leaving the control, or Enter, is the commit.

/// The marked part of a text, in characters from 0; an empty one is the cursor.
struct text_selection_impl : plain_interface<text_selection_impl> {
  static constexpr char name[] = "zu_text_selection_interface_0";
  virtual std::uint32_t begin() { return 0; }
  virtual std::uint32_t end() { return 0; }
  virtual void select(std::uint32_t /*begin*/, std::uint32_t /*end*/) {}
  using operations = in_order<&text_selection_impl::begin, &text_selection_impl::end,
                              &text_selection_impl::select>;
};

struct input_impl : plain_interface<input_impl> {
  static constexpr char name[] = "zu_input_interface_8";
  virtual void text(string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual bool visible() { return true; }
  virtual bool read_only() { return false; }
  virtual std::uint32_t width() { return 0; }
  virtual handle cursor() { return {}; }  ///< a text selection, or empty
  virtual bool set_text(const wchar_t*) { return false; }
  virtual void commit() {}
  virtual void attach_view(element_view) {}
  using operations =
      in_order<&input_impl::text, &input_impl::hint, &input_impl::enabled, &input_impl::visible,
               &input_impl::read_only, &input_impl::width, &input_impl::cursor,
               &input_impl::set_text, &input_impl::commit, &input_impl::attach_view>;
};

/// An input with a list of suggestions.
struct assisted_input_impl : plain_interface<assisted_input_impl> {
  static constexpr char name[] = "zu_assisted_input_interface_3";
  virtual void text(string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual bool visible() { return true; }
  virtual bool read_only() { return false; }
  virtual std::uint32_t width() { return 0; }
  virtual handle cursor() { return {}; }
  virtual bool set_text(const wchar_t*) { return false; }
  virtual void commit() {}
  virtual void visit_suggestions(string_visitor) {}  ///< a call each
  virtual void attach_view(element_view) {}
  using operations = in_order<
      &assisted_input_impl::text, &assisted_input_impl::hint, &assisted_input_impl::enabled,
      &assisted_input_impl::visible, &assisted_input_impl::read_only, &assisted_input_impl::width,
      &assisted_input_impl::cursor, &assisted_input_impl::set_text, &assisted_input_impl::commit,
      &assisted_input_impl::visit_suggestions, &assisted_input_impl::attach_view>;
};

struct multiline_input_impl : plain_interface<multiline_input_impl> {
  static constexpr char name[] = "zu_multiline_input_interface_6";
  virtual void text(string_visitor) {}
  virtual handle selection() { return {}; }  ///< a text selection
  /// Puts a text in place of the marked part; the cursor stands behind it then.
  virtual void replace_selection(const wchar_t*) {}
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual bool read_only() { return false; }
  virtual std::uint32_t width() { return 0; }
  virtual std::uint32_t lines() { return 0; }
  virtual bool monospaced() { return false; }
  virtual bool set_text(const wchar_t*) { return false; }
  virtual void commit() {}
  virtual void attach_view(element_view) {}
  using operations = in_order<&multiline_input_impl::text, &multiline_input_impl::selection,
                              &multiline_input_impl::replace_selection, &multiline_input_impl::hint,
                              &multiline_input_impl::enabled, &multiline_input_impl::read_only,
                              &multiline_input_impl::width, &multiline_input_impl::lines,
                              &multiline_input_impl::monospaced, &multiline_input_impl::set_text,
                              &multiline_input_impl::commit, &multiline_input_impl::attach_view>;
};

struct integer_input_impl : plain_interface<integer_input_impl> {
  static constexpr char name[] = "zu_integer_input_interface_6";
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual bool read_only() { return false; }
  virtual std::int32_t minimum() { return 0; }
  virtual std::int32_t maximum() { return 0; }
  virtual std::int32_t step() { return 1; }
  virtual std::uint32_t width() { return 0; }
  virtual std::uint32_t decimals() { return 0; }
  virtual std::int32_t value() { return 0; }
  virtual bool set_value(std::int32_t) { return false; }
  virtual void apply() {}
  virtual void attach_view(integer_view) {}
  using operations = in_order<
      &integer_input_impl::hint, &integer_input_impl::enabled, &integer_input_impl::read_only,
      &integer_input_impl::minimum, &integer_input_impl::maximum, &integer_input_impl::step,
      &integer_input_impl::width, &integer_input_impl::decimals, &integer_input_impl::value,
      &integer_input_impl::set_value, &integer_input_impl::apply, &integer_input_impl::attach_view>;
};

struct floating_input_impl : plain_interface<floating_input_impl> {
  static constexpr char name[] = "zu_floating_input_interface_7";
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual bool read_only() { return false; }
  virtual double minimum() { return 0; }
  virtual double maximum() { return 0; }
  virtual double step() { return 1; }
  virtual std::uint32_t width() { return 0; }
  virtual std::uint32_t decimals() { return 0; }  ///< 0: as many as the value needs
  virtual double value() { return 0; }
  virtual bool set_value(double) { return false; }
  virtual void apply() {}
  virtual void attach_view(floating_view) {}
  using operations = in_order<&floating_input_impl::hint, &floating_input_impl::enabled,
                              &floating_input_impl::read_only, &floating_input_impl::minimum,
                              &floating_input_impl::maximum, &floating_input_impl::step,
                              &floating_input_impl::width, &floating_input_impl::decimals,
                              &floating_input_impl::value, &floating_input_impl::set_value,
                              &floating_input_impl::apply, &floating_input_impl::attach_view>;
};

/// Whole positions from 0 to a maximum.
struct slider_impl : plain_interface<slider_impl> {
  static constexpr char name[] = "zu_slider_interface_2";
  virtual std::int32_t value() { return 0; }
  virtual std::int32_t maximum() { return 0; }
  virtual std::int32_t step() { return 1; }
  virtual std::int32_t tick() { return 10; }
  virtual std::int32_t page() { return 10; }
  virtual bool enabled() { return true; }
  virtual void set_value(std::int32_t) {}
  virtual void apply() {}  ///< the person let go
  virtual void attach_view(integer_view) {}
  using operations =
      in_order<&slider_impl::value, &slider_impl::maximum, &slider_impl::step, &slider_impl::tick,
               &slider_impl::page, &slider_impl::enabled, &slider_impl::set_value,
               &slider_impl::apply, &slider_impl::attach_view>;
};

struct dropdown_impl : plain_interface<dropdown_impl> {
  static constexpr char name[] = "zu_dropdown_interface_3";
  virtual std::uint32_t count() { return 0; }
  virtual void item_text(std::uint32_t, string_visitor) {}
  virtual std::int32_t current() { return -1; }  ///< -1: none
  virtual void set_current(std::int32_t) {}
  virtual void attach_view(element_view) {}
  virtual void item_picture(std::uint32_t, bitmap_visitor) {}
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  using operations =
      in_order<&dropdown_impl::count, &dropdown_impl::item_text, &dropdown_impl::current,
               &dropdown_impl::set_current, &dropdown_impl::attach_view,
               &dropdown_impl::item_picture, &dropdown_impl::hint, &dropdown_impl::enabled>;
};

// --- Outputs: what a person reads and copies, and does not change

struct output_impl : plain_interface<output_impl> {
  static constexpr char name[] = "zu_output_interface_2";
  virtual void text(string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual bool visible() { return true; }
  virtual std::uint32_t width() { return 0; }
  virtual void attach_view(element_view) {}
  using operations =
      in_order<&output_impl::text, &output_impl::hint, &output_impl::enabled, &output_impl::visible,
               &output_impl::width, &output_impl::attach_view>;
};

struct multiline_output_impl : plain_interface<multiline_output_impl> {
  static constexpr char name[] = "zu_multiline_output_interface_2";
  virtual void text(string_visitor) {}
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual std::uint32_t width() { return 0; }
  virtual std::uint32_t lines() { return 0; }
  virtual bool monospaced() { return false; }
  virtual void attach_view(element_view) {}
  using operations = in_order<&multiline_output_impl::text, &multiline_output_impl::hint,
                              &multiline_output_impl::enabled, &multiline_output_impl::width,
                              &multiline_output_impl::lines, &multiline_output_impl::monospaced,
                              &multiline_output_impl::attach_view>;
};

struct integer_output_impl : plain_interface<integer_output_impl> {
  static constexpr char name[] = "zu_integer_output_interface_2";
  virtual std::int32_t value() { return 0; }
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual std::uint32_t width() { return 0; }
  virtual void attach_view(integer_view) {}
  using operations = in_order<&integer_output_impl::value, &integer_output_impl::hint,
                              &integer_output_impl::enabled, &integer_output_impl::width,
                              &integer_output_impl::attach_view>;
};

struct floating_output_impl : plain_interface<floating_output_impl> {
  static constexpr char name[] = "zu_floating_output_interface_2";
  virtual double value() { return 0; }
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual std::uint32_t width() { return 0; }
  virtual std::uint32_t decimals() { return 0; }  ///< 0: as many as the value needs
  virtual void attach_view(floating_view) {}
  using operations = in_order<&floating_output_impl::value, &floating_output_impl::hint,
                              &floating_output_impl::enabled, &floating_output_impl::width,
                              &floating_output_impl::decimals, &floating_output_impl::attach_view>;
};

// --- Drawn elements

/// A point of a picture or scene; x to the right, y upwards.
struct point_2d {
  double x = 0, y = 0;
};

/// Buttons and keys that are down, as bits of a number.
enum pointer_flags : std::uint32_t {
  pointer_modifier_0 = 1,  ///< adds to what was there; a host's Shift
  pointer_modifier_1 = 2,  ///< turns the meaning round; a host's Ctrl
  pointer_left = 8,
};

/// A picture that its owner draws. Points are millimetres from the low left corner.
struct canvas_impl : plain_interface<canvas_impl> {
  static constexpr char name[] = "zu_canvas_interface_2";
  virtual double width() { return 0; }  ///< millimetres it would like; 0: whatever there is
  virtual double height() { return 0; }
  virtual void draw(Tzu_drwc*) {}  ///< onto a page of the size in force
  virtual void hover(std::uint32_t /*flags*/, point_2d) {}
  virtual void press(std::uint32_t, point_2d) {}
  virtual void drag(std::uint32_t, point_2d) {}
  virtual void release(std::uint32_t, point_2d) {}
  virtual void double_click(std::uint32_t, point_2d) {}
  virtual void hint(string_visitor) {}
  virtual bool enabled() { return true; }
  virtual void attach_view(element_view) {}
  using operations = in_order<&canvas_impl::width, &canvas_impl::height, &canvas_impl::draw,
                              &canvas_impl::hover, &canvas_impl::press, &canvas_impl::drag,
                              &canvas_impl::release, &canvas_impl::double_click, &canvas_impl::hint,
                              &canvas_impl::enabled, &canvas_impl::attach_view>;
};

struct histogram_data_visitor_impl : plain_interface<histogram_data_visitor_impl> {
  static constexpr char name[] = "zu_histogram_visitor_interface_4";
  virtual void visit(const Tzu_histogramm_data*) {}  ///< lives during the call
  using operations = in_order<&histogram_data_visitor_impl::visit>;
};
using histogram_data_visitor = of<histogram_data_visitor_impl>;

/// Bars of a distribution, with the limits that a person drags over them.
struct histogram_impl : plain_interface<histogram_impl> {
  static constexpr char name[] = "zu_histogram_interface_4";
  virtual std::int32_t show() { return 1; }                ///< 0: the frame alone
  virtual void visit_histogram(histogram_data_visitor) {}  ///< no call while there is none
  virtual double minimum() { return 0; }
  virtual double maximum() { return 1; }
  virtual void set_range(double /*minimum*/, double /*maximum*/) {}
  virtual void attach_view(element_view) {}
  using operations =
      in_order<&histogram_impl::show, &histogram_impl::visit_histogram, &histogram_impl::minimum,
               &histogram_impl::maximum, &histogram_impl::set_range, &histogram_impl::attach_view>;
};

}  // namespace zu
