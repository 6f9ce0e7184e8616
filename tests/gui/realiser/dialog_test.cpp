#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "host/desktop/realiser/modal_runner.h"
#include "host/desktop/words.h"
#include "tests/gui/realiser/fakes.h"

namespace zu::desktop {

struct name_dialog {
  explicit name_dialog(std::vector<std::uint32_t> roles = {2, 8}) : buttons(std::move(roles)) {}
  int run(const std::function<void(QDialog&)>& person) {
    QTimer::singleShot(0, qApp, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) {
        ADD_FAILURE() << "no dialog runs";
        return;
      }
      person(*dialog);
      if (dialog->isVisible()) {
        ++left_open;
        buttons.lets_close = true;
        dialog->done(0);
      }
    });
    modal_runner runner(QStringLiteral("name_dialog"));
    return call<&modal_dialog_runner_impl::run>(runner.runner(), in_tree(panel));
  }
  fake_input name;
  fake_button_box buttons;
  fake_grid layout{1, {in_tree(name), in_tree(buttons)}};
  fake_docker panel{L"Name", in_tree(layout)};
  int left_open = 0;
};

QPushButton* button_in(QDialog& dialog, const char* name) {
  return dialog.findChild<QPushButton*>(QLatin1String(name));
}

TEST(dialog, ok_accepts_and_cancel_does_not) {
  name_dialog dialog;
  EXPECT_EQ(dialog.run([](QDialog& d) {
    EXPECT_EQ(d.windowTitle(), QStringLiteral("Name"));
    EXPECT_TRUE(button_in(d, "button_2")->isDefault());
    QTest::mouseClick(button_in(d, "button_2"), Qt::LeftButton);
  }),
            1);
  EXPECT_EQ(
      dialog.run([](QDialog& d) { QTest::mouseClick(button_in(d, "button_8"), Qt::LeftButton); }),
      0);
  EXPECT_EQ(dialog.buttons.presses, (std::vector<std::uint32_t>{2, 8}));
}

TEST(dialog, stays_open_when_the_press_is_not_let_through) {
  name_dialog dialog;
  dialog.buttons.lets_close = false;
  EXPECT_EQ(dialog.run([](QDialog& d) {
    button_in(d, "button_2")->click();
    QTest::keyClick(&d, Qt::Key_Escape);
    EXPECT_TRUE(d.isVisible());
  }),
            0);
  EXPECT_EQ(dialog.buttons.presses, (std::vector<std::uint32_t>{2, 8}));
}

TEST(dialog, apply_never_closes) {
  name_dialog dialog({2, 8, 16});
  dialog.run([](QDialog& d) { button_in(d, "button_16")->click(); });
  EXPECT_EQ(dialog.left_open, 1);
  EXPECT_EQ(dialog.buttons.presses.front(), 16u);
}

TEST(dialog, enter_commits_the_line_and_accepts) {
  name_dialog dialog;
  EXPECT_EQ(dialog.run([](QDialog& d) {
    auto* line = d.findChild<QLineEdit*>(QStringLiteral("input"));
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("ok"));
    QTest::keyClick(line, Qt::Key_Return);
  }),
            1);
  EXPECT_EQ(dialog.name.committed, std::vector<std::wstring>{L"ok"});
}

TEST(dialog, a_refused_text_does_not_go_through_with_it) {
  name_dialog dialog;
  dialog.name.validate = [](const std::wstring& text) { return text.empty(); };
  dialog.run([](QDialog& d) {
    auto* line = d.findChild<QLineEdit*>(QStringLiteral("input"));
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("x"));
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(d.isVisible());
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("x"));
    // Pressed by its key, the button does not take the focus.
    button_in(d, "button_2")->click();
    EXPECT_TRUE(d.isVisible());
  });
  EXPECT_TRUE(dialog.buttons.presses.empty());
}

TEST(dialog, escape_in_a_line_first_takes_back_the_typing) {
  name_dialog dialog;
  dialog.run([](QDialog& d) {
    auto* line = d.findChild<QLineEdit*>(QStringLiteral("input"));
    line->setFocus();
    QTest::keyClicks(line, QStringLiteral("x"));
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_TRUE(d.isVisible());
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_FALSE(d.isVisible());
  });
  EXPECT_EQ(dialog.buttons.presses, std::vector<std::uint32_t>{8});
}

TEST(dialog, closing_the_window_cancels) {
  name_dialog dialog;
  EXPECT_EQ(dialog.run([](QDialog& d) { d.close(); }), 0);
  EXPECT_EQ(dialog.buttons.presses, std::vector<std::uint32_t>{8});
}

TEST(dialog, a_button_of_its_own_ends_it_with_its_role) {
  name_dialog dialog({8, 4133});
  EXPECT_EQ(dialog.run([](QDialog& d) { button_in(d, "button_4133")->click(); }), 4133);
}

TEST(dialog, one_without_buttons_gets_a_way_out) {
  fake_label text(L"About");
  fake_docker panel(L"Info", in_tree(text));
  QTimer::singleShot(0, qApp, [] {
    auto* dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    auto* box = dialog->findChild<QWidget*>(QStringLiteral("close_box"));
    ASSERT_NE(box, nullptr);
    QTest::mouseClick(box->findChild<QPushButton*>(), Qt::LeftButton);
  });
  modal_runner runner(QString{});
  EXPECT_EQ(runner.run(in_tree(panel)), 0);
}

TEST(dialog, opens_in_the_size_that_a_person_gave_it) {
  set_choice_store({});
  name_dialog dialog;
  QSize wanted;
  dialog.run([&](QDialog& d) {
    wanted = d.size() + QSize(60, 40);
    d.resize(wanted);
    d.reject();
  });
  dialog.run([&](QDialog& d) {
    EXPECT_EQ(d.size(), wanted);
    d.reject();
  });
  set_choice_store({});
}

TEST(dialog, runs_over_another_and_follows_the_language_while_it_is_open) {
  name_dialog outer;
  name_dialog inner;
  outer.run([&](QDialog& d) {
    EXPECT_EQ(inner.run([&](QDialog& e) {
      EXPECT_NE(&d, &e);
      inner.panel.caption_text = L"Имя";
      choose_language(language::russian);
      EXPECT_EQ(e.windowTitle(), QString::fromUtf8("Имя"));
      choose_language(language::english);
      button_in(e, "button_2")->click();
    }),
              1);
    EXPECT_TRUE(d.isVisible());
    d.reject();
  });
}

TEST(dialog, a_thousand_rounds_leave_no_view_behind) {
  int before = living_views;
  name_dialog dialog;
  for (int i = 0; i < 1000; ++i) {
    element_dialog window(in_tree(dialog.panel), nullptr);
    ASSERT_EQ(living_views, before + 4);
  }
  EXPECT_EQ(living_views, before);
}

}  // namespace zu::desktop
