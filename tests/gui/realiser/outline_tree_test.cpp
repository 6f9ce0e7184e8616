// Trees of items.

#include <gtest/gtest.h>

#include <QApplication>
#include <QSpinBox>
#include <QTest>
#include <QTreeView>

#include "host/desktop/realiser/outline_widget.h"
#include "tests/gui/realiser/fake_outlines.h"

namespace zu::desktop {
namespace {

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
