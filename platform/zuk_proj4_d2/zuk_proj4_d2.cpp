#include "zu/platform/zuk_proj4_d2.h"

#include <cstdlib>
#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_prg/vertices.h"
#include "platform/zuk_proj4_d2/reprojector.h"

using namespace zu::platform;

struct Tzu_rpj_fb_d2 : reprojector {};

namespace {

std::string narrow(const wchar_t* text) { return text == nullptr ? "" : to_utf8(text); }

// Tells what `what` finds of the system that a text names; nothing if it names none.
template <class work> void of_system(const wchar_t* text, work what) {
  guarded(text, [&](const wchar_t& first) {
    const auto& thread = proj_thread::current();
    if (pj_ptr system = thread->system(to_utf8(&first))) what(*thread, *system);
  });
}

// The part of a system that has its axes: without a height and without a shift to another datum.
pj_ptr with_axes(proj_thread& thread, const PJ& system) {
  PJ_CONTEXT* context = thread.context();
  pj_ptr inner;
  if (proj_get_type(&system) == PJ_TYPE_BOUND_CRS)
    inner.reset(proj_get_source_crs(context, &system));
  else if (proj_get_type(&system) == PJ_TYPE_COMPOUND_CRS)
    inner.reset(proj_crs_get_sub_crs(context, &system, 0));
  else
    inner.reset(proj_clone(context, &system));
  return inner;
}

// The code by which PROJ's database knows the system, if it is sure.
int identified_code(proj_thread& thread, const PJ& system) {
  constexpr int sure = 90;
  int* confidence = nullptr;
  PJ_OBJ_LIST* found = proj_identify(thread.context(), &system, "EPSG", nullptr, &confidence);
  int code = 0;
  if (found != nullptr && proj_list_get_count(found) > 0 && confidence[0] >= sure) {
    pj_ptr best(proj_list_get(thread.context(), found, 0));
    const char* text = best == nullptr ? nullptr : proj_get_id_code(best.get(), 0);
    code = text == nullptr ? 0 : std::atoi(text);
  }
  proj_int_list_destroy(confidence);
  proj_list_destroy(found);
  return code;
}

}  // namespace

Tzu_rpj_fb_d2* zu_rpj_fb_d2_create(void) { return new (std::nothrow) Tzu_rpj_fb_d2; }
void zu_rpj_fb_d2_destroy(Tzu_rpj_fb_d2* rpj) { delete rpj; }

bool zu_rpj_fb_d2_init_w(Tzu_rpj_fb_d2* rpj, const wchar_t* source, const wchar_t* target) {
  return guarded(rpj, false,
                 [&](reprojector& r) { return r.init(narrow(source), narrow(target)); });
}

bool zu_rpj_fb_d2_rpj_is_needed(const Tzu_rpj_fb_d2* rpj) {
  return guarded(rpj, false, [](const reprojector& r) { return r.is_needed(); });
}

void zu_rpj_fb_d2_set_use_affine_after(Tzu_rpj_fb_d2* rpj, bool use) {
  guarded(rpj, [&](reprojector& r) { r.use_affine(use); });
}

void zu_rpj_fb_d2_set_affine_after(Tzu_rpj_fb_d2* rpj, const Tzu_matrix3x3* matrix) {
  if (matrix == nullptr) return;
  guarded(rpj, [&](reprojector& r) { r.set_affine(*matrix); });
}

bool zu_rpj_fb_d2_apply_box(Tzu_rpj_fb_d2* rpj, Tzu_box_d2* box, int32_t direction) {
  if (box == nullptr) return false;
  return guarded(rpj, false, [&](reprojector& r) { return r.apply(*box, direction != 0); });
}

bool zu_rpj_fb_d2_apply_box_approx(Tzu_rpj_fb_d2* rpj, Tzu_box_d2* box, int32_t direction) {
  return zu_rpj_fb_d2_apply_box(rpj, box, direction);
}

