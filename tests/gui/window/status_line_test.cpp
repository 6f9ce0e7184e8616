#include "host/desktop/window/status_line.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>

#include "host/desktop/words.h"

namespace zu::desktop {

TEST(status_line, reads_scales_as_people_write_them) {
  struct {
    const char* text;
    double scale;
  } cases[] = {{"1:25000", 25000}, {"25000", 25000}, {"1 : 25 000", 25000},
               {"1:0,5", 0.5},     {"2.5", 2.5},     {"", 0},
               {"one", 0},         {"-5", 0},        {"1:0", 0},
               {"inf", 0}};
  for (const auto& each : cases)
    EXPECT_EQ(scale_of_text(QString::fromLatin1(each.text)), each.scale) << each.text;
}

TEST(status_line, writes_scales_without_fractions_but_for_small_ones) {
  EXPECT_EQ(text_of_scale(25000.4), QStringLiteral("1:25000"));
  EXPECT_EQ(text_of_scale(0.5), QStringLiteral("1:0.5"));
  EXPECT_EQ(text_of_scale(12.3456), QStringLiteral("1:12.35"));
  EXPECT_EQ(text_of_scale(0), QString());
}

TEST(status_line, says_that_a_unit_is_taken_for_a_metre_where_nothing_says_what_it_is) {
  choose_language(language::english);
  status_line line;
  auto tip = [&] { return line.findChild<QComboBox*>(QStringLiteral("status_scale"))->toolTip(); };
  EXPECT_TRUE(tip().contains(QStringLiteral("counts as a metre")));
  line.show_projection(QStringLiteral("EPSG:4326"));
  EXPECT_FALSE(tip().contains(QStringLiteral("counts as a metre")));
}

class status_line_coordinates : public testing::Test {
 protected:
  status_line_coordinates() { choose_language(language::english); }
  ~status_line_coordinates() override { choose_language(language::english); }
  QString shown() { return line_.findChild<QLabel*>(QStringLiteral("status_coordinates"))->text(); }
  status_line line_;
};

TEST_F(status_line_coordinates, are_in_the_units_chosen) {
  line_.show_projection(QStringLiteral("EPSG:32637"));
  line_.show_scale(50000, 50000 * 0.0254 / 96);
  line_.show_coordinates(350000, 6185000, true);
  EXPECT_EQ(shown(), QStringLiteral("350000; 6185000"));
  line_.set_units(host::coordinate_units::degrees);
  EXPECT_EQ(shown(), QStringLiteral("36.60778°E 55.78732°N"));
  line_.set_units(host::coordinate_units::dms);
  EXPECT_EQ(shown(), QStringLiteral("36°36′28.0″E 55°47′14.4″N"));
  line_.show_coordinates(0, 0, false);
  EXPECT_EQ(shown(), QString());
}

TEST_F(status_line_coordinates, have_the_letters_of_the_language) {
  line_.set_units(host::coordinate_units::degrees);
  line_.show_projection(QStringLiteral("EPSG:4326"));
  line_.show_coordinates(-74.006, -40.7128, true);
  EXPECT_EQ(shown(), QStringLiteral("74.00600°W 40.71280°S"));
  choose_language(language::russian);
  EXPECT_EQ(shown(), QStringLiteral("74.00600° з.д. 40.71280° ю.ш."));
  line_.show_coordinates(74.006, 40.7128, true);
  EXPECT_EQ(shown(), QStringLiteral("74.00600° в.д. 40.71280° с.ш."));
}

TEST_F(status_line_coordinates, of_another_projection_are_not_shown_on) {
  line_.show_coordinates(1, 2, true);
  EXPECT_NE(shown(), QString());
  line_.show_projection(QString());
  EXPECT_NE(shown(), QString());
  line_.show_projection(QStringLiteral("EPSG:3857"));
  EXPECT_EQ(shown(), QString());
}

}  // namespace zu::desktop
