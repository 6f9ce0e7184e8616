#include "zu/platform/zuk_file_segy.h"

#include <fstream>
#include <iterator>
#include <new>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_file_segy/segy_params.h"
#include "platform/zuk_file_segy/segy_pyramid.h"
#include "platform/zuk_file_segy/side_file.h"
#include "platform/zuk_io/atomic_file.h"
#include "zu/monitor.h"

using namespace zu::platform;

struct Tzu_segy_file {
  std::wstring path;
  section_file file;
};

namespace {

std::optional<Tzu_segy_prms> stored_params(const wchar_t* path) {
  std::string side = existing_side_file(to_utf8(path), params_suffix);
  if (side.empty()) return {};
  std::ifstream in(side, std::ios::binary);
  return read_segy_params({std::istreambuf_iterator<char>(in), {}});
}

/// The result of `work()`; false if it fails, with the reason kept for the path.
template <class function> bool kept(const wchar_t* path, std::int32_t kind, function work) {
  try {
    return work();
  } catch (const std::runtime_error& reason) {
    zu_problems_add(path, kind, from_utf8(reason.what()).c_str());
    return false;
  }
}

share_taker reporting_to(const Tzu_handle* monitor) {
  if (monitor == nullptr) return [](double) { return true; };
  return [to = *monitor](double share) {
    zu::call<&zu::monitor_impl::set_progress>(to, share);
    return !zu::call<&zu::monitor_impl::is_stopped>(to);
  };
}

}  // namespace

// --- Parameters

Tzu_segy_prms* zu_segy_prms_create() { return new (std::nothrow) Tzu_segy_prms; }
void zu_segy_prms_destroy(Tzu_segy_prms* record) { delete record; }
int32_t zu_segy_prms_get_coord_type(const Tzu_segy_prms* record) {
  return record != nullptr ? record->coord_type : zu_segy_coord_any;
}
int32_t zu_segy_prms_get_coord_coeff_type(const Tzu_segy_prms* record) {
  return record != nullptr ? record->coeff_type : zu_segy_coeff_header;
}
double zu_segy_prms_get_coord_coeff(const Tzu_segy_prms* record) {
  return record != nullptr ? record->coeff : 1;
}
bool zu_segy_prms_get_pln_simplify_flag(const Tzu_segy_prms* record) {
  return record != nullptr && record->simplify;
}
void zu_segy_prms_set_coord_type(Tzu_segy_prms* record, int32_t type) {
  if (record != nullptr) record->coord_type = type;
}
void zu_segy_prms_set_coord_coeff_type(Tzu_segy_prms* record, int32_t type) {
  if (record != nullptr) record->coeff_type = type;
}
void zu_segy_prms_set_coord_coeff(Tzu_segy_prms* record, double coefficient) {
  if (record != nullptr) record->coeff = coefficient;
}
void zu_segy_prms_set_pln_simplify_flag(Tzu_segy_prms* record, bool simplify) {
  if (record != nullptr) record->simplify = simplify;
}

// --- Files

Tzu_segy_file* zu_segy_file_open(const wchar_t* path, int32_t) {
  return guarded(path, static_cast<Tzu_segy_file*>(nullptr), [](const wchar_t& first) {
    Tzu_segy_file* made = nullptr;
    kept(&first, zu_problem_open, [&] {
      made = new Tzu_segy_file{&first, section_file(to_utf8(&first))};
      return true;
    });
    return made;
  });
}

void zu_segy_file_close(Tzu_segy_file* file) { delete file; }

uint64_t zu_segy_file_get_trace_count(const Tzu_segy_file* file) {
  return file != nullptr ? file->file.traces() : 0;
}
uint64_t zu_segy_file_get_sample_count(const Tzu_segy_file* file) {
  return file != nullptr ? file->file.samples() : 0;
}
int32_t zu_segy_file_get_format(const Tzu_segy_file* file) {
  return file != nullptr ? file->file.format().code : 0;
}

bool zu_segy_file_get_field(const Tzu_segy_file* file, int32_t byte, int32_t* out) {
  if (out == nullptr) return false;
  return guarded(file, false, [&](const Tzu_segy_file& f) {
    *out = f.file.header_field(byte);
    return true;
  });
}

bool zu_segy_file_get_trace_field(const Tzu_segy_file* file, uint64_t trace, int32_t byte,
                                  int32_t* out) {
  if (out == nullptr) return false;
  return guarded(file, false, [&](const Tzu_segy_file& f) {
    *out = f.file.trace_fields(trace, {byte}).front();
    return true;
  });
}

