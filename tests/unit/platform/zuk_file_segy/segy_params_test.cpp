#include "platform/zuk_file_segy/segy_params.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_file_segy/side_file.h"
#include "tests/unit/platform/zuk_file_segy/made_section.h"
#include "zu/monitor.h"

namespace {

using namespace zu::platform;
using tests::made_section;
using tests::section_folder;

class segy_params : public testing::Test {
 protected:
  /// Traces with numbers in a pair of words, and the scalar.
  void make(const std::vector<std::pair<int, int>>& points, int x_byte, int scalar = 0) {
    made_section section(8, 1);
    for (auto [x, y] : points)
      section.trace({"a"}).field(x_byte, 4, x).field(x_byte + 4, 4, y).field(71, 2, scalar);
    section.save(folder_ / "a.sgy");
    path_ = from_utf8(folder_ / "a.sgy");
  }
  bool estimate() {
    return zu_segy_file_estimate2d_params(path_.c_str(), options_, record_, nullptr);
  }
  std::vector<Tzu_vtx_d2> line(int type, int coeff_type, double coeff) {
    Tzu_pv_d2* pv = zu_pv_d2_create();
    EXPECT_TRUE(zu_segy_reader_get_xy_pln(path_.c_str(), type, coeff_type, coeff, pv));
    std::vector<Tzu_vtx_d2> out(zu_pv_d2_get_arr(pv), zu_pv_d2_get_arr(pv) + zu_pv_d2_get_size(pv));
    zu_pv_d2_destroy(pv);
    return out;
  }
  ~segy_params() override {
    zu_segy_prms_destroy(record_);
    zu_segy_estim_opts_destroy(options_);
  }

