#include "host/core/print_page.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "host/core/failure.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::host {
namespace {

/// What layers cut into tiles themselves.
constexpr std::int64_t tile_side = 5000;
/// Lines are traced on a node per so many dots: pieces that begin on one share its nodes.
constexpr std::int64_t node_step = 5;
constexpr std::int64_t overlap = 4 * node_step;
constexpr std::int64_t most = tile_side - 2 * overlap - node_step;

/// Dots of one side of a page.
struct span {
  std::int64_t from, to;
};

std::vector<span> cut(std::int64_t dots) {
  if (dots < tile_side) return {{0, dots}};
  std::int64_t count = (dots + most - 1) / most;
  std::int64_t step = ((dots + count - 1) / count + node_step - 1) / node_step * node_step;
  std::vector<span> spans;
  for (std::int64_t from = 0; from < dots; from += step)
    spans.push_back({from, std::min(dots, from + step)});
  return spans;
}

/// One side of a page: its dots, millimetres and map.
struct page_side {
  double mm, per_mm, low, high;

  std::int64_t dots() const {
    constexpr double hair = 1e-6;  // what rounding may have added
    return static_cast<std::int64_t>(std::ceil(mm * per_mm - hair));
  }
  double mm_of(std::int64_t dot) const {
    return dot >= dots() ? mm : static_cast<double>(dot) / per_mm;
  }
  double map_of(std::int64_t dot) const {
    if (dot <= 0) return low;
    return dot >= dots() ? high : low + (high - low) * (mm_of(dot) / mm);
  }
  span around(const span& s) const {
    return {std::max<std::int64_t>(0, s.from - overlap), std::min(dots(), s.to + overlap)};
  }
};

/// Puts back what drawing in pieces changes.
class whole_page {
 public:
  explicit whole_page(Izu_render* render)
      : render_(render), box_(*zu_render_get_map_box_cr(render)) {}
  ~whole_page() {
    zu_drwc_set_region(zu_render_get_drwc(render_), nullptr);
    zu_render_set_map_box_cr(render_, &box_);
  }
  whole_page(const whole_page&) = delete;
  whole_page& operator=(const whole_page&) = delete;

  const Tzu_box_d2& box() const { return box_; }

 private:
  Izu_render* render_;
  Tzu_box_d2 box_;
};

/// Tells how far the pieces are.
class told_progress {
 public:
  told_progress(const std::string& caption, std::size_t total)
      : progress_(zu_progress_create(1)), total_(total) {
    zu_progress_wcaption(progress_, wide(caption).c_str());
  }
  ~told_progress() { zu_progress_destroy(progress_); }
  told_progress(const told_progress&) = delete;
  told_progress& operator=(const told_progress&) = delete;

  void begin_piece() {
    zu_progress_show64(progress_, static_cast<std::int64_t>(done_++),
                       static_cast<std::int64_t>(total_));
    if (zu_progress_get_stopped(progress_)) throw failure("the drawing was stopped");
  }

 private:
  Tzu_progress* progress_;
  std::size_t total_, done_ = 0;
};

}  // namespace

void print_page(Izu_render* render, const std::function<void()>& draw, const std::string& caption) {
  Tzu_drwc* drwc = zu_render_get_drwc(render);
  double per_mm = zu_drwc_get_dots_per_mm(drwc);
  Tzu_box_d2 page;
  zu_drwc_get_page(drwc, &page);
  whole_page whole(render);
  page_side x{page.x1, per_mm, whole.box().x0, whole.box().x1};
  page_side y{page.y1, per_mm, whole.box().y0, whole.box().y1};
  std::vector<span> columns = cut(x.dots()), rows = cut(y.dots());
  if (columns.size() == 1 && rows.size() == 1) {
    draw();
    return;
  }
  told_progress progress(caption, rows.size() * columns.size());
  for (const span& row : rows)
    for (const span& column : columns) {
      progress.begin_piece();
      span wide = x.around(column), high = y.around(row);
      const Tzu_box_d2 mm{x.mm_of(column.from), y.mm_of(row.from), x.mm_of(column.to),
                          y.mm_of(row.to)};
      const Tzu_box_d2 map{x.map_of(wide.from), y.map_of(high.from), x.map_of(wide.to),
                           y.map_of(high.to)};
      zu_drwc_set_region(drwc, &mm);
      zu_render_set_map_box_cr(render, &map);
      draw();
    }
}

}  // namespace zu::host
