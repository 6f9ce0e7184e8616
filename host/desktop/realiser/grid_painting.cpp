// How a table looks.

#include <QPaintEvent>
#include <QPainter>
#include <QStyleOptionHeader>

#include "host/desktop/realiser/grid_widget.h"

namespace zu::desktop {
namespace {

/// A part of one colour in another.
QColor mixed(const QColor& base, const QColor& part, double share) {
  const auto mix = [share](int a, int b) { return int(a + (b - a) * share + 0.5); };
  return QColor(mix(base.red(), part.red()), mix(base.green(), part.green()),
                mix(base.blue(), part.blue()));
}

}  // namespace

void grid_widget::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const int x = places_.fixed_width(), y = places_.fixed_height();
  const QRect whole = viewport()->rect();
  const std::vector<std::uint32_t> columns = places_.columns_in_sight();
  const auto [first, end] = places_.rows_in_sight();
  const std::uint64_t fixed_rows = std::min(places_.fixed_rows, places_.rows);

  // The four parts, each clipped to its own place: what scrolls must not show under what stays.
  const auto paint_part = [&](QRect clip, bool fixed_columns, std::uint64_t from,
                              std::uint64_t to) {
    painter.setClipRect(clip);
    for (std::uint64_t row = from; row < to; ++row)
      for (std::uint32_t column : columns)
        if ((column < places_.fixed_columns) == fixed_columns) paint_cell(painter, {column, row});
  };
  paint_part(QRect(x, y, whole.width() - x, whole.height() - y), false, first, end);
  paint_part(QRect(x, 0, whole.width() - x, y), false, 0, fixed_rows);
  paint_part(QRect(0, y, x, whole.height() - y), true, first, end);
  paint_part(QRect(0, 0, x, y), true, 0, fixed_rows);
}

void grid_widget::paint_cell(QPainter& painter, grid_place at) {
  const QRect rect = places_.rect(at);
  const shown_cell cell = read_cell(element_, at);
  if (at.row < places_.fixed_rows || at.column < places_.fixed_columns)
    paint_header_cell(painter, at, cell, rect);
  else
    paint_data_cell(painter, at, cell, rect);
}

void grid_widget::paint_header_cell(QPainter& painter, grid_place at, const shown_cell& cell,
                                    QRect rect) {
  QStyleOptionHeader option;
  option.initFrom(this);
  option.rect = rect;
  option.section = int(at.column);
  option.orientation = at.row < places_.fixed_rows ? Qt::Horizontal : Qt::Vertical;
  option.position = QStyleOptionHeader::Middle;
  option.state |= QStyle::State_Raised;
  option.state &= ~QStyle::State_HasFocus;
  const std::optional<grid_place> now = current();
  const bool in_header_row = at.row < places_.fixed_rows;
  const bool is_chosen = in_header_row ? call<&grid_impl::column_is_chosen>(element_, at.column)
                                       : call<&grid_impl::is_marked>(element_, at.column, at.row);
  const bool leads_to_current =
      now && (in_header_row ? now->column == at.column : now->row == at.row);
  if (is_chosen) option.state |= QStyle::State_On | QStyle::State_Sunken;
  style()->drawControl(QStyle::CE_HeaderSection, &option, &painter, this);
  if (is_chosen)
    painter.fillRect(
        rect,
        QColor::fromRgba(0x40000000 | (palette().color(QPalette::Highlight).rgb() & 0xffffff)));
  painter.save();
  QFont font = this->font();
  font.setBold(leads_to_current || is_chosen);
  painter.setFont(font);
  paint_inside(painter, cell, rect, palette().color(QPalette::ButtonText));
  painter.restore();
}

void grid_widget::paint_data_cell(QPainter& painter, grid_place at, const shown_cell& cell,
                                  QRect rect) {
  const QPalette& colors = palette();
  const QColor highlight = colors.color(QPalette::Highlight);
  QColor back =
      cell.background != 0 ? QColor::fromRgba(cell.background) : colors.color(QPalette::Base);
  QColor ink =
      colors.color(cell.is_enabled ? QPalette::Active : QPalette::Disabled, QPalette::Text);
  if (call<&grid_impl::column_is_chosen>(element_, at.column)) back = mixed(back, highlight, 0.12);
  if (call<&grid_impl::is_marked>(element_, at.column, at.row)) back = mixed(back, highlight, 0.3);
  if (is_chosen(at)) {
    back = highlight;
    ink = colors.color(QPalette::HighlightedText);
  }
  painter.fillRect(rect, back);
  painter.setPen(colors.color(QPalette::Midlight));
  painter.drawLine(rect.topRight(), rect.bottomRight());
  painter.drawLine(rect.bottomLeft(), rect.bottomRight());
  paint_inside(painter, cell, rect, ink);
  if (current() == at) {
    painter.setPen(QPen(is_chosen(at) ? ink : hasFocus() ? highlight : mixed(back, ink, 0.4), 2));
    painter.drawRect(rect.adjusted(1, 1, -2, -2));
  }
}

void grid_widget::paint_inside(QPainter& painter, const shown_cell& cell, QRect rect, QColor ink) {
  if (cell.kind == cell_kind::check) {
    if (!cell.is_shown) return;
    QStyleOptionButton option;
    option.initFrom(this);
    option.state &= ~QStyle::State_HasFocus;
    if (!cell.is_enabled) option.state &= ~QStyle::State_Enabled;
    option.state |= cell.mark == Qt::Checked     ? QStyle::State_On
                    : cell.mark == Qt::Unchecked ? QStyle::State_Off
                                                 : QStyle::State_NoChange;
    const QSize size(style()->pixelMetric(QStyle::PM_IndicatorWidth),
                     style()->pixelMetric(QStyle::PM_IndicatorHeight));
    option.rect = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, rect);
    style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &option, &painter, this);
    return;
  }
  if (cell.kind == cell_kind::picture) {
    if (cell.picture.isNull()) return;
    QSize size = cell.picture.size();
    const QRect inside = rect.adjusted(2, 1, -3, -2);
    if (size.width() > inside.width() || size.height() > inside.height())
      size.scale(inside.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, size != cell.picture.size());
    painter.drawImage(QStyle::alignedRect(layoutDirection(), cell.alignment, size, inside),
                      cell.picture);
    return;
  }
  const QRect inside = rect.adjusted(5, 0, -6, 0);
  painter.setPen(ink);
  painter.drawText(inside, int(cell.alignment),
                   painter.fontMetrics().elidedText(cell.text, Qt::ElideRight, inside.width()));
}

}  // namespace zu::desktop
