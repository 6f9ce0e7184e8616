// Tables, driven as a person drives them.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <map>
#include <set>

#include "host/desktop/realiser/grid_widget.h"
#include "host/desktop/realiser/realiser.h"
#include "tests/gui/realiser/fakes.h"

namespace zu::desktop {
namespace {

void give(string_visitor visitor, const std::wstring& text) {
  call<&string_visitor_impl::visit>(visitor, text.c_str());
}

/// A row of captions, a column of numbers and one of marks; then a text, a number and a whole one.
struct fake_grid : grid_impl {
  std::uint32_t column_count() override { return 5; }
  std::uint64_t row_count() override { return rows + 1; }
  std::uint32_t fixed_columns() override { return 2; }
  std::uint32_t fixed_rows() override { return 1; }
  std::uint32_t column_width(std::uint32_t column) override { return column == 0 ? 10 : 15; }
  void visit_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) override;
  void cell_text(std::uint32_t column, std::uint64_t row, string_visitor visitor) override {
    give(visitor, text_of(column, row));
  }
  bool is_marked(std::uint32_t, std::uint64_t row) override { return marks.count(row) > 0; }
  bool column_is_chosen(std::uint32_t column) override { return int(column) == chosen_column; }
  bool header_clicked(std::uint32_t column, bool shift) override {
    chosen_column = int(column);
    header_shift = shift;
    return true;
  }
  bool fixed_clicked(std::uint32_t column, std::uint64_t row, bool shift) override {
    fixed_click = {int(column), row, shift};
    return true;
  }
  void toggle(std::uint32_t, std::uint64_t row) override {
    if (marks.erase(row) == 0) marks.insert(row);
  }
  void move_to(std::uint32_t column, std::uint64_t row) override {
    ++moves;
    place = {column, row};
    has_place = true;
  }
  bool position(std::uint32_t* column, std::uint64_t* row) override {
    if (!has_place) return false;
    *column = place.column, *row = place.row;
    return true;
  }
  void attach_view(element_view given) override { view = given; }

  std::wstring text_of(std::uint32_t column, std::uint64_t row) {
    if (row == 0) return column < 2 ? L"" : std::wstring(1, wchar_t(L'A' + column - 2));
    if (column == 0) return std::to_wstring(row);
    if (auto edited = texts.find({column, row}); edited != texts.end()) return edited->second;
    return std::to_wstring(column) + L":" + std::to_wstring(row);
  }

  struct click {
    int column = -1;
    std::uint64_t row = 0;
    bool shift = false;
    bool operator==(const click&) const = default;
  };
  std::uint64_t rows = 20;
  bool read_only = false, has_place = false, header_shift = false, check_shift = false;
  grid_place place;
  click fixed_click;
  int chosen_column = -1, moves = 0, sets = 0, check_sets = 0;
  double number = 0.5;
  std::int32_t whole = 7;
  std::set<std::uint64_t> marks, asked;
  std::map<std::pair<std::uint32_t, std::uint64_t>, std::wstring> texts;
  element_view view;
};

struct text_cell final : grid_string_cell_impl {
  text_cell(fake_grid& g, std::uint32_t c, std::uint64_t r) : owner(g), column(c), row(r) {}
  void text(string_visitor v) override { give(v, owner.text_of(column, row)); }
  bool is_read_only() override { return owner.read_only || row == 0 || column == 0; }
  bool set_text(const wchar_t* text) override {
    ++owner.sets;
    if (text[0] == L'!') return false;
    owner.texts[{column, row}] = text;
    return true;
  }
  fake_grid& owner;
  std::uint32_t column;
  std::uint64_t row;
};
struct real_cell final : grid_floating_cell_impl {
  explicit real_cell(fake_grid& g) : owner(g) {}
  double value() override { return owner.number; }
  bool set_value(double value) override {
    ++owner.sets;
    owner.number = value;
    return true;
  }
  fake_grid& owner;
};
struct whole_cell final : grid_integer_cell_impl {
  explicit whole_cell(fake_grid& g) : owner(g) {}
  std::int32_t value() override { return owner.whole; }
  bool set_value(std::int32_t value) override {
    ++owner.sets;
    owner.whole = value;
    return true;
  }
  fake_grid& owner;
};
struct mark_cell final : grid_check_cell_impl {
  mark_cell(fake_grid& g, std::uint64_t r) : owner(g), row(r) {}
  bool is_checked() override { return owner.marks.count(row) > 0; }
  void set_checked(bool flag, bool shift) override {
    ++owner.check_sets;
    owner.check_shift = shift;
    flag ? (void)owner.marks.insert(row) : (void)owner.marks.erase(row);
  }
  bool is_shown() override { return row > 0; }
  fake_grid& owner;
  std::uint64_t row;
};

void fake_grid::visit_cell(std::uint32_t column, std::uint64_t row, grid_cell_visitor visitor) {
  asked.insert(row);
  text_cell text(*this, column, row);
  real_cell real(*this);
  whole_cell whole_number(*this);
  mark_cell mark(*this, row);
  handle cell = handle_of<grid_string_cell_impl>(text);
  if (row > 0 && column == 3) cell = handle_of<grid_floating_cell_impl>(real);
  if (row > 0 && column == 4) cell = handle_of<grid_integer_cell_impl>(whole_number);
  if (column == 1) cell = handle_of<grid_check_cell_impl>(mark);
  call<&grid_cell_visitor_impl::visit>(visitor, cell);
}

class grid_on_screen : public testing::Test {
 protected:
  void SetUp() override { settle(); }
  void TearDown() override { set_input_listener({}); }

