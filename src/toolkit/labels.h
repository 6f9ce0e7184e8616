#pragma once
// Texts and pictures that a person only looks at.

#include <string>

#include "src/toolkit/element.h"

namespace zu::toolkit {

class label : public mixed<label_impl, with_enabled> {
 public:
  explicit label(std::int32_t text = 0) : text_(text) {}
  void text(string_visitor visitor) override { visit_text(text_, visitor); }
  void set_text(std::int32_t id) {
    if (replace(text_, id)) redraw();
  }

 private:
  std::int32_t text_;
};

/// A label whose text stands in place of "%ls" in a format; a format without it stands alone.
class label_ex : public label {
 public:
  explicit label_ex(std::int32_t text = 0, std::wstring format = L"%ls")
      : label(text), format_(std::move(format)) {}
  void text(string_visitor visitor) override;
  void set_format(std::wstring format) {
    if (replace(format_, std::move(format))) redraw();
  }

 private:
  std::wstring format_;
};

class image : public mixed<image_impl, with_picture, with_enabled, with_visible> {
 public:
  explicit image(std::int32_t picture = 0) { set_picture(picture); }
};

}  // namespace zu::toolkit
