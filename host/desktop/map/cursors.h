#pragma once
// The pointers of a map.

#include <QCursor>
#include <cstdint>

namespace zu::desktop {

/// Numbers of the pictures of cursors that the modes of viewers name.
enum cursor_number_of_mode : std::int32_t {
  cursor_cross = 0,
  cursor_zoom_in = 101,
  cursor_zoom_out = 102,
  cursor_hand = 103,
  cursor_zoom_in_v = 104,
  cursor_zoom_in_h = 105,
  cursor_zoom_out_v = 106,
  cursor_zoom_out_h = 107,
  cursor_hand_v = 108,
  cursor_hand_h = 109,
};

/// A magnifier with its sign, an open hand, or an arrow of two heads for a hand that is tied to an
/// axis; a cross for any other number.
QCursor map_cursor(std::int32_t number);

}  // namespace zu::desktop
