#pragma once
// Undo and redo of everything that a project's file keeps.

#include <deque>
#include <functional>
#include <string>

#include "host/core/memento.h"

namespace zu::host {

/// The steps that a person can take back, over a project that lives longer than this.
class history {
 public:
  static constexpr std::size_t most_steps = 200;

  /// What the project is now is what the first step starts from, and counts as saved.
  explicit history(project& content);

  /// To be called after a change: what the project is now becomes a step of that name, or none if
  /// nothing changed. A step that bears the same `key` as the one before it, and no empty one,
  /// becomes one with it (typing in one field), unless an undo, a redo or a save came between.
  /// Gives whether the steps changed. What could be redone no longer can.
  bool record(const std::string& name, const std::string& key = {});

  bool can_undo() const { return position_ > 0; }
  bool can_redo() const { return position_ + 1 < steps_.size(); }
  /// Name of the step that would be taken back or done again; empty if there is none.
  std::string undo_name() const { return can_undo() ? steps_[position_].name : std::string(); }
  std::string redo_name() const { return can_redo() ? steps_[position_ + 1].name : std::string(); }
  /// A change not recorded yet is a step of its own, and the one that `undo` takes back; it ends
  /// what could be redone. Layers and scenes that are there before and after keep their objects.
  /// Scenes and layers change places, so references to `project_scene` and `project_layer` end.
  /// Gives false if there was nothing to do.
  bool undo();
  bool redo();

  /// What the project is now is what its file holds.
  void mark_saved();
  /// Whether the project, as last recorded, differs from what its file holds. Undone changes are
  /// none.
  bool is_changed() const;

  /// Called with a layer before `undo` or `redo` ends it or changes its state.
  std::function<void(layer&)> before_change;

 private:
  struct step {
    std::string name, key;
    project_memento after;
  };

  bool go_to(std::size_t position);

  project& content_;
  std::deque<step> steps_;  // the first is what the project was before all steps kept
  std::size_t position_ = 0;
  bool may_join_ = false;
  project_memento saved_;
};

}  // namespace zu::host
