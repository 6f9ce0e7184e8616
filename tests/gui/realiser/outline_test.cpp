// What a list shows: rows, columns, captions, and what it says when it has none.

#include "host/desktop/realiser/outline_widget.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QTimer>

#include "tests/gui/realiser/outline_fixture.h"

namespace zu::desktop {
namespace {

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

TEST_F(outline_on_screen, is_disabled_as_a_whole) {
  list.add(names);
  list.disabled = true;
  open();
  EXPECT_FALSE(view()->isEnabled());
  list.disabled = false;
  list.redraw();
  EXPECT_TRUE(view()->isEnabled());
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

TEST_F(outline_on_screen, widens_a_column_whose_contents_no_longer_fit_up_to_double) {
  struct wished final : text_column {
    std::uint32_t width() override { return 4; }
  } bounds;
  text_column second;
  bounds.texts = {L"1", L"2", L"3"};
  list.add(bounds);
  list.add(second);
  open();
  auto* header = widget->findChild<QHeaderView*>();
  ASSERT_NE(header, nullptr);
  const int narrow = header->sectionSize(0);
  bounds.texts = {L"1", L"642.25", L"1080.00"};
  list.redraw();
  settle();
  const int wider = header->sectionSize(0);
  EXPECT_GT(wider, narrow);
  EXPECT_GE(wider, widget->fontMetrics().horizontalAdvance(QStringLiteral("1080.00")));
  bounds.texts[1] = std::wstring(300, L'1');
  list.redraw();
  settle();
  EXPECT_LE(header->sectionSize(0), 2 * 4 * layout_unit(widget.get()));
  bounds.texts[1] = L"2";
  list.redraw();
  settle();
  EXPECT_EQ(header->sectionSize(0), wider);
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

}  // namespace
}  // namespace zu::desktop
