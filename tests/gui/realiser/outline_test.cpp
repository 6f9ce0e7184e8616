// Lists and trees, driven as a person drives them.

#include "host/desktop/realiser/outline_widget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "host/desktop/realiser/realiser.h"
#include "tests/gui/realiser/fake_outlines.h"

namespace zu::desktop {
namespace {

struct whole_column : integer_outline_column_impl {
  void caption(string_visitor v) override { give(v, L"Whole"); }
  std::int32_t value(outline_item item) override { return values[row_of(item)]; }
  bool is_editable(outline_item) override { return true; }
  bool set_value(outline_item item, std::int32_t value) override {
    ++sets;
    if (value == 13) return false;
    values[row_of(item)] = value;
    return true;
  }
  std::int32_t minimum(outline_item) override { return 0; }
  std::int32_t maximum(outline_item) override { return 100; }
  std::vector<std::int32_t> values = {1, 2, 3};
  int sets = 0;
};
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
struct row_checks : outline_checks_impl {
  bool checked(outline_item item) override { return on.count(row_of(item)) > 0; }
  void set_checked(outline_item item, bool flag) override {
    ++sets;
    flag ? (void)on.insert(row_of(item)) : (void)on.erase(row_of(item));
  }
  std::set<std::uint32_t> on;
  int sets = 0;
};

class outline_on_screen : public testing::Test {
 protected:
  void SetUp() override {
    settle();
    names.texts = {L"one", L"two", L"three"};
  }
  void TearDown() override { set_input_listener({}); }

  outline_widget& open() {
    widget = std::make_unique<outline_widget>(handle_of<outline_impl>(list), nullptr);
    widget->resize(400, 300);
    widget->show();
    widget->activateWindow();
    widget->setFocus();
    (void)QTest::qWaitForWindowActive(widget.get());
    (void)widget->grab();
    return *widget;
  }
  QAbstractItemView* view() { return widget->view(); }
  QModelIndex cell(int row, int column) { return widget->model()->index(row, column); }
  void click(int row, int column, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, keys,
                      view()->visualRect(cell(row, column)).center());
  }
  void key(Qt::Key pressed, Qt::KeyboardModifiers keys = {}) {
    QTest::keyClick(view(), pressed, keys);
  }
  QWidget* editor() {
    return view()->viewport()->findChild<QWidget*>(QStringLiteral("cell_editor"));
  }
  /// Opens the editor of a cell.
  QWidget* edit(int row, int column) {
    view()->setCurrentIndex(cell(row, column));
    key(Qt::Key_F2);
    return editor();
  }
  void type(const char* text, Qt::Key end = Qt::Key_Return) {
    QWidget* where = editor();
    ASSERT_NE(where, nullptr);
    QTest::keyClicks(where, QString::fromLatin1(text));
    QTest::keyClick(where, end);
    settle();
  }
  /// What was put off happens: an editor goes, a listener hears.
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();  // what the first put off again
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  QString shown(int row, int column) { return cell(row, column).data().toString(); }

