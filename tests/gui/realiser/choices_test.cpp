#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include "tests/gui/realiser/fakes.h"

namespace zu::desktop {

TEST(button, a_click_or_the_space_bar_presses_once) {
  fake_button button;
  shown window(button);
  auto* control = window.find<QPushButton>("button");
  ASSERT_NE(control, nullptr);
  EXPECT_EQ(control->text(), QStringLiteral("Press"));
  QTest::mouseClick(control, Qt::LeftButton);
  EXPECT_EQ(button.presses, 1);
  control->setFocus();
  QTest::keyClick(control, Qt::Key_Space);
  EXPECT_EQ(button.presses, 2);
  button.is_enabled = false;
  button.redraw();
  QTest::mouseClick(control, Qt::LeftButton);
  EXPECT_EQ(button.presses, 2);
}

TEST(button, one_that_stays_down_shows_what_its_element_says) {
  fake_button button;
  button.is_toggle = true;
  shown window(button);
  auto* control = window.find<QPushButton>("button");
  QTest::mouseClick(control, Qt::LeftButton);
  EXPECT_TRUE(control->isChecked());
  button.is_pressed = false;
  button.redraw();
  EXPECT_FALSE(control->isChecked());
  EXPECT_EQ(button.presses, 1);
}

TEST(button, a_press_may_take_the_panel_away) {
  fake_button button;
  auto window = std::make_unique<shown>(button);
  button.on_press = [&] { window.reset(); };
  QTest::mouseClick(window->find<QPushButton>("button"), Qt::LeftButton);
  EXPECT_EQ(button.presses, 1);
  EXPECT_FALSE(button.view);
}

TEST(checkbox, shows_undecided_and_a_click_decides) {
  fake_checkbox mark;
  mark.caption_text = L"Mark";
  mark.state = 1;
  shown window(mark);
  auto* control = window.find<QCheckBox>("checkbox");
  EXPECT_EQ(control->checkState(), Qt::PartiallyChecked);
  control->setFocus();
  QTest::keyClick(control, Qt::Key_Space);
  EXPECT_EQ(mark.state, 2);
  EXPECT_EQ(control->checkState(), Qt::Checked);
  QTest::keyClick(control, Qt::Key_Space);
  EXPECT_EQ(control->checkState(), Qt::Unchecked);
  EXPECT_EQ(mark.sets, 2);
}

TEST(checkbox, a_refused_click_and_a_change_from_the_program_show_the_elements_state) {
  fake_checkbox mark;
  mark.is_stubborn = true;
  shown window(mark);
  auto* control = window.find<QCheckBox>("checkbox");
  control->click();
  EXPECT_FALSE(control->isChecked());
  EXPECT_EQ(mark.sets, 1);
  mark.state = 2;
  mark.redraw();
  EXPECT_TRUE(control->isChecked());
  EXPECT_EQ(mark.sets, 1);
}

TEST(radiobutton, groups_in_one_layout_do_not_take_each_others_mark) {
  fake_radiobutton a, b, c, d;
  fake_radiobutton *first = &a, *second = &c;
  a.group = b.group = &first;
  c.group = d.group = &second;
  fake_grid layout(2, {in_tree(a), in_tree(b), in_tree(c), in_tree(d)});
  shown window(layout);
  auto buttons = window.control->findChildren<QRadioButton*>();
  ASSERT_EQ(buttons.size(), 4);
  auto state = [&] {
    QString text;
    for (QRadioButton* button : buttons) text += QLatin1Char(button->isChecked() ? '1' : '0');
    return text;
  };
  EXPECT_EQ(state(), QStringLiteral("1010"));
  QTest::mouseClick(buttons[1], Qt::LeftButton, Qt::NoModifier,
                    QPoint(8, buttons[1]->height() / 2));
  EXPECT_EQ(state(), QStringLiteral("0110"));
  EXPECT_EQ(b.presses, 1);
  QTest::mouseClick(buttons[1], Qt::LeftButton, Qt::NoModifier,
                    QPoint(8, buttons[1]->height() / 2));
  EXPECT_EQ(b.presses, 1);
  EXPECT_EQ(state(), QStringLiteral("0110"));
}

TEST(dropdown, a_choice_reaches_the_element_once) {
  fake_dropdown kind;
  kind.items = {L"one", L"two", L"three"};
  shown window(kind);
  auto* box = window.find<QComboBox>("dropdown");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->currentText(), QStringLiteral("one"));
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Down);
  EXPECT_EQ(kind.sets, std::vector<std::int32_t>{1});
  EXPECT_EQ(box->currentIndex(), 1);
}

TEST(dropdown, a_refused_choice_shows_the_old_one) {
  fake_dropdown kind;
  kind.items = {L"one", L"two"};
  kind.is_stubborn = true;
  shown window(kind);
  auto* box = window.find<QComboBox>("dropdown");
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Down);
  EXPECT_EQ(kind.sets.size(), 1u);
  EXPECT_EQ(box->currentIndex(), 0);
}

TEST(dropdown, items_and_choice_change_from_the_program) {
  fake_dropdown kind;
  kind.items = {L"one"};
  shown window(kind);
  auto* box = window.find<QComboBox>("dropdown");
  kind.items = {L"red", L"green"};
  kind.index = 1;
  call<&element_view_impl::list_changed>(kind.view);
  EXPECT_EQ(box->count(), 2);
  EXPECT_EQ(box->currentText(), QStringLiteral("green"));
  kind.index = -1;
  kind.redraw();
  EXPECT_EQ(box->currentIndex(), -1);
  EXPECT_TRUE(kind.sets.empty());
}

TEST(slider, keys_set_and_apply_and_the_program_moves_it_silently) {
  fake_slider slider;
  shown window(slider);
  auto* control = window.find<QSlider>("slider");
  control->setFocus();
  QTest::keyClick(control, Qt::Key_Right);
  EXPECT_EQ(slider.sets, std::vector<std::int32_t>{1});
  EXPECT_EQ(slider.applies, 1);
  slider.content = 50;
  call<&integer_view_impl::value_changed>(slider.view, 50);
  EXPECT_EQ(control->value(), 50);
  EXPECT_EQ(slider.sets.size(), 1u);
}

TEST(slider, is_applied_when_it_is_let_go) {
  fake_slider slider;
  shown window(slider);
  auto* control = window.find<QSlider>("slider");
  control->setSliderDown(true);
  control->setSliderPosition(30);
  control->setSliderPosition(40);
  EXPECT_EQ(slider.sets, (std::vector<std::int32_t>{30, 40}));
  EXPECT_EQ(slider.applies, 0);
  control->setSliderDown(false);
  EXPECT_EQ(slider.applies, 1);
}

}  // namespace zu::desktop
