#include "platform/zuk_prg/vertices.h"

#include <algorithm>
#include <new>

#include "platform/zuk_basic/guarded.h"

using zu::platform::guarded;

Tzu_pv_d2* zu_pv_d2_create() { return new (std::nothrow) Tzu_pv_d2; }
void zu_pv_d2_destroy(Tzu_pv_d2* list) { delete list; }
void zu_pv_d2_assign(Tzu_pv_d2* list, const Tzu_pv_d2* from) {
  if (from != nullptr) guarded(list, [&](Tzu_pv_d2& l) { l.vertices = from->vertices; });
}
void zu_pv_d2_add_vtx(Tzu_pv_d2* list, const Tzu_vtx_d2* vertex) {
  guarded(list, [&](Tzu_pv_d2& l) { l.vertices.push_back(*vertex); });
}
uint64_t zu_pv_d2_get_size(const Tzu_pv_d2* list) {
  return list != nullptr ? list->vertices.size() : 0;
}
Tzu_vtx_d2* zu_pv_d2_get_arr(Tzu_pv_d2* list) {
  return list != nullptr ? list->vertices.data() : nullptr;
}
void zu_pv_d2_delete_double(Tzu_pv_d2* list) {
  guarded(list, [](Tzu_pv_d2& l) {
    auto same = [](const Tzu_vtx_d2& a, const Tzu_vtx_d2& b) { return a.x == b.x && a.y == b.y; };
    l.vertices.erase(std::unique(l.vertices.begin(), l.vertices.end(), same), l.vertices.end());
  });
}
void zu_pv_d2_apply_matrix3x3(Tzu_pv_d2* list, const Tzu_matrix3x3* matrix) {
  guarded(list, [&](Tzu_pv_d2& l) {
    for (Tzu_vtx_d2& vertex : l.vertices) zu_vtx_d2_apply_matrix3x3(&vertex, matrix);
  });
}

Tzu_ov_d2* zu_ov_d2_create() { return new (std::nothrow) Tzu_ov_d2; }
void zu_ov_d2_destroy(Tzu_ov_d2* set) { delete set; }
void zu_ov_d2_assign(Tzu_ov_d2* set, const Tzu_ov_d2* from) {
  if (from == nullptr || from == set) return;
  guarded(set, [&](Tzu_ov_d2& s) {
    s.lists.clear();
    s.level = from->level;
    for (const auto& list : from->lists) s.lists.push_back(std::make_unique<Tzu_pv_d2>(*list));
  });
}
Tzu_pv_d2* zu_ov_d2_add(Tzu_ov_d2* set) {
  return guarded(set, static_cast<Tzu_pv_d2*>(nullptr), [](Tzu_ov_d2& s) {
    return s.lists.emplace_back(std::make_unique<Tzu_pv_d2>()).get();
  });
}
void zu_ov_d2_clear(Tzu_ov_d2* set) {
  guarded(set, [](Tzu_ov_d2& s) {
    s.lists.clear();
    s.level.reset();
  });
}
void zu_ov_d2_set_level(Tzu_ov_d2* set, double level) {
  if (set != nullptr) set->level = level;
}
bool zu_ov_d2_get_level(const Tzu_ov_d2* set, double* level) {
  if (set == nullptr || !set->level) return false;
  *level = *set->level;
  return true;
}
uint64_t zu_ov_d2_get_size(const Tzu_ov_d2* set) { return set != nullptr ? set->lists.size() : 0; }
Tzu_pv_d2* zu_ov_d2_get_pv_ptr(Tzu_ov_d2* set, uint64_t index) {
  return index < zu_ov_d2_get_size(set) ? set->lists[index].get() : nullptr;
}
void zu_ov_d2_apply_matrix3x3(Tzu_ov_d2* set, const Tzu_matrix3x3* matrix) {
  guarded(set, [&](Tzu_ov_d2& s) {
    for (auto& list : s.lists) zu_pv_d2_apply_matrix3x3(list.get(), matrix);
  });
}
