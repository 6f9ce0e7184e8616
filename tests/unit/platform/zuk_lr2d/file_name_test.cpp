#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "zu/platform/zuk_lr2d.h"

namespace {

std::wstring file_name_of(const std::wstring& source) {
  std::wstring text;
  Tzu_string_adp* adapter = zu_string_adp_create(
      nullptr, [](const wchar_t* given, void* user) { *static_cast<std::wstring*>(user) = given; },
      &text);
  Izu_layer* layer = zu_lr2d_create("grid_lr2d");
  zu_lr2d_set_wsource(layer, source.c_str());
  zu_lr2d_get_wfilename(layer, adapter);
  zu_lr2d_destroy(layer);
  zu_string_adp_destroy(adapter);
  return text;
}

TEST(layer_file_name, is_the_file_that_the_source_lives_in) {
  std::filesystem::path path = std::filesystem::path(testing::TempDir()) / "a.nc";
  std::ofstream(path) << "x";
  std::wstring file = path.wstring();
  struct {
    std::wstring source, file;
  } const cases[] = {{file, file},
                     {L"NETCDF:\"" + file + L"\":depth", file},
                     {L"GPKG:" + file + L":table", file},
                     {L"/vsizip/" + file + L"/inside.tif", file},
                     {L"/vsizip/{" + file + L"}/inside.tif", file},
                     {L"/no/such/file.tif", L"/no/such/file.tif"},
                     {L"*memory", L"*memory"},
                     {L"", L""}};
  for (const auto& c : cases)
    EXPECT_TRUE(file_name_of(c.source) == c.file) << std::string(c.source.begin(), c.source.end());
}

}  // namespace
