#pragma once
// What pictures in memory and pages of documents have in common: a page of pixels, on which Cairo
// draws lines and texts inside a clip and a region.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/zuk_drwc/cairo_owned.h"
#include "platform/zuk_drwc/put_dib.h"
#include "zu/platform/zuk_drwc.h"

namespace zu::platform {

class line_numbers;
class mark;
struct line_piece;
struct mark_place;
struct strokes;

class drawing_context {
 public:
  virtual ~drawing_context() = default;
  drawing_context(const drawing_context&) = delete;
  drawing_context& operator=(const drawing_context&) = delete;

  bool is_accurate() const { return accurate_; }
  Tzu_box_d2 page() const;
  double dots_per_mm() const { return per_mm_; }
  /// The box's sides on whole pixels; empty if nothing can be drawn.
  pixel_box pixels_of(const Tzu_box_d2& millimetres) const;

  virtual void fill(Tzu_color color) = 0;
  virtual void draw(const Tzu_dib_draw_record& record, const Tzu_dib& dib) = 0;
  void draw_lines(const Tzu_ov_d2& lines, const Tzu_pln_style& style);
  /// Places in millimetres.
  void draw_points(std::uint64_t count, const double* x, const double* y,
                   const Tzu_pnt_style& style);
  void draw_polygon(const Tzu_ov_d2& rings, const Tzu_pgn_style& style);
  /// The height is that of the font; the anchor is a `Tzu_text_anchor`. Throws std::bad_alloc.
  void draw_text(double x_mm, double y_mm, double height_mm, int anchor, Tzu_color color,
                 const std::string& utf8);
  double text_width(double height_mm, const std::string& utf8) const;  ///< millimetres
  void fill_box(const Tzu_box_d2& millimetres, Tzu_color color);
  void set_clip(const Tzu_ov_d2* polygon);
  void clear_clip();
  void set_region(const Tzu_box_d2* millimetres);
  /// Objects nest: only the innermost open one can be ended, by its name; false for another name.
  void begin_object(const std::wstring& name);
  bool end_object(const std::wstring& name);
  /// Whether anything visible was drawn.
  virtual bool has_ink() const = 0;
  /// Straight (not premultiplied) r, g, b, opacity, the top row first. Only pictures have pixels.
  virtual void copy_pixels(std::uint8_t*) const {}
  /// Premultiplied, where they stand.
  virtual const std::uint32_t* words(std::uint64_t& /*row_bytes*/) const { return nullptr; }
  /// Throws `write_failure`.
  virtual void save(const std::string& path, const Tzu_box_d2* georeference,
                    const std::string& projection) = 0;

 protected:
  /// A page of so many pixels; its lowest row of pixels begins at the page's lower side.
  drawing_context(double width, double height, double dots_per_inch, bool accurate,
                  std::uint64_t largest_side);

  /// The region in pixels, or the whole page.
  pixel_box region() const;
  /// The region and, where pieces of a page are to lap over each other, a dot more to the right and
  /// above: viewers soften the edges of what a document holds, and a piece that reaches under the
  /// next one hides the seam. Only what is opaque may be drawn there.
  pixel_box bled_region() const;
  /// The one of the two that what has a colour may be drawn in.
  pixel_box region_for(Tzu_color color) const { return color.a == 0 ? bled_region() : region(); }
  struct restored {
    void operator()(cairo_t* cairo) const { cairo_restore(cairo); }
  };
  using saved_state = std::unique_ptr<cairo_t, restored>;
  /// Clips what Cairo draws while the result lives to a box, if there is a region.
  [[nodiscard]] saved_state clipped_to(const pixel_box& box);
  virtual void inked() {}
  virtual void stroke_lines(const strokes& lines);
  /// Draws a symbol that is not empty at all places, one over the other.
  virtual void put_marks(const mark& drawn, const std::vector<mark_place>& places);
  /// Marks of a picture keep to its pixels.
  virtual bool has_pixels() const { return false; }
  void set_color(Tzu_color color);
  /// Takes note of an object inside another one (0: the page itself); what it is to be called by as
  /// the outer one of others.
  virtual int note_object(int, const std::wstring&) { return 0; }

  double width_, height_;   ///< of the page in pixels
  double per_mm_;           ///< pixels a millimetre
  std::int64_t bleed_ = 0;  ///< dots by which pieces lap over the next ones
  bool accurate_, clipped_ = false;
  std::uint64_t largest_side_;  ///< of a DIB
  std::optional<pixel_box> region_;
  std::vector<Tzu_box_d2> labels_;  ///< boxes of the numbers on lines, in pixels, y downwards
  cairo_ptr cairo_;                 ///< user space: pixels of the page, y downwards

 private:
  /// Draws lines with a style's plain fields or its layers.
  void stroke_styled(const Tzu_ov_d2& lines, const Tzu_bpln_style& style,
                     const Tzu_bnum_style* numbered);
  void put_styled(const std::vector<mark_place>& places, const Tzu_bpnt_style& style);
  void fill_rings(const Tzu_ov_d2& rings, Tzu_color color);
  /// The path of a polygon, and the rule by which it is filled.
  void add_rings(const Tzu_ov_d2& polygon);
  std::vector<Tzu_vtx_d2> in_pixels(Tzu_pv_d2* list) const;

  struct open_object {
    std::wstring name;
    int noted;
  };
  std::vector<open_object> objects_;  // the innermost last
};

}  // namespace zu::platform
