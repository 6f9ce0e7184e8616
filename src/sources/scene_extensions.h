#pragma once
// The kinds of layer that this bundle adds to a scene editor: by its type's name.

#include "zu/scene_editor.h"

namespace zu {

class scene_editor_extension : public scene_2d_editor_extension_impl {
 public:
  void get_layer_type(string_visitor visitor) override;

 protected:
  explicit scene_editor_extension(const char* type) : type_(type) {}
  ~scene_editor_extension() = default;

 private:
  const char* type_;
};

struct grid_scene_editor_extension : scene_editor_extension {
  grid_scene_editor_extension() : scene_editor_extension("grid_lr2d") {}
};
struct rastr_scene_editor_extension : scene_editor_extension {
  rastr_scene_editor_extension() : scene_editor_extension("rtr_lr2d") {}
};
struct tos4_grid_scene_editor_extension : scene_editor_extension {
  tos4_grid_scene_editor_extension() : scene_editor_extension("tos_grid_lr2d") {}
};
struct tos4_slice_scene_editor_extension : scene_editor_extension {
  tos4_slice_scene_editor_extension() : scene_editor_extension("tos_slice_lr2d") {}
};
struct tos4_coord_scene_editor_extension : scene_editor_extension {
  tos4_coord_scene_editor_extension() : scene_editor_extension("tos_2crd_lr2d") {}
};
struct tos4_profil_scene_editor_extension : scene_editor_extension {
  tos4_profil_scene_editor_extension() : scene_editor_extension("tos_grid_lr1d") {}
};

}  // namespace zu
