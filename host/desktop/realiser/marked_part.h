#pragma once
// The marked part of a text that is typed, kept by an element beside the text.

#include <QString>
#include <optional>
#include <utility>

#include "zu/toolkit.h"

namespace zu::desktop {

/// Between a control, which counts in units of QString, and an element, which counts characters.
class marked_part {
 public:
  explicit marked_part(handle selection) : selection_(selection) {}

  /// The control's part of `text` goes to the element, if it has another one.
  void tell(const QString& text, int begin, int end);
  /// The element's part, in the control's units; none if the element keeps none.
  std::optional<std::pair<int, int>> asked(const QString& text) const;

 private:
  handle selection_;
};

}  // namespace zu::desktop
