#include "host/core/scene.h"

#include <algorithm>
#include <optional>

#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::host {
namespace {

constexpr char grid_type[] = "grid_lr2d";

}  // namespace

scene::scene(const bundle& services) : services_(services), scene_(zu_scn_2d_create()) {}

scene::~scene() {
  layers_.clear();
  zu_scn_2d_destroy(scene_);
}

layer& scene::add(const std::string& source) {
  host::source opens(source);
  return add_layer(grid_type, source);
}

layer& scene::add_layer(const std::string& type, const std::string& source) {
  layers_.push_back(std::make_unique<layer>(services_, type, source));
  layer& added = *layers_.back();
  zu_scn_2d_add_layer(scene_, added.entity());
  if (projection().empty()) set_projection(added.projection());
  added.update();
  return added;
}

void scene::set_projection(const std::string& text) {
  zu_scn_2d_set_pj4wstr(scene_, wide(text).c_str());
  for (auto& each : layers_) each->update();
}

std::string scene::projection() const {
  return narrow(text_of([&](Tzu_string_adp* adapter) { zu_scn_2d_get_pj4wstr(scene_, adapter); }));
}

Tzu_box_d2 scene::box() const {
  std::optional<Tzu_box_d2> all;
  for (const auto& each : layers_) {
    if (each->is_missing()) continue;
    std::optional<Tzu_box_d2> box = each->box();
    if (!box) throw failure(each->source_name(), "cannot be brought into the scene's projection");
    if (!all) all = box;
    all = Tzu_box_d2{std::min(all->x0, box->x0), std::min(all->y0, box->y0),
                     std::max(all->x1, box->x1), std::max(all->y1, box->y1)};
  }
  if (!all) throw failure("the scene has no layers");
  return *all;
}

}  // namespace zu::host
