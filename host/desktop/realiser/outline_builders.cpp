#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/grid_widget.h"
#include "host/desktop/realiser/list_widget.h"
#include "host/desktop/realiser/outline_widget.h"

namespace zu::desktop {

std::span<const builder> outline_builders() {
  static constexpr builder all[] = {builder_of<outline_impl, outline_widget>(),
                                    builder_of<list_impl, list_widget>(),
                                    builder_of<grid_impl, grid_widget>()};
  return all;
}

}  // namespace zu::desktop