bool zu_rpj_fb_d2_apply_xy(Tzu_rpj_fb_d2* rpj, double* x, double* y, int32_t direction) {
  if (x == nullptr || y == nullptr) return false;
  return guarded(rpj, false, [&](reprojector& r) {
    Tzu_vtx_d2 point{*x, *y};
    bool has_image = r.apply(&point, 1, direction != 0);
    *x = point.x, *y = point.y;
    return has_image;
  });
}

bool zu_rpj_fb_d2_apply_pv(Tzu_rpj_fb_d2* rpj, Tzu_pv_d2* list, int32_t direction) {
  if (list == nullptr) return false;
  return guarded(rpj, false, [&](reprojector& r) {
    return r.apply(list->vertices.data(), list->vertices.size(), direction != 0);
  });
}

bool zu_rpj_fb_d2_apply_ov(Tzu_rpj_fb_d2* rpj, Tzu_ov_d2* set, int32_t direction) {
  if (set == nullptr) return false;
  return guarded(rpj, false, [&](reprojector& r) {
    bool any = set->lists.empty();
    for (auto& list : set->lists)
      any = r.apply(list->vertices.data(), list->vertices.size(), direction != 0) || any;
    return any;
  });
}

bool zu_pj_check_w(const wchar_t* text, Tzu_string_adp* reason) {
  const auto& thread = proj_thread::current();
  return guarded(thread.get(), false, [&](proj_thread& t) {
    if (t.system(narrow(text)) != nullptr) return true;
    zu_string_adp_feed(reason, from_utf8(t.message()).c_str());
    return false;
  });
}

void zu_pj_get_name_w(const wchar_t* text, Tzu_string_adp* name) {
  std::string found = narrow(text);
  of_system(text, [&](proj_thread&, const PJ& system) {
    const char* given = proj_get_name(&system);
    if (given != nullptr && *given != 0 && std::string(given) != "unknown") found = given;
  });
  zu_string_adp_feed(name, from_utf8(found).c_str());
}

void zu_pj_get_authority_w(const wchar_t* text, Tzu_string_adp* code) {
  of_system(text, [&](proj_thread& thread, const PJ& system) {
    const char* authority = proj_get_id_auth_name(&system, 0);
    const char* number = proj_get_id_code(&system, 0);
    bool registered = authority != nullptr && number != nullptr && std::string(authority) == "EPSG";
    int found = registered ? std::atoi(number) : identified_code(thread, system);
    if (found > 0) zu_string_adp_feed(code, from_utf8("EPSG:" + std::to_string(found)).c_str());
  });
}

bool zu_pj_get_wkt_w(const wchar_t* text, Tzu_string_adp* wkt) {
  bool told = false;
  of_system(text, [&](proj_thread& thread, const PJ& system) {
    const char* const options[] = {"MULTILINE=NO", nullptr};
    const char* written = proj_as_wkt(thread.context(), &system, PJ_WKT2_2019, options);
    told = written != nullptr;
    if (told) zu_string_adp_feed(wkt, from_utf8(written).c_str());
  });
  return told;
}

double zu_pj_get_unit_w(const wchar_t* text, bool* is_angle) {
  double unit = 0;
  of_system(text, [&](proj_thread& thread, const PJ& system) {
    pj_ptr inner = with_axes(thread, system);
    pj_ptr axes(inner ? proj_crs_get_coordinate_system(thread.context(), inner.get()) : nullptr);
    if (axes == nullptr) return;
    bool is_ellipsoidal = proj_cs_get_type(thread.context(), axes.get()) == PJ_CS_TYPE_ELLIPSOIDAL;
    if (!proj_cs_get_axis_info(thread.context(), axes.get(), 0, nullptr, nullptr, nullptr, &unit,
                               nullptr, nullptr, nullptr))
      unit = 0;
    if (is_angle != nullptr) *is_angle = is_ellipsoidal;
  });
  return unit;
}
