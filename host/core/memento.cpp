#include "host/core/memento.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace zu::host {
namespace {

std::optional<std::uint32_t> selected_color_of(const scene& shown) {
  Tzu_optional_color color = zu_scn_2d_get_selected_style_clr(shown.get());
  if (color.is_set == 0) return {};
  return std::uint32_t{color.color.r} << 24 | std::uint32_t{color.color.g} << 16 |
         std::uint32_t{color.color.b} << 8 | color.color.a;
}

void set_selected_color(scene& shown, std::optional<std::uint32_t> wanted) {
  Tzu_optional_color color{};
  auto byte = [&](int shift) { return static_cast<std::uint8_t>(*wanted >> shift & 255); };
  if (wanted) {
    color.is_set = 1;
    color.color = {byte(24), byte(16), byte(8), byte(0)};
  }
  zu_scn_2d_set_selected_style_clr(shown.get(), color);
}

template <class list> auto find_id(list& all, std::uint64_t id) {
  return std::find_if(all.begin(), all.end(), [&](const auto& each) { return each.id == id; });
}

const layer_memento* find_layer(const project_memento& in, std::uint64_t id) {
  for (const scene_memento& each : in)
    if (auto found = find_id(each.layers, id); found != each.layers.end()) return &*found;
  return nullptr;
}

layer_memento layer_memento_of(const project_layer& now, const project_memento& before) {
  layer_memento taken;
  taken.id = now.id;
  taken.origin = now.origin;
  taken.shown = now.shown != nullptr;
  taken.type = now.type();
  if (!taken.shown) return taken;
  const layer& shown = *now.shown;
  taken.subtype = shown.subtype();
  taken.source = shown.source_name();
  taken.caption = shown.caption();
  taken.projection = shown.projection();
  taken.visible = shown.is_visible();
  std::string state = shown.state();
  const layer_memento* earlier = find_layer(before, now.id);
  taken.state = earlier != nullptr && *earlier->state == state
                    ? earlier->state
                    : std::make_shared<const std::string>(std::move(state));
  return taken;
}

/// Never from the origin, which may be silent of what has changed since.
void load_state(layer& into, const layer_memento& wanted) {
  into.load_state(*wanted.state);
  // A tree is not asked for the projection where a layer has one already.
  if (into.projection() != wanted.projection) into.set_projection(wanted.projection);
  into.update();
}

layer* make(scene& where, const layer_memento& wanted) {
  layer& made = where.add_layer(wanted.type, wanted.source);
  made.set_subtype(wanted.subtype);
  load_state(made, wanted);
  return &made;
}

void update(layer& into, const layer_memento& wanted,
            const std::function<void(layer&)>& before_change) {
  bool moved = into.source_name() != wanted.source;
  if (moved || into.projection() != wanted.projection || into.state() != *wanted.state) {
    if (before_change) before_change(into);
    if (moved) into.set_source(wanted.source);
    load_state(into, wanted);
  }
}

void end_layer(project_scene& where, std::size_t index, project& content,
               const std::function<void(layer&)>& before_change) {
  layer* shown = where.layers[index].shown;
  if (shown != nullptr && before_change) before_change(*shown);
  content.remove(where, index);
}

void restore_layers(project& content, project_scene& into, const scene_memento& wanted,
                    const std::function<void(layer&)>& before_change) {
  for (std::size_t i = into.layers.size(); i-- > 0;)
    if (find_id(wanted.layers, into.layers[i].id) == wanted.layers.end())
      end_layer(into, i, content, before_change);
  std::vector<project_layer> layers;
  for (const layer_memento& each : wanted.layers) {
    auto there = find_id(into.layers, each.id);
    project_layer now{nullptr, each.origin, each.id};
    if (there != into.layers.end()) now.shown = there->shown;
    if (each.shown) {
      if (now.shown == nullptr)
        now.shown = make(*into.content, each);
      else
        update(*now.shown, each, before_change);
      now.shown->set_caption(each.caption);
      now.shown->set_visible(each.visible);
    }
    layers.push_back(std::move(now));
  }
  into.layers = std::move(layers);
  project::arrange(into);
}

void restore_scene(project& content, project_scene& into, const scene_memento& wanted,
                   const std::function<void(layer&)>& before_change) {
  into.name = wanted.name;
  into.kept = wanted.kept;
  restore_layers(content, into, wanted, before_change);
  if (into.content->projection() != wanted.projection)
    into.content->set_projection(wanted.projection);
  set_selected_color(*into.content, wanted.selected_color);
}

}  // namespace

bool layer_memento::operator==(const layer_memento& other) const {
  auto rest = [](const layer_memento& m) {
    return std::tie(m.id, m.origin, m.shown, m.visible, m.type, m.subtype, m.source, m.caption,
                    m.projection);
  };
  bool same_state = state == other.state ||
                    (state != nullptr && other.state != nullptr && *state == *other.state);
  return same_state && rest(*this) == rest(other);
}

project_memento memento_of(const project& content, const project_memento& before) {
  project_memento taken;
  for (const project_scene& each : content.scenes()) {
    scene_memento& scene = taken.emplace_back();
    scene.id = each.id;
    scene.kept = each.kept;
    scene.name = each.name;
    scene.projection = each.content->projection();
    scene.selected_color = selected_color_of(*each.content);
    for (const project_layer& layer : each.layers)
      scene.layers.push_back(layer_memento_of(layer, before));
  }
  return taken;
}

void restore(project& content, const project_memento& wanted,
             const std::function<void(layer&)>& before_change) {
  std::vector<project_scene>& scenes = content.scenes();
  for (project_scene& each : scenes)
    if (find_id(wanted, each.id) == wanted.end())
      while (!each.layers.empty()) end_layer(each, each.layers.size() - 1, content, before_change);
  std::vector<project_scene> restored;
  for (const scene_memento& each : wanted) {
    auto there = find_id(scenes, each.id);
    if (there != scenes.end()) {
      restored.push_back(std::move(*there));
    } else {
      restored.emplace_back().content = std::make_unique<scene>(content.services());
      restored.back().id = each.id;
    }
    restore_scene(content, restored.back(), each, before_change);
  }
  scenes = std::move(restored);
}

}  // namespace zu::host
