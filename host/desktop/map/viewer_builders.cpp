#include "host/desktop/map/viewer_builders.h"

#include "host/desktop/map/viewer_panel.h"
#include "host/desktop/realiser/builders.h"

namespace zu::desktop {
namespace {

const host::bundle* served = nullptr;

QWidget* build_panel(handle element, QWidget* parent) {
  return new viewer_panel(of<viewer_2d_panel_impl>(element), served, parent);
}

constexpr builder builders[] = {{viewer_2d_panel_impl::name, &build_panel}};

}  // namespace

void serve_viewers(const host::bundle* services) { served = services; }

std::span<const builder> viewer_builders() { return builders; }

}  // namespace zu::desktop
