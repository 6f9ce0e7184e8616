#pragma once
// Progress of long work, as the one who does the work sees it.

#include "zu/handle.h"

namespace zu {

struct monitor_impl : plain_interface<monitor_impl> {
  static constexpr char name[] = "zu_monitor_interface_0";
  virtual void set_caption(const wchar_t*) {}
  virtual void set_progress(double /*share of 1*/) {}
  virtual bool is_stopped() { return false; }  ///< true asks the work to end where it is
  using operations =
      in_order<&monitor_impl::set_caption, &monitor_impl::set_progress, &monitor_impl::is_stopped>;
};
using monitor = of<monitor_impl>;

}  // namespace zu
