#pragma once
// What the dialogs of the three kinds show of their style: a page a part, with a mark that says
// whether the part is drawn.

#include "src/style/dialogs/forms.h"
#include "src/toolkit/tabs.h"

namespace zu::style::detail {

/// A form and the mark over it.
template <class form> class part_page : public toolkit::with_element {
 public:
  part_page() {
    shown_.on_state = [this](bool shown) {
      write_(shown);
      tell();
    };
    form_.on_change = [this] { tell(); };
    root_.place(shown_).place(form_).set_column_stretch(0).set_row_stretch(2);
  }
  /// Edits a part of `whole` from now on.
  template <class style>
  void set(style* whole, typename form::style* part, bool (*is_shown)(const style*),
           void (*show)(style*, bool)) {
    write_ = [whole, show](bool shown) { show(whole, shown); };
    shown_.assign(is_shown(whole));
    form_.set(part);
  }
  std::function<void()> on_change;

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void tell() {
    if (on_change) on_change();
  }

  std::function<void(bool)> write_;
  toolkit::checkbox shown_{14903};
  form form_;
  toolkit::grid_layout<1, 3> root_;
};

class point_parts : public toolkit::with_element {
 public:
  point_parts();
  void set(Tzu_pnt_style* edited);
  std::function<void()> on_change;

  handle element() override { return point_.element(); }

 private:
  part_page<point_form> point_;
};

class line_parts : public toolkit::with_element {
 public:
  line_parts();
  void set(Tzu_pln_style* edited);
  std::function<void()> on_change;

  handle element() override { return toolkit::handle_of_element(tabs_); }

 private:
  Tzu_pln_style* edited_ = nullptr;
  part_page<line_form> line_;
  part_page<point_form> vertex_, begin_, end_;
  toolkit::tab_layout<2> marks_;
  toolkit::checkbox turns_{10501};
  toolkit::grid_layout<1, 2> ends_;
  part_page<number_form> number_;
  toolkit::tab_layout<4> tabs_;
};

class polygon_parts : public toolkit::with_element {
 public:
  polygon_parts();
  void set(Tzu_pgn_style* edited);
  std::function<void()> on_change;

  handle element() override { return toolkit::handle_of_element(tabs_); }

 private:
  part_page<fill_form> fill_;
  part_page<line_form> contour_;
  part_page<point_form> vertex_;
  part_page<number_form> number_;
  toolkit::tab_layout<4> tabs_;
};

}  // namespace zu::style::detail
