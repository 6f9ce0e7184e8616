#include "src/sources/file_names.h"

#include <gtest/gtest.h>

namespace {

struct row {
  const wchar_t *path, *name, *extension;
};

const row rows[] = {
    {L"/data/grid.GRD", L"grid.GRD", L".grd"},
    {L"C:\\data\\grid.Tif", L"grid.Tif", L".tif"},
    {L"/data.v2/grid", L"grid", L""},
    {L"\\data.v2\\grid", L"grid", L""},
    {L"a/b\\c.d", L"c.d", L".d"},
    {L"a\\b/c.d", L"c.d", L".d"},
    {L"grid.", L"grid.", L"."},
    {L".asc", L".asc", L".asc"},
    {L"a.b.c", L"a.b.c", L".c"},
    {L"grid", L"grid", L""},
    {L"/data/", L"", L""},
    {L"", L"", L""},
    {L"/сетка.ФЛТ", L"сетка.ФЛТ", L".флт"},
};

TEST(file_names, stand_behind_the_last_separator) {
  for (const row& r : rows) EXPECT_EQ(zu::file_name_of(r.path), r.name);
}

TEST(file_names, have_the_extension_from_their_last_point_in_lower_case) {
  for (const row& r : rows) EXPECT_EQ(zu::extension_of(r.path), r.extension);
}

}  // namespace
