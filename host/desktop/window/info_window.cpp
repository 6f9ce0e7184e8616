#include "host/desktop/window/info_window.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

#include "host/core/failure.h"
#include "host/core/probe.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

QString line_of(const QTreeWidgetItem& item) {
  return item.columnCount() > 1 && !item.text(1).isEmpty()
             ? item.text(0) + QLatin1Char('\t') + item.text(1)
             : item.text(0);
}

}  // namespace

info_window::info_window(document& shown, QWidget* parent) : QTreeWidget(parent), document_(shown) {
  setObjectName(QStringLiteral("info_window"));
  setColumnCount(2);
  setFrameShape(NoFrame);
  setSelectionMode(ExtendedSelection);
  setAlternatingRowColors(true);
  header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  auto forget = [this] {
    is_empty_ = true;
    was_asked_ = false;
    retranslate();
  };
  connect(&document_, &document::replaced, this, forget);
  connect(&document_, &document::scene_activated, this, forget);
  retranslate();
}

void info_window::show_point(double x, double y) {
  clear();
  is_empty_ = was_asked_ = true;
  const auto& layers = document_.scene().content->layers();
  for (auto each = layers.rbegin(); each != layers.rend(); ++each) {
    const host::layer& layer = **each;
    if (!layer.is_visible() || layer.is_missing()) continue;
    std::vector<host::object_info> found;
    try {
      found = host::probe(document_.services(), layer, x, y);
    } catch (const host::failure& problem) {
      found = {{problem.what(), {}}};
    }
    for (const host::object_info& object : found) {
      QString title = QStringLiteral("%1: %2").arg(QString::fromStdString(layer.caption()),
                                                   QString::fromStdString(object.title));
      auto* item = new QTreeWidgetItem(this, {title});
      item->setFirstColumnSpanned(true);
      for (const auto& [name, value] : object.values)
        new QTreeWidgetItem(item, {QString::fromStdString(name), QString::fromStdString(value)});
      is_empty_ = false;
    }
  }
  expandAll();
  if (is_empty_) retranslate();
}

QString info_window::text() const {
  QStringList lines;
  bool all = selectedItems().isEmpty();
  for (int i = 0; i < topLevelItemCount(); ++i) {
    const QTreeWidgetItem& object = *topLevelItem(i);
    if (all || object.isSelected()) lines += line_of(object);
    for (int j = 0; j < object.childCount(); ++j)
      if (all || object.child(j)->isSelected()) lines += line_of(*object.child(j));
  }
  return lines.join(QLatin1Char('\n'));
}

void info_window::copy() {
  if (!is_empty_) QApplication::clipboard()->setText(text());
}

void info_window::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return copy();
  QTreeWidget::keyPressEvent(event);
}

void info_window::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  QAction* copies = menu.addAction(QIcon::fromTheme(QStringLiteral("edit-copy")),
                                   words("&Copy", "&Копировать"), this, &info_window::copy);
  copies->setEnabled(!is_empty_);
  menu.exec(event->globalPos());
}

void info_window::retranslate() {
  setHeaderLabels({words("Name", "Название"), words("Value", "Значение")});
  if (!is_empty_) return;
  clear();
  auto* hint =
      new QTreeWidgetItem(this, {was_asked_ ? words("Nothing is there", "Там ничего нет")
                                            : words("Click the map", "Щёлкните по карте")});
  hint->setFlags(Qt::NoItemFlags);
  hint->setFirstColumnSpanned(true);
}

void info_window::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) retranslate();
  QTreeWidget::changeEvent(event);
}

}  // namespace zu::desktop
