// Times classes of scales made of the first field, the file opened anew each time, through the
// service that a host calls; prints a line of JSON.
//   classes FILE natural|quantile|unique|histogram

#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <vector>

#include "zu/classes.h"
#include "zu/data_source.h"
#include "zu/platform/zuk_datasource.h"
#include "zu/platform/zuk_styles.h"
#include "zu/services.h"

namespace {

using list = std::vector<double>;

/// Loads the module that makes classes and asks it for its service.
class class_host : zu::service_factory_receiver_impl, zu::class_builder_service_visitor_impl {
 public:
  explicit class_host(const std::string& path) {
    void* library = dlopen(path.c_str(), RTLD_NOW);
    if (library == nullptr) std::fprintf(stderr, "%s\n", dlerror()), std::exit(1);
    using entry = Tzu_handle (*)(void*);
    auto open = reinterpret_cast<entry>(dlsym(library, "zu_bundle_interface_to_custom_pointer"));
    zu::call<&zu::bundle_impl::enumerate_factories>(
        open(this),
        zu::service_factory_receiver(zu::handle_of<zu::service_factory_receiver_impl>(*this)));
  }
  zu::strong_ref<zu::class_builder_service_impl> builder;

 private:
  void visit(const wchar_t*, zu::service_factory factory) override {
    zu::call<&zu::service_factory_impl::create>(
        factory, zu::handle(),
        zu::handle(zu::handle_of<zu::class_builder_service_visitor_impl>(*this)));
  }
  void visit(zu::class_builder_service service) override { builder.reset(service); }
};

list boundaries(const class_host& host, const std::wstring& file, const wchar_t* field,
                const zu::class_request& request) {
  Tzu_stl_mngr* manager = zu_clr_stl_mngr_create();
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  list all;
  if (zu::call<&zu::class_builder_service_impl::build>(host.builder.get(), scale, file.c_str(),
                                                       field, &request))
    for (std::uint64_t i = 0; i < zu_rng_scale_get_size(scale); ++i)
      all.push_back(zu_rng_scale_get_max(scale, i));
  zu_stl_mngr_destroy(manager);
  return all;
}

/// How many values there are.
list unique_values(const class_host& host, const std::wstring& file, const wchar_t* field) {
  Tzu_stl_mngr* manager = zu_clr_stl_mngr_create();
  Tzu_val_scale* scale = zu_stl_mngr_get_val_scale_ptr(manager);
  bool all = false;
  zu::call<&zu::class_builder_service_impl::fill_values>(host.builder.get(), scale, file.c_str(),
                                                         field, std::int64_t{1000}, &all);
  list count{static_cast<double>(zu_val_scale_get_size(scale))};
  zu_stl_mngr_destroy(manager);
  return count;
}

/// Counts between fixed limits, as whoever knows them asks.
list histogram(const std::wstring& file) {
  zu::handle opened;
  zu_datasource_open(file.c_str(), 1, nullptr, &opened);
  std::vector<std::int64_t> counts(256);
  bool read = zu_datasource_compute_histogram(opened, 0, counts.size(), 250, 1250, nullptr, nullptr,
                                              counts.data());
  zu::call<&zu::data_source_impl::release>(opened);
  return read ? list(counts.begin(), counts.end()) : list();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: classes FILE natural|quantile|unique|histogram\n");
    return 2;
  }
  namespace fs = std::filesystem;
  const std::wstring file = fs::path(argv[1]).wstring();
  const std::string work = argv[2];
  fs::path program = fs::read_symlink("/proc/self/exe");
  class_host host((program.parent_path().parent_path() / "lib/zuk_common.so").string());
  zu::class_request request;
  request.method = work == "natural" ? 4 : 3;
  request.seed = 1, request.has_seed = true;
  list found;
  list times;
  for (int run = 0; run < 4; ++run) {
    zu_datasource_set_pool_size(0);
    auto start = std::chrono::steady_clock::now();
    found = work == "histogram" ? histogram(file)
            : work == "unique"  ? unique_values(host, file, L"Band 1")
                                : boundaries(host, file, L"Band 1", request);
    std::chrono::duration<double, std::milli> span = std::chrono::steady_clock::now() - start;
    if (run > 0) times.push_back(span.count());
  }
  if (found.empty()) return 1;
  std::sort(times.begin(), times.end());
  std::printf("{\"ms\": %.2f, \"check\": [", times[times.size() / 2]);
  for (std::size_t i = 0; i < found.size(); ++i) std::printf("%s%.9g", i > 0 ? ", " : "", found[i]);
  std::printf("]}\n");
  return 0;
}
