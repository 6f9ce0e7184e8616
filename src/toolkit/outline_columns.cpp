#include "src/toolkit/outline_columns.h"

#include "src/bundle/texts.h"

namespace zu::toolkit {
namespace {

void say(std::int32_t id, string_visitor visitor) {
  if (id > 0) get_text(id, visitor);
  if (id < 0) get_text_of_basic(-id, visitor);
}

}  // namespace

void outline_index_column::caption(string_visitor visitor) { say(caption_, visitor); }

std::int32_t outline_index_column::value(outline_item item) {
  return static_cast<std::int32_t>(call<&outline_item_impl::row>(item)) + 1;
}

template <class lambdas>
detail::outline_column_view<lambdas>::outline_column_view(const wchar_t* id, std::int32_t caption) {
  this->on_id = [id](string_visitor visitor) { call<&string_visitor_impl::visit>(visitor, id); };
  this->on_caption = [caption](string_visitor visitor) { say(caption, visitor); };
}

template class detail::outline_column_view<string_outline_column_lambdas>;
template class detail::outline_column_view<bitmap_outline_column_lambdas>;

}  // namespace zu::toolkit
