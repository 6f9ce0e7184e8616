#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/zuk_style_libs/odb_file.h"

namespace {

using zu::platform::odb_file;
using zu::platform::odb_object;

std::string refusal(std::string_view text) {
  try {
    odb_file{text};
  } catch (const std::runtime_error& problem) {
    return problem.what();
  }
  return {};
}
/// The value of the field "A" of the only object.
std::string value(const std::string& field) {
  odb_file file("/3.2\n(AVStr.1\n" + field + "\n)\n");
  return std::string(file.find(1)->text("A").value_or("absent"));
}

TEST(odb_file, objects_are_found_by_number_and_kind) {
  odb_file file(
      "/3.2\r\n(ODB.1\r\n\tRoots:\t2\r\n)\r\n\r\n(Legend.2\r\n\tClass:\t4\r\n\tClass:\t3\r\n"
      "\tClass:\t9\r\n)\r\n(LClass.3\r\n)\r\n(LClass.4\r\n)\r\n");
  const odb_object* legend = file.referred(*file.first("ODB"), "Roots");
  ASSERT_NE(legend, nullptr);
  EXPECT_EQ(legend->kind, "Legend");
  EXPECT_EQ(file.all_referred(*legend, "Class"),
            (std::vector<const odb_object*>{file.find(4), file.find(3)}));
  EXPECT_EQ(file.find(5), nullptr);
  EXPECT_EQ(file.first("TClr"), nullptr);
}

TEST(odb_file, values_are_texts_in_quotes_or_the_rest_of_a_line) {
  struct {
    const char* field;
    const char* value;
  } const cases[] = {{"\tA:\t0xff00  ", "0xff00"},
                     {"A:12.5", "12.5"},
                     {"\tA:\t\"Lake (deep): a\"", "Lake (deep): a"},
                     {"\tA:\t\"say \"\"yes\"\"\"", "say \"yes\""},
                     {"\tA:\t\"\\\"a\\\\b\\n\\t\\101\"", "\"a\\b\n\tA"},
                     {"\tA:\t\"broken\n into lines\"", "broken into lines"},
                     {"\tA:\t\"first\"\n\t\"second\"", "firstsecond"},
                     {"\tA:\tff 00\n\t11 22", "ff 0011 22"},
                     {"\tA:\t", ""},
                     {"\tB:\t1", "absent"}};
  for (const auto& c : cases) EXPECT_EQ(value(c.field), c.value) << c.field;
}

TEST(odb_file, a_field_may_stand_several_times_and_the_first_is_the_one) {
  odb_file file("/3\n(X.1\n A: 1\n B: 2\n A: 3\n A: 4\n)\n");
  EXPECT_EQ(file.find(1)->text("A"), "1");
  EXPECT_EQ(file.find(1)->numbers("A"), (std::vector<double>{1, 3, 4}));
  EXPECT_EQ(file.find(1)->numbers("A", 2), (std::vector<double>{1, 3}));
}

TEST(odb_file, numbers_are_decimal_or_hexadecimal) {
  odb_file file("/3\n(X.1\n A:\t0xFfFf\n A: -1.5e2\n A: +3\n A: nan\n A: 1,5\n B: \"7\"\n)\n");
  EXPECT_EQ(file.find(1)->numbers("A"), (std::vector<double>{65535, -150, 3}));
  EXPECT_EQ(file.find(1)->number("B"), 7);
  EXPECT_EQ(file.find(1)->number("C"), std::nullopt);
}

TEST(odb_file, what_is_none_is_refused_with_the_reason) {
  EXPECT_EQ(refusal(""), "is empty");
  EXPECT_EQ(refusal(" \n\t"), "is empty");
  EXPECT_EQ(refusal("<xml/>"), "is no text of ArcView objects: it does not begin with \"/3\"");
  EXPECT_EQ(refusal("/9.1\n"), "is of another version: \"9.1\"");
  EXPECT_EQ(refusal("/3.2\nwords\n"), "has no object where one should begin");
  EXPECT_EQ(refusal("/3.2\n(X.y\n)\n"), "has no object where one should begin");
  EXPECT_EQ(refusal("/3.2\n(X.1\n A: 1\n"), "ends inside an object");
  EXPECT_EQ(refusal("/3.2\n(X.1\n A: \"no end\n)\n"), "ends inside a text");
  EXPECT_EQ(refusal("\xEF\xBB\xBF/3.2\n"), "");
}

}  // namespace
