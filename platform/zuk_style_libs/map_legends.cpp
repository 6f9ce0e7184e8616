// Legends of the current project.

#include <memory>
#include <new>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "zu/platform/zuk_style_libs.h"

using zu::platform::guarded;
using zu::platform::owned;
using zu::platform::text_of;

/// A scale lives in a manager.
struct Tzu_mapleg {
  std::wstring title;
  owned<zu_stl_mngr_destroy> manager{zu_clr_stl_mngr_create()};
};
struct Tzu_maplegs {
  std::vector<std::unique_ptr<Tzu_mapleg>> legends;
};
struct Tzu_prj {
  Tzu_maplegs legends;
  Tzu_prj_refresh refresh = nullptr;
  void* user = nullptr;
};

namespace {

Tzu_prj*& current_project() {
  static Tzu_prj* current = nullptr;
  return current;
}

std::wstring row_text(const Tzu_val_scale* scale, std::uint64_t row) {
  return text_of([&](Tzu_string_adp* adapter) { zu_val_scale_get_text_w(scale, row, adapter); });
}

void style(Tzu_val_scale* scale, Tzu_val_scale* legend, bool only_marked, std::int32_t selected) {
  std::unordered_map<std::wstring, std::uint64_t> rows;
  for (std::uint64_t i = 0; i < zu_val_scale_get_size(legend); ++i)
    rows.emplace(row_text(legend, i), i);
  for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale); ++i) {
    if (only_marked && !zu_val_scale_get_marked(scale, i)) continue;
    auto found = rows.find(row_text(scale, i));
    if (found == rows.end()) continue;
    std::wstring caption =
        text_of([&](Tzu_string_adp* a) { zu_val_scale_get_caption_w(legend, found->second, a); });
    zu_val_scale_set_caption_w(scale, i, caption.c_str());
    Tzu_scale_prm* row = zu_val_scale_get_scale_prm_ptr(legend, found->second);
    zu_val_scale_set_stl_prm(scale, i, zu_scale_prm_get_stl_prm_ptr(row), selected);
  }
}

}  // namespace

Tzu_prj* zu_prj_get_instance() { return current_project(); }
void zu_prj_set_instance(Tzu_prj* project) { current_project() = project; }
Tzu_prj* zu_prj_create() { return new (std::nothrow) Tzu_prj; }
void zu_prj_destroy(Tzu_prj* project) {
  if (current_project() == project) current_project() = nullptr;
  delete project;
}
Tzu_maplegs* zu_prj_get_maplegs_ptr(Tzu_prj* project) {
  if (project == nullptr) return nullptr;
  if (project->refresh != nullptr) project->refresh(&project->legends, project->user);
  return &project->legends;
}
void zu_prj_set_refresh(Tzu_prj* project, Tzu_prj_refresh refresh, void* user) {
  if (project == nullptr) return;
  project->refresh = refresh;
  project->user = user;
}

uint64_t zu_maplegs_get_size(const Tzu_maplegs* legends) {
  return legends != nullptr ? legends->legends.size() : 0;
}
Tzu_mapleg* zu_maplegs_get_ptr(Tzu_maplegs* legends, uint64_t index) {
  return index < zu_maplegs_get_size(legends) ? legends->legends[index].get() : nullptr;
}
Tzu_mapleg* zu_maplegs_add(Tzu_maplegs* legends, const wchar_t* title) {
  return guarded(legends, static_cast<Tzu_mapleg*>(nullptr), [&](Tzu_maplegs& l) {
    auto made = std::make_unique<Tzu_mapleg>();
    if (!made->manager) throw std::bad_alloc();
    if (title != nullptr) made->title = title;
    l.legends.push_back(std::move(made));
    return l.legends.back().get();
  });
}
void zu_maplegs_clear(Tzu_maplegs* legends) {
  if (legends != nullptr) legends->legends.clear();
}
void zu_mapleg_get_title(const Tzu_mapleg* legend, Tzu_string_adp* adapter) {
  if (legend != nullptr) zu_string_adp_feed(adapter, legend->title.c_str());
}
Tzu_val_scale* zu_mapleg_get_val_scale_ptr(Tzu_mapleg* legend) {
  return legend != nullptr ? zu_stl_mngr_get_val_scale_ptr(legend->manager.get()) : nullptr;
}
void zu_val_scale_style_by_mapleg(Tzu_val_scale* scale, Tzu_mapleg* legend, bool only_marked,
                                  int32_t selected) {
  Tzu_val_scale* from = zu_mapleg_get_val_scale_ptr(legend);
  if (from != nullptr && from != scale)
    guarded(scale, [&](Tzu_val_scale& s) { style(&s, from, only_marked, selected); });
}
