#include "host/core/scene.h"

#include <algorithm>
#include <optional>

#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::host {
namespace {

constexpr char grid_type[] = "grid_lr2d";
constexpr char raster_type[] = "rtr_lr2d";

}  // namespace

/// The scene as the builder that a filter asks.
struct scene::construction {
  scene& owner;
  bool is_picture;  // a person said so
  std::string error_text;

  static Izu_layer* add(const wchar_t* path, const char* type, void* user) {
    auto& self = *static_cast<construction*>(user);
    try {
      return self.make(narrow(path), type);
    } catch (const std::exception& problem) {
      self.error_text = problem.what();
      return nullptr;
    }
  }
  static void error(const wchar_t*, const wchar_t* text, void* user) {
    auto& self = *static_cast<construction*>(user);
    if (self.error_text.empty()) self.error_text = narrow(text);
  }

 private:
  Izu_layer* make(const std::string& path, const std::string& type) {
    // A picture is a grid here: so its bands can be styled, and a grid in a picture's file is one.
    layer& made = owner.add_layer(type == raster_type && !is_picture ? grid_type : type, path);
    try {
      made.data();
    } catch (...) {
      owner.remove(made);
      throw;
    }
    return made.entity();
  }
};

scene::scene(const bundle& services) : services_(services), scene_(zu_scn_2d_create()) {}

scene::~scene() {
  layers_.clear();
  zu_scn_2d_destroy(scene_);
}

layer& scene::add(const std::string& source, open_as wanted) {
  std::wstring path = wide_name(source);
  std::size_t before = layers_.size();
  construction work{*this, wanted == open_as::picture, {}};
  std::unique_ptr<Tzu_lr_builder, void (*)(Tzu_lr_builder*)> builder(
      zu_lr_builder_create(&construction::add, &construction::error, &work),
      &zu_lr_builder_destroy);
  zu_problems_clear(path.c_str());
  auto takes = [&](scene_editor_filter filter) {
    return call<&scene_editor_filter_impl::accepts>(filter, path.c_str());
  };
  const auto& filters = services_.filters();
  auto found = wanted == open_as::found ? std::find_if(filters.begin(), filters.end(), takes)
                                        : filters.end();
  if (found != filters.end())
    call<&scene_editor_filter_impl::add>(*found, builder.get(), path.c_str());
  // A filter that neither made a layer nor said why had a dialog declined. Where nobody was asked
  // that is for want of trace coordinates mostly, and the samples can be seen without.
  if (layers_.size() == before && work.error_text.empty()) {
    if (found != filters.end() && services_.asks_a_person()) throw declined(source);
    zu_lr_builder_add_layer(builder.get(), path.c_str(),
                            wanted == open_as::picture ? raster_type : grid_type);
  }
  if (layers_.size() == before) {
    std::vector<std::string> why = reasons(path, zu_problem_open);
    if (!why.empty()) throw failure(source, why.back());
    throw failure(source, work.error_text.empty() ? "cannot be opened" : work.error_text);
  }
  return *layers_.back();
}

layer& scene::add_layer(const std::string& type, const std::string& source) {
  layers_.push_back(std::make_unique<layer>(services_, type, source));
  layer& added = *layers_.back();
  zu_scn_2d_add_layer(scene_, added.entity());
  if (projection().empty()) set_projection(added.projection());
  added.update();
  return added;
}

void scene::remove(const layer& removed) {
  zu_scn_2d_remove_layer(scene_, removed.entity());
  std::erase_if(layers_, [&](const auto& each) { return each.get() == &removed; });
}

void scene::arrange(const std::vector<layer*>& order) {
  auto place = [&](const layer* each) { return std::find(order.begin(), order.end(), each); };
  std::sort(layers_.begin(), layers_.end(),
            [&](const auto& a, const auto& b) { return place(a.get()) < place(b.get()); });
  for (const auto& each : layers_) zu_scn_2d_add_layer(scene_, each->entity());
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
    if (each->is_missing() || !each->is_visible()) continue;
    std::optional<Tzu_box_d2> box = each->box();
    if (!box) throw failure(each->source_name(), "cannot be brought into the scene's projection");
    if (!all) all = box;
    all = Tzu_box_d2{std::min(all->x0, box->x0), std::min(all->y0, box->y0),
                     std::max(all->x1, box->x1), std::max(all->y1, box->y1)};
  }
  for (const auto& each : layers_)
    if (!all && each->is_missing()) throw failure(each->source_name(), "is missing");
  if (!all) throw failure("the scene has no layers to show");
  return *all;
}

}  // namespace zu::host
