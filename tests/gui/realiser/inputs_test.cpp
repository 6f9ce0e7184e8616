#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "tests/gui/realiser/fakes.h"

namespace zu::desktop {

using texts = std::vector<std::wstring>;

TEST(input, typing_reaches_the_element_and_enter_commits_once) {
  fake_input name;
  name.content = L"old";
  shown window(name);
  auto* line = window.find<QLineEdit>("input");
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(line->text(), QStringLiteral("old"));
  line->setFocus();
  line->selectAll();
  QTest::keyClicks(line, QStringLiteral("new"));
  EXPECT_EQ(name.offered, (texts{L"n", L"ne", L"new"}));
  EXPECT_TRUE(name.committed.empty());
  QTest::keyClick(line, Qt::Key_Return);
  line->clearFocus();
  EXPECT_EQ(name.committed, texts{L"new"});
  EXPECT_EQ(name.offered.size(), 3u);
}

TEST(input, leaving_it_commits_and_looking_at_it_does_not) {
  fake_input name;
  shown window(name);
  auto* line = window.find<QLineEdit>("input");
  line->setFocus();
  line->clearFocus();
  EXPECT_TRUE(name.committed.empty());
  line->setFocus();
  QTest::keyClicks(line, QStringLiteral("a"));
  line->clearFocus();
  EXPECT_EQ(name.committed, texts{L"a"});
}

TEST(input, a_refused_text_is_marked_and_gives_way_to_the_old_one) {
  fake_input name;
  name.content = L"abc";
  name.validate = [](const std::wstring& text) { return text.size() <= 3; };
  shown window(name);
  auto* line = window.find<QLineEdit>("input");
  line->setFocus();
  line->end(false);
  QTest::keyClicks(line, QStringLiteral("d"));
  EXPECT_EQ(line->text(), QStringLiteral("abcd"));
  EXPECT_NE(line->findChild<QWidget*>(QStringLiteral("refused_mark")), nullptr);
  QTest::keyClick(line, Qt::Key_Return);
  EXPECT_EQ(line->text(), QStringLiteral("abc"));
  EXPECT_EQ(name.content, L"abc");
  EXPECT_TRUE(name.committed.empty());
}

TEST(input, escape_brings_back_what_stood_there_and_is_then_free_for_the_dialog) {
  fake_input name;
  name.content = L"old";
  shown window(name);
  auto* line = window.find<QLineEdit>("input");
  line->setFocus();
  QTest::keyClicks(line, QStringLiteral("x"));
  EXPECT_NE(name.content, L"old");
  QTest::keyClick(line, Qt::Key_Escape);
  EXPECT_EQ(name.content, L"old");
  EXPECT_EQ(line->text(), QStringLiteral("old"));
  EXPECT_TRUE(name.committed.empty());
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(line, &again);
  EXPECT_FALSE(again.isAccepted());
}

TEST(input, a_change_from_the_program_is_shown_and_not_told_back) {
  fake_input name;
  shown window(name);
  auto* line = window.find<QLineEdit>("input");
  name.change(L"of the program");
  EXPECT_EQ(line->text(), QStringLiteral("of the program"));
  name.is_enabled = false;
  name.hint_text = L"tip";
  name.redraw();
  EXPECT_FALSE(line->isEnabled());
  EXPECT_EQ(line->toolTip(), QStringLiteral("tip"));
  name.is_enabled = true;
  name.is_read_only = true;
  name.is_visible = false;
  name.redraw();
  EXPECT_TRUE(line->isReadOnly());
  EXPECT_TRUE(line->isHidden());
  EXPECT_TRUE(name.offered.empty());
  EXPECT_TRUE(name.committed.empty());
}

TEST(input, a_disabled_one_takes_nothing) {
  fake_input name;
  name.is_enabled = false;
  shown window(name);
  auto* line = window.find<QLineEdit>("input");
  QTest::keyClicks(line, QStringLiteral("x"));
  EXPECT_TRUE(name.offered.empty());
}

TEST(input, the_listener_hears_of_each_input_by_name) {
  fake_input name;
  name.hint_text = L"Name:";
  QStringList heard;
  set_input_listener([&](const QString& what) { heard << what; });
  {
    shown window(name);
    auto* line = window.find<QLineEdit>("input");
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("a"));
    EXPECT_EQ(heard, QStringList{QStringLiteral("Name")});
    name.change(L"b");
    EXPECT_EQ(heard.size(), 1);
  }
  set_input_listener(nullptr);
}

