#include "host/desktop/window/editor_docks.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>

#include "host/desktop/realiser/realiser.h"
#include "tests/gui/window/window_fixture.h"

namespace zu::desktop {

/// One line that shows a caption and takes another.
struct name_input final : input_impl {
  void text(string_visitor visitor) override {
    call<&string_visitor_impl::visit>(visitor, value.c_str());
  }
  bool set_text(const wchar_t* given) override {
    value = given;
    if (changed) changed();
    return true;
  }
  void attach_view(element_view given) override { view = given; }
  std::wstring value = L"before";
  element_view view;
  std::function<void()> changed;
};

/// A panel that applies when told so; it answers both of its names.
struct panel_of_test final : docker_impl, panel_impl {
  int query_interface(const char* name, const void** table, void** instance) override {
    if (docker_impl::query_interface(name, table, instance) == 0) return 0;
    return panel_impl::query_interface(name, table, instance);
  }
  void visit_caption(string_visitor visitor) override {
    call<&string_visitor_impl::visit>(visitor,
                                      language_in_force() == language::russian ? L"Имя" : L"Name");
  }
  void visit_element(element_visitor visitor) override {
    call<&element_visitor_impl::visit>(visitor, handle(handle_of<input_impl>(input)));
  }
  bool enabled() override { return applies; }
  void attach_observer(panel_observer given) override { observer = given; }
  void set_applies(bool value) {
    applies = value;
    call<&panel_observer_impl::enabled_changed>(observer);
  }
  name_input input;
  bool applies = true;
  panel_observer observer;
};

struct editor_of_test final : layer_2d_editor_extension_service_impl {
  void get_dockers(docker_visitor visitor) override {
    call<&docker_visitor_impl::visit>(visitor, L"first", docker(handle_of<docker_impl>(first)));
    call<&docker_visitor_impl::visit>(visitor, L"second", docker(handle_of<docker_impl>(second)));
  }
  void layer_changed(Izu_layer* layer) override { told.push_back(layer); }
  panel_of_test first, second;
  std::vector<Izu_layer*> told;
};

class editor_docks_test : public main_window_test {
 protected:
  void SetUp() override {
    main_window_test::SetUp();
    docks_ = std::make_unique<editor_docks>(
        *window_, content(),
        std::vector{layer_2d_editor_extension_service(
            handle_of<layer_2d_editor_extension_service_impl>(editor_))});
    window_->open_paths({grid("a.asc"), grid("b.asc")});
    QCoreApplication::processEvents();
  }
  void TearDown() override {
    docks_.reset();
    main_window_test::TearDown();
  }
  QDockWidget* dock(std::size_t index) { return docks_->docks().at(index); }
  Izu_layer* entity(std::size_t index) {
    return content().scene().layers.at(index).shown->entity();
  }

  editor_of_test editor_;
  std::unique_ptr<editor_docks> docks_;
};

TEST_F(editor_docks_test, the_services_hear_which_layer_is_active) {
  EXPECT_EQ(editor_.told.back(), entity(1));
  content().set_active_layer(content().scene().layers[0].shown);
  EXPECT_EQ(editor_.told.back(), entity(0));
}

TEST_F(editor_docks_test, the_services_let_go_of_a_layer_before_it_ends) {
  content().remove_layer(1);
  EXPECT_EQ(editor_.told[editor_.told.size() - 2], nullptr);
  EXPECT_EQ(editor_.told.back(), entity(0));
  content().undo();
  content().undo();  // what opened them
  EXPECT_EQ(editor_.told.back(), nullptr);
  content().redo();
  docks_.reset();
  EXPECT_EQ(editor_.told.back(), nullptr);
}

TEST_F(editor_docks_test, panels_stand_in_tabs_and_apply_or_are_hidden) {
  EXPECT_FALSE(dock(0)->isHidden());
  EXPECT_EQ(dock(0)->windowTitle(), QStringLiteral("Name"));
  EXPECT_EQ(window_->tabifiedDockWidgets(dock(0)), QList<QDockWidget*>{dock(1)});
  editor_.first.set_applies(false);
  EXPECT_TRUE(dock(0)->isHidden());
  EXPECT_FALSE(dock(0)->toggleViewAction()->isVisible());
  editor_.first.set_applies(true);
  EXPECT_FALSE(dock(0)->isHidden());
}

TEST_F(editor_docks_test, a_panel_that_was_closed_stays_closed_until_it_is_opened) {
  dock(1)->close();
  EXPECT_EQ(docks_->closed(), QStringList{QStringLiteral("panel_second")});
  content().set_active_layer(content().scene().layers[0].shown);
  EXPECT_TRUE(dock(1)->isHidden());
  dock(1)->toggleViewAction()->trigger();
  EXPECT_FALSE(dock(1)->isHidden());
  EXPECT_TRUE(docks_->closed().isEmpty());
}

TEST_F(editor_docks_test, without_a_layer_there_are_no_panels) {
  answers_.unsaved = unsaved_answer::discard;
  actions().file_new->trigger();
  EXPECT_TRUE(QTest::qWaitFor([&] { return dock(0)->isHidden(); }));
  EXPECT_TRUE(dock(1)->isHidden());
}

TEST_F(editor_docks_test, titles_follow_the_language) {
  actions().language_russian->trigger();
  EXPECT_EQ(dock(0)->windowTitle(), QString::fromUtf8("Имя"));
}

TEST_F(editor_docks_test, what_a_person_types_in_a_panel_is_one_step_of_undo) {
  editor_.first.input.changed = [this] {
    content().active_layer()->set_caption(host::narrow(editor_.first.input.value));
  };
  dock(0)->raise();
  auto* line = dock(0)->findChild<QLineEdit*>();
  ASSERT_NE(line, nullptr);
  line->setFocus();
  line->selectAll();
  QTest::keyClicks(line, QStringLiteral("Relief"));
  EXPECT_EQ(captions()[0], QStringLiteral("Relief"));
  EXPECT_EQ(content().undo_name(), QStringLiteral("Change of the look"));
  content().undo();
  EXPECT_EQ(captions()[0], QStringLiteral("b.asc"));
  content().redo();
  EXPECT_EQ(captions()[0], QStringLiteral("Relief"));
}

}  // namespace zu::desktop
