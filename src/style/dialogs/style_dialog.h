#pragma once
// A dialog around the parts of a style: preview, libraries, copy and paste, files.

#include "src/style/dialogs/favorites_list.h"
#include "src/toolkit/drawn.h"
#include "src/toolkit/tabs.h"

namespace zu::style::detail {

/// What takes a style out of the dialog and brings one in.
template <class traits> class style_exchange_tools {
 public:
  using argument = typename traits::argument;
  using style = typename traits::style;

  /// `loaded` is told when `edited` has become another style.
  style_exchange_tools(style* edited, std::function<void()> loaded);
  void visit_tools(toolkit::tools_visitor& into);

 private:
  void copy();
  void paste();
  void save();
  void load();

  style* edited_;
  std::function<void()> loaded_;
  toolkit::action_tool copy_{10008}, paste_{10010}, save_{14910}, load_{14911};
};

/// `T` is of the kind of `traits`.
template <class traits, class T> class style_dialog : public toolkit::with_element {
 public:
  using argument = typename traits::argument;
  using style = typename traits::style;

  style_dialog();
  /// Copies the style to edit, which gets the copy back when the person accepts.
  void set(style* edited);

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void reload();
  void picked(argument from);

  style* edited_ = nullptr;
  typename traits::holder own_ = traits::create();
  toolkit::toolbar<style_exchange_tools<traits>> tools_{own_.get(), [this] { reload(); }};
  typename traits::parts parts_;
  toolkit::canvas preview_{45, 30};  // millimetres
  toolkit::groupbox<1, 1> preview_frame_{10333};
  library_picker<traits> libraries_;
  favorites_list<T> favorites_;
  toolkit::tab_layout<2> ready_;
  toolkit::grid_layout<1, 2> side_;
  toolkit::grid_layout<2, 1> columns_;
  toolkit::button_box buttons_{toolkit::button_box::ok | toolkit::button_box::cancel};
  toolkit::grid_layout<1, 3> root_;
};

}  // namespace zu::style::detail
