#pragma once
// The desktop's clipboard, as the platform reaches it.

#include <QString>

#include "zu/platform/zuk_os.h"

namespace zu::desktop {

/// While it lives, the platform's clipboard is the desktop's. One at a time.
class clipboard_bridge final {
 public:
  clipboard_bridge();
  ~clipboard_bridge();
  clipboard_bridge(const clipboard_bridge&) = delete;
  clipboard_bridge& operator=(const clipboard_bridge&) = delete;

  /// Under which media type a private format lies there.
  static QString media_type(const QString& format);
};

}  // namespace zu::desktop
