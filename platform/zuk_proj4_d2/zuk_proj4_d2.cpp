// The plain functions of reprojection.

#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_proj4_d2/reprojector.h"

using zu::platform::coordinate_system;
using zu::platform::from_utf8;
using zu::platform::guarded;
using zu::platform::pj_ptr;

struct Tzu_rpj_fb_d2 : zu::platform::reprojector {};

namespace {

void give(Tzu_string_adp* adapter, const char* text) {
  if (text != nullptr) zu_string_adp_feed(adapter, from_utf8(text).c_str());
}

std::wstring text_or_empty(const wchar_t* text) { return text != nullptr ? text : L""; }

}  // namespace

Tzu_rpj_fb_d2* zu_rpj_fb_d2_create() { return new (std::nothrow) Tzu_rpj_fb_d2; }
void zu_rpj_fb_d2_destroy(Tzu_rpj_fb_d2* rpj) { delete rpj; }
bool zu_rpj_fb_d2_init_w(Tzu_rpj_fb_d2* rpj, const wchar_t* source, const wchar_t* target) {
  return guarded(rpj, false, [&](Tzu_rpj_fb_d2& r) {
    return r.init(text_or_empty(source), text_or_empty(target));
  });
}
bool zu_rpj_fb_d2_rpj_is_needed(const Tzu_rpj_fb_d2* rpj) {
  return rpj != nullptr && rpj->is_needed();
}
void zu_rpj_fb_d2_set_use_affine_after(Tzu_rpj_fb_d2* rpj, bool use) {
  if (rpj != nullptr) rpj->use_affine(use);
}
void zu_rpj_fb_d2_set_affine_after(Tzu_rpj_fb_d2* rpj, const Tzu_matrix3x3* matrix) {
  if (rpj != nullptr && matrix != nullptr) rpj->set_affine(*matrix);
}
bool zu_rpj_fb_d2_apply_box(Tzu_rpj_fb_d2* rpj, Tzu_box_d2* box, int32_t direction) {
  return guarded(rpj, false, [&](Tzu_rpj_fb_d2& r) { return r.apply(*box, direction != 0); });
}
bool zu_rpj_fb_d2_apply_box_approx(Tzu_rpj_fb_d2* rpj, Tzu_box_d2* box, int32_t direction) {
  return zu_rpj_fb_d2_apply_box(rpj, box, direction);
}
bool zu_rpj_fb_d2_apply_pv(Tzu_rpj_fb_d2* rpj, Tzu_pv_d2* list, int32_t direction) {
  if (list == nullptr) return false;
  return guarded(rpj, false,
                 [&](Tzu_rpj_fb_d2& r) { return r.apply(list->vertices, direction != 0); });
}
bool zu_rpj_fb_d2_apply_ov(Tzu_rpj_fb_d2* rpj, Tzu_ov_d2* set, int32_t direction) {
  if (set == nullptr) return false;
  bool any = false;
  for (auto& list : set->lists) any = zu_rpj_fb_d2_apply_pv(rpj, list.get(), direction) || any;
  return any;
}

bool zu_pj_check_w(const wchar_t* text, Tzu_string_adp* reason) {
  return guarded(text, false, [&](const wchar_t& wide) {
    std::string why;
    bool known = coordinate_system(&wide, &why) != nullptr;
    if (!known && !why.empty()) give(reason, why.c_str());
    return known;
  });
}
void zu_pj_get_name_w(const wchar_t* text, Tzu_string_adp* name) {
  guarded(text, [&](const wchar_t& wide) {
    pj_ptr system = coordinate_system(&wide);
    const char* known = system ? proj_get_name(system.get()) : nullptr;
    if (known != nullptr && *known != '\0')
      give(name, known);
    else
      zu_string_adp_feed(name, &wide);
  });
}
void zu_pj_get_authority_w(const wchar_t* text, Tzu_string_adp* code) {
  guarded(text, [&](const wchar_t& wide) {
    pj_ptr system = coordinate_system(&wide);
    const char* authority = system ? proj_get_id_auth_name(system.get(), 0) : nullptr;
    const char* number = system ? proj_get_id_code(system.get(), 0) : nullptr;
    if (authority != nullptr && number != nullptr)
      give(code, (std::string(authority) + ":" + number).c_str());
  });
}
bool zu_pj_get_wkt_w(const wchar_t* text, Tzu_string_adp* wkt) {
  return guarded(text, false, [&](const wchar_t& wide) {
    pj_ptr system = coordinate_system(&wide);
    const char* known =
        system ? proj_as_wkt(zu::platform::proj_context(), system.get(), PJ_WKT2_2019, nullptr)
               : nullptr;
    give(wkt, known);
    return known != nullptr;
  });
}
