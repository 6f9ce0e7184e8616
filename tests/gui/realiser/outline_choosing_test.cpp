// The current row of a list, its marks, its checks, and what is done with them.

#include "tests/gui/realiser/outline_fixture.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>

namespace zu::desktop {
namespace {

struct row_checks : outline_checks_impl {
  bool checked(outline_item item) override { return on.count(row_of(item)) > 0; }
  void set_checked(outline_item item, bool flag) override {
    ++sets;
    flag ? (void)on.insert(row_of(item)) : (void)on.erase(row_of(item));
  }
  std::set<std::uint32_t> on;
  int sets = 0;
};

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

}  // namespace
}  // namespace zu::desktop
