#pragma once
// The page of keyboard shortcuts.

#include <QAction>
#include <QDialog>
#include <QList>

class QTreeWidget;

namespace zu::desktop {

/// What the keys of a window do, as its actions say it: those that have a key, in the order given,
/// with a field that narrows them down.
class shortcuts_dialog final : public QDialog {
  Q_OBJECT

 public:
  static void ask(QWidget* parent, const QList<QAction*>& actions);
  explicit shortcuts_dialog(const QList<QAction*>& actions, QWidget* parent = nullptr);

 private:
  void narrow(const QString& text);

  QTreeWidget* list_;
};

}  // namespace zu::desktop