TEST(assisted_input, a_suggestion_is_offered_and_committed) {
  fake_assisted_input field;
  field.suggestions = {L"depth", L"width"};
  shown window(field);
  auto* line = window.find<QLineEdit>("input");
  ASSERT_NE(line->completer(), nullptr);
  line->setFocus();
  QTest::keyClicks(line, QStringLiteral("wi"));
  EXPECT_EQ(line->completer()->currentCompletion(), QStringLiteral("width"));
  Q_EMIT line->completer()->activated(QStringLiteral("width"));
  EXPECT_EQ(field.content, L"width");
  EXPECT_EQ(field.committed, texts{L"width"});
}

TEST(multiline_input, text_and_mark_go_both_ways) {
  fake_multiline formula;
  formula.content = L"a\nb";
  shown window(formula);
  auto* edit = window.find<QPlainTextEdit>("multiline_input");
  ASSERT_NE(edit, nullptr);
  EXPECT_EQ(edit->toPlainText(), QStringLiteral("a\nb"));
  edit->setFocus();
  edit->moveCursor(QTextCursor::End);
  QTest::keyClicks(edit, QStringLiteral("c"));
  EXPECT_EQ(formula.content, L"a\nbc");
  EXPECT_EQ(formula.marked.first, 4u);
  // A button of the program puts a text in and marks a part of it.
  formula.content = L"\U0001F600xyz";
  formula.marked.first = 1, formula.marked.last = 3;
  call<&element_view_impl::value_changed>(formula.view);
  EXPECT_EQ(edit->textCursor().selectedText(), QStringLiteral("xy"));
  EXPECT_EQ(formula.offered.size(), 1u);
  edit->clearFocus();
  EXPECT_EQ(formula.committed.size(), 1u);
}

TEST(multiline_input, a_refused_text_is_taken_back) {
  fake_multiline formula;
  formula.content = L"1";
  formula.validate = [](const std::wstring& text) { return text.find(L'x') == text.npos; };
  shown window(formula);
  auto* edit = window.find<QPlainTextEdit>("multiline_input");
  edit->setFocus();
  QTest::keyClicks(edit, QStringLiteral("x"));
  EXPECT_EQ(edit->toPlainText(), QStringLiteral("1"));
  EXPECT_EQ(formula.content, L"1");
}

// --- numbers

QLineEdit* line_in(shown& window) {
  auto* box = window.find<QAbstractSpinBox>("number");
  return box != nullptr ? box->findChild<QLineEdit*>() : nullptr;
}

struct shown_number {
  double value;
  std::uint32_t decimals;
  const char* text;
};
class floating_text : public testing::TestWithParam<shown_number> {};
TEST_P(floating_text, has_the_digits_that_the_value_needs) {
  fake_floating number;
  number.content = GetParam().value;
  number.digits = GetParam().decimals;
  shown window(number);
  EXPECT_EQ(line_in(window)->text(), QLatin1String(GetParam().text));
}
INSTANTIATE_TEST_SUITE_P(values, floating_text,
                         testing::Values(shown_number{0.1 + 0.2, 0, "0.3"},
                                         shown_number{1234567.125, 0, "1234567.125"},
                                         shown_number{-0.0, 0, "0"}, shown_number{1e-9, 0, "1e-09"},
                                         shown_number{1.5, 2, "1.50"},
                                         shown_number{-0.001, 2, "0.00"},
                                         shown_number{NAN, 0, ""}));