bool zu_segy_file_has_params(const wchar_t* path) {
  return guarded(path, false,
                 [](const wchar_t& first) { return stored_params(&first).has_value(); });
}

bool zu_segy_file_get_parameters(const Tzu_segy_file* file, Tzu_segy_prms* record) {
  if (record == nullptr) return false;
  return guarded(file, false, [&](const Tzu_segy_file& f) {
    auto stored = stored_params(f.path.c_str());
    if (stored) *record = *stored;
    return stored.has_value();
  });
}

bool zu_segy_file_set_parameters(Tzu_segy_file* file, const Tzu_segy_prms* record) {
  if (record == nullptr) return false;
  return guarded(file, false, [&](Tzu_segy_file& f) {
    return kept(f.path.c_str(), zu_problem_write, [&] {
      atomic_file target(side_file_to_write(to_utf8(f.path), params_suffix));
      std::ofstream out(target.temporary(), std::ios::binary);
      out << segy_params_text(*record);
      out.close();
      if (!out) throw write_failure("cannot be written");
      target.commit();
      return true;
    });
  });
}

// --- The line of a section

Tzu_segy_estim_opts* zu_segy_estim_opts_create() {
  try {
    return new Tzu_segy_estim_opts;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
void zu_segy_estim_opts_destroy(Tzu_segy_estim_opts* options) { delete options; }
void zu_segy_estim_opts_set_allow_duplicate_points(Tzu_segy_estim_opts* options, bool allow) {
  if (options != nullptr) options->allow_duplicates = allow;
}
void zu_segy_estim_opts_set_crd_coeff_type(Tzu_segy_estim_opts* options, int32_t type) {
  if (options != nullptr) options->coeff_type = type;
}
void zu_segy_estim_opts_set_crd_coeff(Tzu_segy_estim_opts* options, double coefficient) {
  if (options != nullptr) options->coeff = coefficient;
}
void zu_segy_estim_opts_set_crd_type(Tzu_segy_estim_opts* options, int32_t type) {
  zu_segy_estim_opts_set_crd_types(options, &type, 1);
}
void zu_segy_estim_opts_set_crd_types(Tzu_segy_estim_opts* options, const int32_t* types,
                                      uint64_t count) {
  if (types == nullptr) return;
  guarded(options, [&](Tzu_segy_estim_opts& o) { o.types.assign(types, types + count); });
}

bool zu_segy_file_estimate2d_params(const wchar_t* path, const Tzu_segy_estim_opts* options,
                                    Tzu_segy_prms* record, const Tzu_handle* monitor) {
  if (options == nullptr || record == nullptr) return false;
  return guarded(path, false, [&](const wchar_t& first) {
    return kept(&first, zu_problem_open, [&] {
      bool found = estimate_segy_params(section_file(to_utf8(&first)), *options, *record,
                                        reporting_to(monitor));
      if (!found) zu_problems_add(&first, zu_problem_open, L"no coordinates of traces make a line");
      return found;
    });
  });
}

bool zu_segy_reader_get_xy_pln(const wchar_t* path, int32_t coord_type, int32_t coeff_type,
                               double coefficient, Tzu_pv_d2* line) {
  if (line == nullptr) return false;
  zu_pv_d2_clear(line);
  return guarded(path, false, [&](const wchar_t& first) {
    return kept(&first, zu_problem_read, [&] {
      for (const Tzu_vtx_d2& point : segy_points(section_file(to_utf8(&first)), coord_type,
                                                 coeff_type, coefficient, reporting_to(nullptr)))
        zu_pv_d2_add_vtx(line, &point);
      return true;
    });
  });
}

// --- Reduced copies

void zu_segy_file_get_overviews_w(const wchar_t* path, Tzu_string_adp* adapter) {
  guarded(path, [&](const wchar_t& first) {
    std::string section = to_utf8(&first), there = existing_side_file(section, pyramid_suffix);
    if (there.empty()) there = side_file_to_write(section, pyramid_suffix);
    zu_string_adp_feed(adapter, from_utf8(there).c_str());
  });
}

bool zu_segy_file_build_overviews(const wchar_t* path, const uint64_t* levels, uint64_t count,
                                  const Tzu_handle* monitor) {
  if (levels == nullptr) return false;
  return guarded(path, false, [&](const wchar_t& first) {
    return kept(&first, zu_problem_write, [&] {
      return build_segy_pyramid(to_utf8(&first), {levels, levels + count}, reporting_to(monitor));
    });
  });
}
