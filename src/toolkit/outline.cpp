#include "src/toolkit/outline.h"

namespace zu::toolkit {

void outline_table::current(outline_item_visitor visitor) {
  std::int64_t row = current_row();
  if (row < 0) {
    call<&outline_item_visitor_impl::visit>(visitor, outline_item());
    return;
  }
  outline_table_item_index index(static_cast<std::uint32_t>(row));
  call<&outline_item_visitor_impl::visit>(visitor, index.item());
}

}  // namespace zu::toolkit
