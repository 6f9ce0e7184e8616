#pragma once
// The commands of the window, as menus, tool bars and the page of shortcuts show them.

#include <QAction>
#include <QObject>

namespace zu::desktop {

/// Actions with their names, icons and keys; the window connects them and says when they apply.
/// Their object names are those of the members.
class window_actions final : public QObject {
  Q_OBJECT

 public:
  explicit window_actions(QObject* parent);

  QAction *file_new, *file_open, *open_grid, *open_picture, *file_save, *file_save_as, *file_export,
      *file_quit;
  QAction *edit_undo, *edit_redo, *copy_picture, *copy_command, *select_clear, *edit_settings;
  QAction *zoom_in, *zoom_out, *zoom_all, *zoom_back, *zoom_forward, *own_axes, *redraw,
      *full_screen;
  QAction *layer_zoom, *layer_rename, *layer_remove, *layer_up, *layer_down, *layer_source,
      *layer_visible, *layer_load_colors, *layer_save_colors;
  QAction *scene_add, *scene_rename, *scene_remove, *scene_projection, *scene_next, *scene_previous;
  QAction *info_tool, *help_shortcuts, *help_about;
  QAction *language_english, *language_russian;

  /// Names of undo and redo with that of their step.
  void name_steps(const QString& undo, const QString& redo);
  void retranslate();

 private:
  QString undo_step_, redo_step_;
};

}  // namespace zu::desktop
