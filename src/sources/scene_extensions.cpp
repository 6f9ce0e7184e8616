#include "src/sources/scene_extensions.h"

#include "src/bundle/bitmaps.h"
#include "src/layer/layer_services.h"

namespace zu {

void scene_editor_extension::get_layer_type(string_visitor visitor) {
  toolkit::give_type(type_, visitor);
}

void scene_editor_extension::get_bitmap(bytes_visitor visitor) {
  get_bitmap_of_basic(bitmap_, visitor);
}

}  // namespace zu
