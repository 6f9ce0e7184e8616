#pragma once
// What the window asks a person. Each question is a function, so that a test answers it.

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "host/desktop/dialogs/export_dialog.h"

class QWidget;

namespace zu::desktop {

enum class unsaved_answer { save, discard, cancel };

struct prompts {
  /// Files to open; none: cancelled.
  std::function<QStringList(QWidget* parent, const QString& folder)> files_to_open;
  /// Where a project is saved; empty: cancelled.
  std::function<QString(QWidget* parent, const QString& proposed)> file_to_save;
  /// What becomes of a project of that name with unsaved changes.
  std::function<unsaved_answer(QWidget* parent, const QString& name)> unsaved;
  /// The file that a layer shows instead of its missing one; empty: cancelled.
  std::function<QString(QWidget* parent, const QString& missing)> source_instead;
  /// The file whose colours a layer takes, and where they are written; empty: cancelled.
  std::function<QString(QWidget* parent, const QString& folder)> colors_to_load;
  std::function<QString(QWidget* parent, const QString& proposed)> colors_to_save;
  /// A line of text; empty: cancelled.
  std::function<QString(QWidget* parent, const QString& question, const QString& now)> name;
  /// A projection of the scene, as text; empty: none; nothing: cancelled.
  std::function<std::optional<QString>(QWidget* parent, const QString& now)> projection;
  /// Which picture of what is seen is written, and where; nothing: cancelled.
  std::function<std::optional<export_request>(QWidget* parent, const host::page_request& seen,
                                              const QString& name)>
      picture;
};

/// The questions as dialogs.
prompts prompts_of_dialogs();

}  // namespace zu::desktop
