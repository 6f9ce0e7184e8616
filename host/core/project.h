#pragma once
// A project: scenes and their layers in a file (.zgp), XML in UTF-8.
//
// What was read and not changed is written as it was read, whether this program understands it or
// not: layers of unknown types, layers whose source is missing, attributes and nodes of others.

#include <memory>
#include <string>
#include <vector>

#include "host/core/scene.h"
#include "zu/platform/zuk_io.h"

namespace zu::host {

/// A layer of a project.
struct project_layer {
  layer* shown = nullptr;  ///< null if its type is one that nobody here knows
  node_ptr kept;           ///< as it was read; empty for a new one
  // Of `shown` when it had been read.
  std::string state_as_read, caption_as_read;

  std::string type() const;
  std::string caption() const;
  std::string source() const;
};

struct project_scene {
  std::string name;
  std::unique_ptr<scene> content;
  std::vector<project_layer> layers;  ///< the lowest first; those shown stand in the scene so too
};

class project {
 public:
  static constexpr int version = 1;

  /// A project with one scene without a name and without layers.
  explicit project(const bundle& services);
  /// Reads a file. Throws `failure` with the file and the reason; nothing of it is used then.
  project(const bundle& services, const std::string& path);

  std::vector<project_scene>& scenes() { return scenes_; }
  /// The scene of a name; throws `failure` if there is none.
  project_scene& find_scene(const std::string& name);
  /// Opens a source on top of a scene; gives what was added. Throws `failure`.
  std::vector<layer*> add(project_scene& scene, const std::string& source);
  void remove(project_scene& scene, std::size_t index);
  /// Puts a layer where another one stands; those between move by one.
  void move(project_scene& scene, std::size_t from, std::size_t to);
  /// Writes the file whole or not at all. Sources beside it or below its folder are written as
  /// relative paths. Throws `failure`.
  void save(const std::string& path);

 private:
  void read_scene(Tzu_xnode* node);
  void read_layer(Tzu_xnode* node, project_scene& scene);
  void write_scene(Tzu_xnode* node, const project_scene& scene, const std::string& folder) const;

  const bundle& services_;
  std::string folder_;  // of the file as it was read
  node_ptr tree_;
  std::vector<project_scene> scenes_;
};

}  // namespace zu::host
