#include "host/desktop/window/layer_list.h"

#include <QDropEvent>
#include <QEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "host/core/legend.h"
#include "host/core/texts.h"
#include "host/desktop/appearance.h"
#include "host/desktop/reasons.h"
#include "host/desktop/window/legend_bar.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

constexpr int legend_role = Qt::UserRole + 1;

QIcon swatch_of(const QColor& color, int size) {
  constexpr int oversampling = 2;
  QPixmap pixmap(size * oversampling, size * oversampling);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setPen(QPen(QColor(128, 128, 128), oversampling));
  painter.setBrush(color);
  painter.drawRect(pixmap.rect().adjusted(1, 4, -2, -5));
  return QIcon(pixmap);
}

/// A text that differs where legends look different.
QString key_of(const host::legend_part& part) {
  QString key = part.bar ? QStringLiteral("|") : QString();
  for (const host::legend_row& row : part.rows)
    key += color_of(row.color).name(QColor::HexArgb) + QString::fromStdWString(row.text) +
           QLatin1Char('\n');
  return key;
}

/// Rows a little apart, for the eye and for the hand.
class airy_rows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    bool is_layer = !index.parent().isValid();
    return is_layer ? QSize(size.width(), size.height() + 6) : size;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    // The frame of a check box is drawn in a shade of this, which is no colour of a dark list.
    if (is_dark()) option->palette.setColor(QPalette::Window, QColor(160, 160, 160));
  }
};

}  // namespace

layer_list::layer_list(document& shown, QWidget* parent) : QTreeWidget(parent), document_(shown) {
  setObjectName(QStringLiteral("layer_list"));
  setHeaderHidden(true);
  setItemDelegate(new airy_rows(this));
  setColumnCount(1);
  // F2 and the other keys of a layer are actions of the window.
  setEditTriggers(NoEditTriggers);
  setExpandsOnDoubleClick(false);
  setDragDropMode(InternalMove);
  setDefaultDropAction(Qt::MoveAction);
  setContextMenuPolicy(Qt::CustomContextMenu);
  setTextElideMode(Qt::ElideMiddle);
  setFrameShape(NoFrame);
  connect(&document_, &document::layers_changed, this, &layer_list::follow);
  connect(&document_, &document::layer_activated, this, &layer_list::follow_active);
  connect(this, &QTreeWidget::itemChanged, this, &layer_list::take_edit);
  connect(this, &QTreeWidget::currentItemChanged, this, [this] {
    if (filling_) return;
    const host::project_layer* layer = layer_at(current_index());
    document_.set_active_layer(layer != nullptr ? layer->shown : nullptr);
  });
  connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
    int index = index_of_item(item);
    const host::project_layer* layer = layer_at(index);
    if (layer == nullptr || layer->shown == nullptr) return;
    if (layer->shown->is_missing())
      Q_EMIT source_wanted(index);
    else
      Q_EMIT zoom_wanted(index);
  });
  follow();
}

// A name that is being typed is not taken when its window goes.
layer_list::~layer_list() { disconnect(); }

int layer_list::index_of_item(QTreeWidgetItem* item) const {
  while (item != nullptr && item->parent() != nullptr) item = item->parent();
  int row = item != nullptr ? indexOfTopLevelItem(item) : -1;
  return row < 0 ? -1 : index_of_row(row);
}

int layer_list::current_index() const { return index_of_item(currentItem()); }

void layer_list::edit_current() {
  int index = current_index();
  if (index >= 0) editItem(topLevelItem(index_of_row(index)));
}

const host::project_layer* layer_list::layer_at(int index) const {
  const auto& layers = document_.scene().layers;
  if (index < 0 || index >= static_cast<int>(layers.size())) return nullptr;
  return &layers[std::size_t(index)];
}

QStringList layer_list::problems_of(const host::project_layer& layer) {
  QStringList problems;
  if (layer.shown == nullptr) {
    problems += words("Layers of the type \"%1\" are unknown here; it is kept as it is.",
                      "Слои типа «%1» здесь неизвестны; он сохраняется как есть.")
                    .arg(QString::fromStdString(layer.type()));
    return problems;
  }
  if (layer.shown->is_missing())
    problems += words("The source is missing. Double click to choose another one.",
                      "Источник не найден. Двойной щелчок — выбрать другой.");
  std::wstring scene =
      host::text_of([&](Tzu_string_adp* a) { zu_lr2d_get_dst_pj4wstr(layer.shown->entity(), a); });
  if (!layer.shown->is_missing() && !scene.empty() && layer.shown->projection().empty())
    problems += words("It has no projection, and stands where its own coordinates say.",
                      "У слоя нет проекции; он стоит по своим координатам.");
  for (const std::string& reason : host::reasons(host::wide(layer.source())))
    problems += reason_in_words(reason);
  return problems;
}