struct typed_number {
  const char* typed;
  double value;
  bool taken;
};
class floating_typing : public testing::TestWithParam<typed_number> {};
TEST_P(floating_typing, is_taken_when_it_is_a_number_within_the_limits) {
  fake_floating number;
  number.content = 7;
  number.low = -10, number.high = 100;
  shown window(number);
  auto* box = window.find<QAbstractSpinBox>("number");
  box->setFocus();
  box->selectAll();
  QTest::keyClicks(box, QLatin1String(GetParam().typed));
  QTest::keyClick(box, Qt::Key_Return);
  EXPECT_EQ(number.content, GetParam().value);
  EXPECT_EQ(number.applied.size(), GetParam().taken ? 1u : 0u);
}
INSTANTIATE_TEST_SUITE_P(
    texts, floating_typing,
    testing::Values(typed_number{"2.5", 2.5, true}, typed_number{"2,5", 2.5, true},
                    typed_number{"-1e1", -10, true}, typed_number{"500", 7, false},
                    typed_number{"-11", 7, false}, typed_number{"nan", 7, false},
                    typed_number{"2.5x", 7, false}));

TEST(floating_input, a_comma_shows_as_a_point_when_it_is_left) {
  fake_floating number;
  shown window(number);
  auto* box = window.find<QAbstractSpinBox>("number");
  box->setFocus();
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("3,50"));
  EXPECT_EQ(line_in(window)->text(), QStringLiteral("3,50"));
  box->clearFocus();
  EXPECT_EQ(line_in(window)->text(), QStringLiteral("3.5"));
  EXPECT_EQ(number.applied, std::vector<double>{3.5});
}

TEST(floating_input, a_validator_refuses_and_the_old_value_shows_again) {
  fake_floating number;
  number.content = 4;
  number.validate = [](double value) { return std::fmod(value, 2) == 0; };
  shown window(number);
  auto* box = window.find<QAbstractSpinBox>("number");
  box->setFocus();
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("5"));
  box->clearFocus();
  EXPECT_EQ(line_in(window)->text(), QStringLiteral("4"));
  EXPECT_EQ(number.content, 4);
  EXPECT_TRUE(number.applied.empty());
  QTest::keyClick(box, Qt::Key_Up);
  EXPECT_EQ(number.content, 4);
  EXPECT_EQ(line_in(window)->text(), QStringLiteral("4"));
}

TEST(floating_input, steps_add_no_dust_and_stop_at_the_limits) {
  fake_floating number;
  number.content = 0;
  number.by = 0.1;
  number.low = 0, number.high = 0.3;
  shown window(number);
  auto* box = window.find<QAbstractSpinBox>("number");
  box->setFocus();
  for (int i = 0; i < 5; ++i) QTest::keyClick(box, Qt::Key_Up);
  EXPECT_EQ(number.content, 0.3);
  EXPECT_EQ(number.applied, (std::vector<double>{0.1, 0.2, 0.3}));
}

TEST(floating_input, a_wheel_turns_it_only_with_the_focus) {
  fake_floating number;
  shown window(number);
  auto* box = window.find<QAbstractSpinBox>("number");
  auto turn = [&] {
    QWheelEvent event(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &event);
  };
  box->clearFocus();
  turn();
  EXPECT_EQ(number.content, 0);
  box->setFocus();
  turn();
  EXPECT_EQ(number.content, 1);
}

TEST(integer_input, takes_whole_numbers_of_its_range) {
  fake_integer number;
  number.low = 1, number.high = 256;
  number.content = 10;
  shown window(number);
  auto* box = window.find<QAbstractSpinBox>("number");
  box->setFocus();
  for (const char* refused : {"2.5", "0", "257", "99999999999", "x"}) {
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(refused));
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(number.content, 10) << refused;
  }
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("200"));
  QTest::keyClick(box, Qt::Key_Return);
  EXPECT_EQ(number.content, 200);
  EXPECT_EQ(number.applied, std::vector<std::int32_t>{200});
}

TEST(integer_input, a_change_from_the_program_is_shown_and_not_told_back) {
  fake_integer number;
  shown window(number);
  number.change(42);
  EXPECT_EQ(line_in(window)->text(), QStringLiteral("42"));
  number.is_enabled = false;
  number.redraw();
  EXPECT_FALSE(window.find<QAbstractSpinBox>("number")->isEnabled());
  EXPECT_TRUE(number.offered.empty());
}

}  // namespace zu::desktop
