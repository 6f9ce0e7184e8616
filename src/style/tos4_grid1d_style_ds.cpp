#include "src/style/tos4_grid1d_style_ds.h"

#include <cwchar>

#include "src/bundle/texts.h"
#include "src/data/grid_datasource.h"

namespace zu::element {
namespace {

constexpr wchar_t only_field[] = L"Fields";
constexpr std::int32_t caption_text = 41;

}  // namespace

void tos4_grid1d_style_ds::field_name(std::int64_t field, string_visitor visitor) {
  if (field == 0) call<&string_visitor_impl::visit>(visitor, only_field);
}

void tos4_grid1d_style_ds::field_caption(std::int64_t field, string_visitor visitor) {
  if (field == 0) call<&string_visitor_impl::visit>(visitor, load_text(caption_text).c_str());
}

bool tos4_grid1d_style_ds::find_field(const wchar_t* name, std::int64_t* index) {
  if (std::wcscmp(name, only_field) != 0) return false;
  *index = 0;
  return true;
}

bool tos4_grid1d_style_ds::unique_texts(std::int64_t field, std::int64_t /*limit*/,
                                        string_visitor visitor) {
  data::open_reference reference;
  reference.name = source_;
  reference.opener = &zu_datasource_open;
  data::grid_datasource source;
  if (field != 0 || !source.open(reference, data::open_read_only)) return false;
  std::int64_t count = source.number_of_fields();
  for (std::int64_t band = 0; band < count; ++band)
    call<&string_visitor_impl::visit>(visitor, source.field_name(band).c_str());
  return true;
}

}  // namespace zu::element