void layer_list::follow() {
  const auto& layers = document_.scene().layers;
  std::vector<std::uint64_t> rows;
  for (auto each = layers.rbegin(); each != layers.rend(); ++each) rows.push_back(each->id);
  filling_ = true;
  if (rows != rows_) {
    // A layer that was there stays folded as it was.
    std::vector<std::uint64_t> folded;
    for (int row = 0; row < topLevelItemCount(); ++row)
      if (!topLevelItem(row)->isExpanded()) folded.push_back(rows_[std::size_t(row)]);
    clear();
    rows_ = rows;
    for (std::uint64_t row : rows_) {
      auto* item = new QTreeWidgetItem(this);
      item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                     Qt::ItemIsEditable | Qt::ItemIsDragEnabled);
      item->setExpanded(std::find(folded.begin(), folded.end(), row) == folded.end());
    }
  }
  for (int row = 0; row < topLevelItemCount(); ++row)
    fill(topLevelItem(row), layers[std::size_t(index_of_row(row))]);
  filling_ = false;
  follow_active();
}

void layer_list::follow_active() {
  int index = document_.index_of(document_.active_layer());
  if (index < 0 || index == current_index()) return;
  filling_ = true;
  setCurrentItem(topLevelItem(index_of_row(index)));
  filling_ = false;
}

void layer_list::fill(QTreeWidgetItem* item, const host::project_layer& layer) {
  bool dead = layer.shown == nullptr || layer.shown->is_missing();
  item->setText(0, QString::fromStdString(layer.caption()));
  item->setCheckState(
      0, layer.shown != nullptr && layer.shown->is_visible() ? Qt::Checked : Qt::Unchecked);
  Qt::ItemFlags flags = item->flags();
  flags.setFlag(Qt::ItemIsUserCheckable, layer.shown != nullptr);
  flags.setFlag(Qt::ItemIsEditable, layer.shown != nullptr);
  item->setFlags(flags);
  QFont font = this->font();
  font.setItalic(dead);
  item->setFont(0, font);
  item->setForeground(
      0, palette().brush(dead ? QPalette::Disabled : QPalette::Active, QPalette::Text));
  fill_problems(item, layer);
  if (layer.shown != nullptr && !layer.shown->is_missing()) {
    fill_legend(item, *layer.shown);
  } else {
    qDeleteAll(item->takeChildren());
    item->setData(0, legend_role, {});
  }
}

void layer_list::fill_problems(QTreeWidgetItem* item, const host::project_layer& layer) {
  QStringList problems = problems_of(layer);
  item->setIcon(0, problems.isEmpty() ? QIcon() : QIcon::fromTheme(QStringLiteral("data-warning")));
  QString tip = QString::fromStdString(layer.source()).toHtmlEscaped();
  for (const QString& problem : problems) tip += QStringLiteral("<br>• ") + problem.toHtmlEscaped();
  item->setToolTip(0, QStringLiteral("<qt>") + tip + QStringLiteral("</qt>"));
  item->setData(0, Qt::AccessibleDescriptionRole, problems.join(QLatin1Char('\n')));
}

void layer_list::follow_problems() {
  filling_ = true;
  const auto& layers = document_.scene().layers;
  for (int row = 0; row < topLevelItemCount(); ++row)
    fill_problems(topLevelItem(row), layers.at(std::size_t(index_of_row(row))));
  filling_ = false;
}

void layer_list::fill_legend(QTreeWidgetItem* item, const host::layer& layer) {
  host::legend_part part = host::legend_of(layer);
  QString key = key_of(part);
  if (item->data(0, legend_role).toString() == key) return;
  item->setData(0, legend_role, key);
  qDeleteAll(item->takeChildren());
  if (part.bar) {
    auto* row = new QTreeWidgetItem(item);
    row->setFlags(Qt::ItemIsEnabled);
    auto* bar = new legend_bar(part.rows, this);
    row->setSizeHint(0, bar->sizeHint());
    setItemWidget(row, 0, bar);
    return;
  }
  int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
  for (const host::legend_row& each : part.rows) {
    auto* row = new QTreeWidgetItem(item);
    row->setFlags(Qt::ItemIsEnabled);
    row->setText(0, QString::fromStdWString(each.text));
    row->setIcon(0, swatch_of(color_of(each.color), size));
  }
}

void layer_list::take_edit(QTreeWidgetItem* item) {
  const host::project_layer* layer = layer_at(index_of_item(item));
  if (filling_ || item->parent() != nullptr || layer == nullptr || layer->shown == nullptr) return;
  int index = index_of_item(item);
  bool visible = item->checkState(0) == Qt::Checked;
  if (visible != layer->shown->is_visible())
    document_.set_layer_visible(index, visible);
  else
    document_.rename_layer(index, item->text(0));
  // What was refused shows its old text again.
  follow();
}

void layer_list::dropEvent(QDropEvent* event) {
  int from = current_index();
  if (from < 0) return event->ignore();
  QPoint at = event->position().toPoint();
  QTreeWidgetItem* item = itemAt(at);
  bool below =
      item == nullptr || item->parent() != nullptr || at.y() > visualItemRect(item).center().y();
  int row = item != nullptr ? topLevelItemCount() - 1 - index_of_item(item) + (below ? 1 : 0)
                            : topLevelItemCount();
  int from_row = topLevelItemCount() - 1 - from;
  if (row > from_row) --row;
  // The rows are made from the document, so the view must not take the old one away itself.
  event->setDropAction(Qt::IgnoreAction);
  event->accept();
  document_.move_layer(from, index_of_row(row));
}

void layer_list::changeEvent(QEvent* event) {
  QTreeWidget::changeEvent(event);
  bool spoken = event->type() == QEvent::LanguageChange;
  if (spoken || event->type() == QEvent::PaletteChange) follow();
}

}  // namespace zu::desktop
