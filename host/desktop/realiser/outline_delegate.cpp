#include "host/desktop/realiser/outline_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QSpinBox>
#include <QToolTip>

#include "host/desktop/realiser/outline_editors.h"
#include "host/desktop/realiser/pictures.h"
#include "host/desktop/realiser/realised.h"
#include "host/desktop/realiser/typed_line.h"
#include "zu/platform/zuk_drwc.h"

namespace zu::desktop {
namespace {

const QStyle* style_of(const QStyleOptionViewItem& option) {
  return option.widget != nullptr ? option.widget->style() : QApplication::style();
}

void paint_panel(QPainter* painter, const QStyleOptionViewItem& option) {
  style_of(option)->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
}

/// Texts keep off the cells beside them.
QRect inside_of(const QStyleOptionViewItem& option) { return option.rect.adjusted(3, 0, -3, 0); }

QRect button_rect(const QStyleOptionViewItem& option) {
  QRect rect = option.rect;
  rect.setLeft(rect.right() - std::min(rect.height() + 4, rect.width()) + 1);
  return rect.adjusted(0, 1, -1, -1);
}

QRect mark_rect(const QStyleOptionViewItem& option) {
  const QStyle* style = style_of(option);
  QSize size(style->pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
             style->pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
  return QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
}

QVariant opposite(const QModelIndex& mark) {
  return mark.data(Qt::CheckStateRole).toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
}

}  // namespace

outline_delegate::outline_delegate(outline_model* model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

const shown_column& outline_delegate::column_of(const QModelIndex& index) const {
  return model_->column(index.column());
}

bool outline_delegate::has_button(const QModelIndex& index) const {
  const shown_column& c = column_of(index);
  bool has = false;
  if (c.kind == column_kind::string)
    model_->with_item(index, [&](outline_item item) {
      has = call<&string_outline_column_impl::has_button>(c.column, item);
    });
  return has;
}

bool outline_delegate::press_button(const QModelIndex& index) const {
  if (!index.isValid() || !has_button(index)) return false;
  const handle column = column_of(index).column;
  model_->with_item(index, [&](outline_item item) {
    call<&string_outline_column_impl::press_button>(column, item);
  });
  Q_EMIT model_->input_happened();
  return true;
}

void outline_delegate::initStyleOption(QStyleOptionViewItem* option,
                                       const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const shown_column& c = column_of(index);
  bool enabled = true;
  model_->with_item(index, [&](outline_item item) { enabled = is_cell_enabled(c, item); });
  if (!enabled) option->state &= ~QStyle::State_Enabled;
  if (!option->icon.isNull()) {
    // Crisp: a picture is shown pixel by pixel unless the row is too low for it.
    QSize size = option->icon.actualSize(QSize(4096, 4096));
    option->decorationSize = size.boundedTo(QSize(size.width(), option->rect.height()));
  }
}

void outline_delegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                             const QModelIndex& index) const {
  const column_kind kind = column_of(index).kind;
  QStyleOptionViewItem option = given;
  if (kind == column_kind::boolean) return paint_mark(painter, option, index);
  if (kind == column_kind::picture) return paint_picture(painter, option, index);
  if (kind == column_kind::canvas) return paint_canvas(painter, option, index);
  const bool with_button = has_button(index);
  initStyleOption(&option, index);
  paint_panel(painter, option);
  option.backgroundBrush = {};
  option.rect = inside_of(given);
  if (with_button) option.rect.setRight(button_rect(given).left() - 1);
  style_of(option)->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
  if (!with_button) return;
  QStyleOptionButton press;
  press.rect = button_rect(given);
  press.text = QString(QChar(0x2026));
  press.state = option.state & (QStyle::State_Enabled | QStyle::State_Active);
  press.state |= pressed_ == index ? QStyle::State_Sunken : QStyle::State_Raised;
  press.palette = option.palette;
  press.fontMetrics = option.fontMetrics;
  style_of(option)->drawControl(QStyle::CE_PushButton, &press, painter, option.widget);
}

void outline_delegate::paint_mark(QPainter* painter, const QStyleOptionViewItem& given,
                                  const QModelIndex& index) const {
  QStyleOptionViewItem option = given;
  initStyleOption(&option, index);
  paint_panel(painter, option);
  option.rect = mark_rect(option);
  option.state &= ~(QStyle::State_HasFocus | QStyle::State_On | QStyle::State_Off);
  option.state |= option.checkState == Qt::Checked     ? QStyle::State_On
                  : option.checkState == Qt::Unchecked ? QStyle::State_Off
                                                       : QStyle::State_NoChange;
  if ((model_->flags(index) & Qt::ItemIsUserCheckable) == 0) option.state |= QStyle::State_ReadOnly;
  style_of(option)->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &option, painter,
                                  option.widget);
}

void outline_delegate::paint_picture(QPainter* painter, const QStyleOptionViewItem& given,
                                     const QModelIndex& index) const {
  QStyleOptionViewItem option = given;
  QStyledItemDelegate::initStyleOption(&option, index);
  const QRect inside = option.rect.adjusted(2, 1, -2, -1);
  const bool is_sized = static_cast<bool>(column_of(index).sized_pictures);
  const QImage picture = is_sized ? sized_picture(painter, option, index)
                                  : index.data(Qt::DecorationRole).value<QImage>();
  option.icon = {};
  option.features &= ~QStyleOptionViewItem::HasDecoration;
  paint_panel(painter, option);
  if (picture.isNull()) return;
  if (is_sized) {
    painter->drawImage(inside.topLeft(), picture);
    // A sample of the list's own colour would not be seen.
    painter->setPen(QColor(128, 128, 128, 128));
    painter->drawRect(inside.adjusted(0, 0, -1, -1));
    return;
  }
  QSize size = picture.size();
  if (size.width() > inside.width() || size.height() > inside.height())
    size.scale(inside.size(), Qt::KeepAspectRatio);
  const bool smaller = size != picture.size();
  painter->save();
  painter->setRenderHint(QPainter::SmoothPixmapTransform, smaller);
  painter->drawImage(
      QStyle::alignedRect(option.direction, column_of(index).alignment, size, inside), picture);
  painter->restore();
}

QImage outline_delegate::sized_picture(QPainter* painter, const QStyleOptionViewItem& option,
                                       const QModelIndex& index) const {
  const QSize inside = option.rect.adjusted(2, 1, -2, -1).size();
  if (inside.isEmpty()) return {};
  const double scale = painter->device()->devicePixelRatioF();
  const int dots = option.widget != nullptr ? option.widget->logicalDpiX() : 96;
  const handle column = column_of(index).sized_pictures;
  QImage image;
  model_->with_item(index, [&](outline_item item) {
    image = picture_by<&sized_pictures_impl::picture_of>(
                column, item, std::uint32_t(qRound(inside.width() * scale)),
                std::uint32_t(qRound(inside.height() * scale)), dots * scale / 25.4)
                .image;
  });
  image.setDevicePixelRatio(scale);
  return image;
}

void outline_delegate::paint_canvas(QPainter* painter, const QStyleOptionViewItem& given,
                                    const QModelIndex& index) const {
  QStyleOptionViewItem option = given;
  initStyleOption(&option, index);
  paint_panel(painter, option);
  const QRect inside = option.rect.adjusted(2, 1, -2, -1);
  if (inside.isEmpty()) return;
  const double scale = painter->device()->devicePixelRatioF();
  const int dots = option.widget != nullptr ? option.widget->logicalDpiX() : 96;
  QImage image(qRound(inside.width() * scale), qRound(inside.height() * scale),
               QImage::Format_RGBA8888);
  std::unique_ptr<Tzu_drwc, void (*)(Tzu_drwc*)> page(
      zu_drwc_create_image(std::uint64_t(image.width()), std::uint64_t(image.height()),
                           dots * scale, false),
      &zu_drwc_destroy);
  if (image.isNull() || !page || !model_->draw(index, page.get())) return;
  zu_drwc_get_pixels(page.get(), image.bits());  // a row of four bytes a pixel has no padding
  image.setDevicePixelRatio(scale);
  painter->fillRect(inside, Qt::white);  // as on a map
  painter->drawImage(inside.topLeft(), image);
}

QSize outline_delegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index) + QSize(6, 0);
  size.setHeight(std::max(size.height(), option.fontMetrics.height() + 6));
  const shown_column& c = column_of(index);
  if (c.kind == column_kind::picture) {
    QSize picture = index.data(Qt::DecorationRole).value<QImage>().size();
    size = size.expandedTo(picture + QSize(8, 4));
  }
  if (c.kind == column_kind::canvas) {
    double millimetres = 0;
    model_->with_item(index, [&](outline_item item) {
      millimetres = call<&canvas_outline_column_impl::height>(c.column, item);
    });
    const int dots = option.widget != nullptr ? option.widget->logicalDpiY() : 96;
    size = size.expandedTo(QSize(0, qRound(millimetres / 25.4 * dots) + 2));
  }
  if (has_button(index)) size.rwidth() += button_rect(option).height() + 8;
  return size;
}

