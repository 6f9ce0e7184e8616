#include "src/style/page/colorby_field.h"

namespace zu::style::detail {

std::vector<std::wstring> field_names(const data::open_reference& source) {
  std::vector<std::wstring> names;
  data::generic_datasource opened;
  if (source.name.empty() || !opened.open(source, data::open_read_only)) return names;
  for (std::int64_t i = 0, count = opened.number_of_fields(); i < count; ++i)
    names.push_back(opened.field_name(i));
  return names;
}

}  // namespace zu::style::detail
