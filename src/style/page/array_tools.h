#pragma once
// Tools that give the rows of a scale the colours of a numbered array, or of a palette of the
// person's own.

#include <functional>
#include <span>

#include "src/toolkit/tools.h"

namespace zu::style::detail {

/// How colours are taken of an array.
enum class spread : std::int32_t { ramp = 0, in_turn = 1 };

struct array_entry {
  const wchar_t* id;
  std::int32_t array;
  std::int32_t text;
};

/// The arrays that a page offers, in the order of its menus.
std::span<const array_entry> gradient_entries();
std::span<const array_entry> palette_entries();

/// Applies one array. Its picture is a strip of the array.
class array_tool : public toolkit::action_tool, public tool_pictures_impl {
 public:
  using shown_as = action_tool_impl;

  array_tool(const array_entry& entry, spread taken, std::function<void(std::int32_t)> apply);
  int query_interface(const char* name, const void** table, void** instance) override;
  handle polymorphic_handle() override {
    return plain_interface<action_tool_impl>::polymorphic_handle();
  }
  void visit(std::int32_t item, std::uint32_t width, std::uint32_t height,
             bitmap_visitor visitor) override;

 private:
  std::int32_t array_;
  spread taken_;
};

/// A menu of the person's palettes as they are when somebody looks.
class palettes_dyn_tools : public toolkit::detail::tool_base<multiaction_tool_impl>,
                           public tool_pictures_impl {
 public:
  using shown_as = multiaction_tool_impl;

  /// `apply` is given the number of a palette in the person's list.
  palettes_dyn_tools(std::int32_t text, spread taken, std::function<void(std::uint64_t)> apply)
      : tool_base(text), taken_(taken), apply_(std::move(apply)) {}
  int query_interface(const char* name, const void** table, void** instance) override;
  handle polymorphic_handle() override {
    return plain_interface<multiaction_tool_impl>::polymorphic_handle();
  }
  bool enabled() override { return count() > 0; }
  std::uint32_t count() override;
  void item_text(std::uint32_t index, string_visitor visitor) override;
  void execute(std::uint32_t index) override;
  void visit(std::int32_t item, std::uint32_t width, std::uint32_t height,
             bitmap_visitor visitor) override;

 private:
  spread taken_;
  std::function<void(std::uint64_t)> apply_;
};

}  // namespace zu::style::detail
