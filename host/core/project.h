#pragma once
// A project: scenes and their layers in a file (.zgp), XML in UTF-8.
//
// What was read and not changed is written as it was read, whether this program understands it or
// not: layers of unknown types, layers whose source is missing, attributes and nodes of others.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/core/map_legends.h"
#include "host/core/scene.h"
#include "zu/platform/zuk_io.h"

namespace zu::host {

/// A layer as it was read from a file.
struct layer_origin {
  node_ptr node;
  // Of the layer made from it.
  std::string state, caption;
};

/// A layer of a project.
struct project_layer {
  layer* shown = nullptr;                      ///< null if its type is one that nobody here knows
  std::shared_ptr<const layer_origin> origin;  ///< null for a new one
  std::uint64_t id = 0;  ///< its own in the project, also after it was removed and made again

  std::string type() const;
  std::string caption() const;
  std::string source() const;
};

struct project_scene {
  std::string name;
  std::unique_ptr<scene> content;
  std::vector<project_layer> layers;  ///< the lowest first; those shown stand in the scene so too
  std::shared_ptr<Tzu_xnode> kept;    ///< as it was read; null for a new one
  std::uint64_t id = 0;               ///< its own in the project
  /// What its window showed last, which is no change of the project; nothing if none ever did.
  std::optional<Tzu_box_d2> view;
};

class project {
 public:
  static constexpr int version = 1;

  /// A project with one scene without a name and without layers.
  explicit project(const bundle& services);
  /// Reads a file. Throws `failure` with the file and the reason; nothing of it is used then.
  project(const bundle& services, const std::string& path);
  project(const project&) = delete;
  project& operator=(const project&) = delete;

  const bundle& services() const { return services_; }
  std::vector<project_scene>& scenes() { return scenes_; }
  const std::vector<project_scene>& scenes() const { return scenes_; }
  /// The scene of a name; throws `failure` if there is none.
  project_scene& find_scene(const std::string& name);
  /// A new scene behind the others. References to scenes end.
  project_scene& add_scene(const std::string& name);
  void remove_scene(std::size_t index);
  /// Opens a source on top of a scene; gives what was added. Throws `failure`.
  std::vector<layer*> add(project_scene& scene, const std::string& source,
                          open_as wanted = open_as::found);
  void remove(project_scene& scene, std::size_t index);
  /// Takes a layer out of its place and puts it so that it stands at `to`, 0 being the lowest.
  void move(project_scene& scene, std::size_t from, std::size_t to);
  /// Gives the layers shown the order in which they stand in the project.
  static void arrange(project_scene& scene);
  /// Leads a layer to another source, with the look that it has in the project. Nothing for a layer
  /// of an unknown type.
  void relink(project_scene& scene, std::size_t index, const std::string& source);
  /// Writes the file whole or not at all. Sources beside it or below its folder are written as
  /// relative paths. Throws `failure`.
  void save(const std::string& path);

 private:
  void read_scene(Tzu_xnode* node);
  void read_layer(Tzu_xnode* node, project_scene& scene);
  void write_scene(Tzu_xnode* node, const project_scene& scene, const std::string& folder) const;
  std::uint64_t next_id() { return ++last_id_; }

  const bundle& services_;
  std::string folder_;  // of the file as it was read
  node_ptr tree_;
  std::vector<project_scene> scenes_;
  std::uint64_t last_id_ = 0;
  std::optional<map_legends> legends_;  // of a project that was read whole
};

}  // namespace zu::host
