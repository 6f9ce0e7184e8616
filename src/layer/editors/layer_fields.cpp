#include "src/layer/editors/layer_fields.h"

#include "src/bundle/strings.h"

namespace zu::element {

data::open_reference source_of(Izu_layer* layer) {
  data::open_reference source;
  if (layer == nullptr) return source;
  source.name = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer, a); });
  source.opener = &zu_datasource_open;
  return source;
}

std::vector<std::wstring> field_names(const data::open_reference& reference) {
  std::vector<std::wstring> names;
  data::generic_datasource source;
  if (!source.open(reference, data::open_read_only)) return names;
  std::int64_t count = source.number_of_fields();
  for (std::int64_t field = 0; field < count; ++field) names.push_back(source.field_name(field));
  return names;
}

void overlay_field::assign_field(const data::open_reference& source, const std::wstring& name) {
  std::vector<std::wstring> names = field_names(source);
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
