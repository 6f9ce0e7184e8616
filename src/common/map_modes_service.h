#pragma once
// Modes and a tool bar for viewers of the host's own windows.

#include "src/viewer/viewer_manager.h"
#include "zu/viewer.h"

namespace zu {

class map_modes_service : public referent<viewer_2d_extension_service_impl> {
 public:
  using referent::referent;
  void create(Tzu_viewer* viewer, viewer_2d_extension_visitor visitor) override;

 private:
  toolkit::viewer_manager manager_;
};

}  // namespace zu
