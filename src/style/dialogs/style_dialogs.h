#pragma once
// The dialogs of simple styles, by their ids.

#include "src/style/dialogs/style_dialog.h"
#include "src/toolkit/dialog.h"

namespace zu::dialog::detail {

class point_style : public style::detail::style_dialog<style::detail::point_dialog_traits,
                                                       style::favorites_point> {
 public:
  static constexpr wchar_t id[] = L"zu_common_point_style_dialog";
  static constexpr std::int32_t caption = 14907;
  /// True if the person accepted; the style is as it was if not, or for null.
  static bool run(Tzu_pnt_style* edited);
};

class line_style
    : public style::detail::style_dialog<style::detail::line_dialog_traits, style::favorites_line> {
 public:
  static constexpr wchar_t id[] = L"zu_common_line_style_dialog";
  static constexpr std::int32_t caption = 10359;
  static bool run(Tzu_pln_style* edited);
};

class polygon_style : public style::detail::style_dialog<style::detail::polygon_dialog_traits,
                                                         style::favorites_polygon> {
 public:
  static constexpr wchar_t id[] = L"zu_common_polygon_style_dialog";
  static constexpr std::int32_t caption = 14908;
  static bool run(Tzu_pgn_style* edited);
};

}  // namespace zu::dialog::detail