  section_folder folder_;
  std::wstring path_;
  Tzu_segy_prms* record_ = zu_segy_prms_create();
  Tzu_segy_estim_opts* options_ = zu_segy_estim_opts_create();
};

TEST_F(segy_params, are_stored_beside_the_file_and_come_back) {
  make({{1, 1}, {2, 2}}, 181);
  EXPECT_FALSE(zu_segy_file_has_params(path_.c_str()));
  zu_segy_prms_set_coord_type(record_, 2);
  zu_segy_prms_set_coord_coeff_type(record_, 4);
  zu_segy_prms_set_coord_coeff(record_, 0.3048);
  zu_segy_prms_set_pln_simplify_flag(record_, true);
  Tzu_segy_file* file = zu_segy_file_open(path_.c_str(), 1);
  EXPECT_TRUE(zu_segy_file_set_parameters(file, record_));
  zu_segy_file_close(file);
  EXPECT_TRUE(zu_segy_file_has_params(path_.c_str()));
  EXPECT_TRUE(std::filesystem::exists(folder_ / "a.sgy.prm"));

  Tzu_segy_prms* read = zu_segy_prms_create();
  file = zu_segy_file_open(path_.c_str(), 1);
  EXPECT_TRUE(zu_segy_file_get_parameters(file, read));
  zu_segy_file_close(file);
  EXPECT_EQ(zu_segy_prms_get_coord_type(read), 2);
  EXPECT_EQ(zu_segy_prms_get_coord_coeff_type(read), 4);
  EXPECT_EQ(zu_segy_prms_get_coord_coeff(read), 0.3048);
  EXPECT_TRUE(zu_segy_prms_get_pln_simplify_flag(read));
  zu_segy_prms_destroy(read);
}

TEST_F(segy_params, that_make_no_sense_are_none) {
  make({{1, 1}, {2, 2}}, 181);
  const std::string good = "coord_type=1\ncoord_coeff_type=3\ncoord_coeff=1\npln_simplify=0\n";
  EXPECT_TRUE(read_segy_params(good));
  EXPECT_TRUE(read_segy_params("new=1\n" + good)) << "what is not known is passed over";
  for (const char* text :
       {"", "coord_type=1\n", "coord_type=x\ncoord_coeff_type=3\ncoord_coeff=1\npln_simplify=0\n",
        "coord_type=1\ncoord_coeff_type=3\ncoord_coeff=1,5\npln_simplify=0\n",
        "coord_type=1\ncoord_coeff_type=3\ncoord_coeff=nan\npln_simplify=0\n"})
    EXPECT_FALSE(read_segy_params(text)) << text;
}

TEST_F(segy_params, where_the_folder_cannot_be_written_go_to_the_users_data) {
  std::string data = folder_ / "data";
  const char* before = std::getenv("XDG_DATA_HOME");
  std::string kept = before != nullptr ? before : "";
  setenv("XDG_DATA_HOME", data.c_str(), 1);
  std::string section = folder_ / "missing/a.sgy";
  std::string place = side_file_to_write(section, params_suffix);
  EXPECT_EQ(place.compare(0, data.size(), data), 0) << place;
  EXPECT_EQ(existing_side_file(section, params_suffix), "");
  std::ofstream(place) << "x";
  EXPECT_EQ(existing_side_file(section, params_suffix), place);
  EXPECT_EQ(existing_side_file(folder_ / "other/a.sgy", params_suffix), "");
  if (before != nullptr)
    setenv("XDG_DATA_HOME", kept.c_str(), 1);
  else
    unsetenv("XDG_DATA_HOME");
}

struct word_case {
  int byte, type;
};

TEST_F(segy_params, are_estimated_from_the_words_that_make_a_line) {
  for (word_case words : {word_case{81, 0}, word_case{73, 1}, word_case{181, 2}}) {
    make({{10, 20}, {30, 40}}, words.byte);
    EXPECT_TRUE(estimate());
    EXPECT_EQ(zu_segy_prms_get_coord_type(record_), words.type);
    EXPECT_EQ(zu_segy_prms_get_coord_coeff_type(record_), zu_segy_coeff_header);
  }
}

TEST_F(segy_params, are_those_of_the_first_type_that_fits) {
  made_section section(8, 1);
  for (int i = 0; i < 3; ++i)
    section.trace({"a"}).field(81, 4, 5).field(85, 4, 5).field(73, 4, i + 1).field(181, 4, i + 1);
  section.save(folder_ / "a.sgy");
  path_ = from_utf8(folder_ / "a.sgy");
  EXPECT_TRUE(estimate());
  EXPECT_EQ(zu_segy_prms_get_coord_type(record_), 1) << "all receivers lie at one point";
  const std::int32_t types[] = {2, 1};
  zu_segy_estim_opts_set_crd_types(options_, types, 2);
  EXPECT_TRUE(estimate());
  EXPECT_EQ(zu_segy_prms_get_coord_type(record_), 2);
  zu_segy_estim_opts_set_crd_type(options_, 0);
  zu_segy_prms_set_coord_type(record_, 7);
  EXPECT_FALSE(estimate());
  EXPECT_EQ(zu_segy_prms_get_coord_type(record_), 7) << "what does not fit changes nothing";
}

TEST_F(segy_params, may_forbid_traces_at_one_point) {
  make({{1, 1}, {1, 1}, {2, 2}}, 181);
  EXPECT_TRUE(estimate());
  zu_segy_estim_opts_set_allow_duplicate_points(options_, false);
  EXPECT_FALSE(estimate());
}

TEST_F(segy_params, of_a_file_without_any_coordinates_are_the_first_type_that_was_asked_for) {
  make({{0, 0}, {0, 0}}, 181);
  EXPECT_TRUE(estimate());
  EXPECT_EQ(zu_segy_prms_get_coord_type(record_), 0);
  zu_segy_estim_opts_set_crd_type(options_, 2);
  EXPECT_TRUE(estimate());
  EXPECT_EQ(zu_segy_prms_get_coord_type(record_), 2);
  EXPECT_TRUE(line(2, 3, 1).empty());
}

TEST_F(segy_params, of_one_point_for_all_traces_do_not_fit_and_say_why) {
  make({{5, 5}, {5, 5}}, 181);
  EXPECT_FALSE(estimate());
  EXPECT_GT(zu_problems_get_count(path_.c_str()), 0);
}

TEST_F(segy_params, of_no_file_do_not_fit) {
  path_ = L"/nowhere/a.sgy";
  EXPECT_FALSE(estimate());
}

TEST_F(segy_params, of_one_trace_are_its_point) {
  make({{3, 4}}, 181);
  EXPECT_TRUE(estimate());
}

struct stopping_monitor : zu::monitor_impl {
  void set_progress(double) override { ++calls; }
  bool is_stopped() override { return true; }
  int calls = 0;
};

TEST_F(segy_params, are_not_estimated_when_the_monitor_stops) {
  make({{10, 20}, {30, 40}}, 81);
  stopping_monitor monitor;
  Tzu_handle handle = zu::handle_of<zu::monitor_impl>(monitor);
  EXPECT_FALSE(zu_segy_file_estimate2d_params(path_.c_str(), options_, record_, &handle));
  EXPECT_GT(monitor.calls, 0);
}

TEST_F(segy_params, make_metres_of_the_words) {
  struct unit_case {
    int type;
    double coefficient;
    int scalar;
    double x;
  };
  for (unit_case unit :
       {unit_case{0, 9, -10, 200}, unit_case{1, 9, -10, 20}, unit_case{2, 9, -10, 2},
        unit_case{3, 9, -10, 20}, unit_case{3, 9, 10, 2000}, unit_case{3, 9, 0, 200},
        unit_case{4, 0.5, -10, 100}}) {
    make({{200, 400}, {0, 0}, {300, 500}}, 81, unit.scalar);
    std::vector<Tzu_vtx_d2> points = line(0, unit.type, unit.coefficient);
    ASSERT_EQ(points.size(), 2U) << "a trace without coordinates has no point";
    EXPECT_NEAR(points[0].x, unit.x, 1e-9) << unit.type << " " << unit.scalar;
    EXPECT_NEAR(points[0].y, 2 * unit.x, 1e-9);
    EXPECT_NEAR(points[1].x, 1.5 * unit.x, 1e-9);
  }
  EXPECT_TRUE(line(3, 0, 1).empty()) << "no such words";
}

}  // namespace
