#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTabWidget>

#include "host/desktop/realiser/docker.h"
#include "host/desktop/words.h"
#include "tests/gui/realiser/fakes.h"

namespace zu::desktop {

struct odd_impl : plain_interface<odd_impl> {
  static constexpr char name[] = "zu_odd_interface_0";
  using operations = in_order<>;
};

TEST(realiser, an_element_that_nobody_knows_is_a_label_that_says_so) {
  odd_impl odd;
  shown window(odd);
  auto* label = window.find<QLabel>("unknown_element");
  ASSERT_NE(label, nullptr);
  EXPECT_FALSE(label->text().isEmpty());
  EXPECT_NE(realise(handle(), &window.window), nullptr);
}

TEST(grid_layout, a_label_names_the_control_behind_it_and_leads_its_key_there) {
  fake_label label(L"&Name:");
  fake_input name;
  fake_grid layout(2, {in_tree(label), in_tree(name)});
  shown window(layout);
  auto* line = window.find<QLineEdit>("input");
  EXPECT_EQ(window.find<QLabel>("label")->buddy(), line);
  EXPECT_EQ(line->accessibleName(), QStringLiteral("Name"));
  label.caption_text = L"&Title:";
  label.redraw();
  EXPECT_EQ(line->accessibleName(), QStringLiteral("Title"));
}

TEST(grid_layout, the_tab_key_goes_row_by_row) {
  fake_input inputs[4];
  std::vector<handle> cells;
  for (fake_input& input : inputs) cells.push_back(in_tree(input));
  fake_grid layout(2, cells);
  shown window(layout);
  auto lines = window.control->findChildren<QLineEdit*>();
  lines[0]->setFocus();
  for (int i = 1; i < 4; ++i) {
    QTest::keyClick(window.window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window.window.focusWidget(), lines[i]);
  }
  for (int i = 0; i < 3; ++i) EXPECT_LE(lines[i]->y(), lines[i + 1]->y());
}

TEST(grid_layout, a_row_hides_and_comes_back_without_overruling_its_elements) {
  fake_input a, b;
  b.is_visible = false;
  fake_grid layout(1, {in_tree(a), in_tree(b)});
  shown window(layout);
  auto lines = window.control->findChildren<QLineEdit*>();
  layout.rows_shown = {false, false};
  layout.redraw();
  EXPECT_TRUE(lines[0]->isHidden());
  b.is_visible = true;
  b.redraw();
  EXPECT_TRUE(lines[1]->isHidden());
  layout.rows_shown = {true, true};
  layout.redraw();
  EXPECT_FALSE(lines[0]->isHidden());
  EXPECT_FALSE(lines[1]->isHidden());
  a.is_visible = false;
  a.redraw();
  layout.redraw();
  EXPECT_TRUE(lines[0]->isHidden());
}

TEST(grid_layout, spans_sizes_and_stretch_are_followed) {
  fake_input a, b, wide;
  fake_grid layout(2, {in_tree(a), in_tree(b), in_tree(wide)});
  layout.wide_row = 1;
  layout.size = 30;
  layout.stretched = 1;
  shown window(layout);
  window.control->resize(800, window.control->height());
  auto lines = window.control->findChildren<QLineEdit*>();
  QApplication::processEvents();
  EXPECT_EQ(lines[2]->width(), window.control->width());
  EXPECT_GE(lines[0]->width(), 30 * layout_unit(window.control));
  EXPECT_GT(lines[1]->width(), lines[0]->width());
}

TEST(grid_layout, rows_stay_together_at_the_top_when_nothing_grows) {
  fake_input a, b;
  fake_grid layout(1, {in_tree(a), in_tree(b)});
  shown window(layout);
  window.control->resize(300, 900);
  QApplication::processEvents();
  EXPECT_LT(window.control->findChildren<QLineEdit*>()[1]->y(), 100);
}

TEST(label, is_cut_with_an_ellipsis_and_whole_in_its_tip) {
  fake_label label(L"A caption of quite some length for a narrow panel");
  shown window(label);
  auto* control = window.find<QLabel>("label");
  EXPECT_TRUE(control->toolTip().isEmpty());
  control->resize(60, control->height());
  QApplication::processEvents();
  EXPECT_EQ(control->toolTip(), control->text());
  EXPECT_LT(control->minimumSizeHint().width(), control->sizeHint().width());
}

TEST(groupbox, its_mark_reaches_the_element_and_enables_the_inside) {
  fake_input inside;
  fake_grid layout(1, {in_tree(inside)});
  fake_groupbox group;
  group.caption_text = L"Shade";
  group.inner = in_tree(layout);
  group.is_checkable = true;
  shown window(group);
  auto* box = window.find<QGroupBox>("groupbox");
  auto* line = window.find<QLineEdit>("input");
  EXPECT_TRUE(line->isEnabled());
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Space);
  EXPECT_FALSE(group.is_checked);
  EXPECT_FALSE(line->isEnabled());
  group.is_checked = true;
  group.redraw();
  EXPECT_TRUE(line->isEnabled());
  EXPECT_EQ(group.sets, 1);
}

