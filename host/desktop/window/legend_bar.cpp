#include "host/desktop/window/legend_bar.h"

#include <QPainter>

#include "host/core/texts.h"

namespace zu::desktop {

namespace {

constexpr int bar_width = 18, gap = 6, least_height = 90;

}  // namespace

QColor color_of(const Tzu_color& color) { return QColor(color.r, color.g, color.b, 255 - color.a); }

legend_bar::legend_bar(std::vector<host::legend_row> rows, QWidget* parent)
    : QWidget(parent), rows_(std::move(rows)) {
  setObjectName(QStringLiteral("legend_bar"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

QSize legend_bar::sizeHint() const {
  int widest = 0, numbers = 0;
  for (const host::legend_row& row : rows_) {
    if (row.text.empty()) continue;
    ++numbers;
    widest = std::max(widest, fontMetrics().horizontalAdvance(QString::fromStdWString(row.text)));
  }
  int line = fontMetrics().lineSpacing();
  return {bar_width + gap + widest, std::max(least_height, numbers * line) + line};
}

void legend_bar::paintEvent(QPaintEvent*) {
  if (rows_.empty()) return;
  QPainter painter(this);
  int line = fontMetrics().lineSpacing();
  double top = line / 2.0, step = (height() - line) / static_cast<double>(rows_.size());
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    double y = top + static_cast<double>(i) * step;
    painter.fillRect(QRectF(0, y, bar_width, step + 0.5), color_of(rows_[i].color));
    if (rows_[i].text.empty()) continue;
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRectF(bar_width + gap, y - line / 2.0, width(), line),
                     Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdWString(rows_[i].text));
  }
}

}  // namespace zu::desktop