  fake_outline list;
  text_column names;
  std::unique_ptr<outline_widget> widget;
};

TEST_F(outline_on_screen, asks_for_the_rows_in_sight_alone) {
  names.texts.clear();
  list.rows = 10'000'000;
  list.add(names);
  open();
  EXPECT_EQ(widget->model()->rowCount(), 10'000'000);
  EXPECT_GT(names.asked.size(), 3u);
  EXPECT_LT(*names.asked.rbegin(), 200u);
  EXPECT_LT(list.mark_questions, 2000);
  names.asked.clear();
  key(Qt::Key_Down);
  key(Qt::Key_End);
  (void)widget->grab();
  EXPECT_EQ(list.current_row, 9'999'999);
  EXPECT_EQ(*names.asked.rbegin(), 9'999'999u);
  EXPECT_LT(names.asked.size(), 300u);
  EXPECT_TRUE(view()->viewport()->rect().contains(view()->visualRect(cell(9'999'999, 0)).center()));
}

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

TEST_F(outline_on_screen, is_disabled_as_a_whole) {
  list.add(names);
  list.disabled = true;
  open();
  EXPECT_FALSE(view()->isEnabled());
  list.disabled = false;
  list.redraw();
  EXPECT_TRUE(view()->isEnabled());
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

TEST_F(outline_on_screen, tells_the_current_item_and_follows_it) {
  list.add(names);
  open();
  click(1, 0);
  EXPECT_EQ(list.current_row, 1);
  EXPECT_EQ(list.current_sets, 1);
  EXPECT_EQ(list.mark_sets, 0) << "the one marked item is the current one";
  list.current_row = 2;
  list.tell_current();
  EXPECT_EQ(view()->currentIndex().row(), 2);
  EXPECT_TRUE(view()->selectionModel()->isRowSelected(2));
  EXPECT_FALSE(view()->selectionModel()->isRowSelected(1));
  EXPECT_EQ(list.current_sets, 1) << "what the outline says is not told to it";
  list.current_row = -1;
  list.tell_current();
  EXPECT_FALSE(view()->currentIndex().isValid());
}

TEST_F(outline_on_screen, goes_back_to_the_current_item_that_the_outline_keeps) {
  list.add(names);
  list.current_row = 0;
  list.refused_row = 2;
  open();
  click(2, 0);
  EXPECT_EQ(view()->currentIndex().row(), 0);
  EXPECT_TRUE(view()->selectionModel()->isRowSelected(0));
  EXPECT_FALSE(view()->selectionModel()->isRowSelected(2));
}

TEST_F(outline_on_screen, sets_marks_of_several_rows_each_once) {
  for (bool tells : {false, true}) {
    list = fake_outline();
    list.tells_marks = tells;
    list.mode = outline_chooses_many;
    list.add(names);
    open();
    click(0, 0);
    EXPECT_EQ(list.marks, (std::set<std::uint32_t>{0}));
    click(2, 0, Qt::ControlModifier);
    EXPECT_EQ(list.marks, (std::set<std::uint32_t>{0, 2}));
    EXPECT_EQ(list.mark_sets, 2);
    click(1, 0);
    EXPECT_EQ(list.marks, (std::set<std::uint32_t>{1}));
    EXPECT_EQ(list.mark_sets, 5);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list.marks.size(), 3u);
    EXPECT_EQ(list.begins, list.ends);
    widget.reset();
  }
}

TEST_F(outline_on_screen, follows_marks_that_the_outline_sets) {
  list.mode = outline_chooses_many;
  list.add(names);
  open();
  list.marks = {1, 2};
  list.redraw();
  EXPECT_FALSE(view()->selectionModel()->isRowSelected(0));
  EXPECT_TRUE(view()->selectionModel()->isRowSelected(1));
  EXPECT_TRUE(view()->selectionModel()->isRowSelected(2));
  EXPECT_EQ(list.mark_sets, 0);
}

TEST_F(outline_on_screen, clears_marks_far_out_of_sight_with_a_click) {
  names.texts.clear();
  list.mode = outline_chooses_many;
  list.rows = 50'000;
  list.marks = {40'000};
  list.add(names);
  open();
  click(1, 0);
  EXPECT_EQ(list.marks, (std::set<std::uint32_t>{1}));
}

TEST_F(outline_on_screen, shows_rows_that_came_and_went) {
  list.add(names);
  open();
  names.texts.push_back(L"four");
  list.rows = 4;
  list.redraw();
  EXPECT_EQ(widget->model()->rowCount(), 4);
  EXPECT_EQ(shown(3, 0), QStringLiteral("four"));
  list.rows = 1;
  list.redraw();
  EXPECT_EQ(widget->model()->rowCount(), 1);
}

TEST_F(outline_on_screen, chooses_no_other_item_when_the_current_one_is_removed) {
  for (std::uint32_t mode : {outline_chooses_one, outline_chooses_many}) {
    list = fake_outline();
    list.mode = mode;
    list.add(names);
    open();
    click(2, 0);
    const int sets = list.current_sets, mark_sets = list.mark_sets;
    list.rows = 2;
    list.current_row = -1;
    list.marks.clear();
    list.redraw();
    EXPECT_EQ(list.current_sets, sets);
    EXPECT_EQ(list.mark_sets, mark_sets);
    EXPECT_FALSE(view()->currentIndex().isValid());
    EXPECT_TRUE(view()->selectionModel()->selectedRows().isEmpty());
    click(1, 0);
    EXPECT_EQ(list.current_row, 1);
    widget.reset();
  }
}

TEST_F(outline_on_screen, shows_other_columns) {
  list.add(names);
  open();
  whole_column numbers;
  list.add(numbers);
  list.tell_columns();
  EXPECT_EQ(widget->model()->columnCount(), 2);
  EXPECT_EQ(widget->model()->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(),
            QStringLiteral("Whole"));
  names.said_caption = L"Name";
  list.tell_columns();
  EXPECT_EQ(widget->model()->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(),
            QStringLiteral("Name"));
}

TEST_F(outline_on_screen, says_that_it_is_empty) {
  list.add(names);
  list.rows = 0;
  open();
  auto* label = widget->findChild<QLabel*>(QStringLiteral("empty_text"));
  ASSERT_NE(label, nullptr);
  EXPECT_TRUE(label->isVisible());
  EXPECT_EQ(label->text(), QStringLiteral("Nothing here"));
  key(Qt::Key_Down);
  key(Qt::Key_F2);
  EXPECT_EQ(list.current_sets, 0);
  list.rows = 3;
  list.redraw();
  EXPECT_FALSE(label->isVisible());
}

TEST_F(outline_on_screen, without_a_root_or_columns_shows_nothing) {
  list.has_root = false;
  list.add(names);
  open();
  EXPECT_EQ(widget->model()->rowCount(), 0);
  outline_impl plain;
  outline_widget other(handle_of<outline_impl>(plain), nullptr);
  other.show();
  (void)other.grab();
  EXPECT_EQ(other.model()->rowCount(), 0);
}

TEST_F(outline_on_screen, leaves_a_column_of_an_unknown_kind_empty) {
  string_visitor_impl stranger;
  list.add(names);
  list.columns.push_back(handle_of<string_visitor_impl>(stranger));
  list.columns.push_back(handle());
  open();
  EXPECT_EQ(widget->model()->columnCount(), 3);
  EXPECT_EQ(shown(0, 1), QString());
  click(0, 1);
  click(0, 2);
  EXPECT_EQ(edit(0, 1), nullptr);
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

TEST_F(outline_on_screen, checks_rows_by_click_and_several_by_space) {
  row_checks checks;
  list.add(names);
  list.checks = &checks;
  list.mode = outline_chooses_many;
  open();
  const QRect first = view()->visualRect(cell(0, 0));
  QTest::mouseClick(view()->viewport(), Qt::LeftButton, {},
                    QPoint(first.left() + 10, first.center().y()));
  EXPECT_EQ(checks.on, (std::set<std::uint32_t>{0}));
  key(Qt::Key_Down);
  key(Qt::Key_A, Qt::ControlModifier);
  key(Qt::Key_Space);
  EXPECT_TRUE(checks.on.empty()) << "as the current one";
  key(Qt::Key_Space);
  EXPECT_EQ(checks.on.size(), 3u);
  EXPECT_EQ(checks.sets, 1 + 1 + 3);
}

TEST_F(outline_on_screen, passes_clicks_on_captions_and_shows_the_order) {
  list.add(names);
  open();
  auto* header = widget->findChild<QHeaderView*>();
  const auto press = [&](Qt::KeyboardModifiers keys) {
    QTest::mouseClick(header->viewport(), Qt::LeftButton, keys, QPoint(20, 8));
  };
  press({});
  EXPECT_EQ(list.caption_clicks, 0) << "of no use in a column that is not sortable";
  names.sortable = true;
  list.tell_columns();
  press({});
  EXPECT_EQ(list.order, 1);
  EXPECT_TRUE(header->isSortIndicatorShown());
  EXPECT_EQ(header->sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(outline_on_screen, activates_by_double_click_and_enter_and_clicks_what_is_not_edited) {
  names.editable = false;
  list.add(names);
  open();
  const QPoint second = view()->visualRect(cell(1, 0)).center();
  QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(names.clicked, 1);
  EXPECT_EQ(list.activated, -1);
  QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(list.activated, 1);
  key(Qt::Key_Up);
  key(Qt::Key_Return);
  EXPECT_EQ(list.activated, 0);
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

TEST_F(outline_on_screen, opens_its_menu_over_the_item_that_was_clicked) {
  struct tool final : action_tool_impl {
    void caption(string_visitor v) override { give(v, L"Remove"); }
    void execute() override { ++executions; }
    int executions = 0;
  } remove;
  struct tools final : tool_set_impl {
    explicit tools(tool& shown) : shown(shown) {}
    void visit(tool_visitor v) override {
      call<&tool_visitor_impl::visit>(v, L"remove", handle(handle_of<action_tool_impl>(shown)));
    }
    tool& shown;
  } set(remove);
  struct menu final : context_menu_impl {
    explicit menu(tools& shown) : shown(shown) {}
    void visit(tool_set_visitor v) override {
      call<&tool_set_visitor_impl::visit>(v, tool_set(handle_of<tool_set_impl>(shown)));
    }
    tools& shown;
  } offered(set);
  list.add(names);
  list.menu = &offered;
  std::unique_ptr<QWidget> control(realise(handle_of<outline_impl>(list), nullptr));
  control->resize(300, 200);
  control->show();
  (void)control->grab();
  auto* shown_list = control->findChild<QAbstractItemView*>(QStringLiteral("outline_view"));
  ASSERT_NE(shown_list, nullptr);
  const QPoint second = shown_list->visualRect(shown_list->model()->index(1, 0)).center();
  QTest::mouseClick(shown_list->viewport(), Qt::RightButton, {}, second);
  EXPECT_EQ(list.current_row, 1);
  QTimer::singleShot(0, control.get(), [] {
    auto* open_menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(open_menu, nullptr);
    ASSERT_EQ(open_menu->actions().size(), 1);
    open_menu->actions()[0]->trigger();
    open_menu->close();
  });
  QContextMenuEvent asked(QContextMenuEvent::Mouse, second,
                          shown_list->viewport()->mapToGlobal(second));
  QApplication::sendEvent(shown_list->viewport(), &asked);
  EXPECT_EQ(remove.executions, 1);
}

TEST_F(outline_on_screen, says_its_captions_anew_in_another_language) {
  list.add(names);
  open();
  view()->setCurrentIndex(cell(1, 0));
  names.said_caption = L"Текст";
  QEvent change(QEvent::LanguageChange);
  QApplication::sendEvent(widget.get(), &change);
  EXPECT_EQ(widget->model()->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(),
            QString::fromUtf8("Текст"));
  EXPECT_EQ(view()->currentIndex().row(), 1) << "nothing else changes";
}

TEST_F(outline_on_screen, hides_columns_by_the_menu_of_its_captions_and_remembers_it) {
  struct second_text : text_column {
    void id(string_visitor v) override { give(v, L"second_text"); }
  } second;
  list.add(names);
  list.add(second);
  open();
  auto* header = widget->findChild<QHeaderView*>();
  const auto choose = [&](int action) {
    QTimer::singleShot(0, header, [action] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      menu->actions()[action]->trigger();
      menu->close();
    });
    Q_EMIT header->customContextMenuRequested(QPoint(5, 5));
  };
  choose(1);
  EXPECT_TRUE(header->isSectionHidden(1));
  choose(0);
  EXPECT_FALSE(header->isSectionHidden(0)) << "the last one stays";
  widget.reset();
  open();
  header = widget->findChild<QHeaderView*>();
  EXPECT_TRUE(header->isSectionHidden(1));
  choose(1);
  EXPECT_FALSE(header->isSectionHidden(1));
}

// --- Lists

struct fake_list : list_impl {
  std::uint32_t count() override { return std::uint32_t(texts.size()); }
  void item_text(std::uint32_t i, string_visitor v) override { give(v, texts[i]); }
  std::int32_t current() override { return chosen; }
  bool is_marked(std::uint32_t i) override { return int(i) == chosen; }
  void set_current(std::int32_t i) override {
    ++sets;
    chosen = i;
  }
  void activate(std::uint32_t i) override { activated = int(i); }
  void attach_view(element_view given) override { view = given; }
  std::vector<std::wstring> texts = {L"first", L"second"};
  int chosen = -1, sets = 0, activated = -1;
  element_view view;
};

TEST(list_on_screen, chooses_activates_and_follows_its_element) {
  fake_list items;
  {
    std::unique_ptr<QWidget> control(realise(handle_of<list_impl>(items), nullptr));
    control->show();
    (void)control->grab();
    auto* view = control->findChild<QAbstractItemView*>();
    ASSERT_NE(view, nullptr);
    ASSERT_EQ(view->model()->rowCount(), 2);
    EXPECT_EQ(view->model()->index(1, 0).data().toString(), QStringLiteral("second"));
    const QPoint second = view->visualRect(view->model()->index(1, 0)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(items.chosen, 1);
    EXPECT_EQ(items.sets, 1);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(items.activated, 1);
    items.texts.push_back(L"third");
    call<&element_view_impl::list_changed>(items.view);
    EXPECT_EQ(view->model()->rowCount(), 3);
    items.chosen = 2;
    call<&element_view_impl::value_changed>(items.view);
    EXPECT_EQ(view->currentIndex().row(), 2);
    EXPECT_EQ(items.sets, 1);
  }
  EXPECT_FALSE(items.view);
}

// --- Trees

/// Two items, the first with three, of which the second has one.
struct small_tree : fake_outline {
  bool is_tree() override { return true; }
  bool has_items(outline_item item) override { return item_count(item) > 0; }
  std::uint32_t item_count(outline_item item) override {
    ++counts;
    if (!item) return 2;
    const outline_item parent(call<&outline_item_impl::parent>(item));
    if (!parent) return row_of(item) == 0 ? inner : 0;
    const bool deepest = static_cast<bool>(call<&outline_item_impl::parent>(parent));
    return !deepest && row_of(item) == 1 ? 1 : 0;
  }
  bool is_open(outline_item item) override {
    return open_first && !call<&outline_item_impl::parent>(item) && row_of(item) == 0;
  }
  bool is_marked(outline_item) override { return false; }
  bool open_first = false;
  std::uint32_t inner = 3;
  int counts = 0;
};
struct path_column : string_outline_column_impl {
  void text(outline_item item, string_visitor v) override {
    std::wstring path;
    for (handle at = item; at; at = call<&outline_item_impl::parent>(at))
      path = L"/" + std::to_wstring(call<&outline_item_impl::row>(at)) + path;
    give(v, path);
  }
};

TEST(outline_tree, names_items_by_their_parents_and_opens_what_is_to_be_open) {
  small_tree tree;
  path_column paths;
  tree.add(paths);
  tree.open_first = true;
  outline_widget widget(handle_of<outline_impl>(tree), nullptr);
  widget.show();
  (void)widget.grab();
  auto* view = qobject_cast<QTreeView*>(widget.view());
  ASSERT_NE(view, nullptr);
  const QModelIndex first = widget.model()->index(0, 0);
  EXPECT_TRUE(view->isExpanded(first));
  const QModelIndex second_inner = widget.model()->index(1, 0, first);
  const QModelIndex deepest = widget.model()->index(0, 0, second_inner);
  EXPECT_EQ(deepest.data().toString(), QStringLiteral("/0/1/0"));
  EXPECT_EQ(widget.model()->parent(deepest), second_inner);
  EXPECT_FALSE(widget.model()->hasChildren(deepest));
}

TEST(outline_tree, f2_edits_the_first_cell_of_the_row_that_can_be_typed_into) {
  small_tree tree;
  path_column paths;
  whole_column numbers;
  tree.add(paths);
  tree.add(numbers);
  outline_widget widget(handle_of<outline_impl>(tree), nullptr);
  widget.show();
  (void)widget.grab();
  auto* view = qobject_cast<QTreeView*>(widget.view());
  view->setCurrentIndex(widget.model()->index(1, 0));
  QTest::keyClick(view, Qt::Key_F2);
  auto* editor = view->viewport()->findChild<QSpinBox*>();
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->value(), 2);
  editor->selectAll();
  QTest::keyClicks(editor, QStringLiteral("40"));
  QTest::keyClick(editor, Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(numbers.values[1], 40);
}

TEST(outline_tree, opens_and_closes_by_keys_and_stays_open_when_it_is_redrawn) {
  small_tree tree;
  path_column paths;
  tree.add(paths);
  outline_widget widget(handle_of<outline_impl>(tree), nullptr);
  widget.show();
  (void)widget.grab();
  auto* view = qobject_cast<QTreeView*>(widget.view());
  const QModelIndex first = widget.model()->index(0, 0);
  EXPECT_FALSE(view->isExpanded(first));
  view->setCurrentIndex(first);
  QTest::keyClick(view, Qt::Key_Right);
  EXPECT_TRUE(view->isExpanded(first));
  tree.inner = 5;
  tree.redraw();
  EXPECT_TRUE(view->isExpanded(widget.model()->index(0, 0)));
  EXPECT_EQ(widget.model()->rowCount(widget.model()->index(0, 0)), 5);
  tree.inner = 0;
  tree.redraw();
  EXPECT_EQ(widget.model()->rowCount(widget.model()->index(0, 0)), 0);
}

}  // namespace
}  // namespace zu::desktop
