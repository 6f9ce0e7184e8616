// What a person changes in the cells of a list.

#include "tests/gui/realiser/outline_fixture.h"

#include <QComboBox>
#include <QSpinBox>

namespace zu::desktop {
namespace {

struct real_column : floating_outline_column_impl {
  double value(outline_item) override { return number; }
  bool is_editable(outline_item) override { return true; }
  bool set_value(outline_item, double value) override {
    number = value;
    return true;
  }
  double number = 0.1;
};

struct mark_column : boolean_outline_column_impl {
  bool is_checked(outline_item item) override { return on.count(row_of(item)) > 0; }
  bool is_editable(outline_item item) override { return row_of(item) != 2; }
  void set_checked(outline_item item, bool flag) override {
    ++sets;
    flag ? (void)on.insert(row_of(item)) : (void)on.erase(row_of(item));
  }
  std::set<std::uint32_t> on;
  int sets = 0;
};

struct choice_column : enum_outline_column_impl {
  std::int32_t current(outline_item) override { return chosen; }
  bool set_current(outline_item, std::int32_t wanted) override {
    ++sets;
    if (wanted == 2) return false;
    chosen = wanted;
    return true;
  }
  std::uint32_t count(outline_item) override { return 3; }
  void choice_text(outline_item, std::uint32_t i, string_visitor v) override {
    give(v, std::vector<std::wstring>{L"AND", L"OR", L"never"}[i]);
  }
  std::int32_t chosen = 0;
  int sets = 0;
};

struct helped_column : assisted_string_outline_column_impl {
  void text(outline_item, string_visitor v) override { give(v, said); }
  bool is_editable(outline_item) override { return true; }
  bool set_text(outline_item, const wchar_t* text) override {
    said = text;
    return true;
  }
  void visit_suggestions(outline_item, string_visitor v) override {
    ++asked;
    give(v, L"granite");
    give(v, L"basalt");
  }
  std::wstring said = L"clay";
  int asked = 0;
};

TEST_F(outline_on_screen, gives_a_typed_text_to_its_column_once) {
  list.add(names);
  open();
  ASSERT_NE(edit(1, 0), nullptr);
  type("zwei");
  EXPECT_EQ(names.texts[1], L"zwei");
  EXPECT_EQ(names.sets, 1);
  EXPECT_EQ(shown(1, 0), QStringLiteral("zwei"));
}

TEST_F(outline_on_screen, shows_the_old_text_again_after_a_refusal) {
  list.add(names);
  open();
  edit(1, 0);
  type("!bad");
  EXPECT_EQ(names.sets, 1);
  EXPECT_EQ(shown(1, 0), QStringLiteral("two"));
  EXPECT_EQ(editor(), nullptr);
}

TEST_F(outline_on_screen, frames_a_cell_in_red_for_a_moment_where_a_text_was_refused) {
  list.add(names);
  open();
  const auto frame = [&] {
    return view()->viewport()->findChild<QWidget*>(QStringLiteral("refused_mark"));
  };
  edit(1, 0);
  type("fine");
  EXPECT_EQ(frame(), nullptr);
  edit(1, 0);
  type("!bad");
  ASSERT_NE(frame(), nullptr);
  EXPECT_TRUE(frame()->isVisible());
  EXPECT_TRUE(frame()->geometry().intersects(view()->visualRect(cell(1, 0))));
  EXPECT_FALSE(frame()->geometry().contains(view()->visualRect(cell(0, 0)).center()));
  EXPECT_TRUE(QTest::qWaitFor([&] { return frame() == nullptr; }));
}

TEST_F(outline_on_screen, leaves_a_text_alone_that_nobody_changed) {
  list.add(names);
  open();
  edit(1, 0);
  type("");
  edit(1, 0);
  type("other", Qt::Key_Escape);
  EXPECT_EQ(names.sets, 0);
}

TEST_F(outline_on_screen, edits_no_read_only_and_no_disabled_cell) {
  list.add(names);
  names.disabled_row = 1;
  open();
  EXPECT_EQ(edit(1, 0), nullptr);
  names.editable = false;
  EXPECT_EQ(edit(0, 0), nullptr);
}

TEST_F(outline_on_screen, takes_whole_numbers_inside_their_limits) {
  whole_column numbers;
  list.add(numbers);
  open();
  EXPECT_NE(qobject_cast<QSpinBox*>(edit(0, 0)), nullptr);
  type("42");
  EXPECT_EQ(numbers.values[0], 42);
  edit(0, 0);
  type("13");
  EXPECT_EQ(numbers.values[0], 42) << "refused";
  EXPECT_EQ(shown(0, 0), QStringLiteral("42"));
  EXPECT_EQ(numbers.sets, 2);
}

TEST_F(outline_on_screen, takes_a_comma_for_a_point_and_keeps_every_digit) {
  real_column numbers;
  list.add(numbers);
  open();
  EXPECT_EQ(shown(0, 0), QStringLiteral("0.1"));
  edit(0, 0);
  type("2,5");
  EXPECT_EQ(numbers.number, 2.5);
  edit(0, 0);
  type("1.23456789012");
  EXPECT_EQ(numbers.number, 1.23456789012);
  edit(0, 0);
  type("12a");
  EXPECT_EQ(numbers.number, 1.23456789012);
}

TEST_F(outline_on_screen, sets_marks_by_click_and_space) {
  mark_column marks;
  list.add(names);
  list.add(marks);
  open();
  click(0, 1);
  EXPECT_EQ(marks.on, (std::set<std::uint32_t>{0}));
  EXPECT_EQ(list.current_sets, 0) << "a click on a mark chooses no row";
  view()->setCurrentIndex(cell(0, 1));
  key(Qt::Key_Space);
  EXPECT_TRUE(marks.on.empty());
  EXPECT_EQ(marks.sets, 2);
  click(2, 1);
  EXPECT_TRUE(marks.on.empty()) << "read only";
}

TEST_F(outline_on_screen, offers_choices_and_shows_the_old_one_after_a_refusal) {
  choice_column bonds;
  list.add(bonds);
  open();
  auto* choices = qobject_cast<QComboBox*>(edit(0, 0));
  ASSERT_NE(choices, nullptr);
  EXPECT_EQ(choices->count(), 3);
  QTest::keyClick(choices, Qt::Key_Down);
  QTest::keyClick(choices, Qt::Key_Return);
  EXPECT_EQ(bonds.chosen, 1);
  EXPECT_EQ(shown(0, 0), QStringLiteral("OR"));
  settle();
  choices = qobject_cast<QComboBox*>(edit(0, 0));
  ASSERT_NE(choices, nullptr);
  choices->setCurrentIndex(2);
  Q_EMIT choices->activated(2);
  EXPECT_EQ(bonds.chosen, 1);
  EXPECT_EQ(shown(0, 0), QStringLiteral("OR"));
  EXPECT_EQ(bonds.sets, 2);
}

TEST_F(outline_on_screen, suggests_texts_as_editing_starts_and_takes_others) {
  helped_column rocks;
  list.add(rocks);
  open();
  EXPECT_EQ(rocks.asked, 0);
  auto* line = qobject_cast<QComboBox*>(edit(0, 0));
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(rocks.asked, 1);
  EXPECT_EQ(line->count(), 2);
  EXPECT_EQ(line->currentText(), QStringLiteral("clay"));
  type("sand");
  EXPECT_EQ(rocks.said, L"sand");
}

TEST_F(outline_on_screen, takes_its_view_back_as_it_goes_even_while_a_cell_is_edited) {
  list.add(names);
  open();
  EXPECT_TRUE(list.view);
  edit(0, 0);
  QTest::keyClicks(editor(), QStringLiteral("half typed"));
  widget.reset();
  EXPECT_FALSE(list.view);
  EXPECT_EQ(list.attachments, 2);
  list.redraw();
}

TEST_F(outline_on_screen, survives_rows_that_go_while_one_is_edited) {
  list.add(names);
  open();
  edit(2, 0);
  list.rows = 1;
  list.redraw();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(editor(), nullptr);
  EXPECT_EQ(names.sets, 0);
}

TEST_F(outline_on_screen, presses_the_button_of_a_cell_by_click_and_f2) {
  names.editable = false;
  names.button = true;
  list.add(names);
  open();
  const QRect rect = view()->visualRect(cell(1, 0));
  QTest::mouseClick(view()->viewport(), Qt::LeftButton, {},
                    QPoint(rect.right() - 8, rect.center().y()));
  EXPECT_EQ(names.presses, 1);
  view()->setCurrentIndex(cell(0, 0));
  key(Qt::Key_F2);
  EXPECT_EQ(names.presses, 2);
}

TEST_F(outline_on_screen, tells_who_listens_of_each_input) {
  int inputs = 0;
  set_input_listener([&](const QString&) { ++inputs; });
  list.add(names);
  open();
  QCoreApplication::processEvents();
  EXPECT_EQ(inputs, 0);
  edit(1, 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(inputs, 1) << "the current item";
  type("zwei");
  EXPECT_EQ(inputs, 2);
  list.redraw();
  QCoreApplication::processEvents();
  EXPECT_EQ(inputs, 2);
}

}  // namespace
}  // namespace zu::desktop
