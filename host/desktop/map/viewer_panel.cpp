#include "host/desktop/map/viewer_panel.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>
#include <utility>

#include "host/core/texts.h"

namespace zu::desktop {

viewer_panel::viewer_panel(of<viewer_2d_panel_impl> panel, const host::bundle* services,
                           QWidget* parent)
    : QWidget(parent),
      panel_(panel),
      title_(new QLabel(this)),
      frame_(new QFrame(this)),
      map_(new map_view(services, frame_)) {
  setObjectName(QStringLiteral("viewer_panel"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(title_);
  column->addWidget(frame_, 1);
  frame_->setFrameShape(QFrame::StyledPanel);
  auto* inside = new QVBoxLayout(frame_);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(map_);
  map_->setMinimumSize(48, 48);
  map_->installEventFilter(this);
  show_title();
}

viewer_panel::~viewer_panel() {
  map_->set_extension({});
  if (!is_attached_) return;
  call<&viewer_2d_panel_impl::attach_viewer>(panel_, static_cast<Tzu_viewer*>(nullptr));
  zu_viewer2d_set_scn_2d(map_->viewer(), nullptr);  // the scene may go before the map
}

QSize viewer_panel::sizeHint() const {
  // A unit of layouts is about half a character's height.
  double unit = fontMetrics().height() / 2.0;
  int title = title_->isHidden() ? 0 : title_->sizeHint().height() + layout()->spacing();
  return {static_cast<int>(call<&viewer_2d_panel_impl::width>(panel_) * unit),
          static_cast<int>(call<&viewer_2d_panel_impl::height>(panel_) * unit) + title};
}

void viewer_panel::show_title() {
  host::kept_text title;
  call<&viewer_2d_panel_impl::visit_title>(panel_, title.visitor());
  title_->setText(QString::fromStdWString(title.get()));
  title_->setHidden(title.get().empty());
}

void viewer_panel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (std::exchange(is_attached_, true)) return;
  call<&viewer_2d_panel_impl::attach_viewer>(panel_, zu_viewer2d_safe_upcast(map_->viewer()));
  map_->set_extension(call<&viewer_2d_panel_impl::extension>(panel_));
  map_->redraw();
}

void viewer_panel::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) show_title();
  QWidget::changeEvent(event);
}

bool viewer_panel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) call<&viewer_2d_panel_impl::activate>(panel_);
  return QWidget::eventFilter(watched, event);
}

}  // namespace zu::desktop
