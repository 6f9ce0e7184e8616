#include "src/render/clip.h"

#include "src/bundle/owned.h"
#include "zu/platform/zuk_render.h"

namespace zu {

layer_clip::layer_clip(const grid_render_context& context) {
  Tzu_ov_d2* polygon = context.params.clip_polygon;
  if (polygon == nullptr || zu_ov_d2_get_size(polygon) == 0) return;
  owned<zu_ov_d2_destroy> copy(zu_ov_d2_create());
  zu_ov_d2_assign(copy.get(), polygon);
  if (context.reprojection.needed) zu_rpj_fb_d2_apply_ov(context.reprojection.rpj, copy.get(), 1);
  zu_ov_d2_apply_matrix3x3(copy.get(), zu_render_get_matrix_cr2mm(context.render));
  zu_drwc_set_clip_pgn(context.drwc, 0, copy.get());
  clipped_ = context.drwc;
}

layer_clip::~layer_clip() {
  if (clipped_ != nullptr) zu_drwc_set_clip_none(clipped_);
}

}  // namespace zu
