#pragma once
// A list box.

#include <functional>
#include <string>
#include <vector>

#include "src/toolkit/context_menu.h"
#include "src/toolkit/element.h"
#include "zu/outline.h"

namespace zu::toolkit {

/// Texts of which a person chooses one, or several where `set_selection_mode` allows it.
class list : public with_context_menu<with_enabled<element_base<list_impl>>> {
 public:
  std::function<void(std::int32_t)> on_current;                ///< a person chose an item
  std::function<void(std::uint32_t)> on_activate;              ///< a double click, or Enter
  std::function<void(std::uint32_t, bool)> on_mark;            ///< a person set or cleared a mark
  std::function<bool(std::uint32_t, const wchar_t*)> on_text;  ///< may refuse; unset: read only
  std::function<void(std::uint32_t, bitmap_visitor)> on_picture;

  void clear();
  list& add(std::wstring text);
  /// Stores an index, -1 for none; the view is told of a change.
  void choose(std::int32_t index);
  void mark(std::uint32_t index, bool marked);
  void set_selection_mode(std::uint32_t mode);

  std::uint32_t count() override { return static_cast<std::uint32_t>(items_.size()); }
  void item_text(std::uint32_t index, string_visitor visitor) override;
  void item_picture(std::uint32_t index, bitmap_visitor visitor) override;
  std::uint32_t selection_mode() override { return selection_mode_; }
  std::int32_t current() override { return current_; }
  void set_current(std::int32_t index) override;
  bool is_marked(std::uint32_t index) override;
  void set_marked(std::uint32_t index, bool marked) override;
  void activate(std::uint32_t index) override;
  bool is_editable(std::uint32_t) override { return static_cast<bool>(on_text); }
  bool set_text(std::uint32_t index, const wchar_t* text) override;

 private:
  struct entry {
    std::wstring text;
    bool marked = false;
  };
  std::vector<entry> items_;
  std::int32_t current_ = -1;
  std::uint32_t selection_mode_ = outline_chooses_one;
};

}  // namespace zu::toolkit
