#pragma once
// A page of a document: bitmaps become its images, lines stay lines and texts stay texts.

#include <map>
#include <utility>

#include "platform/zuk_drwc/drawing_context.h"

namespace zu::platform {

enum class document_kind { pdf, svg };

class vector_context : public drawing_context {
 public:
  /// What PDF readers open: 200 inches a side.
  static constexpr double largest_page = 5080;  ///< millimetres a side
  static constexpr double most_dots = 9600;     ///< an inch

  /// Throws std::bad_alloc for a page that cannot be had.
  vector_context(document_kind kind, double width_mm, double height_mm, double dots_per_inch);
  ~vector_context() override;

  void fill(Tzu_color color) override;
  void draw(const Tzu_dib_draw_record& record, const Tzu_dib& dib) override;
  bool has_ink() const override { return has_ink_; }
  /// The document is complete then: what is drawn afterwards is lost.
  void save(const std::string& path, const Tzu_box_d2* georeference,
            const std::string& projection) override;

 private:
  void inked() override { has_ink_ = true; }
  /// A PDF lists its objects in its outline, each once.
  int note_object(int outer, const std::wstring& name) override;

  document_kind kind_;
  std::string bytes_;  ///< what Cairo has written
  surface_ptr surface_;
  std::map<std::pair<int, std::wstring>, int> outline_;  ///< entry of an outer one and a name
  bool has_ink_ = false, complete_ = false;
  cairo_status_t failure_ = CAIRO_STATUS_SUCCESS;  ///< of a complete document
};

}  // namespace zu::platform
