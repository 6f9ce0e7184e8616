#pragma once
// What a library of styles is made of. Items and styles keep their address until they are removed.

#include <climits>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/zuk_basic/owned.h"
#include "zu/platform/zuk_style_libs.h"

/// A caption with a number, or a heading without one, and what stands below it.
struct Tzu_style_item {
  std::int32_t index = zu_style_no_index;
  std::wstring caption;
  std::vector<std::unique_ptr<Tzu_style_item>> items;
};

namespace zu::platform {
enum class style_kind { point, line, polygon };
}

/// A style with a number; one of the three, as the kind of its list says.
struct Tzu_idx_style {
  std::int32_t index = 0, version = 0;
  zu::platform::owned<zu_pnt_style_destroy> point;
  zu::platform::owned<zu_pln_style_destroy> line;
  zu::platform::owned<zu_pgn_style_destroy> polygon;
};

struct Tzu_style_list {
  explicit Tzu_style_list(zu::platform::style_kind of) : kind(of) {}
  zu::platform::style_kind kind;
  std::vector<std::unique_ptr<Tzu_idx_style>> styles;
};

struct Tzu_style_lib {
  Tzu_style_item root;  ///< its caption is the library's
  Tzu_style_list points{zu::platform::style_kind::point};
  Tzu_style_list lines{zu::platform::style_kind::line};
  Tzu_style_list polygons{zu::platform::style_kind::polygon};
};

namespace zu::platform {

/// A new style of a kind with a number. Throws if out of memory.
std::unique_ptr<Tzu_idx_style> made_style(style_kind kind, std::int32_t index);
/// The style as text; equal texts are equal styles.
std::wstring text_of_style(const Tzu_idx_style& style);
/// Adds what the other has: items under numbers that are not there yet, headings by caption, and
/// styles that are not there with the same number.
void merge(Tzu_style_lib& library, const Tzu_style_lib& from);

}  // namespace zu::platform
