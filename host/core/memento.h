#pragma once
// What a project was at a moment: everything that its file keeps.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/core/project.h"

namespace zu::host {

struct layer_memento {
  std::uint64_t id = 0;
  std::shared_ptr<const layer_origin> origin;  ///< as it was read; null for a new one
  bool shown = true;  ///< false: of an unknown type, its origin and nothing more
  bool visible = true;
  std::string type, subtype, source, caption, projection;
  std::shared_ptr<const std::string> state;  ///< null if it is not shown

  bool operator==(const layer_memento& other) const;
};

struct scene_memento {
  std::uint64_t id = 0;
  std::shared_ptr<Tzu_xnode> kept;  ///< as it was read; null for a new one
  std::string name, projection;
  std::optional<std::uint32_t> selected_color;  ///< rgba
  std::vector<layer_memento> layers;            ///< the lowest first

  bool operator==(const scene_memento& other) const = default;
};

using project_memento = std::vector<scene_memento>;

/// What the project is now. Texts of layers that are as they were `before` are shared with it.
project_memento memento_of(const project& content, const project_memento& before);

/// Brings the project to what it was. Scenes and layers that are there keep their objects, others
/// are made again under their ids or ended; `before_change` is called with a layer before it ends
/// or its state changes.
void restore(project& content, const project_memento& wanted,
             const std::function<void(layer&)>& before_change);

}  // namespace zu::host
