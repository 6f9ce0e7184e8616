#include <new>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_prg.h"

using zu::platform::guarded;

struct Tzu_boxes_d2 {
  std::vector<Tzu_box_d2> boxes;

  template <class test> int64_t find(uint64_t start, const test& holds) const {
    for (std::size_t i = start; i < boxes.size(); ++i)
      if (holds(boxes[i])) return static_cast<int64_t>(i);
    return -1;
  }
};

Tzu_boxes_d2* zu_boxes_d2_create() { return new (std::nothrow) Tzu_boxes_d2; }
void zu_boxes_d2_destroy(Tzu_boxes_d2* list) { delete list; }
void zu_boxes_d2_clear(Tzu_boxes_d2* list) {
  if (list != nullptr) list->boxes.clear();
}
bool zu_boxes_d2_add(Tzu_boxes_d2* list, const Tzu_box_d2* box) {
  return box != nullptr && guarded(list, false, [&](Tzu_boxes_d2& l) {
           l.boxes.push_back(*box);
           return true;
         });
}
uint64_t zu_boxes_d2_get_size(const Tzu_boxes_d2* list) {
  return list != nullptr ? list->boxes.size() : 0;
}
int64_t zu_boxes_d2_includes(const Tzu_boxes_d2* list, double x, double y, uint64_t start) {
  if (list == nullptr) return -1;
  return list->find(
      start, [&](const Tzu_box_d2& b) { return x >= b.x0 && x <= b.x1 && y >= b.y0 && y <= b.y1; });
}
int64_t zu_boxes_d2_crosses(const Tzu_boxes_d2* list, const Tzu_box_d2* box, uint64_t start) {
  if (list == nullptr || box == nullptr) return -1;
  return list->find(start, [&](const Tzu_box_d2& b) {
    return box->x0 < b.x1 && b.x0 < box->x1 && box->y0 < b.y1 && b.y0 < box->y1;
  });
}
