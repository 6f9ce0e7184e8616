// Bars of a distribution with two limits over them.

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionFocusRect>
#include <QToolTip>
#include <vector>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/number_text.h"
#include "host/desktop/realiser/realised.h"
#include "host/desktop/words.h"
#include "zu/platform/zuk_stat.h"

namespace zu::desktop {
namespace {

/// The limits are shares of the width of the bars, 0 to 1. The pointer drags the nearer one; the
/// arrow keys move the one that is chosen by the space bar, by a hundredth of the width.
class histogram_widget final : public realised<histogram_impl, QWidget> {
 public:
  histogram_widget(handle element, QWidget* parent) : realised(element, parent) {
    setObjectName(QStringLiteral("histogram"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    begin();
  }
  QSize sizeHint() const override { return QSize(40, 12) * layout_unit(this); }
  QSize minimumSizeHint() const override { return QSize(16, 6) * layout_unit(this); }

 protected:
  void heard(notice) override {
    struct collector final : histogram_data_visitor_impl {
      void visit(const Tzu_histogramm_data* data) override {
        for (std::uint64_t i = 0, n = zu_histogramm_get_size(data); i < n; ++i)
          bars.push_back(zu_histogramm_get(data, i));
      }
      std::vector<double> bars;
    } found;
    is_shown_ = call<&histogram_impl::show>(element_) != 0;
    if (is_shown_)
      call<&histogram_impl::visit_histogram>(
          element_, histogram_data_visitor(handle_of<histogram_data_visitor_impl>(found)));
    bars_ = std::move(found.bars);
    limits_[0] = call<&histogram_impl::minimum>(element_);
    limits_[1] = call<&histogram_impl::maximum>(element_);
    setAccessibleDescription(words("Arrow keys move a limit, the space bar chooses the other one.",
                                   "Стрелки двигают предел, пробел выбирает другой."));
    setToolTip(words("Limits: %1 to %2. Drag them, or move them by the arrow keys; the space bar "
                     "chooses the other one.",
                     "Пределы: от %1 до %2. Их можно тянуть мышью или двигать стрелками; пробел "
                     "выбирает другой.")
                   .arg(number_text(limits_[0]), number_text(limits_[1])));
    update();
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QRectF area = bars_area();
    painter.fillRect(area, palette().color(QPalette::Base));
    if (is_shown_) {
      draw_bars(painter, area);
      if (!bars_.empty()) draw_limits(painter, area);
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    if (!hasFocus()) return;
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton || bars_.empty()) return;
    double at = share_at(event->position().x());
    chosen_ = std::abs(at - limits_[0]) < std::abs(at - limits_[1]) ||
                      (limits_[0] == limits_[1] && at < limits_[0])
                  ? 0
                  : 1;
    is_dragging_ = true;
    move_to(at);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    double at = share_at(event->position().x());
    double reach = 5 / std::max(1.0, bars_area().width());
    bool near = std::min(std::abs(at - limits_[0]), std::abs(at - limits_[1])) < reach;
    setCursor(is_dragging_ || (near && !bars_.empty()) ? Qt::SplitHCursor : Qt::ArrowCursor);
    if (!is_dragging_) return;
    QPointer<QWidget> alive(this);
    move_to(at);
    if (alive)
      QToolTip::showText(event->globalPosition().toPoint(), number_text(limits_[chosen_]), this);
  }
  void mouseReleaseEvent(QMouseEvent*) override { is_dragging_ = false; }

  void keyPressEvent(QKeyEvent* event) override {
    double step = event->modifiers() & Qt::ShiftModifier ? 0.1 : 0.01;
    switch (event->key()) {
      case Qt::Key_Left:
        return move_to(limits_[chosen_] - step);
      case Qt::Key_Right:
        return move_to(limits_[chosen_] + step);
      case Qt::Key_Home:
        return move_to(0);
      case Qt::Key_End:
        return move_to(1);
      case Qt::Key_Space:
        chosen_ = 1 - chosen_;
        return update();
      default:
        QWidget::keyPressEvent(event);
    }
  }

 private:
  QRectF bars_area() const { return QRectF(rect()).adjusted(4, 2, -4, -2); }
  double share_at(double x) const {
    QRectF area = bars_area();
    return area.width() > 0 ? std::clamp((x - area.left()) / area.width(), 0.0, 1.0) : 0;
  }

  void draw_bars(QPainter& painter, QRectF area) const {
    double highest = 0;
    for (double count : bars_) highest = std::max(highest, count);
    if (!(highest > 0)) return;
    double width = area.width() / double(bars_.size());
    for (std::size_t i = 0; i < bars_.size(); ++i) {
      double middle = (double(i) + 0.5) / double(bars_.size());
      bool inside = middle >= limits_[0] && middle <= limits_[1];
      double height = area.height() * std::max(0.0, bars_[i]) / highest;
      painter.fillRect(QRectF(area.left() + double(i) * width, area.bottom() - height,
                              std::max(width, 1.0), height),
                       palette().color(inside ? QPalette::Highlight : QPalette::Mid));
    }
  }
  void draw_limits(QPainter& painter, QRectF area) const {
    painter.setBrush(palette().color(QPalette::Text));
    for (int i = 0; i < 2; ++i) {
      double x = area.left() + std::clamp(limits_[i], 0.0, 1.0) * area.width();
      painter.setPen(QPen(palette().color(QPalette::Text), i == chosen_ ? 2 : 1));
      painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
      painter.drawPolygon(QPolygonF(
          {QPointF(x - 4, area.top()), QPointF(x + 4, area.top()), QPointF(x, area.top() + 6)}));
    }
  }

  /// Moves the chosen limit, not past the other one.
  void move_to(double at) {
    if (bars_.empty() || !isEnabled()) return;
    // A share of nine digits is finer than any screen.
    at = std::round(at * 1e9) / 1e9;
    double low = chosen_ == 0 ? std::clamp(at, 0.0, std::max(0.0, limits_[1])) : limits_[0];
    double high = chosen_ == 1 ? std::clamp(at, std::min(1.0, limits_[0]), 1.0) : limits_[1];
    if (low == limits_[0] && high == limits_[1]) return;
    QPointer<QObject> alive(this);
    call<&histogram_impl::set_range>(element_, low, high);
    if (alive) heard(notice::value);
    if (alive) input_reached(words("Limits", "Пределы"));
  }

  std::vector<double> bars_;
  double limits_[2] = {0, 1};
  bool is_shown_ = true, is_dragging_ = false;
  int chosen_ = 0;
};

}  // namespace

std::span<const builder> histogram_builders() {
  static const builder rows[] = {builder_of<histogram_impl, histogram_widget>()};
  return rows;
}

}  // namespace zu::desktop
