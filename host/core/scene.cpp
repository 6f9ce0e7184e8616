#include "host/core/scene.h"

#include <algorithm>
#include <cmath>

#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::host {
namespace {

constexpr char grid_type[] = "grid_lr2d";

}  // namespace

layer::layer(const bundle& services, const std::string& source)
    : services_(services), data_(source), entity_(zu_lr2d_create(grid_type)) {
  call<&layer_2d_service_impl::create_layer>(
      services.layers(grid_type), layer_2d_visitor(handle_of<layer_2d_visitor_impl>(*this)));
  if (!object_ || entity_ == nullptr) {
    zu_lr2d_destroy(entity_);
    throw failure(source, "the bundle offers no grid layers");
  }
  zu_lr2d_set_wsource(entity_, wide(source).c_str());
  std::size_t slash = source.find_last_of("/\\");
  zu_lr_set_wcaption(entity_,
                     wide(slash == std::string::npos ? source : source.substr(slash + 1)).c_str());
  zu_lr2d_set_plugin_interface(entity_, object_);
  call<&layer_2d_impl::bind_entity>(object_, entity_);
  call<&layer_2d_impl::source_changed>(object_);
  call<&layer_2d_impl::update_validity>(object_);
}

layer::~layer() {
  call<&layer_2d_impl::bind_entity>(object_, static_cast<Izu_layer*>(nullptr));
  zu_lr2d_destroy(entity_);
}

std::string layer::projection() const {
  return narrow(text_of([&](Tzu_string_adp* adapter) { zu_lr2d_get_pj4wstr(entity_, adapter); }));
}

std::optional<Tzu_box_d2> layer::box() const {
  Tzu_box_d2 found;
  if (!zu_lr2d_get_box(entity_, &found)) return {};
  return found;
}

void layer::take_look(const layer_look& look) {
  apply_look(look, data_, object_, services_.externalization(grid_type));
}

void layer::update() { call<&layer_2d_impl::update_box>(object_); }

void layer::draw(Izu_render* render) const {
  call<&layer_2d_renderer_extension_service_impl::render>(services_.renderer(grid_type), render,
                                                          entity_);
}

scene::scene(const bundle& services) : services_(services), scene_(zu_scn_2d_create()) {}

scene::~scene() {
  layers_.clear();
  zu_scn_2d_destroy(scene_);
}

layer& scene::add(const std::string& source) {
  layers_.push_back(std::make_unique<layer>(services_, source));
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
    std::optional<Tzu_box_d2> box = each->box();
    if (!box) throw failure(each->data().name(), "cannot be brought into the scene's projection");
    if (!all) all = box;
    all = Tzu_box_d2{std::min(all->x0, box->x0), std::min(all->y0, box->y0),
                     std::max(all->x1, box->x1), std::max(all->y1, box->y1)};
  }
  if (!all) throw failure("the scene has no layers");
  return *all;
}

Tzu_box_d2 widened(const Tzu_box_d2& box, std::uint64_t nx, std::uint64_t ny) {
  double width = box.x1 - box.x0, height = box.y1 - box.y0;
  auto columns = static_cast<double>(nx), rows = static_cast<double>(ny);
  double per_pixel = std::max(width / columns, height / rows);
  // The side that is not widened keeps its numbers to the last digit.
  double more_x = width / columns < per_pixel ? (per_pixel * columns - width) / 2 : 0.0;
  double more_y = height / rows < per_pixel ? (per_pixel * rows - height) / 2 : 0.0;
  return {box.x0 - more_x, box.y0 - more_y, box.x1 + more_x, box.y1 + more_y};
}

drawn_picture draw(const scene& shown, const picture_request& request) {
  drawn_picture picture;
  picture.box = widened(request.extent ? *request.extent : shown.box(), request.nx, request.ny);
  const Tzu_box_d2& box = picture.box;
  if (!(box.x1 > box.x0) || !(box.y1 > box.y0) || !std::isfinite(box.x1 - box.x0) ||
      !std::isfinite(box.y1 - box.y0))
    throw failure("the visible box has no area");
  picture.page.reset(zu_drwc_create_image(request.nx, request.ny, request.dots_per_inch, false));
  if (!picture.page) throw failure("a picture of this size cannot be had");
  if (request.background) zu_drwc_fill(picture.page.get(), *request.background);

  std::unique_ptr<Izu_render, void (*)(Izu_render*)> render(
      zu_render_create(picture.page.get(), &box), &zu_render_destroy);
  zu_render_set_pj4wstr(render.get(), wide(shown.projection()).c_str());
  bool any_in_view = false;
  for (const auto& each : shown.layers()) {
    std::wstring name = wide(each->data().name());
    zu_problems_clear(name.c_str());
    each->draw(render.get());
    if (!shown.projection().empty() && each->projection().empty())
      picture.unplaced.push_back(each->data().name());
    for (const std::string& reason : reasons(name, zu_problem_part))
      picture.shortfalls.push_back(each->data().name() + ": " + reason);
    for (int kind : {zu_problem_read, zu_problem_open})
      if (std::vector<std::string> why = reasons(name, kind); !why.empty())
        throw failure(each->data().name(), why.front());
    std::optional<Tzu_box_d2> own = each->box();
    Tzu_box_d2 common;
    any_in_view = any_in_view || (own && zu_box_d2_cross(&*own, &box, &common));
  }
  picture.empty = !any_in_view || !zu_drwc_has_ink(picture.page.get());
  return picture;
}

}  // namespace zu::host
