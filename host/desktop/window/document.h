#pragma once
// What the window shows: a project, its scenes, which scene and layer are active, and the history.

#include <QObject>
#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "host/core/history.h"
#include "host/core/project.h"

namespace zu::desktop {

/// Every change of the window's project goes through here, so that it is a step of undo and whoever
/// shows something of it hears. Layers are named by their place in the active scene, the lowest
/// first: a project also keeps layers of types that nobody here knows.
class document : public QObject {
  Q_OBJECT

 public:
  explicit document(const host::bundle& services);
  ~document() override;

  const host::bundle& services() const { return services_; }
  host::project& content() { return *project_; }
  QString path() const { return path_; }  ///< empty: never saved
  bool is_changed() const;

  int active_scene() const { return active_scene_; }
  void set_active_scene(int index);
  host::project_scene& scene() { return project_->scenes().at(std::size_t(active_scene_)); }
  /// Of the active scene; null if none is active or it is one that nobody here knows.
  host::layer* active_layer() const { return active_layer_; }
  /// Null: none. A layer of another scene is not taken.
  void set_active_layer(host::layer* layer);
  /// Place of a layer in the active scene; -1 if it is not there.
  int index_of(const host::layer* layer);

  // Throw host::failure, and what was open stays open.
  void open_project(const QString& path);
  void save(const QString& path);
  /// An empty project that was never saved.
  void clear();

  /// Opens sources on top of the active scene, the last one uppermost and active; one step of
  /// undo. Gives what did not open, a line each.
  QStringList add_sources(const QStringList& sources, host::open_as wanted = host::open_as::found);
  void remove_layer(int index);
  void move_layer(int from, int to);
  void rename_layer(int index, const QString& caption);
  void set_layer_visible(int index, bool visible);
  /// Shows another source in a layer, with the same look. Throws host::failure if it will not open.
  void relink_layer(int index, const QString& source);
  /// Colours a layer by what a file holds; see host::load_colors. Throws host::failure.
  void load_colors(int index, const QString& file);
  void set_projection(const QString& text);  ///< of the active scene

  void add_scene(const QString& name);
  void remove_scene(int index);  ///< the last one stays
  void rename_scene(int index, const QString& name);

  /// Runs a change as one step of undo; what the bundle's panels did since the last step is a step
  /// of its own.
  void perform(const QString& name, const std::function<void()>& change);
  /// A person's input reached the bundle: the picture may be old and the active layer's look
  /// changed. Inputs that follow each other under one name are one step.
  void input_happened(const QString& name);
  bool can_undo() const;
  bool can_redo() const;
  QString undo_name() const;
  QString redo_name() const;
  void undo();
  void redo();

 Q_SIGNALS:
  void replaced();  ///< another project, or scenes added, removed or renamed
  void scene_activated();
  /// Also, with no layer, before an active one ends or is changed from outside.
  void layer_activated();
  void layers_changed();   ///< list, captions, visibility, problems
  void picture_changed();  ///< draw again
  void history_changed();  ///< also: is_changed, path

 private:
  void replace(std::unique_ptr<host::project> next, const QString& path);
  void restart_history();
  void activate_last_layer();
  void step_through(bool (host::history::*step)());
  void changed();

  const host::bundle& services_;
  std::unique_ptr<host::project> project_;
  QString path_;
  int active_scene_ = 0;
  host::layer* active_layer_ = nullptr;
  std::map<std::uint64_t, std::uint64_t> last_active_;  // ids of layers by those of scenes
  std::unique_ptr<host::history> history_;
};

}  // namespace zu::desktop