QWidget* outline_delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const {
  QWidget* editor = nullptr;
  model_->with_item(
      index, [&](outline_item item) { editor = make_cell_editor(column_of(index), item, parent); });
  if (auto* choices = qobject_cast<QComboBox*>(editor); choices && !choices->isEditable()) {
    // A choice is meant at once; nobody has to leave the cell for it.
    connect(choices, &QComboBox::activated, this, [this, choices] { commit_and_close(choices); });
  }
  return editor;
}

void outline_delegate::commit_and_close(QWidget* editor) const {
  auto* self = const_cast<outline_delegate*>(this);
  Q_EMIT self->commitData(editor);
  Q_EMIT self->closeEditor(editor);
}

void outline_delegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  show_in_editor(editor, index.data(Qt::EditRole));
}

void outline_delegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
  const QVariant value = value_of_editor(editor);
  if (value == starting_value(editor)) return;
  // The rows, and the list itself, may be others once the outline has answered.
  const QPointer<QWidget> cells = editor->parentWidget();
  const QRect cell = editor->geometry();
  if (!model->setData(index, value, Qt::EditRole) && cells) mark_refused_part(cells, cell);
}

void outline_delegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const {
  QRect rect = option.rect;
  if (has_button(index)) rect.setRight(button_rect(option).left() - 1);
  if (rect.width() < editor->minimumSizeHint().width())
    rect.setWidth(editor->minimumSizeHint().width());
  editor->setGeometry(rect);
}

