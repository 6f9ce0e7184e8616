#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "tests/gui/realiser/fakes.h"

namespace zu::desktop {

struct fake_output : faked<output_impl> {
  explicit fake_output(std::wstring text) { caption_text = std::move(text); }
  void text(string_visitor v) override { say(v, caption_text); }
  void hint(string_visitor v) override { say(v, hint_text); }
  bool visible() override { return is_visible; }
};

TEST(output, is_read_and_copied_and_not_changed) {
  fake_output path(L"hills.tif");
  shown window(path);
  auto* line = window.find<QLineEdit>("output");
  ASSERT_NE(line, nullptr);
  line->setFocus();
  QTest::keyClicks(line, QStringLiteral("x"));
  EXPECT_EQ(line->text(), QStringLiteral("hills.tif"));
  line->selectAll();
  line->copy();
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("hills.tif"));
  path.caption_text = L"valleys.tif";
  path.redraw();
  EXPECT_EQ(line->text(), QStringLiteral("valleys.tif"));
  path.is_visible = false;
  path.redraw();
  EXPECT_TRUE(line->isHidden());
}

TEST(output, shows_its_beginning_and_the_whole_in_its_tip_where_it_is_cut) {
  fake_output path(L"/data/grids/of/the/northern/part/hills_and_valleys.tif");
  path.hint_text = L"The file";
  shown window(path);
  auto* line = window.find<QLineEdit>("output");
  line->resize(900, line->height());
  QApplication::processEvents();
  EXPECT_EQ(line->toolTip(), QStringLiteral("The file"));
  line->resize(80, line->height());
  QApplication::processEvents();
  EXPECT_EQ(line->toolTip(), line->text());
  EXPECT_EQ(line->cursorPosition(), 0);
}

struct fake_floating_output : faked<floating_output_impl, floating_view, floating_view_impl> {
  double value() override { return content; }
  std::uint32_t decimals() override { return digits; }
  double content = 0;
  std::uint32_t digits = 0;
};

TEST(floating_output, has_the_digits_that_its_element_wants) {
  fake_floating_output mean;
  mean.content = 1.25;
  shown window(mean);
  auto* line = window.find<QLineEdit>("output");
  EXPECT_EQ(line->text(), QStringLiteral("1.25"));
  mean.digits = 3;
  mean.redraw();
  EXPECT_EQ(line->text(), QStringLiteral("1.250"));
  mean.content = 2;
  call<&floating_view_impl::value_changed>(mean.view, 2.0);
  EXPECT_EQ(line->text(), QStringLiteral("2.000"));
}

struct fake_multiline_output : faked<multiline_output_impl> {
  void text(string_visitor v) override { say(v, caption_text); }
  std::uint32_t lines() override { return rows; }
  bool monospaced() override { return is_monospaced; }
  std::uint32_t rows = 3;
  bool is_monospaced = false;
};

TEST(multiline_output, is_as_high_as_its_lines_and_only_read) {
  fake_multiline_output text;
  text.caption_text = L"one\ntwo";
  shown window(text);
  auto* edit = window.find<QPlainTextEdit>("multiline_output");
  EXPECT_TRUE(edit->isReadOnly());
  int three = edit->sizeHint().height();
  text.rows = 6;
  text.redraw();
  EXPECT_NEAR(edit->sizeHint().height(), three + 3 * QFontMetrics(edit->font()).lineSpacing(), 6);
  text.is_monospaced = true;
  text.redraw();
  const QFontMetrics columns(edit->font());
  EXPECT_EQ(columns.horizontalAdvance(QLatin1Char('i')),
            columns.horizontalAdvance(QLatin1Char('M')));
}

struct fake_image : faked<image_impl> {
  void picture(bitmap_visitor v) override { show(v, shown_picture); }
  bool visible() override { return is_visible; }
  fake_bitmap shown_picture;
};

TEST(image, keeps_its_size_and_its_colours) {
  fake_image image;
  image.shown_picture.bytes = {255, 0, 0, 255, 255, 0, 0, 255, 255, 0, 0, 255, 255, 0, 0, 255};
  shown window(image);
  auto* label = window.find<QLabel>("image");
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->pixmap().deviceIndependentSize(), QSizeF(2, 2));
  EXPECT_EQ(label->pixmap().toImage().pixelColor(0, 0), QColor(255, 0, 0));
}

}  // namespace zu::desktop
