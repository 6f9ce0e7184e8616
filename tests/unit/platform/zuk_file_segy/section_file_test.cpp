#include "platform/zuk_file_segy/section_file.h"

#include <gtest/gtest.h>

#include "tests/unit/platform/zuk_file_segy/made_section.h"
#include "zu/data_source.h"

namespace {

using namespace zu;
using namespace zu::platform;
using tests::big;
using tests::made_section;
using tests::section_folder;

double as_double(std::int32_t element, const void* at) {
  auto value = [&](auto kind) {
    std::memcpy(&kind, at, sizeof kind);
    return static_cast<double>(kind);
  };
  switch (element) {
    case element_uint8:
      return value(std::uint8_t());
    case element_int8:
      return value(std::int8_t());
    case element_int16:
      return value(std::int16_t());
    case element_uint16:
      return value(std::uint16_t());
    case element_int32:
      return value(std::int32_t());
    case element_uint32:
      return value(std::uint32_t());
    case element_int64:
      return value(std::int64_t());
    case element_uint64:
      return value(std::uint64_t());
    case element_float32:
      return value(float());
    default:
      return value(double());
  }
}

struct stored_number {
  int format;
  std::string bytes;  // the most significant first
  std::int32_t element;
  double value;
};

// IBM: (-1)^s * 16^(e - 64) * 0.f, so 0xC276A000 is -118.625 (SEG-Y revision 1, annex B).
const stored_number stored_numbers[] = {
    {1, big(4, 0xC276A000), element_float32, -118.625},
    {1, big(4, 0x41100000), element_float32, 1},
    {1, big(4, 0), element_float32, 0},
    {2, big(4, -70000), element_int32, -70000},
    {3, big(2, -300), element_int16, -300},
    {5, big(4, 0xC2ED4000), element_float32, -118.625},
    {6, big(8, 0x405DA80000000000), element_float64, 118.625},
    {7, big(3, -2), element_int32, -2},
    {7, big(3, 0x7FFFFF), element_int32, 8388607},
    {8, big(1, -128), element_int8, -128},
    {9, big(8, -5000000000), element_int64, -5000000000.0},
    {10, big(4, 4000000000), element_uint32, 4000000000.0},
    {11, big(2, 65535), element_uint16, 65535},
    {12, big(8, 5000000000), element_uint64, 5000000000.0},
    {15, big(3, 0xFFFFFE), element_uint32, 16777214},
    {16, big(1, 200), element_uint8, 200},
};

TEST(section_file, reads_every_format_in_both_byte_orders) {
  section_folder folder;
  for (const stored_number& n : stored_numbers)
    for (bool little_endian : {false, true}) {
      SCOPED_TRACE("format " + std::to_string(n.format) + (little_endian ? " LSB" : " MSB"));
      std::string zero(n.bytes.size(), '\0');
      made_section(n.format, 3, little_endian)
          .trace({zero, zero, zero})
          .trace({zero, n.bytes, n.bytes})
          .save(folder / "a.sgy");
      section_file file(folder / "a.sgy");
      EXPECT_EQ(file.little_endian(), little_endian);
      EXPECT_EQ(file.format().element, n.element);
      EXPECT_EQ(file.traces(), 2U);
      EXPECT_EQ(file.samples(), 3U);
      std::vector<std::byte> out(3 * file.format().element_bytes);
      file.read(1, {0, 1, 2}, out.data());
      EXPECT_EQ(as_double(n.element, out.data()), 0);
      EXPECT_EQ(as_double(n.element, out.data() + file.format().element_bytes), n.value);
      EXPECT_EQ(as_double(n.element, out.data() + 2 * file.format().element_bytes), n.value);
    }
}

TEST(section_file, knows_interval_and_delay_in_milliseconds) {
  section_folder folder;
  for (bool little_endian : {false, true}) {
    made_section(8, 1, little_endian).trace({"a"}).field(109, 2, 250).save(folder / "a.sgy");
    section_file file(folder / "a.sgy");
    EXPECT_EQ(file.interval(), 4);
    EXPECT_EQ(file.delay(), 250);
  }
}

TEST(section_file, takes_the_interval_from_the_first_trace_where_the_file_has_none) {
  section_folder folder;
  made_section(8, 1).header(3217, 2, 0).trace({"a"}).field(117, 2, 500).save(folder / "a.sgy");
  EXPECT_EQ(section_file(folder / "a.sgy").interval(), 0.5);
  made_section(8, 1).header(3217, 2, 0).trace({"a"}).save(folder / "b.sgy");
  EXPECT_EQ(section_file(folder / "b.sgy").interval(), 1);
}

TEST(section_file, finds_the_traces_behind_counted_and_closed_text_headers) {
  section_folder folder;
  made_section counted(8, 1), closed(8, 1);
  counted.header(3505, 2, 2).text_block("one").text_block("two").trace({"\x07"});
  closed.header(3505, 2, -1).text_block("one").text_block("((SEG: EndText))").trace({"\x07"});
  for (const made_section& section : {counted, closed}) {
    section.save(folder / "a.sgy");
    section_file file(folder / "a.sgy");
    ASSERT_EQ(file.traces(), 1U);
    std::int8_t value = 0;
    file.read(0, {0}, &value);
    EXPECT_EQ(value, 7);
  }
}

TEST(section_file, takes_the_long_count_of_samples_of_the_second_revision) {
  section_folder folder;
  made_section section(8, 1);
  section.header(3501, 1, 2).header(3269, 4, 3).trace({"a", "b", "c"}).save(folder / "a.sgy");
  EXPECT_EQ(section_file(folder / "a.sgy").samples(), 3U);
  made_section(8, 1).header(3269, 4, 3).trace({"a"}).save(folder / "b.sgy");
  EXPECT_EQ(section_file(folder / "b.sgy").samples(), 1U)
      << "the older revisions have no such count";
}

TEST(section_file, gives_numbers_of_both_headers) {
  section_folder folder;
  made_section(8, 1, true)
      .header(3205, 4, 77)
      .trace({"a"})
      .field(73, 4, -5)
      .field(71, 2, -10)
      .save(folder / "a.sgy");
  section_file file(folder / "a.sgy");
  EXPECT_EQ(file.header_field(3205), 77);
  EXPECT_EQ(file.trace_fields(0, {73, 71}), (std::vector<std::int32_t>{-5, -10}));
  EXPECT_THROW(file.trace_fields(0, {74}), segy_failure);
  EXPECT_THROW(file.trace_fields(1, {73}), segy_failure);
  EXPECT_THROW(file.header_field(3206), segy_failure);
}

TEST(section_file, reads_the_samples_asked_for_and_not_the_rest) {
  section_folder folder;
  tests::numbered_section(4, 30000).save(folder / "a.sgy");
  section_file file(folder / "a.sgy");
  std::int16_t out[3];
  file.read(2, {5, 6, 29000}, out);
  EXPECT_EQ(out[0], 205);
  EXPECT_EQ(out[1], 206);
  EXPECT_EQ(out[2], 29200);
  EXPECT_EQ(file.bytes_read(), 6U) << "far samples are read by themselves";
  file.read(2, {100, 110}, out);
  EXPECT_EQ(file.bytes_read(), 6U + 22U) << "near ones in one go";
}

struct broken_file {
  const char* what;
  std::string bytes;
  const char* reason;
};

TEST(section_file, refuses_what_is_no_whole_file_and_says_why) {
  section_folder folder;
  std::string good = tests::numbered_section(3, 4).bytes();
  const broken_file all[] = {
      {"empty", "", "too short for the headers"},
      {"headers cut", good.substr(0, 3599), "too short for the headers"},
      {"no traces", good.substr(0, 3600), "no whole number of traces"},
      {"last trace cut", good.substr(0, good.size() - 1), "no whole number of traces"},
      {"bytes too many", good + "x", "no whole number of traces"},
      {"no samples", made_section(3, 0).trace({}).bytes(), "traces of 0 samples"},
      {"format 0", made_section(0, 1).trace({"a"}).bytes(), "unknown format of samples, code 0"},
      {"format with gain", made_section(4, 1).trace({"abcd"}).bytes(), "code 4"},
      {"format 17", made_section(17, 1).trace({"a"}).bytes(), "unknown format of samples, code 17"},
      {"text headers beyond the end", made_section(8, 1).header(3505, 2, 9).trace({"a"}).bytes(),
       "inside its text headers"},
      {"text headers without end", made_section(8, 1).header(3505, 2, -1).trace({"a"}).bytes(),
       "do not end"},
      {"samples beyond reason",
       made_section(6, 1).header(3501, 1, 2).header(3269, 4, 0xFFFFFFFF).trace({"a"}).bytes(),
       "longer than can be read"},
  };
  for (const broken_file& broken : all) {
    SCOPED_TRACE(broken.what);
    std::ofstream(folder / "b.sgy", std::ios::binary) << broken.bytes;
    try {
      section_file file(folder / "b.sgy");
      ADD_FAILURE() << "was opened";
    } catch (const segy_failure& reason) {
      EXPECT_NE(std::string(reason.what()).find(broken.reason), std::string::npos) << reason.what();
    }
  }
  EXPECT_THROW(section_file(folder / "none.sgy"), segy_failure);
  EXPECT_THROW(section_file(folder / ""), segy_failure) << "a folder";
}

TEST(section_file, a_file_that_becomes_shorter_fails_to_be_read) {
  section_folder folder;
  tests::numbered_section(3, 4).save(folder / "a.sgy");
  section_file file(folder / "a.sgy");
  std::filesystem::resize_file(folder / "a.sgy", 3700);
  std::int16_t out;
  EXPECT_THROW(file.read(2, {0}, &out), segy_failure);
}

}  // namespace
