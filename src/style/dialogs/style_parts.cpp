#include "src/style/dialogs/style_parts.h"

namespace zu::style::detail {
namespace {

/// Has each part tell through the whole.
template <class whole, class... parts> void hear(whole& all, parts&... each) {
  ((each.on_change =
        [&all] {
          if (all.on_change) all.on_change();
        }),
   ...);
}

}  // namespace

point_parts::point_parts() { hear(*this, point_); }

void point_parts::set(Tzu_pnt_style* edited) {
  point_.set(edited, zu_pnt_style_get_bpnt_style_ptr(edited), &zu_pnt_style_get_pnt_visible,
             &zu_pnt_style_set_pnt_visible);
}

line_parts::line_parts() {
  hear(*this, line_, vertex_, begin_, end_, number_);
  turns_.on_state = [this](bool turn) {
    zu_pln_style_set_beg_use_line_dir(edited_, turn);
    zu_pln_style_set_end_use_line_dir(edited_, turn);
    if (on_change) on_change();
  };
  marks_.place(L"zu_line_style_dialog_beginning", 13605, begin_)
      .place(L"zu_line_style_dialog_end", 13606, end_);
  ends_.place(marks_).place(turns_).set_row_stretch(0);
  tabs_.place(L"zu_line_style_dialog_line", 13604, line_)
      .place(L"zu_line_style_dialog_vertices", 13609, vertex_)
      .place(L"zu_line_style_dialog_ends", 14914, ends_)
      .place(L"zu_line_style_dialog_numbers", 14904, number_);
}

void line_parts::set(Tzu_pln_style* edited) {
  edited_ = edited;
  line_.set(edited, zu_pln_style_get_bpln_style_ptr(edited), &zu_pln_style_get_pln_visible,
            &zu_pln_style_set_pln_visible);
  vertex_.set(edited, zu_pln_style_get_bpnt_style_ptr(edited), &zu_pln_style_get_pnt_visible,
              &zu_pln_style_set_pnt_visible);
  begin_.set(edited, zu_pln_style_get_bbeg_style_ptr(edited), &zu_pln_style_get_beg_visible,
             &zu_pln_style_set_beg_visible);
  end_.set(edited, zu_pln_style_get_bend_style_ptr(edited), &zu_pln_style_get_end_visible,
           &zu_pln_style_set_end_visible);
  turns_.assign(zu_pln_style_get_beg_use_line_dir(edited));
  number_.set(edited, zu_pln_style_get_bnum_style_ptr(edited), &zu_pln_style_get_num_visible,
              &zu_pln_style_set_num_visible);
}

polygon_parts::polygon_parts() {
  hear(*this, fill_, contour_, vertex_, number_);
  tabs_.place(L"zu_polygon_style_dialog_fill", 13607, fill_)
      .place(L"zu_polygon_style_dialog_contour", 13608, contour_)
      .place(L"zu_polygon_style_dialog_vertices", 13609, vertex_)
      .place(L"zu_polygon_style_dialog_numbers", 14904, number_);
}

void polygon_parts::set(Tzu_pgn_style* edited) {
  fill_.set(edited, zu_pgn_style_get_bpgn_style_ptr(edited), &zu_pgn_style_get_pgn_visible,
            &zu_pgn_style_set_pgn_visible);
  contour_.set(edited, zu_pgn_style_get_bpln_style_ptr(edited), &zu_pgn_style_get_pln_visible,
               &zu_pgn_style_set_pln_visible);
  vertex_.set(edited, zu_pgn_style_get_bpnt_style_ptr(edited), &zu_pgn_style_get_pnt_visible,
              &zu_pgn_style_set_pnt_visible);
  number_.set(edited, zu_pgn_style_get_bnum_style_ptr(edited), &zu_pgn_style_get_num_visible,
              &zu_pgn_style_set_num_visible);
}

}  // namespace zu::style::detail
