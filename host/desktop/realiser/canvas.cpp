// Pictures that their element draws.

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <memory>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/realised.h"
#include "zu/platform/zuk_drwc.h"

namespace zu::desktop {
namespace {

struct page_end {
  void operator()(Tzu_drwc* page) const { zu_drwc_destroy(page); }
};
using page_ptr = std::unique_ptr<Tzu_drwc, page_end>;

std::uint32_t flags_of(const QMouseEvent* event) {
  std::uint32_t flags = 0;
  if (event->modifiers() & Qt::ShiftModifier) flags |= pointer_modifier_0;
  if (event->modifiers() & Qt::ControlModifier) flags |= pointer_modifier_1;
  if (event->buttons() & Qt::LeftButton) flags |= pointer_left;
  return flags;
}

/// Drawn in the pixels of the screen, and anew only when the element asks for it or the size is
/// another.
class canvas_widget final : public realised<canvas_impl, QWidget> {
 public:
  canvas_widget(handle element, QWidget* parent) : realised(element, parent) {
    setObjectName(QStringLiteral("canvas"));
    setMouseTracking(true);
    begin();
  }
  QSize sizeHint() const override {
    double width = call<&canvas_impl::width>(element_),
           height = call<&canvas_impl::height>(element_);
    int unit = layout_unit(this);
    return QSize(
        width > 0 ? int(std::lround(std::min(width, 2000.0) * dots_per_mm())) : 40 * unit,
        height > 0 ? int(std::lround(std::min(height, 2000.0) * dots_per_mm())) : 20 * unit);
  }
  QSize minimumSizeHint() const override {
    return sizeHint().boundedTo(QSize(8, 8) * layout_unit(this));
  }

 protected:
  void heard(notice) override {
    bool free_width = !(call<&canvas_impl::width>(element_) > 0);
    bool free_height = !(call<&canvas_impl::height>(element_) > 0);
    setSizePolicy(free_width ? QSizePolicy::Expanding : QSizePolicy::Preferred,
                  free_height ? QSizePolicy::Expanding : QSizePolicy::Preferred);
    setToolTip(text_by<&canvas_impl::hint>(element_));
    setEnabled(call<&canvas_impl::enabled>(element_));
    picture_ = {};
    update();
  }
  void paintEvent(QPaintEvent*) override {
    QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (picture_.size() != pixels) draw(pixels);
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(0.4);
    painter.fillRect(rect(), Qt::white);  // as on a map
    painter.drawImage(QPoint(0, 0), picture_);
  }
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) tell<&canvas_impl::press>(event, true);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons() & Qt::LeftButton)
      tell<&canvas_impl::drag>(event, true);
    else if (event->buttons() == Qt::NoButton)
      tell<&canvas_impl::hover>(event, false);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) tell<&canvas_impl::release>(event, true);
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) tell<&canvas_impl::double_click>(event, true);
  }

 private:
  double dots_per_mm() const { return logicalDpiX() / 25.4; }

  void draw(QSize pixels) {
    if (pixels.isEmpty()) return;
    page_ptr page(zu_drwc_create_image(std::uint64_t(pixels.width()),
                                       std::uint64_t(pixels.height()),
                                       logicalDpiX() * devicePixelRatioF(), false));
    picture_ = QImage(pixels, QImage::Format_RGBA8888);
    picture_.fill(Qt::transparent);
    if (page) {
      call<&canvas_impl::draw>(element_, page.get());
      zu_drwc_get_pixels(page.get(), picture_.bits());
    }
    picture_.setDevicePixelRatio(devicePixelRatioF());
  }

  template <auto operation> void tell(QMouseEvent* event, bool is_input) {
    QPointF at = event->position();
    point_2d point{at.x() / dots_per_mm(), (height() - at.y()) / dots_per_mm()};
    QPointer<QObject> alive(this);
    call<operation>(element_, flags_of(event), point);
    if (is_input && alive) input_reached(name_of(this));
  }

  QImage picture_;
};

}  // namespace

std::span<const builder> canvas_builders() {
  static const builder rows[] = {builder_of<canvas_impl, canvas_widget>()};
  return rows;
}

}  // namespace zu::desktop
