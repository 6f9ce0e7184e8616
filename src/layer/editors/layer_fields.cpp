#include "src/layer/editors/layer_fields.h"

#include "src/bundle/strings.h"
#include "src/style/page/colorby_field.h"

namespace zu::element {

data::open_reference source_of(Izu_layer* layer) {
  data::open_reference source;
  if (layer == nullptr) return source;
  source.name = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer, a); });
  source.opener = &zu_datasource_open;
  return source;
}

void overlay_field::assign_field(const data::open_reference& source, const std::wstring& name) {
  std::vector<std::wstring> names = style::detail::field_names(source);
  if (names != names_) fill(std::move(names));
  assign_value(name);
}

void overlay_field::fill(std::vector<std::wstring> names) {
  constexpr std::int32_t field_of_style = 10655;
  clear();
  add(field_of_style, 0, std::wstring());
  for (const std::wstring& name : names) add(name, 0, name);
  names_ = std::move(names);
}

}  // namespace zu::element
