#include "host/desktop/realiser/outline_builders.h"

#include "host/desktop/realiser/grid_widget.h"
#include "host/desktop/realiser/list_widget.h"
#include "host/desktop/realiser/outline_widget.h"

namespace zu::desktop {
namespace {

QWidget* build_outline(handle element, QWidget* parent) {
  return new outline_widget(element, parent);
}
QWidget* build_list(handle element, QWidget* parent) { return new list_widget(element, parent); }
QWidget* build_grid(handle element, QWidget* parent) { return new grid_widget(element, parent); }

}  // namespace

std::span<const builder> outline_builders() {
  static const builder all[] = {{outline_impl::name, build_outline},
                                {list_impl::name, build_list},
                                {grid_impl::name, build_grid}};
  return all;
}

}  // namespace zu::desktop
