// SEG-Y files: opened, read whole and reduced, their line looked for, as a host does with a file
// that is dropped on it. A second part of the input, behind a mark, stands in for the reduced
// copies.

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "platform/zuk_basic/utf8.h"
#include "zu/data_source.h"
#include "zu/platform/zuk_datasource.h"
#include "zu/platform/zuk_file_segy.h"

namespace {

using namespace zu;

struct reading : grid_block_visitor_impl {
  explicit reading(const std::int32_t* sizes) : sizes(sizes) {}
  void visit(grid_block block) override {
    const std::uint64_t size[] = {static_cast<std::uint64_t>(sizes[0]),
                                  static_cast<std::uint64_t>(sizes[1])};
    for (std::uint64_t reduction : {1, 3, 9}) {
      const std::int64_t origin[] = {0, 0};
      const std::uint64_t sample[] = {std::min<std::uint64_t>(64, size[0] / reduction + 1),
                                      std::min<std::uint64_t>(64, size[1] / reduction + 1)};
      std::vector<double> out(sample[0] * sample[1]);
      call<&grid_block_impl::read_window>(block, origin, size, out.data(), sample,
                                          std::int32_t(element_float64), nullptr);
    }
    call<&grid_block_impl::release>(block);
  }
  const std::int32_t* sizes;
};

void save(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

void read_all(const std::wstring& path) {
  Tzu_handle source{};
  zu_datasource_open(path.c_str(), 1, nullptr, &source);
  std::int32_t sizes[3];
  if (call<&grid_source_impl::sizes>(cast<grid_source_impl>(source), sizes)) {
    reading visitor(sizes);
    call<&grid_source_impl::block>(cast<grid_source_impl>(source), 0,
                                   handle_of<grid_block_visitor_impl>(visitor));
    Tzu_field_stat stat;
    zu_datasource_compute_stat(source, 0, 4096, nullptr, nullptr, &stat);
  }
  call<&data_source_impl::release>(source);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string section = "/dev/shm/zu_segy_fuzz_" + std::to_string(getpid()) + ".sgy";
  static const std::wstring path = platform::from_utf8(section);
  static const std::string mark = "|reduced|";
  std::string input(reinterpret_cast<const char*>(data), size);
  std::size_t cut = input.find(mark);
  save(section, input.substr(0, cut));
  if (cut != std::string::npos) save(section + ".ovr", input.substr(cut + mark.size()));
  save(section + ".prm", input.substr(0, 200));

  read_all(path);
  Tzu_segy_prms* record = zu_segy_prms_create();
  Tzu_segy_estim_opts* options = zu_segy_estim_opts_create();
  zu_segy_file_estimate2d_params(path.c_str(), options, record, nullptr);
  Tzu_segy_file* file = zu_segy_file_open(path.c_str(), 1);
  zu_segy_file_get_parameters(file, record);
  zu_segy_file_close(file);
  zu_segy_estim_opts_destroy(options);
  zu_segy_prms_destroy(record);
  zu_problems_clear(nullptr);
  for (const char* suffix : {"", ".ovr", ".prm"}) std::remove((section + suffix).c_str());
  return 0;
}
