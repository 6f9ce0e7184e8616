#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "host/desktop/appearance.h"
#include "host/desktop/realiser/tool_actions.h"
#include "host/desktop/realiser/tool_icons.h"
#include "tests/gui/realiser/fakes.h"

namespace zu::desktop {

template <class impl> struct fake_tool : faked<impl> {
  void caption(string_visitor v) override { say(v, this->caption_text); }
  void hint(string_visitor v) override { say(v, this->hint_text); }
  void visit_categories(string_visitor v) override {
    for (const auto& name : categories) say(v, name);
  }
  bool enabled() override { return this->is_enabled; }
  bool visible() override { return this->is_visible; }
  std::vector<std::wstring> categories;
};
struct fake_action_tool : fake_tool<action_tool_impl> {
  void execute() override { ++executions; }
  int executions = 0;
};
struct fake_boolean_tool : fake_tool<boolean_tool_impl> {
  bool checked() override { return is_checked; }
  void set_checked(bool given) override {
    ++sets;
    if (!is_stubborn) is_checked = given;
  }
  bool is_checked = false, is_stubborn = false;
  int sets = 0;
};
struct fake_mode_tool : fake_tool<mode_tool_impl> {
  bool checked() override { return is_checked; }
  void set_checked(bool given) override { is_checked = given; }
  bool is_checked = false;
};
struct fake_integer_tool : fake_tool<integer_tool_impl> {
  std::int32_t value() override { return content; }
  bool set_value(std::int32_t given) override {
    content = given;
    ++sets;
    return true;
  }
  std::int32_t minimum() override { return 1; }
  std::int32_t maximum() override { return 20; }
  std::int32_t content = 5;
  int sets = 0;
};
struct fake_list_tool : fake_tool<list_tool_impl> {
  std::uint32_t count() override { return std::uint32_t(items.size()); }
  void item_text(std::uint32_t i, string_visitor v) override { say(v, items.at(i)); }
  std::int32_t current() override { return index; }
  void set_current(std::int32_t given) override { index = given, ++sets; }
  std::vector<std::wstring> items{L"a", L"b", L"c"};
  std::int32_t index = 0;
  int sets = 0;
};
struct fake_multiaction_tool : fake_tool<multiaction_tool_impl> {
  std::uint32_t count() override { return 2; }
  void item_text(std::uint32_t i, string_visitor v) override { say(v, std::to_wstring(i)); }
  void execute(std::uint32_t given) override { executions.push_back(given); }
  std::vector<std::uint32_t> executions;
};

struct fake_tool_set : tool_set_impl {
  void visit(tool_visitor visitor) override {
    for (const auto& [id, tool] : tools) call<&tool_visitor_impl::visit>(visitor, id.c_str(), tool);
  }
  std::vector<std::pair<std::wstring, handle>> tools;
};
struct fake_category_tool : fake_tool<category_tool_impl> {
  void visit_tools(tool_visitor visitor) override { inner.visit(visitor); }
  fake_tool_set inner;
};
struct fake_toolbar : toolbar_impl {
  void visit(tool_set_visitor visitor) override {
    for (fake_tool_set* set : sets)
      call<&tool_set_visitor_impl::visit>(visitor, tool_set(handle_of<tool_set_impl>(*set)));
  }
  std::vector<fake_tool_set*> sets;
};

/// One tool of each kind, in two sets.
struct every_tool {
  every_tool() {
    first.tools = {{L"zu_common_plugin_viewer2d_panel_tool_zoom_all", in_tree(action)},
                   {L"boolean", in_tree(boolean)},
                   {L"mode", in_tree(mode)}};
    category.inner.tools = {{L"inner", in_tree(inner)}};
    second.tools = {{L"integer", in_tree(integer)},
                    {L"list", in_tree(list)},
                    {L"multi", in_tree(multi)},
                    {L"category", in_tree(category)}};
    bar.sets = {&first, &second};
    action.caption_text = L"&Whole";
    action.categories = {L"View", L"Zoom"};
    integer.caption_text = L"Count";
  }
  fake_action_tool action, inner;
  fake_boolean_tool boolean;
  fake_mode_tool mode;
  fake_integer_tool integer;
  fake_list_tool list;
  fake_multiaction_tool multi;
  fake_category_tool category;
  fake_tool_set first, second;
  fake_toolbar bar;
};

TEST(tool_actions, each_kind_reaches_its_tool) {
  every_tool tools;
  tool_actions actions;
  actions.add_sets_of_toolbar(in_tree(tools.bar));
  ASSERT_EQ(actions.sets().size(), 2u);
  auto of = [&](const char* id) { return actions.action(QLatin1String(id)); };
  of("zu_common_plugin_viewer2d_panel_tool_zoom_all")->trigger();
  EXPECT_EQ(tools.action.executions, 1);
  of("boolean")->trigger();
  EXPECT_TRUE(tools.boolean.is_checked);
  EXPECT_TRUE(of("boolean")->isChecked());
  of("mode")->trigger();
  EXPECT_TRUE(tools.mode.is_checked);
  of("list")->menu()->actions()[2]->trigger();
  EXPECT_EQ(tools.list.index, 2);
  EXPECT_TRUE(of("list")->menu()->actions()[2]->isChecked());
  EXPECT_FALSE(of("list")->menu()->actions()[0]->isChecked());
  of("multi")->menu()->actions()[1]->trigger();
  of("multi")->trigger();
  EXPECT_EQ(tools.multi.executions, (std::vector<std::uint32_t>{1, 0}));
  Q_EMIT of("category")->menu()->aboutToShow();
  of("category")->menu()->actions()[0]->trigger();
  EXPECT_EQ(tools.inner.executions, 1);
  EXPECT_EQ(of("zu_common_plugin_viewer2d_panel_tool_zoom_all")->categories(),
            (QStringList{QStringLiteral("View"), QStringLiteral("Zoom")}));
}

TEST(tool_actions, follow_what_their_tools_say) {
  every_tool tools;
  tool_actions actions;
  actions.add_sets_of_toolbar(in_tree(tools.bar));
  tool_action* boolean = actions.action(QStringLiteral("boolean"));
  tools.boolean.is_enabled = false;
  tools.boolean.is_visible = false;
  tools.boolean.is_checked = true;
  tools.boolean.redraw();
  EXPECT_FALSE(boolean->isEnabled());
  EXPECT_FALSE(boolean->isVisible());
  EXPECT_TRUE(boolean->isChecked());
  EXPECT_EQ(tools.boolean.sets, 0);
  tools.boolean.is_enabled = tools.boolean.is_visible = true;
  tools.boolean.is_stubborn = true;
  tools.boolean.redraw();
  boolean->trigger();
  EXPECT_TRUE(boolean->isChecked());
  EXPECT_EQ(tools.boolean.sets, 1);
}

TEST(tool_actions, a_tool_has_one_action_and_one_view_wherever_it_stands) {
  int before = living_views;
  every_tool tools;
  tool_actions in_menu;
  in_menu.add_sets_of_toolbar(in_tree(tools.bar));
  EXPECT_EQ(living_views, before + 7);
  {
    tool_actions in_context_menu;
    in_context_menu.add_sets_of_toolbar(in_tree(tools.bar));
    EXPECT_EQ(in_context_menu.action(QStringLiteral("mode")),
              in_menu.action(QStringLiteral("mode")));
  }
  EXPECT_EQ(living_views, before + 7);
  in_menu = {};
  EXPECT_EQ(living_views, before);
}

TEST(toolbar, numbers_and_lists_are_boxes_and_actions_buttons) {
  every_tool tools;
  shown window(tools.bar);
  auto* bar = window.find<QToolBar>("toolbar");
  ASSERT_NE(bar, nullptr);
  auto* number = bar->findChild<QAbstractSpinBox*>(QStringLiteral("number"));
  ASSERT_NE(number, nullptr);
  number->setFocus();
  QTest::keyClick(number, Qt::Key_Up);
  EXPECT_EQ(tools.integer.content, 6);
  EXPECT_EQ(tools.integer.sets, 1);
  tools.integer.content = 9;
  call<&element_view_impl::value_changed>(tools.integer.view);
  EXPECT_EQ(number->text(), QStringLiteral("9"));
  auto* list = bar->findChild<QComboBox*>(QStringLiteral("list"));
  ASSERT_NE(list, nullptr);
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(tools.list.index, 1);
  EXPECT_EQ(tools.list.sets, 1);
  auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(bar->actions()[0]));
  ASSERT_NE(button, nullptr);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(tools.action.executions, 1);
}

