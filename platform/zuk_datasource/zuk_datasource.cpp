#include "zu/platform/zuk_datasource.h"

#include <algorithm>
#include <string_view>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/gdal_source.h"
#include "platform/zuk_datasource/histogram_counts.h"
#include "platform/zuk_datasource/pgrid_source.h"
#include "platform/zuk_datasource/pgrid_writer.h"
#include "platform/zuk_datasource/segy_source.h"
#include "platform/zuk_file_tos4/tables.h"

using namespace zu;
using namespace zu::platform;

namespace {

struct to_adapter : string_visitor_impl {
  explicit to_adapter(Tzu_string_adp* adapter) : adapter(adapter) {}
  void visit(const wchar_t* text) override { zu_string_adp_feed(adapter, text); }
  Tzu_string_adp* adapter;
};

bool ends_as_pgrid(const std::string& path) {
  constexpr std::string_view ending = ".pgrid";
  return path.size() >= ending.size() &&
         std::equal(ending.begin(), ending.end(), path.end() - ending.size(),
                    [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b + 32 : b); });
}

void open_pgrid(const std::wstring& name, bool read_only, Tzu_handle* out) {
  try {
    auto file =
        std::make_shared<pgrid_file>(to_utf8(name), read_only ? access::read : access::edit);
    *out = handle_of<data_source_impl>(*new pgrid_source(std::move(file), name));
  } catch (const std::exception& failure) {
    zu_problems_add(name.c_str(), zu_problem_open, from_utf8(failure.what()).c_str());
  }
}

void open_segy(const std::wstring& name, Tzu_handle* out) {
  try {
    *out = handle_of<data_source_impl>(*new segy_source(name));
  } catch (const segy_failure& reason) {
    zu_problems_add(name.c_str(), zu_problem_open, from_utf8(reason.what()).c_str());
  }
}

}  // namespace

void zu_datasource_open(const wchar_t* name, int32_t read_only, void*, Tzu_handle* out) {
  if (out == nullptr) return;
  *out = {};
  guarded(name, [&](const wchar_t& first) {
    std::wstring wide = &first;
    if (std::string path = to_utf8(wide); ends_as_pgrid(path) || is_pgrid(path))
      return open_pgrid(wide, read_only != 0, out);
    if (is_segy_name(wide)) return open_segy(wide, out);
    std::string reason;
    dataset_ptr opened = dataset_pool::shared().acquire(to_utf8(wide), read_only != 0, reason);
    if (opened == nullptr) {
      zu_problems_add(wide.c_str(), zu_problem_open, from_utf8(reason).c_str());
      return;
    }
    *out = handle_of<data_source_impl>(*new gdal_source(std::move(opened), std::move(wide)));
  });
}

void zu_datasource_set_pool_size(uint32_t files) {
  auto& pool = dataset_pool::shared();
  guarded(&pool, [&](dataset_pool& p) { p.set_size(files); });
}

bool zu_datasource_get_field_info(Tzu_handle source, int64_t field, Tzu_field_info* out) {
  if (out == nullptr) return false;
  return call<&source_details_impl::field_info>(cast<source_details_impl>(source), field, out);
}

void zu_datasource_get_driver_w(Tzu_handle source, Tzu_string_adp* adapter) {
  to_adapter visitor(adapter);
  call<&source_details_impl::driver>(cast<source_details_impl>(source),
                                     handle_of<string_visitor_impl>(visitor));
}

bool zu_datasource_rows_run_south(Tzu_handle source) {
  return call<&source_details_impl::rows_run_south>(cast<source_details_impl>(source));
}

void zu_datasource_get_georeference_w(Tzu_handle source, Tzu_string_adp* adapter) {
  to_adapter visitor(adapter);
  call<&source_details_impl::georeference_text>(cast<source_details_impl>(source),
                                                handle_of<string_visitor_impl>(visitor));
}

void zu_datasource_get_georeference_file_w(Tzu_handle source, Tzu_string_adp* adapter) {
  to_adapter visitor(adapter);
  call<&source_details_impl::georeference_file>(cast<source_details_impl>(source),
                                                handle_of<string_visitor_impl>(visitor));
}

uint32_t zu_datasource_get_part_count(Tzu_handle source) {
  return call<&source_details_impl::part_count>(cast<source_details_impl>(source));
}

void zu_datasource_get_part_w(Tzu_handle source, uint32_t index, Tzu_string_adp* name,
                              Tzu_string_adp* description) {
  to_adapter name_visitor(name), description_visitor(description);
  call<&source_details_impl::part>(cast<source_details_impl>(source), index,
                                   handle_of<string_visitor_impl>(name_visitor),
                                   handle_of<string_visitor_impl>(description_visitor));
}

bool zu_datasource_compute_stat(Tzu_handle source, int64_t field, uint64_t most,
                                bool (*progress)(double share, void* user), void* user,
                                Tzu_field_stat* out) {
  if (out == nullptr) return false;
  *out = {};
  return call<&source_details_impl::compute_stat>(cast<source_details_impl>(source), field, most,
                                                  progress, user, out);
}

bool zu_datasource_compute_histogram(Tzu_handle source, int64_t field, uint64_t classes,
                                     double minimum, double maximum,
                                     bool (*progress)(double share, void* user), void* user,
                                     int64_t* counts) {
  constexpr uint64_t most = 1 << 24;
  if (counts == nullptr || classes == 0 || classes > most || !(minimum <= maximum)) return false;
  std::fill_n(counts, classes, 0);
  return call<&source_details_impl::compute_histogram>(
      cast<source_details_impl>(source), field, classes, minimum, maximum, progress, user, counts);
}

uint64_t zu_datasource_get_histogram_classes(Tzu_handle source, int64_t field, double minimum,
                                             double maximum) {
  Tzu_field_info info{};
  zu_datasource_get_field_info(source, field, &info);
  return zu::platform::histogram_classes(info.type, minimum, maximum);
}

bool zu_datasource_write_pgrid_w(Tzu_handle source, const wchar_t* path,
                                 const Tzu_pgrid_options* options,
                                 bool (*progress)(double share, void* user), void* user) {
  if (options == nullptr) return false;
  return guarded(path, false, [&](const wchar_t& first) {
    try {
      return write_pgrid(source, &first, *options, progress, user);
    } catch (const std::exception& failure) {
      zu_problems_add(&first, zu_problem_write, from_utf8(failure.what()).c_str());
      return false;
    }
  });
}
