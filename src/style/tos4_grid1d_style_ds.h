#pragma once
// What the style editors of a profile take for its data: a field whose distinct texts are the names
// of the profile's bands. So a scale of values has a class for each band.

#include <string>

#include "zu/data_source.h"
#include "zu/polymorphic.h"

namespace zu::element {

class tos4_grid1d_style_ds : public polymorphic<data_source_impl>,
                             public polymorphic<stat_source_impl> {
 public:
  explicit tos4_grid1d_style_ds(std::wstring source) : source_(std::move(source)) {}

  std::int64_t field_count() override { return 1; }
  void field_name(std::int64_t field, string_visitor visitor) override;
  void field_caption(std::int64_t field, string_visitor visitor) override;
  bool find_field(const wchar_t* name, std::int64_t* index) override;
  /// All bands, whatever the limit. False if the source does not open.
  bool unique_texts(std::int64_t field, std::int64_t limit, string_visitor visitor) override;

 private:
  std::wstring source_;
};

}  // namespace zu::element