bool outline_delegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                   const QStyleOptionViewItem& option, const QModelIndex& index) {
  const bool is_mark = column_of(index).kind == column_kind::boolean &&
                       (model->flags(index) & Qt::ItemIsUserCheckable) != 0;
  if (event->type() == QEvent::KeyPress && is_mark) {
    if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Space) return false;
    return model->setData(index, opposite(index), Qt::CheckStateRole);
  }
  const bool is_press =
      event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
  if (!is_press && event->type() != QEvent::MouseButtonRelease)
    return QStyledItemDelegate::editorEvent(event, model, option, index);
  auto* mouse = static_cast<QMouseEvent*>(event);
  const QPoint at = mouse->position().toPoint();
  const bool on_button = has_button(index) && button_rect(option).contains(at);
  if (mouse->button() != Qt::LeftButton || (!is_mark && !on_button)) {
    QStyleOptionViewItem inside = option;
    inside.rect = inside_of(option);
    return QStyledItemDelegate::editorEvent(event, model, inside, index);
  }
  // What is said to be taken here leaves the choice of rows as it is: a mark may hold for all of
  // them.
  if (is_press) {
    pressed_ = index;
    return true;
  }
  const bool ends_here = pressed_ == index && option.rect.contains(at);
  pressed_ = QModelIndex();
  if (!ends_here) return true;
  return on_button ? press_button(index)
                   : model->setData(index, opposite(index), Qt::CheckStateRole);
}

bool outline_delegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                 const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid() ||
      !index.data(Qt::ToolTipRole).toString().isEmpty())
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  // A text that the cell cuts off is said whole.
  const bool is_cut = sizeHint(option, index).width() > option.rect.width();
  QToolTip::showText(event->globalPos(),
                     is_cut ? index.data(Qt::DisplayRole).toString() : QString(), view);
  return true;
}

}  // namespace zu::desktop
