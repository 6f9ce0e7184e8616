#include "src/style/scale_file.h"

#include <gtest/gtest.h>

namespace {

using zu::style::range_scale_extension;
using zu::style::scale_file_path;
using zu::style::value_scale_extension;

TEST(scale_file, stands_beside_the_source_with_the_field_in_its_name) {
  const struct {
    const wchar_t *source, *field, *path;
  } cases[] = {
      {L"a.grd", L"z", L"a.z._rg"},
      {L"/data/a.grd", L"z", L"/data/a.z._rg"},
      {L"/a.grd", L"z", L"/a.z._rg"},
      {L"C:\\a.grd", L"z", L"C:\\a.z._rg"},
      {L"/data.v2/grid", L"z", L"/data.v2/grid.z._rg"},
      {L"/data/a.b.grd", L"z", L"/data/a.b.z._rg"},
      {L"/data/a.grd", L"z.1", L"/data/a.z.1._rg"},
      {L"/data/.grd", L"z", L"/data/.grd.z._rg"},
      {L"/data/a.grd", L"Высота", L"/data/a.Высота._rg"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(scale_file_path(c.source, c.field, range_scale_extension), c.path);
  EXPECT_EQ(scale_file_path(L"a.grd", L"z", value_scale_extension), L"a.z._vl");
}

TEST(scale_file, is_none_without_source_or_field_or_for_a_source_in_memory) {
  EXPECT_EQ(scale_file_path(L"", L"z", range_scale_extension), L"");
  EXPECT_EQ(scale_file_path(L"a.grd", L"", range_scale_extension), L"");
  EXPECT_EQ(scale_file_path(L"*memory.grd", L"z", range_scale_extension), L"");
}

TEST(scale_file, stays_in_the_folder_whatever_the_field_is_called) {
  EXPECT_EQ(scale_file_path(L"/data/a.grd", L"../../x", range_scale_extension),
            L"/data/a..._.._x._rg");
  EXPECT_EQ(scale_file_path(L"/data/a.grd", L"m\\s", range_scale_extension), L"/data/a.m_s._rg");
}

}  // namespace
