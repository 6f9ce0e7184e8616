// Statistics and histograms of a field that the platform reads in one pass for a source.

#include <gtest/gtest.h>

#include <cmath>

#include "src/bundle/owned.h"
#include "src/data/grid_datasource.h"
#include "tests/unit/src/made_grid.h"

namespace {

using namespace zu;

class field_reading : public testing::Test {
 protected:
  void open(const char* name, bool with_stored = false) {
    tests::made_grid grid(name, 4, 1, GDT_Float32, 1);
    grid.values(1, {1, 2, 2, 5});
    if (with_stored) {
      grid.band(1)->SetMetadataItem("STATISTICS_MINIMUM", "0");
      grid.band(1)->SetMetadataItem("STATISTICS_MAXIMUM", "8");
      grid.band(1)->SetMetadataItem("STATISTICS_MEAN", "3");
      grid.band(1)->SetMetadataItem("STATISTICS_STDDEV", "1");
    }
    data::open_reference reference;
    reference.name = grid.close();
    reference.opener = &zu_datasource_open;
    ASSERT_TRUE(source_.open(reference, data::open_read_only));
  }

  data::grid_datasource source_;
  owned<zu_stat_destroy> stat_{zu_stat_create()};
};

TEST_F(field_reading, fills_what_the_source_does_not_keep) {
  open("reading.tif");
  EXPECT_FALSE(source_.knows_statistics(0));
  EXPECT_TRUE(source_.read_statistics(0, 0, nullptr));
  source_.fill_stat(stat_.get(), 0);
  EXPECT_EQ(zu_stat_get_minimum(stat_.get(), nullptr), 1);
  EXPECT_EQ(zu_stat_get_maximum(stat_.get(), nullptr), 5);
  EXPECT_EQ(zu_stat_get_average(stat_.get(), nullptr), 2.5);
  EXPECT_NEAR(zu_stat_get_stddev(stat_.get(), nullptr), std::sqrt(3), 1e-12);
  EXPECT_EQ(source_.field_count(0), 4u);
}

TEST_F(field_reading, counts_a_histogram_between_the_limits_of_the_field) {
  open("histogram.tif");
  EXPECT_TRUE(source_.read_histogram(stat_.get(), 0, nullptr));
  bool valid = false;
  Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat_.get(), &valid);
  EXPECT_TRUE(valid);
  ASSERT_EQ(zu_histogramm_get_size(histogram), 256u);
  EXPECT_EQ(zu_histogramm_get_bnd_min(histogram, 0), 1);
  EXPECT_EQ(zu_histogramm_get_bnd_max(histogram, 255), 5);
  EXPECT_EQ(zu_histogramm_get(histogram, 0), 1);
  EXPECT_EQ(zu_histogramm_get(histogram, 64), 2);
  EXPECT_EQ(zu_histogramm_get(histogram, 255), 1);
}

TEST_F(field_reading, gives_the_same_histogram_where_nobody_watches) {
  open("visited.tif");
  source_.fill_histogram(stat_.get(), 0);
  EXPECT_TRUE(zu_stat_has_histogramm(stat_.get()));
  Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat_.get(), nullptr);
  EXPECT_EQ(zu_histogramm_get_size(histogram), 256u);
  EXPECT_EQ(zu_histogramm_get_bnd_max(histogram, 255), 5);
  EXPECT_EQ(zu_histogramm_get_max_val(histogram), 2);
}

TEST_F(field_reading, believes_what_the_source_keeps) {
  open("stored.tif", true);
  EXPECT_TRUE(source_.knows_statistics(0));
  EXPECT_TRUE(source_.read_histogram(stat_.get(), 0, nullptr));
  Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat_.get(), nullptr);
  EXPECT_EQ(zu_histogramm_get_bnd_min(histogram, 0), 0);
  EXPECT_EQ(zu_histogramm_get(histogram, 64), 2);
  EXPECT_FALSE(source_.knows_statistics(7));
}

TEST_F(field_reading, is_given_up_when_a_person_stops_it) {
  open("stopped_reading.tif");
  Tzu_progress_hooks hooks = {};
  hooks.stopped = [](void*, void*) { return true; };
  zu_progress_set_hooks(&hooks);
  owned<zu_progress_destroy> progress(zu_progress_create(1));
  EXPECT_FALSE(source_.read_statistics(0, 0, progress.get()));
  EXPECT_FALSE(source_.read_histogram(stat_.get(), 0, progress.get()));
  EXPECT_FALSE(zu_stat_has_histogramm(stat_.get()));
  zu_progress_set_hooks(nullptr);
}

}  // namespace