TEST(context_menu, opens_over_the_control_of_an_element_that_has_one) {
  struct label_with_menu : fake_label, context_menu_impl {
    using fake_label::fake_label;
    int query_interface(const char* name, const void** table, void** instance) override {
      int difference = label_impl::query_interface(name, table, instance);
      return difference == 0 ? 0 : context_menu_impl::query_interface(name, table, instance);
    }
    handle polymorphic_handle() override {
      return handle_of<queried>(static_cast<label_impl&>(*this));
    }
    void visit(tool_set_visitor visitor) override { bar->visit(visitor); }
    fake_toolbar* bar = nullptr;
  } label(L"x");
  every_tool tools;
  label.bar = &tools.bar;
  QWidget window;
  QWidget* control = realise(handle_of<label_impl>(label), &window);
  window.show();
  int before = living_views;
  QTimer::singleShot(0, qApp, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().size(), 8);  // seven tools and a separator
    menu->actions()[0]->trigger();
    menu->close();
  });
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), window.mapToGlobal(QPoint()));
  QApplication::sendEvent(control, &event);
  EXPECT_EQ(tools.action.executions, 1);
  EXPECT_EQ(living_views, before);
}

TEST(tool_icons, every_id_is_known_once_and_others_have_none) {
  EXPECT_TRUE(tool_icon(QStringLiteral("nobody")).isNull());
  EXPECT_TRUE(tool_shortcut(QStringLiteral("nobody")).isEmpty());
  EXPECT_EQ(tool_shortcut(QStringLiteral("zu_grid_layer2d_plugin_edit_mode_tool")),
            QKeySequence(Qt::CTRL | Qt::Key_E));
}

