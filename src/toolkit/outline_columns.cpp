#include "src/toolkit/outline_columns.h"

#include "src/toolkit/element.h"

namespace zu::toolkit {
void outline_index_column::caption(string_visitor visitor) { visit_text(caption_, visitor); }

std::int32_t outline_index_column::value(outline_item item) {
  return static_cast<std::int32_t>(call<&outline_item_impl::row>(item)) + 1;
}

template <class lambdas>
detail::outline_column_view<lambdas>::outline_column_view(const wchar_t* id, std::int32_t caption) {
  this->on_id = [id](string_visitor visitor) { call<&string_visitor_impl::visit>(visitor, id); };
  this->on_caption = [caption](string_visitor visitor) { visit_text(caption, visitor); };
}

template class detail::outline_column_view<string_outline_column_lambdas>;
template class detail::outline_column_view<bitmap_outline_column_lambdas>;

}  // namespace zu::toolkit