  void open() {
    widget = std::make_unique<grid_widget>(handle_of<grid_impl>(table), nullptr);
    widget->resize(700, 300);
    widget->show();
    widget->activateWindow();
    widget->setFocus();
    (void)QTest::qWaitForWindowActive(widget.get());
    (void)widget->grab();
  }
  void click(std::uint32_t column, std::uint64_t row, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, keys,
                      widget->places().rect({column, row}).center());
  }
  void key(Qt::Key pressed, Qt::KeyboardModifiers keys = {}) {
    QTest::keyClick(widget.get(), pressed, keys);
  }
  QWidget* editor() {
    return widget->viewport()->findChild<QWidget*>(QStringLiteral("cell_editor"));
  }
  void type(const char* text, Qt::Key end = Qt::Key_Return) {
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), QString::fromLatin1(text));
    QTest::keyClick(editor(), end);
    settle();
  }
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  fake_grid table;
  std::unique_ptr<grid_widget> widget;
};

TEST_F(grid_on_screen, of_400_million_rows_asks_for_those_in_sight) {
  table.rows = 400'000'000;
  open();
  EXPECT_LT(table.asked.size(), 40u);
  EXPECT_LT(*table.asked.rbegin(), 40u);
  table.asked.clear();
  click(2, 1);
  key(Qt::Key_End, Qt::ControlModifier);
  (void)widget->grab();
  EXPECT_EQ(table.place.row, 400'000'000u);
  EXPECT_EQ(*table.asked.rbegin(), 400'000'000u);
  EXPECT_LT(table.asked.size(), 80u);
  EXPECT_FALSE(widget->places().rect(table.place).isEmpty());
}

