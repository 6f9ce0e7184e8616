#include "src/toolkit/element.h"

#include "src/bundle/bitmaps.h"
#include "src/bundle/texts.h"

namespace zu::toolkit {

void visit_text(std::int32_t id, string_visitor visitor) {
  if (id > 0)
    get_text(id, visitor);
  else if (id < 0)
    get_text_of_basic(-id, visitor);
}

void bitmap::pixels(bytes_visitor visitor) {
  if (id_ > 0)
    get_bitmap({id_, masked_}, visitor);
  else if (id_ < 0)
    get_bitmap_of_basic(-id_, visitor);
}

void visit_bitmap(std::int32_t id, bitmap_visitor visitor) {
  if (id == 0) return;
  bitmap picture(id);
  call<&bitmap_visitor_impl::visit>(visitor, handle_of<bitmap_impl>(picture));
}

}  // namespace zu::toolkit
