#pragma once
// What the platform and the bundles say and ask, in windows.

namespace zu::desktop {

/// While it lives, messages, warnings and questions of the platform open a window over the one in
/// front, and come back when it is closed. One at a time.
class message_windows final {
 public:
  message_windows();
  ~message_windows();
  message_windows(const message_windows&) = delete;
  message_windows& operator=(const message_windows&) = delete;
};

}  // namespace zu::desktop
