#include "host/desktop/dialogs/shortcuts_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

/// Without the mark of its mnemonic and the dots of a dialog to come.
QString name_of(const QAction& action) {
  QString name = action.text();
  name.remove(QLatin1Char('&'));
  while (name.endsWith(QChar(0x2026)) || name.endsWith(QLatin1Char('.'))) name.chop(1);
  return name;
}

QString keys_of(const QAction& action) {
  QStringList keys;
  const QList<QKeySequence> all = action.shortcuts();
  for (const QKeySequence& each : all) keys += each.toString(QKeySequence::NativeText);
  return keys.join(QStringLiteral(", "));
}

}  // namespace

void shortcuts_dialog::ask(QWidget* parent, const QList<QAction*>& actions) {
  shortcuts_dialog(actions, parent).exec();
}

shortcuts_dialog::shortcuts_dialog(const QList<QAction*>& actions, QWidget* parent)
    : QDialog(parent), list_(new QTreeWidget(this)) {
  setObjectName(QStringLiteral("shortcuts"));
  setWindowTitle(words("Keyboard shortcuts", "Сочетания клавиш"));
  auto* search = new QLineEdit(this);
  search->setObjectName(QStringLiteral("shortcuts_search"));
  search->setPlaceholderText(words("Command or key", "Команда или клавиша"));
  search->setClearButtonEnabled(true);
  list_->setObjectName(QStringLiteral("shortcuts_list"));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAlternatingRowColors(true);
  list_->setHeaderLabels({words("Command", "Команда"), words("Keys", "Клавиши")});
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  for (const QAction* each : actions) {
    if (each->shortcuts().isEmpty()) continue;
    auto* item = new QTreeWidgetItem(list_, {name_of(*each), keys_of(*each)});
    item->setIcon(0, each->icon());
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(search);
  layout->addWidget(list_, 1);
  layout->addWidget(buttons);
  connect(search, &QLineEdit::textChanged, this, &shortcuts_dialog::narrow);
  connect(buttons, &QDialogButtonBox::rejected, this, &shortcuts_dialog::reject);
  resize(460, 560);
}

void shortcuts_dialog::narrow(const QString& text) {
  for (int i = 0; i < list_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = list_->topLevelItem(i);
    bool fits = item->text(0).contains(text, Qt::CaseInsensitive) ||
                item->text(1).contains(text, Qt::CaseInsensitive);
    item->setHidden(!fits);
  }
}

}  // namespace zu::desktop
