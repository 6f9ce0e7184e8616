#include "host/desktop/appearance.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>
#include <algorithm>
#include <cstdlib>

namespace zu::desktop {
namespace {

/// By how much the lightest or darkest pixel differs from the window, of 255.
int contrast(QWidget& shown) {
  shown.resize(shown.sizeHint());
  const QImage seen = shown.grab().toImage();
  const int ground = shown.palette().color(QPalette::Window).lightness();
  int most = 0;
  for (int y = 0; y < seen.height(); ++y)
    for (int x = 0; x < seen.width(); ++x)
      most = std::max(most, std::abs(seen.pixelColor(x, y).lightness() - ground));
  return most;
}

TEST(appearance, what_is_not_marked_is_seen_on_any_window) {
  for (appearance each : {appearance::light, appearance::dark}) {
    choose_appearance(each);
    QCheckBox box;
    QRadioButton button;
    EXPECT_GE(contrast(box), 50);
    EXPECT_GE(contrast(button), 50);
  }
  choose_appearance(appearance::light);
}

}  // namespace
}  // namespace zu::desktop