TEST_F(grid_on_screen, reaches_every_row_of_more_than_a_scroll_bar_counts) {
  table.rows = 1'000'000'000'000u;
  open();
  click(2, 1);
  key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(table.place.row, 1'000'000'000'000u);
  EXPECT_EQ(widget->verticalScrollBar()->value(), widget->verticalScrollBar()->maximum());
  const std::uint64_t top = widget->places().top;
  widget->verticalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
  EXPECT_EQ(widget->places().top, top - 1) << "an arrow of the bar is one row";
  key(Qt::Key_Up);
  EXPECT_EQ(table.place.row, 999'999'999'999u);
  widget->verticalScrollBar()->setValue(0);
  EXPECT_EQ(widget->places().top, 0u);
}

TEST_F(grid_on_screen, without_rows_shows_its_captions_alone) {
  table.rows = 0;
  open();
  key(Qt::Key_Down);
  key(Qt::Key_F2);
  key(Qt::Key_Space);
  EXPECT_EQ(table.moves, 0);
  EXPECT_EQ(table.asked, (std::set<std::uint64_t>{0}));
}

TEST_F(grid_on_screen, edits_a_cell_by_f2_by_typing_and_by_double_click) {
  open();
  click(2, 3);
  key(Qt::Key_F2);
  type("new");
  EXPECT_EQ(table.text_of(2, 3), L"new");
  EXPECT_EQ(table.place.row, 4u) << "Enter goes on to the next row";
  QTest::keyClick(widget.get(), 'z');
  type("wei");
  EXPECT_EQ(table.text_of(2, 4), L"zwei");
  QTest::mouseDClick(widget->viewport(), Qt::LeftButton, {},
                     widget->places().rect({2, 6}).center());
  type("six", Qt::Key_Tab);
  EXPECT_EQ(table.text_of(2, 6), L"six");
  EXPECT_EQ(table.sets, 3);
}

TEST_F(grid_on_screen, shows_the_old_text_after_a_refusal_and_sets_nothing_unchanged) {
  open();
  click(2, 3);
  key(Qt::Key_F2);
  type("!");
  EXPECT_EQ(table.text_of(2, 3), L"2:3");
  EXPECT_EQ(table.sets, 1);
  click(2, 3);
  key(Qt::Key_F2);
  type("");
  key(Qt::Key_F2);
  type("gone", Qt::Key_Escape);
  EXPECT_EQ(table.sets, 1);
}

TEST_F(grid_on_screen, takes_numbers_with_a_comma_or_a_point_and_drops_what_is_none) {
  open();
  click(3, 1);
  key(Qt::Key_F2);
  type("2,75");
  EXPECT_EQ(table.number, 2.75);
  click(3, 1);
  key(Qt::Key_F2);
  type("12a");
  EXPECT_EQ(table.number, 2.75);
  click(4, 1);
  key(Qt::Key_F2);
  type("12");
  EXPECT_EQ(table.whole, 12);
}

TEST_F(grid_on_screen, edits_nothing_that_is_read_only) {
  table.read_only = true;
  open();
  click(2, 2);
  key(Qt::Key_F2);
  EXPECT_EQ(editor(), nullptr);
  QTest::keyClick(widget.get(), 'x');
  EXPECT_EQ(editor(), nullptr);
}

TEST_F(grid_on_screen, keeps_what_is_typed_when_another_cell_is_clicked) {
  open();
  click(2, 2);
  key(Qt::Key_F2);
  QTest::keyClicks(editor(), QStringLiteral("kept"));
  click(2, 5);
  EXPECT_EQ(table.text_of(2, 2), L"kept");
  EXPECT_EQ(table.sets, 1);
}

TEST_F(grid_on_screen, passes_clicks_on_captions_and_fixed_cells_with_shift) {
  open();
  click(3, 0, Qt::ShiftModifier);
  EXPECT_EQ(table.chosen_column, 3);
  EXPECT_TRUE(table.header_shift);
  click(0, 4);
  EXPECT_EQ(table.fixed_click, (fake_grid::click{0, 4, false}));
  click(1, 4, Qt::ShiftModifier);
  EXPECT_EQ(table.marks, (std::set<std::uint64_t>{4}));
  EXPECT_TRUE(table.check_shift);
  EXPECT_EQ(table.check_sets, 1);
  click(1, 0);
  EXPECT_EQ(table.check_sets, 1) << "there is no mark in the corner";
  EXPECT_EQ(table.moves, 0);
}

TEST_F(grid_on_screen, moves_by_keys_and_tells_each_place_once) {
  open();
  click(2, 1);
  key(Qt::Key_Right);
  key(Qt::Key_Down);
  EXPECT_TRUE((table.place == grid_place{3, 2}));
  EXPECT_EQ(table.moves, 3);
  key(Qt::Key_Home);
  EXPECT_TRUE((table.place == grid_place{2, 2}));
  key(Qt::Key_Left);
  EXPECT_EQ(table.moves, 4) << "the fixed columns are no places";
  key(Qt::Key_Space);
  EXPECT_EQ(table.marks, (std::set<std::uint64_t>{2}));
}

TEST_F(grid_on_screen, scrolls_both_ways_to_the_current_cell) {
  open();
  widget->resize(330, 150);
  click(2, 1);
  key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_TRUE((table.place == grid_place{4, 20}));
  const QRect last = widget->places().rect(table.place);
  EXPECT_TRUE(widget->viewport()->rect().contains(last));
  EXPECT_EQ(widget->horizontalScrollBar()->value(), widget->horizontalScrollBar()->maximum());
  key(Qt::Key_Home, Qt::ControlModifier);
  const QRect first = widget->places().rect(table.place);
  EXPECT_TRUE(widget->viewport()->rect().contains(first));
  EXPECT_GE(first.left(), widget->places().fixed_width()) << "not under the fixed columns";
  widget->horizontalScrollBar()->setValue(10);
  EXPECT_EQ(widget->places().left, 10);
}

TEST_F(grid_on_screen, copies_the_chosen_part_with_tabs_and_lines) {
  open();
  click(2, 1);
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("2:1"));
  click(4, 2, Qt::ShiftModifier);
  table.texts[{3, 1}] = L"a\tb";
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("2:1\t\"a\tb\"\t4:1\n2:2\t3:2\t4:2"));
  click(2, 5);
  table.marks = {5, 7};
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("2:5\t3:5\t4:5\n2:7\t3:7\t4:7"));
}

