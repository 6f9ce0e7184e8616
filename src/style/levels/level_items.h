#pragma once
// The tree of what a style manager draws: rows of its scale, the parts of their styles, and under
// each part what bears a level, a simple style or the layers of a complex one.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "src/style/style_kinds.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style::detail {

/// A node. Its items are made when they are asked for.
class base_item {
 public:
  explicit base_item(std::wstring text, bool shows = true)
      : text_(std::move(text)), shows_(shows) {}
  virtual ~base_item() = default;
  base_item(const base_item&) = delete;
  base_item& operator=(const base_item&) = delete;

  const std::wstring& text() const { return text_; }
  /// False for a part that its style does not draw, and for what stands under it.
  bool shows() const { return shows_; }
  std::uint32_t item_count() { return static_cast<std::uint32_t>(items().size()); }
  /// Null if there is no such item.
  base_item* item(std::uint32_t row) { return row < item_count() ? items()[row].get() : nullptr; }

  virtual bool has_level() const { return false; }
  virtual std::int32_t level() const { return 0; }
  virtual void set_level(std::int32_t) {}
  /// A sample in pixels as a view takes them. False: nothing to show.
  virtual bool draw(std::uint64_t /*width*/, std::uint64_t /*height*/, double /*dots_per_mm*/,
                    Tzu_dib*) {
    return false;
  }

 protected:
  template <class made, class... args> void add(args&&... given) {
    items_.push_back(std::make_unique<made>(std::forward<args>(given)...));
  }

 private:
  virtual void fill() {}
  std::vector<std::unique_ptr<base_item>>& items() {
    if (!filled_) {
      filled_ = true;
      fill();
    }
    return items_;
  }

  std::wstring text_;
  bool shows_, filled_ = false;
  std::vector<std::unique_ptr<base_item>> items_;
};

/// A base style, which is a part of a style.
class bstyle_item : public base_item {
  using base_item::base_item;
};

/// Its only item is a simple style, or its items are the layers of its complex style.
template <class base_kind> class base_style_item : public bstyle_item {
 public:
  using base = typename base_kind::base;
  base_style_item(std::int32_t text, base* part, bool shows);
  bool draw(std::uint64_t width, std::uint64_t height, double dots_per_mm, Tzu_dib* out) override;

 private:
  void fill() override;

  base* part_;
};

/// On what the base styles differ.
struct bpnt_kind {
  using base = Tzu_bpnt_style;
  using kind = point_kind;
};
struct bpln_kind {
  using base = Tzu_bpln_style;
  using kind = line_kind;
};
struct bpgn_kind {
  using base = Tzu_bpgn_style;
  using kind = polygon_kind;
};
using bpnt_item = base_style_item<bpnt_kind>;
using bpln_item = base_style_item<bpln_kind>;
using bpgn_item = base_style_item<bpgn_kind>;

/// The text of numbers, which bears a level itself.
class bnum_item : public bstyle_item {
 public:
  bnum_item(Tzu_bnum_style* part, bool shows);
  bool has_level() const override { return true; }
  std::int32_t level() const override { return zu_bnum_style_get_render_level(part_); }
  void set_level(std::int32_t level) override { zu_bnum_style_set_render_level(part_, level); }

 private:
  Tzu_bnum_style* part_;
};

/// A whole style, with its parts.
template <class kind> class style_item : public base_item {
 public:
  style_item(std::wstring text, typename kind::style* style)
      : base_item(std::move(text)), style_(style) {}
  bool draw(std::uint64_t width, std::uint64_t height, double dots_per_mm, Tzu_dib* out) override {
    return kind::preview(style_, width, height, dots_per_mm, out);
  }

 protected:
  typename kind::style* style_;
};

class pnt_style_item : public style_item<point_kind> {
  using style_item::style_item;
  void fill() override;
};
class pln_style_item : public style_item<line_kind> {
  using style_item::style_item;
  void fill() override;
};
class pgn_style_item : public style_item<polygon_kind> {
  using style_item::style_item;
  void fill() override;
};

/// The root: a style item for each style that the manager draws with in its mode. A manager of
/// colours has none.
class mngr_item : public base_item {
 public:
  explicit mngr_item(Tzu_stl_mngr* mngr) : base_item({}), mngr_(mngr) {}

 private:
  void fill() override;
  void add_style(std::wstring text, Tzu_stl_prm* prm);
  template <class scale_traits> void add_rows();

  Tzu_stl_mngr* mngr_;
};

}  // namespace zu::style::detail
