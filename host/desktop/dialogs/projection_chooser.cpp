#include "host/desktop/dialogs/projection_chooser.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <cmath>

#include "host/core/failure.h"
#include "host/core/projections.h"
#include "host/desktop/dialogs/settings_file.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

constexpr char used_name[] = "projections_used";
constexpr std::size_t most_shown = 200;
enum column { name_column, code_column };

/// Read when the first chooser opens; empty if the database cannot be read.
const host::projections* known_projections() {
  static const std::unique_ptr<host::projections> known = [] {
    try {
      return std::make_unique<host::projections>();
    } catch (const host::failure&) {  // a text can still be typed; the chooser says so
      return std::unique_ptr<host::projections>();
    }
  }();
  return known.get();
}

const host::projection_entry* entry_of(const QString& text) {
  const host::projections* known = known_projections();
  return known != nullptr ? known->find(text.toStdString()) : nullptr;
}

QString degrees(double value, const char* low, const char* high) {
  return QString::number(std::abs(value), 'g', 6) + QChar(0xB0) +
         QString::fromUtf8(value < 0 ? low : high);
}

QString bounds_text(const Tzu_box_d2& b) {
  return QStringLiteral("%1 \u2013 %2, %3 \u2013 %4")
      .arg(degrees(b.x0, "W", "E"), degrees(b.x1, "W", "E"), degrees(b.y0, "S", "N"),
           degrees(b.y1, "S", "N"));
}

QString details_of(const host::projection_entry& entry) {
  QString kind = entry.is_geographic
                     ? words("Longitude and latitude in degrees", "Долгота и широта в градусах")
                     : words("Plane coordinates", "Плоские координаты");
  QStringList lines = {QStringLiteral("<b>%1</b> (%2)")
                           .arg(QString::fromStdString(entry.name).toHtmlEscaped(),
                                QString::fromStdString(entry.text).toHtmlEscaped()),
                       kind};
  if (entry.is_deprecated)
    lines += words("Withdrawn: kept for old data", "Отменена: оставлена для старых данных");
  if (!entry.area.empty()) lines += QString::fromStdString(entry.area).toHtmlEscaped();
  if (entry.bounds) lines += bounds_text(*entry.bounds);
  return lines.join(QStringLiteral("<br>"));
}

}  // namespace

QString name_of_projection(const QString& text) {
  if (text.isEmpty()) return words("No projection", "Без проекции");
  return QString::fromStdString(host::projection_name(text.toStdString()));
}

std::optional<QString> projection_chooser::ask(QWidget* parent, const QString& now) {
  projection_chooser dialog(now, parent);
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.chosen();
}

projection_chooser::projection_chooser(const QString& now, QWidget* parent)
    : QDialog(parent),
      now_(now),
      search_(new QLineEdit(this)),
      found_(new QTreeWidget(this)),
      details_(new QLabel(this)),
      count_(new QLabel(this)) {
  setObjectName(QStringLiteral("projection_chooser"));
  setWindowTitle(words("Projection of the scene", "Проекция сцены"));
  search_->setObjectName(QStringLiteral("projection_search"));
  search_->setPlaceholderText(
      words("Name, code or place: UTM 37, 3857, Moscow, a PROJ text or WKT",
            "Название, код или место: UTM 37, 3857, Пулково, текст PROJ или WKT"));
  search_->setClearButtonEnabled(true);
  search_->installEventFilter(this);
  found_->setObjectName(QStringLiteral("projection_found"));
  found_->setRootIsDecorated(false);
  found_->setUniformRowHeights(true);
  found_->setHeaderLabels({words("Name", "Название"), words("Code", "Код")});
  found_->header()->setStretchLastSection(false);
  found_->header()->setSectionResizeMode(name_column, QHeaderView::Stretch);
  found_->header()->setSectionResizeMode(code_column, QHeaderView::ResizeToContents);
  details_->setObjectName(QStringLiteral("projection_details"));
  details_->setWordWrap(true);
  details_->setTextFormat(Qt::RichText);
  details_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  details_->setMinimumHeight(fontMetrics().lineSpacing() * 6);
  details_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  count_->setObjectName(QStringLiteral("projection_count"));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(search_);
  layout->addWidget(found_, 1);
  layout->addWidget(count_);
  layout->addWidget(details_);
  layout->addWidget(buttons);
  connect(search_, &QLineEdit::textChanged, this, &projection_chooser::fill);
  connect(found_, &QTreeWidget::currentItemChanged, this, &projection_chooser::show_details);
  connect(found_, &QTreeWidget::itemActivated, this, &projection_chooser::accept);
  connect(buttons, &QDialogButtonBox::accepted, this, &projection_chooser::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &projection_chooser::reject);
  resize(560, 520);
  fill();
  search_->setFocus();
}