TEST_F(grid_on_screen, copies_no_more_than_fits_into_a_clipboard) {
  table.rows = 400'000'000;
  open();
  click(2, 1);
  key(Qt::Key_C, Qt::ControlModifier);
  key(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("2:1"));
}

TEST_F(grid_on_screen, shows_rows_that_came_and_went) {
  open();
  click(2, 15);
  table.rows = 5;
  table.has_place = false;
  call<&element_view_impl::list_changed>(table.view);
  EXPECT_EQ(widget->places().rows, 6u);
  EXPECT_FALSE(widget->current());
  table.rows = 100;
  call<&element_view_impl::list_changed>(table.view);
  EXPECT_GT(widget->verticalScrollBar()->maximum(), 0);
}

TEST_F(grid_on_screen, resizes_a_column_by_its_edge) {
  open();
  const QRect caption = widget->places().rect({2, 0});
  const int before = widget->places().widths[2];
  QTest::mousePress(widget->viewport(), Qt::LeftButton, {},
                    QPoint(caption.right(), caption.center().y()));
  QMouseEvent move(QEvent::MouseMove, QPointF(caption.right() + 41, caption.center().y()),
                   widget->viewport()->mapToGlobal(QPointF(0, 0)), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(widget->viewport(), &move);
  QTest::mouseRelease(widget->viewport(), Qt::LeftButton, {},
                      QPoint(caption.right() + 41, caption.center().y()));
  EXPECT_NEAR(widget->places().widths[2], before + 40, 3);
  EXPECT_EQ(table.chosen_column, -1) << "an edge is no caption";
}

TEST_F(grid_on_screen, takes_its_view_back_as_it_goes_even_while_a_cell_is_edited) {
  open();
  EXPECT_TRUE(table.view);
  click(2, 2);
  key(Qt::Key_F2);
  QTest::keyClicks(editor(), QStringLiteral("half"));
  widget.reset();
  EXPECT_FALSE(table.view);
}

TEST_F(grid_on_screen, tells_who_listens_of_each_input_once) {
  int inputs = 0;
  set_input_listener([&](const QString&) { ++inputs; });
  open();
  click(2, 2);
  settle();
  EXPECT_EQ(inputs, 1);
  key(Qt::Key_F2);
  type("x", Qt::Key_Escape);
  EXPECT_EQ(inputs, 1);
  click(1, 2);
  settle();
  EXPECT_EQ(inputs, 2);
}

/// Rows of one picture, `height` pixels high.
struct grid_of_pictures : grid_impl {
  struct picture_cell final : grid_bitmap_cell_impl {
    explicit picture_cell(fake_bitmap& shown) : shown(shown) {}
    void picture(bitmap_visitor visitor) override { zu::desktop::show(visitor, shown); }
    fake_bitmap& shown;
  };
  explicit grid_of_pictures(std::uint64_t height) {
    shown.height = height;
    shown.bytes.assign(shown.width * height * 4, 255);
  }
  std::uint32_t column_count() override { return 1; }
  std::uint64_t row_count() override { return 3; }
  void visit_cell(std::uint32_t, std::uint64_t, grid_cell_visitor visitor) override {
    picture_cell cell(shown);
    call<&grid_cell_visitor_impl::visit>(visitor, handle_of<grid_bitmap_cell_impl>(cell));
  }
  fake_bitmap shown;
};

TEST(grid_of_pictures, has_rows_as_high_as_its_pictures_within_reason) {
  auto row_height = [](std::uint64_t height) {
    grid_of_pictures table(height);
    grid_widget widget(handle_of<grid_impl>(table), nullptr);
    EXPECT_EQ(widget.places().rect({0, 1}).height(), widget.places().row_height);
    return widget.places().row_height - widget.fontMetrics().height();
  };
  EXPECT_EQ(row_height(2), 6) << "as high as a text";
  QWidget plain;
  EXPECT_EQ(row_height(50) + plain.fontMetrics().height(), 54);
  EXPECT_EQ(row_height(500) + plain.fontMetrics().height(), 68);
}

}  // namespace
}  // namespace zu::desktop
