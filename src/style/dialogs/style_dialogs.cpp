#include "src/style/dialogs/style_dialogs.h"

#include "zu/platform/zuk_msgs.h"

namespace zu::dialog::detail {
namespace {

template <class dialog, class style> bool run_on(style* edited) {
  if (edited == nullptr) return false;
  dialog shown;
  shown.set(edited);
  return toolkit::run_dialog(shown);
}

}  // namespace

bool point_style::run(Tzu_pnt_style* edited) { return run_on<point_style>(edited); }
bool line_style::run(Tzu_pln_style* edited) { return run_on<line_style>(edited); }
bool polygon_style::run(Tzu_pgn_style* edited) { return run_on<polygon_style>(edited); }

}  // namespace zu::dialog::detail

namespace zu::style {

bool edit_color(Tzu_color* color) { return color != nullptr && zu_ask_color(color); }
bool edit_point_style(Tzu_pnt_style* style) { return dialog::detail::point_style::run(style); }
bool edit_line_style(Tzu_pln_style* style) { return dialog::detail::line_style::run(style); }
bool edit_polygon_style(Tzu_pgn_style* style) { return dialog::detail::polygon_style::run(style); }

}  // namespace zu::style
