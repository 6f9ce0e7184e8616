#pragma once
// The person's favourite styles of one kind, which stay across runs.

#include <functional>
#include <string>

#include "src/style/dialogs/lib_style_outline.h"
#include "src/toolkit/toolbars.h"

namespace zu::style {

struct favorites_point {
  using dialog_traits = detail::point_dialog_traits;
  static constexpr wchar_t file[] = L"point._ls";
};
struct favorites_line {
  using dialog_traits = detail::line_dialog_traits;
  static constexpr wchar_t file[] = L"line._ls";
};
struct favorites_polygon {
  using dialog_traits = detail::polygon_dialog_traits;
  static constexpr wchar_t file[] = L"polygon._ls";
};

template <class T> class favorites_list;

template <class T> class favorites_tools {
 public:
  explicit favorites_tools(favorites_list<T>& list);
  void visit_tools(toolkit::tools_visitor& into);

 private:
  toolkit::action_tool append_{10470}, remove_{10471}, save_{10472}, load_{10473};
};

/// Read when it is made and written when it ends. A file that is missing or cannot be read is no
/// matter; one that cannot be written is told of if the person would lose what they changed.
template <class T> class favorites_list : public toolkit::with_element {
 public:
  using traits = typename T::dialog_traits;
  using argument = typename traits::argument;

  favorites_list();
  ~favorites_list() override;

  /// The style above all others becomes that of `on_style`.
  void append();
  void remove();  ///< the current one, if there is one
  void save();
  void load();
  std::uint64_t size() const { return zu_style_list_get_size(styles_); }

  std::function<argument()> on_style;     ///< the style that a person would keep
  std::function<void(argument)> on_pick;  ///< they chose this one, which is the list's

  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  void show();
  void write(const std::wstring& path, bool aloud);

  bool changed_ = false;  // since it was read
  owned<zu_style_lib_destroy> library_{zu_style_lib_create()};
  Tzu_style_list* styles_;
  detail::lib_style_outline<traits> outline_;
  toolkit::toolbar<favorites_tools<T>> tools_{*this};
  toolkit::grid_layout<1, 2> root_;
};

/// Where favourites lie that are kept under the traits' file name. With `seed`, those that came
/// with the style libraries stand in for a file of the person's own that is not there. Empty if the
/// person has no folder for their own.
std::wstring favorites_path(const wchar_t* file, bool seed);

}  // namespace zu::style