QString projection_chooser::chosen() const {
  const QTreeWidgetItem* item = found_->currentItem();
  return item != nullptr ? item->data(name_column, Qt::UserRole).toString() : QString();
}

void projection_chooser::accept() {
  if (found_->currentItem() == nullptr) return;
  keep_used(used_name, chosen());
  QDialog::accept();
}

bool projection_chooser::eventFilter(QObject* watched, QEvent* event) {
  if (watched == search_ && event->type() == QEvent::KeyPress) {
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Up:
      case Qt::Key_Down:
      case Qt::Key_PageUp:
      case Qt::Key_PageDown:
        QApplication::sendEvent(found_, event);
        return true;
      default:
        break;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void projection_chooser::add(const QString& text, const QString& name, const QString& note,
                             bool withdrawn) {
  auto* item = new QTreeWidgetItem(found_);
  item->setText(name_column, note.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, note));
  item->setToolTip(name_column, name);
  item->setText(code_column, text.size() <= 20 ? text : QString());
  item->setData(name_column, Qt::UserRole, text);
  if (!withdrawn) return;
  for (int each : {name_column, code_column})
    item->setForeground(each, palette().brush(QPalette::Disabled, QPalette::Text));
}

void projection_chooser::fill_offers() {
  add({}, name_of_projection({}));
  if (!now_.isEmpty()) add(now_, name_of_projection(now_), words("in force", "действует"));
  const QStringList used = kept_list(used_name);
  for (const QString& each : used)
    if (each != now_) add(each, name_of_projection(each));
  for (const char* each : {"EPSG:4326", "EPSG:3857"}) {
    QString text = QString::fromUtf8(each);
    if (text != now_ && !used.contains(text)) add(text, name_of_projection(text));
  }
}

/// A text that is a system of itself: "+proj=…", WKT, "AUTH:code".
void projection_chooser::add_written(const QString& text) {
  bool shaped = text.contains(QLatin1Char(':')) || text.contains(QLatin1Char('[')) ||
                text.startsWith(QLatin1Char('+'));
  if (!shaped || entry_of(text.toUpper()) != nullptr) return;
  if (host::why_no_projection(text.toStdString()).empty())
    add(text, name_of_projection(text), words("as written", "как написано"));
}

void projection_chooser::fill() {
  QString text = search_->text().trimmed();
  found_->clear();
  if (text.isEmpty()) {
    fill_offers();
    found_->setCurrentItem(found_->topLevelItem(now_.isEmpty() ? 0 : 1));
    count_->setText(words("Lately used", "Недавние"));
    return;
  }
  add_written(text);
  if (const host::projections* known = known_projections())
    for (const host::projection_entry* each : known->search(text.toStdString(), most_shown))
      add(QString::fromStdString(each->text), QString::fromStdString(each->name), {},
          each->is_deprecated);
  int count = found_->topLevelItemCount();
  found_->setCurrentItem(found_->topLevelItem(0));
  if (known_projections() == nullptr)
    count_->setText(words("The database of coordinate systems cannot be read",
                          "База систем координат не читается"));
  else if (count == 0)
    count_->setText(words("Nothing found", "Ничего не найдено"));
  else if (count >= static_cast<int>(most_shown))
    count_->setText(words("The first %1", "Первые %1").arg(count));
  else
    count_->setText(words("Found: %1", "Найдено: %1").arg(count));
  show_details();
}

void projection_chooser::show_details() {
  const QTreeWidgetItem* item = found_->currentItem();
  ok_->setEnabled(item != nullptr);
  if (item == nullptr) return details_->clear();
  QString text = chosen();
  if (const host::projection_entry* entry = entry_of(text)) {
    details_->setText(details_of(*entry));
  } else if (text.isEmpty()) {
    details_->setText(words("Layers are drawn in their own coordinates, one above the other.",
                            "Слои рисуются в своих координатах, один над другим."));
  } else {
    details_->setText(QStringLiteral("<b>%1</b><br>%2")
                          .arg(name_of_projection(text).toHtmlEscaped(), text.toHtmlEscaped()));
  }
}

}  // namespace zu::desktop
