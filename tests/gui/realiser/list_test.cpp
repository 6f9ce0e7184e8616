// A plain list of texts.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QTest>
#include <memory>

#include "host/desktop/realiser/realiser.h"
#include "tests/gui/realiser/fake_outlines.h"

namespace zu::desktop {
namespace {

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

}  // namespace
}  // namespace zu::desktop
