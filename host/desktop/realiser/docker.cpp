#include "host/desktop/realiser/docker.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <map>
#include <vector>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/layouts.h"
#include "host/desktop/realiser/pictures.h"
#include "host/desktop/realiser/visitors.h"

namespace zu::desktop {

realised_docker::realised_docker(handle element, QWidget* parent)
    : QScrollArea(parent), link(element), editor_(cast<panel_impl>(element)) {
  setObjectName(QStringLiteral("docker"));
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  // The panel stands on the window's colour, not on that of a list.
  viewport()->setAutoFillBackground(false);
  auto* inside = new QWidget(this);
  inside->setAutoFillBackground(false);
  new QVBoxLayout(inside);
  setWidget(inside);
  inside->setAutoFillBackground(false);
  heard(notice::all);
  attach();
  if (editor_)
    call<&panel_impl::attach_observer>(editor_,
                                       panel_observer(handle_of<panel_observer_impl>(*this)));
}

realised_docker::~realised_docker() {
  if (editor_) call<&panel_impl::attach_observer>(editor_, panel_observer());
  delete takeWidget();  // before the panel's own view goes: the panel may end itself then
}

bool realised_docker::is_wanted() const { return !editor_ || call<&panel_impl::enabled>(editor_); }

void realised_docker::set_margins(bool wanted) {
  if (!wanted)
    widget()->layout()->setContentsMargins(0, 0, 0, 0);
  else
    widget()->layout()->setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin),
                                           style()->pixelMetric(QStyle::PM_LayoutTopMargin),
                                           style()->pixelMetric(QStyle::PM_LayoutRightMargin),
                                           style()->pixelMetric(QStyle::PM_LayoutBottomMargin));
}

void realised_docker::fill() {
  visit_elements<&docker_impl::visit_element>(
      [this](handle root) {
        if (root == shown_) return;
        shown_ = root;
        QLayout* box = widget()->layout();
        while (QLayoutItem* old = box->takeAt(0)) {
          delete old->widget();
          delete old;
        }
        box->addWidget(realise(root, widget()));
      },
      element_);
}

void realised_docker::heard(notice what) {
  title_ = text_by<&docker_impl::visit_caption>(element_);
  icon_ = icon_by<&docker_impl::visit_image>(element_);
  setAccessibleName(title_);
  if (what != notice::language) fill();
  Q_EMIT title_changed();
}

void realised_docker::enabled_changed() { Q_EMIT wanted_changed(); }

void realised_docker::changeEvent(QEvent* event) {
  QScrollArea::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) heard(notice::language);
}

bool realised_docker::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) align_labels();
  return QScrollArea::eventFilter(watched, event);
}

void realised_docker::resizeEvent(QResizeEvent* event) {
  align_labels();
  QScrollArea::resizeEvent(event);
}

void realised_docker::align_labels() {
  if (!editor_ || widget() == nullptr) return;
  std::map<int, std::vector<grid_layout_widget*>> by_place;
  const QList<QWidget*> all = widget()->findChildren<QWidget*>();
  for (QWidget* each : all) {
    auto* grid = dynamic_cast<grid_layout_widget*>(each);
    if (grid != nullptr && grid->isVisibleTo(widget()) && grid->label_width() > 0)
      by_place[grid->mapTo(widget(), QPoint()).x()].push_back(grid);
  }
  for (const auto& [place, grids] : by_place) {
    // In a narrow panel the controls need the room.
    const int room = viewport()->width() - 2 * place;
    int widest = 0, most = room;
    for (const grid_layout_widget* grid : grids) {
      widest = std::max(widest, grid->label_width());
      most = std::min(most, room - grid->width_beside_labels());
    }
    for (grid_layout_widget* grid : grids) {
      if (!grid->align_labels(std::clamp(most, 0, widest))) continue;
      // What stands around it is to know before the panel gets its size.
      for (QWidget* at = grid; at != widget(); at = at->parentWidget())
        if (at->layout() != nullptr) at->layout()->activate();
    }
  }
}

QSize realised_docker::sizeHint() const {
  QSize wanted = widget()->sizeHint();
  int unit = layout_unit(this);
  if (editor_) {
    // A panel stands beside a map: what it would like is taken in units of half the size, and it is
    // no wider than it must. Wishes beyond any screen are cut below.
    constexpr int most_beside_a_map = 50;
    auto units = [&](std::uint32_t count) {
      return int(std::min<std::uint32_t>(count, 2000)) * unit / 2;
    };
    wanted = wanted.expandedTo(
        QSize(units(call<&panel_impl::width>(editor_)), units(call<&panel_impl::height>(editor_))));
    wanted.setWidth(std::min(wanted.width(), most_beside_a_map * unit));
  } else if (std::int32_t size = call<&docker_impl::preferred_size>(element_); size > 0) {
    wanted.setWidth(std::max(wanted.width(), std::min(size, 1000) * unit));
  }
  if (const QScreen* where = screen()) wanted = wanted.boundedTo(where->availableSize() * 9 / 10);
  return wanted;
}

QSize realised_docker::minimumSizeHint() const {
  QSize inner = widget()->minimumSizeHint();
  // A bar at the side must not cost a bar below.
  int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  return QSize(std::min(inner.width() + bar, 40 * layout_unit(this)),
               std::min(inner.height(), 16 * layout_unit(this)));
}

std::span<const builder> docker_builders() {
  static const builder rows[] = {builder_of<docker_impl, realised_docker>()};
  return rows;
}

}  // namespace zu::desktop