TEST(tool_icons, an_id_may_have_more_behind_the_one_that_is_known) {
  choose_appearance(appearance::light);
  auto name = [](const char* id) { return tool_icon(QString::fromLatin1(id)).name(); };
  EXPECT_EQ(name("zu_common_style_tool_value_sort_strings_on_a_page"), QStringLiteral("view-sort"));
  EXPECT_EQ(name("zu_common_style_tool_value_sort_strings_dsc_on_a_page"),
            QStringLiteral("view-sort-descending"));
}

TEST(tool_actions, a_tool_that_draws_itself_has_its_own_picture) {
  struct square final : bitmap_impl {
    void pixels(bytes_visitor visitor) override {
      const std::uint8_t green[] = {0, 200, 0, 255};
      call<&bytes_visitor_impl::visit>(visitor, 1, 4, 1, 4, 4, 1, green);
    }
  };
  struct drawn_tool final : action_tool_impl, tool_pictures_impl {
    int query_interface(const char* name, const void** table, void** instance) override {
      int difference = action_tool_impl::query_interface(name, table, instance);
      return difference == 0 ? 0 : tool_pictures_impl::query_interface(name, table, instance);
    }
    handle polymorphic_handle() override { return action_tool_impl::polymorphic_handle(); }
    void visit(std::int32_t item, std::uint32_t, std::uint32_t, bitmap_visitor visitor) override {
      square picture;
      if (item == -1) call<&bitmap_visitor_impl::visit>(visitor, handle_of<bitmap_impl>(picture));
    }
  } tool;
  auto action = tool_action::of_tool(QStringLiteral("zu_common_scale_tool_save"),
                                     handle_of<action_tool_impl>(tool));
  ASSERT_NE(action, nullptr);
  EXPECT_EQ(action->icon().pixmap(1, 1).toImage().pixelColor(0, 0), QColor(0, 200, 0));
}

TEST(tool_actions, a_menu_says_what_its_tools_are_called_when_it_opens) {
  struct renamed_tool final : action_tool_impl {
    void caption(string_visitor visitor) override {
      call<&string_visitor_impl::visit>(visitor, name);
    }
    const wchar_t* name = L"first";
  } tool;
  struct menu_tool final : category_tool_impl {
    explicit menu_tool(renamed_tool& inside) : inside(inside) {}
    void visit_tools(tool_visitor visitor) override {
      call<&tool_visitor_impl::visit>(visitor, L"inside",
                                      handle(handle_of<action_tool_impl>(inside)));
    }
    renamed_tool& inside;
  } menu(tool);
  auto action = tool_action::of_tool(QStringLiteral("menu"), handle_of<category_tool_impl>(menu));
  ASSERT_NE(action, nullptr);
  auto opened = [&] {
    Q_EMIT action->menu()->aboutToShow();
    return action->menu()->actions().value(0)->text();
  };
  EXPECT_EQ(opened(), QStringLiteral("first"));
  tool.name = L"second";
  EXPECT_EQ(opened(), QStringLiteral("second"));
}

}  // namespace zu::desktop
