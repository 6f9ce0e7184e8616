#pragma once
// What stands behind the handles of symbols, lines and polygons. Copies are deep.

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "zu/platform/zuk_symbols.h"

struct Tzu_fnt_type {
  std::wstring family = L"DejaVu Sans";
  bool operator==(const Tzu_fnt_type&) const = default;
};

namespace zu::platform {

/// The complex style of a part, made when it is asked for. A copy is a style of its own.
class complex_part {
 public:
  explicit complex_part(const char* kind) : kind_(kind) {}
  complex_part(const complex_part& other);
  complex_part(complex_part&& other) noexcept;
  complex_part& operator=(const complex_part& other);
  complex_part& operator=(complex_part&& other) noexcept;
  ~complex_part();
  /// Null until `made`.
  const Tzu_cpx_style* get() const { return style_.get(); }
  Tzu_cpx_style* made();

 private:
  const char* kind_;  // a literal
  std::unique_ptr<Tzu_cpx_style> style_;
};

/// What the three base styles share.
struct with_complex {
  explicit with_complex(const char* kind) : complex(kind) {}
  /// The layers to draw in place of the fields; null if the fields are to be drawn.
  const Tzu_cpx_style* drawn_complex() const;
  bool use_complex = false;
  complex_part complex;
  int32_t render_level = 0;
};

}  // namespace zu::platform

struct Tzu_bpnt_style : zu::platform::with_complex {
  Tzu_bpnt_style() : with_complex("pnt") {}
  bool use_figure = true;
  int32_t figure = zu_figure_circle;
  uint32_t symbol = U'*';
  Tzu_fnt_type font;
  Tzu_color color{128, 128, 128, 0};
  double size = 2.0, dx = 0.0, dy = 0.0;  // millimetres
  double angle = 0.0;                     // degrees counter-clockwise
};

struct Tzu_pnt_style {
  Tzu_bpnt_style point;
  bool visible = true;
};

struct Tzu_bpln_style : zu::platform::with_complex {
  Tzu_bpln_style() : with_complex("pln") {}
  Tzu_color color{0, 0, 0, 0};
  double width = 0.2;  // millimetres
  int32_t cap = zu_cap_round, join = zu_join_round;
  std::vector<double> dashes;  // millimetres; at most zu_line_dashes
};

struct Tzu_bnum_style {
  Tzu_color color{0, 0, 0, 0};
  double size = 2.5;  // millimetres
  int32_t render_level = 0;
};

struct Tzu_pln_style {
  Tzu_pln_style();
  Tzu_bpln_style line;
  Tzu_bpnt_style vertex, begin, end;
  Tzu_bnum_style number;
  bool line_visible = true;
  bool vertex_visible = false, begin_visible = false, end_visible = false;
  bool number_visible = false;
  bool begin_turns = true, end_turns = true;  // with the line
};

struct Tzu_bpgn_style : zu::platform::with_complex {
  Tzu_bpgn_style() : with_complex("pgn") {}
  Tzu_color color{0, 0, 0, 128};
};

struct Tzu_pgn_style {
  Tzu_bpgn_style fill;
  Tzu_bpln_style contour;
  Tzu_bpnt_style vertex;
  Tzu_bnum_style number;
  bool fill_visible = true, contour_visible = true;
  bool vertex_visible = false, number_visible = false;
};

/// One layer of a complex style: a base style, whose own complex style is not looked at.
struct Tzu_style_lr {
  std::string type;  ///< "pnt_figr_slr", "pnt_symb_slr", "pln_line_slr" or "pgn_fill_slr"
  std::variant<Tzu_bpnt_style, Tzu_bpln_style, Tzu_bpgn_style> style;
};

struct Tzu_style_lrs {
  std::string kind;  ///< "pnt", "pln" or "pgn"
  std::vector<Tzu_style_lr> layers;
  /// A layer on top, as a new one of its type is; null if the type is not of the kind or unknown.
  Tzu_style_lr* add_layer(const std::string& type);
};

struct Tzu_cpx_style : Tzu_style_lrs {};

namespace zu::platform {
using style_layer = Tzu_style_lr;
}
