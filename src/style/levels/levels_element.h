#pragma once
// The order in which the parts of a manager's styles are drawn, as a person sets it.

#include "src/style/levels/level_items.h"
#include "src/toolkit/layouts.h"
#include "src/toolkit/outline.h"

namespace zu::style {
namespace detail {

/// The tree of a manager.
class level_outline : public toolkit::outline {
 public:
  level_outline();
  /// Not owned; null shows nothing.
  void set(Tzu_stl_mngr* mngr);

  std::uint32_t item_count(outline_item item) override;
  bool is_open(outline_item) override;
  bool is_item_disabled(outline_item item) override;
  std::uint32_t visible_rows() override { return 14; }
  std::uint32_t width() override { return 50; }
  void current(outline_item_visitor visitor) override;
  void set_current(outline_item item) override;
  bool is_marked(outline_item item) override;

 private:
  using rows = std::vector<std::uint32_t>;  ///< the way from the root
  static rows way_to(handle item);
  base_item* at(outline_item item);  ///< null if there is none

  /// What the columns share. `id` must outlive them.
  template <class x> class level_column : public x {
   public:
    level_column(level_outline& owner, const wchar_t* id, std::int32_t caption)
        : owner_(owner), id_(id), caption_(caption) {}
    void id(string_visitor visitor) override { call<&string_visitor_impl::visit>(visitor, id_); }
    void caption(string_visitor visitor) override { toolkit::visit_text(caption_, visitor); }

   protected:
    base_item* at(outline_item item) { return owner_.at(item); }

   private:
    level_outline& owner_;
    const wchar_t* id_;
    std::int32_t caption_;
  };
  /// What is drawn, with its sample.
  class cpx_lr_column : public level_column<string_outline_column_impl> {
   public:
    using level_column::level_column;
    void text(outline_item item, string_visitor visitor) override;
    void picture(outline_item item, bitmap_visitor visitor) override;
    bool is_enabled(outline_item item) override;
  };
  /// Empty where there is no level.
  class cpx_render_level_column : public level_column<integer_outline_column_impl> {
   public:
    using level_column::level_column;
    std::int32_t value(outline_item item) override;
    bool set_value(outline_item item, std::int32_t level) override;
    bool has_value(outline_item item) override;
    bool is_editable(outline_item item) override { return is_enabled(item) && has_value(item); }
    bool is_enabled(outline_item item) override;
    std::int32_t minimum(outline_item) override { return -most; }
    std::int32_t maximum(outline_item) override { return most; }
    std::uint32_t width() override { return 8; }

   private:
    static constexpr std::int32_t most = 1000;
  };

  std::unique_ptr<base_item> root_;
  rows current_;
  cpx_lr_column style_{*this, L"zu_style_levels_cpx_lr_column", 10065};
  cpx_render_level_column level_{*this, L"zu_style_levels_cpx_render_level_column", 13611};
};

}  // namespace detail

/// The tree in a frame with a mark, which says whether levels are used.
class levels_element : public toolkit::with_element {
 public:
  levels_element();
  /// Shows a manager, which is not owned and whose styles get the levels as they are typed.
  void set(Tzu_stl_mngr* mngr) { outline_.set(mngr); }
  void assign_use(bool use) { frame_.assign(use); }  ///< no handler runs
  bool use() { return frame_.checked(); }
  std::function<void(bool)> on_use;

  handle element() override { return toolkit::handle_of_element(frame_); }

 private:
  detail::level_outline outline_;
  toolkit::groupbox<1, 1> frame_{13602};
};

}  // namespace zu::style
