#pragma once
// The kinds of layer that this bundle adds to a scene editor: by its type's name, with a shared
// picture.

#include "zu/scene_editor.h"

namespace zu {

class scene_editor_extension : public scene_2d_editor_extension_impl {
 public:
  void get_layer_type(string_visitor visitor) override;
  void get_bitmap(bytes_visitor visitor) override;

 protected:
  scene_editor_extension(const char* type, std::int32_t bitmap) : type_(type), bitmap_(bitmap) {}
  ~scene_editor_extension() = default;

 private:
  const char* type_;
  std::int32_t bitmap_;
};

struct grid_scene_editor_extension : scene_editor_extension {
  grid_scene_editor_extension() : scene_editor_extension("grid_lr2d", 231) {}
};
struct rastr_scene_editor_extension : scene_editor_extension {
  rastr_scene_editor_extension() : scene_editor_extension("rtr_lr2d", 221) {}
};
struct tos4_grid_scene_editor_extension : scene_editor_extension {
  tos4_grid_scene_editor_extension() : scene_editor_extension("tos_grid_lr2d", 231) {}
};
struct tos4_slice_scene_editor_extension : scene_editor_extension {
  tos4_slice_scene_editor_extension() : scene_editor_extension("tos_slice_lr2d", 612) {}
};
struct tos4_coord_scene_editor_extension : scene_editor_extension {
  tos4_coord_scene_editor_extension() : scene_editor_extension("tos_2crd_lr2d", 233) {}
};
struct tos4_profil_scene_editor_extension : scene_editor_extension {
  tos4_profil_scene_editor_extension() : scene_editor_extension("tos_grid_lr1d", 232) {}
};

}  // namespace zu
