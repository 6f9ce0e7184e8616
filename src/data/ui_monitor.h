#pragma once
// The progress window of the host as a monitor of long work.

#include "zu/monitor.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::data {

class ui_monitor : public monitor_impl {
 public:
  ui_monitor() : progress_(zu_progress_create(1)), owns_(true) {}
  /// On a window that somebody else ends.
  explicit ui_monitor(Tzu_progress* progress) : progress_(progress), owns_(false) {}
  virtual ~ui_monitor() {
    if (owns_) zu_progress_destroy(progress_);
  }
  ui_monitor(const ui_monitor&) = delete;
  ui_monitor& operator=(const ui_monitor&) = delete;

  void set_caption(const wchar_t* text) override { zu_progress_wcaption(progress_, text); }
  void set_progress(double fraction) override {
    zu_progress_show64(progress_, static_cast<std::int64_t>(fraction * 100), 100);
  }
  bool is_stopped() override { return zu_progress_get_stopped(progress_); }

 private:
  Tzu_progress* progress_;
  bool owns_;
};

}  // namespace zu::data