TEST(stack, shows_the_page_that_its_element_says) {
  fake_label one(L"one"), two(L"two");
  fake_stack stack;
  stack.pages = {in_tree(one), in_tree(two)};
  shown window(stack);
  auto* pages = window.find<QStackedWidget>("stack");
  EXPECT_EQ(pages->currentIndex(), 0);
  stack.index = 1;
  stack.redraw();
  EXPECT_EQ(pages->currentIndex(), 1);
}

struct two_tabs {
  two_tabs() {
    tabs.pages = {&first, &second};
    tabs.ids = {L"first_tab", L"second_tab"};
  }
  fake_label one{L"one"}, two{L"two"};
  fake_docker first{L"First", in_tree(one)}, second{L"Second", in_tree(two)};
  fake_tabs tabs;
};

TEST(tab, the_last_one_opens_again_by_its_name) {
  set_choice_store({});
  {
    two_tabs panel;
    shown window(panel.tabs);
    auto* tabs = window.find<QTabWidget>("tabs");
    EXPECT_EQ(tabs->tabText(1), QStringLiteral("Second"));
    EXPECT_EQ(tabs->currentIndex(), 0);
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs->tabBar()->tabRect(1).center());
    EXPECT_EQ(panel.tabs.sets, std::vector<std::int32_t>{1});
  }
  two_tabs again;
  shown window(again.tabs);
  EXPECT_EQ(window.find<QTabWidget>("tabs")->currentIndex(), 1);
  EXPECT_EQ(again.tabs.index, 1);
  set_choice_store({});
}

TEST(tab, the_program_changes_it_silently) {
  set_choice_store({});
  two_tabs panel;
  shown window(panel.tabs);
  panel.tabs.index = 1;
  panel.tabs.redraw();
  EXPECT_EQ(window.find<QTabWidget>("tabs")->currentIndex(), 1);
  EXPECT_TRUE(panel.tabs.sets.empty());
}

TEST(docker, texts_are_asked_anew_when_the_language_changes) {
  fake_label label(L"Red");
  fake_docker panel(L"Colours", in_tree(label));
  shown window(panel);
  auto* docker = dynamic_cast<realised_docker*>(window.control);
  ASSERT_NE(docker, nullptr);
  EXPECT_EQ(docker->title(), QStringLiteral("Colours"));
  int titles = 0;
  QObject::connect(docker, &realised_docker::title_changed, docker, [&] { ++titles; });
  label.caption_text = L"Красный";
  panel.caption_text = L"Цвета";
  choose_language(language::russian);
  EXPECT_EQ(docker->title(), QString::fromUtf8("Цвета"));
  EXPECT_GE(titles, 1);
  EXPECT_EQ(docker->findChild<QLabel*>(QStringLiteral("label"))->text(),
            QString::fromUtf8("Красный"));
  choose_language(language::english);
}

TEST(docker, a_panel_of_an_editor_says_whether_it_applies) {
  struct editor_panel : faked<docker_impl>, panel_impl {
    int query_interface(const char* name, const void** table, void** instance) override {
      int difference = docker_impl::query_interface(name, table, instance);
      return difference == 0 ? 0 : panel_impl::query_interface(name, table, instance);
    }
    handle polymorphic_handle() override {
      return handle_of<queried>(static_cast<docker_impl&>(*this));
    }
    bool enabled() override { return applies; }
    void attach_observer(panel_observer given) override { observer = given; }
    panel_observer observer;
    bool applies = false;
  } panel;
  QWidget window;
  int changes = 0;
  {
    realised_docker docker(handle_of<docker_impl>(panel), &window);
    QObject::connect(&docker, &realised_docker::wanted_changed, &docker, [&] { ++changes; });
    EXPECT_FALSE(docker.is_wanted());
    panel.applies = true;
    call<&panel_observer_impl::enabled_changed>(panel.observer);
    EXPECT_TRUE(docker.is_wanted());
    EXPECT_EQ(changes, 1);
  }
  EXPECT_FALSE(panel.observer);
  EXPECT_FALSE(panel.view);
}

TEST(view, comes_with_the_control_and_goes_before_it) {
  int before = living_views;
  fake_label label(L"x");
  fake_input input;
  fake_floating number;
  fake_slider slider;
  fake_dropdown dropdown;
  fake_checkbox mark;
  fake_button button;
  fake_multiline text;
  fake_grid layout(2, {in_tree(label), in_tree(input), in_tree(number), in_tree(slider),
                       in_tree(dropdown), in_tree(mark), in_tree(button), in_tree(text)});
  fake_docker panel(L"All", in_tree(layout));
  {
    shown window(panel);
    EXPECT_EQ(living_views, before + 10);
  }
  EXPECT_EQ(living_views, before);
}

/// Ends itself when its view goes, as what was made for one use does.
struct passing_label final : fake_label {
  explicit passing_label(int& ends) : fake_label(L"x"), ends(ends) {}
  ~passing_label() { ++ends; }
  void attach_view(element_view given) override {
    fake_label::attach_view(given);
    if (!given) delete this;
  }
  int& ends;
};

TEST(view, an_element_that_ends_itself_is_not_touched_again) {
  int ends = 0;
  auto* label = new passing_label(ends);
  fake_grid layout(1, {in_tree(*label)});
  { shown window(layout); }
  EXPECT_EQ(ends, 1);
}

}  // namespace zu::desktop
