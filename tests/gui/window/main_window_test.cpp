#include "host/desktop/window/main_window.h"

#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QTabBar>
#include <QTimer>
#include <QUrl>

#include "host/core/settings.h"
#include "host/desktop/window/info_window.h"
#include "host/desktop/window/start_page.h"
#include "host/desktop/window/status_line.h"
#include "tests/gui/window/window_fixture.h"
#include "zu/platform/zuk_dib.h"

namespace zu::desktop {

TEST_F(main_window_test, an_empty_one_says_how_to_open_a_file) {
  EXPECT_TRUE(window_->views().start().isVisible());
  EXPECT_FALSE(actions().zoom_all->isEnabled());
  answers_.files = {grid("hills.asc")};
  QTest::mouseClick(window_->findChild<QPushButton*>(QStringLiteral("start_open")), Qt::LeftButton);
  EXPECT_FALSE(window_->views().start().isVisible());
  EXPECT_TRUE(window_->views().current().isVisible());
  EXPECT_TRUE(window_->views().current().hasFocus());
  EXPECT_EQ(captions(), QStringList{QStringLiteral("hills.asc")});
}

TEST_F(main_window_test, files_open_by_the_action_of_the_menu) {
  answers_.files = {grid("a.asc"), grid("b.asc")};
  actions().file_open->trigger();
  EXPECT_EQ(captions(), (QStringList{QStringLiteral("b.asc"), QStringLiteral("a.asc")}));
  EXPECT_EQ(list().currentItem()->text(0), QStringLiteral("b.asc"));
  EXPECT_TRUE(messages().isEmpty());
  EXPECT_TRUE(window_->wait_until_drawn(20000));
}

TEST_F(main_window_test, what_does_not_open_is_said_and_the_rest_opens) {
  answers_.files = {path("nothing.asc"), grid("a.asc")};
  actions().file_open->trigger();
  EXPECT_EQ(captions(), QStringList{QStringLiteral("a.asc")});
  ASSERT_EQ(messages().size(), 1);
  EXPECT_TRUE(messages()[0].contains(QLatin1String("nothing.asc"))) << messages()[0].toStdString();
  QTest::keyClick(&window_->views().messages(), Qt::Key_Escape);
  EXPECT_FALSE(window_->views().messages().isVisible());
}

TEST_F(main_window_test, takes_files_that_are_dropped) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(grid("with space.asc"))});
  QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window_.get(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window_.get(), &drop);
  QCoreApplication::processEvents();
  EXPECT_EQ(captions(), QStringList{QStringLiteral("with space.asc")});
}

TEST_F(main_window_test, a_map_goes_to_a_file_that_lies_elsewhere) {
  window_->open_paths({grid("a.asc")});
  window_->open_paths({grid("far.asc", 100000)});
  std::optional<Tzu_box_d2> box = window_->views().current().box();
  ASSERT_TRUE(box.has_value());
  EXPECT_LE(box->x0, 100000);
  EXPECT_GE(box->x1, 100400);
  EXPECT_GT(box->x0, 90000);
}

TEST_F(main_window_test, closing_with_unsaved_changes_asks) {
  window_->open_paths({grid("a.asc")});
  EXPECT_TRUE(window_->isWindowModified());
  answers_.unsaved = unsaved_answer::cancel;
  EXPECT_FALSE(window_->close());
  answers_.unsaved = unsaved_answer::save;  // but the question where is cancelled
  EXPECT_FALSE(window_->close());
  answers_.save_as = path("mine.zgp");
  EXPECT_TRUE(window_->close());
  EXPECT_TRUE(QFile::exists(path("mine.zgp")));
  EXPECT_EQ(answers_.unsaved_asked, 3);
}

TEST_F(main_window_test, closing_may_throw_the_changes_away) {
  window_->open_paths({grid("a.asc")});
  answers_.unsaved = unsaved_answer::discard;
  answers_.save_as = path("mine.zgp");
  EXPECT_TRUE(window_->close());
  EXPECT_FALSE(QFile::exists(path("mine.zgp")));
}

TEST_F(main_window_test, nothing_is_asked_where_nothing_changed) {
  window_->open_paths({grid("a.asc")});
  answers_.save_as = path("mine.zgp");
  actions().file_save->trigger();
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_TRUE(window_->windowTitle().startsWith(QLatin1String("mine")));
  EXPECT_TRUE(window_->close());
  EXPECT_EQ(answers_.unsaved_asked, 0);
}

TEST_F(main_window_test, an_undone_change_leaves_nothing_to_save) {
  window_->open_paths({grid("a.asc")});
  actions().edit_undo->trigger();
  EXPECT_TRUE(captions().isEmpty());
  EXPECT_FALSE(window_->isWindowModified());
}

TEST_F(main_window_test, a_project_opens_as_it_was_left) {
  window_->open_paths({grid("a.asc"), grid("b.asc")});
  content().set_layer_visible(0, false);
  content().rename_layer(1, QStringLiteral("Relief"));
  window_->views().current().zoom_to({100, 50, 250, 160});
  Tzu_box_d2 before = *window_->views().current().box();
  answers_.save_as = path("mine.zgp");
  actions().file_save_as->trigger();
  actions().file_new->trigger();
  EXPECT_TRUE(captions().isEmpty());

  window_->open_paths({path("mine.zgp")});
  EXPECT_EQ(captions(), (QStringList{QStringLiteral("Relief"), QStringLiteral("a.asc")}));
  EXPECT_EQ(list().topLevelItem(1)->checkState(0), Qt::Unchecked);
  Tzu_box_d2 after = *window_->views().current().box();
  EXPECT_NEAR(after.x0, before.x0, 1e-6);
  EXPECT_NEAR(after.y1, before.y1, 1e-6);
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_FALSE(actions().edit_undo->isEnabled());
}

TEST_F(main_window_test, a_project_that_does_not_open_leaves_the_old_one) {
  window_->open_paths({grid("a.asc")});
  answers_.unsaved = unsaved_answer::discard;
  QFile broken(path("broken.zgp"));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("<html/>");
  broken.close();
  window_->open_paths({path("broken.zgp")});
  EXPECT_EQ(captions(), QStringList{QStringLiteral("a.asc")});
  EXPECT_EQ(messages().size(), 1);
}

TEST_F(main_window_test, files_opened_last_stand_in_the_menu_and_on_the_empty_page) {
  window_->open_paths({grid("a.asc"), grid("b.asc"), path("nothing.asc")});
  auto* menu = window_->findChild<QMenu*>(QStringLiteral("menu_recent"));
  ASSERT_GE(menu->actions().size(), 2);
  EXPECT_TRUE(menu->actions()[0]->text().endsWith(QLatin1String("b.asc")));
  EXPECT_TRUE(menu->actions()[1]->text().endsWith(QLatin1String("a.asc")));
  answers_.unsaved = unsaved_answer::discard;
  actions().file_new->trigger();
  auto* first = window_->views().start().findChild<QPushButton*>(QStringLiteral("start_recent"));
  ASSERT_NE(first, nullptr);
  QTest::mouseClick(first, Qt::LeftButton);
  EXPECT_EQ(captions().size(), 1);
}

TEST_F(main_window_test, another_language_says_every_menu_anew) {
  auto texts = [this] {
    QStringList all;
    for (QMenu* menu : window_->findChildren<QMenu*>())
      if (menu->objectName().startsWith(QLatin1String("menu_"))) all += menu->title();
    for (QAction* action : actions().findChildren<QAction*>())
      if (!action->objectName().startsWith(QLatin1String("language_"))) all += action->text();
    for (QDockWidget* dock : window_->findChildren<QDockWidget*>())
      if (dock->objectName().startsWith(QLatin1String("dock_"))) all += dock->windowTitle();
    return all;
  };
  QStringList english = texts();
  actions().language_russian->trigger();
  QStringList russian = texts();
  ASSERT_EQ(english.size(), russian.size());
  EXPECT_GT(english.size(), 40);
  for (int i = 0; i < english.size(); ++i)
    EXPECT_NE(english[i], russian[i]) << english[i].toStdString();
  actions().language_english->trigger();
  EXPECT_EQ(texts(), english);
}

TEST_F(main_window_test, the_language_is_kept_for_the_next_time) {
  actions().language_russian->trigger();
  EXPECT_EQ(host::settings().get("lang"), "ru");
}

TEST_F(main_window_test, remembers_its_size_and_its_docks) {
  auto dock = [this] { return window_->findChild<QDockWidget*>(QStringLiteral("dock_info")); };
  EXPECT_FALSE(dock()->isVisible());
  dock()->show();
  window_->addDockWidget(Qt::BottomDockWidgetArea, dock());
  window_->resize(903, 604);
  QCoreApplication::processEvents();
  window_->close();
  window_ = std::make_unique<main_window>(services_, answers_.as_prompts());
  window_->show();
  EXPECT_EQ(window_->size(), QSize(903, 604));
  EXPECT_TRUE(dock()->isVisible());
  EXPECT_EQ(window_->dockWidgetArea(dock()), Qt::BottomDockWidgetArea);
}

TEST_F(main_window_test, scenes_stand_in_tabs_when_there_are_several) {
  QTabBar& tabs = window_->views().tabs();
  EXPECT_FALSE(tabs.isVisible());
  window_->open_paths({grid("a.asc")});
  actions().scene_add->trigger();
  ASSERT_EQ(tabs.count(), 2);
  EXPECT_TRUE(tabs.isVisible());
  EXPECT_EQ(tabs.currentIndex(), 1);
  EXPECT_TRUE(captions().isEmpty());
  answers_.name = QStringLiteral("Fish & chips");
  actions().scene_rename->trigger();
  EXPECT_EQ(tabs.tabText(1), QStringLiteral("Fish && chips"));
  actions().scene_previous->trigger();
  EXPECT_EQ(tabs.currentIndex(), 0);
  EXPECT_FALSE(actions().scene_previous->isEnabled());
  EXPECT_EQ(captions(), QStringList{QStringLiteral("a.asc")});
  actions().scene_remove->trigger();
  EXPECT_EQ(tabs.count(), 1);
  EXPECT_FALSE(tabs.isVisible());
  EXPECT_TRUE(captions().isEmpty());
  actions().edit_undo->trigger();
  EXPECT_EQ(tabs.count(), 2);
  EXPECT_EQ(content().content().scenes()[1].name, "Fish & chips");
}

TEST_F(main_window_test, the_projection_is_chosen_and_shown_and_can_be_undone) {
  window_->open_paths({grid("a.asc")});
  auto* shown = window_->findChild<QToolButton*>(QStringLiteral("status_projection"));
  EXPECT_EQ(shown->text(), QStringLiteral("No projection"));
  answers_.projection = QStringLiteral("EPSG:32637");
  QTest::mouseClick(shown, Qt::LeftButton);
  EXPECT_EQ(shown->text(), QStringLiteral("WGS 84 / UTM zone 37N"));
  answers_.projection = QStringLiteral("nonsense");
  actions().scene_projection->trigger();
  EXPECT_EQ(messages().size(), 1);
  EXPECT_EQ(shown->text(), QStringLiteral("WGS 84 / UTM zone 37N"));
  actions().edit_undo->trigger();
  EXPECT_EQ(shown->text(), QStringLiteral("No projection"));
}

TEST_F(main_window_test, the_status_bar_has_the_units_of_the_settings_at_once) {
  window_->open_paths({grid("a.asc", 350000)});
  content().set_projection(QStringLiteral("EPSG:32637"));
  ASSERT_TRUE(window_->wait_until_drawn(10000));
  auto* shown = window_->findChild<QLabel*>(QStringLiteral("status_coordinates"));
  map_view& map = window_->views().current();
  QTest::mouseMove(&map, map.rect().center());
  ASSERT_TRUE(shown->text().contains(QStringLiteral("; "))) << shown->text().toStdString();
  auto choose = [&](int units) {
    QTimer::singleShot(0, window_.get(), [units] {
      QWidget* dialog = QApplication::activeModalWidget();
      dialog->findChild<QComboBox*>(QStringLiteral("settings_units"))->setCurrentIndex(units);
      QTest::keyClick(dialog, Qt::Key_Return);
    });
    actions().edit_settings->trigger();
    QTest::mouseMove(&map, map.rect().center() + QPoint(units, 0));
  };
  choose(1);
  EXPECT_TRUE(shown->text().contains(QStringLiteral("°E "))) << shown->text().toStdString();
  choose(2);
  EXPECT_TRUE(shown->text().contains(QStringLiteral("″E "))) << shown->text().toStdString();
  open_window();
  shown = window_->findChild<QLabel*>(QStringLiteral("status_coordinates"));
  window_->findChild<status_line*>()->show_projection(QStringLiteral("EPSG:4326"));
  window_->findChild<status_line*>()->show_coordinates(1, 2, true);
  EXPECT_EQ(shown->text(), QStringLiteral("1°00′00.0″E 2°00′00.0″N"));
}

TEST_F(main_window_test, fits_into_the_screen_when_it_is_opened_for_the_first_time) {
  main_window first(services_, answers_.as_prompts());
  const QSize screen = first.screen()->availableSize();
  EXPECT_LT(first.width(), screen.width());
  EXPECT_LT(first.height(), screen.height());
  EXPECT_GT(first.width(), 600);
  window_->open_paths({grid("a.asc")});
  for (language each : {language::english, language::russian}) {
    choose_language(each);
    QCoreApplication::processEvents();
    EXPECT_LE(window_->minimumSizeHint().width(), 1024);
    EXPECT_LE(window_->minimumSizeHint().height(), 600);
  }
}

TEST_F(main_window_test, says_in_russian_why_a_file_does_not_open) {
  choose_language(language::russian);
  window_->open_paths({path("none.tif")});
  ASSERT_EQ(messages().size(), 1);
  EXPECT_TRUE(messages().front().endsWith(QString::fromUtf8("none.tif: файла нет")))
      << messages().front().toStdString();
}

TEST_F(main_window_test, a_scale_that_is_typed_is_taken) {
  window_->open_paths({grid("a.asc")});
  auto* scale = window_->findChild<QComboBox*>(QStringLiteral("status_scale"));
  scale->lineEdit()->selectAll();
  QTest::keyClicks(scale->lineEdit(), QStringLiteral("1:2500"));
  QTest::keyClick(scale->lineEdit(), Qt::Key_Return);
  EXPECT_NEAR(window_->views().current().map_scale(), 2500, 1);
  EXPECT_EQ(scale->currentText(), QStringLiteral("1:2500"));
  scale->lineEdit()->selectAll();
  QTest::keyClicks(scale->lineEdit(), QStringLiteral("large"));
  QTest::keyClick(scale->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(scale->currentText(), QStringLiteral("1:2500"));
}

TEST_F(main_window_test, copies_the_command_that_makes_the_picture) {
  window_->open_paths({grid("a.asc")});
  actions().copy_command->trigger();
  QString line = QApplication::clipboard()->text();
  EXPECT_TRUE(line.contains(QLatin1String("zugrid render"))) << line.toStdString();
  EXPECT_TRUE(line.contains(QLatin1String("a.asc"))) << line.toStdString();
}

TEST_F(main_window_test, escape_puts_the_message_away_and_then_leaves_the_full_screen) {
  window_->open_paths({grid("a.asc"), path("nothing.asc")});
  actions().full_screen->setChecked(true);
  EXPECT_TRUE(window_->isFullScreen());
  window_->views().current().setFocus();
  QTest::keyClick(&window_->views().current(), Qt::Key_Escape);
  EXPECT_FALSE(window_->views().messages().isVisible());
  EXPECT_TRUE(window_->isFullScreen());
  QTest::keyClick(&window_->views().current(), Qt::Key_Escape);
  EXPECT_FALSE(window_->isFullScreen());
}

TEST_F(main_window_test, rounds_of_projects_leave_nothing_behind) {
  window_->open_paths({grid("a.asc")});
  answers_.save_as = path("mine.zgp");
  actions().file_save->trigger();
  actions().file_new->trigger();
  QCoreApplication::processEvents();
  std::uint64_t bitmaps = zu_dib_get_live_count();
  qsizetype widgets = QApplication::allWidgets().size();
  for (int round = 0; round < 1000; ++round) {
    content().open_project(path("mine.zgp"));
    content().clear();
    if (round % 100 == 0) QCoreApplication::processEvents();
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(zu_dib_get_live_count(), bitmaps);
  EXPECT_LE(QApplication::allWidgets().size(), widgets + 2);
  EXPECT_TRUE(captions().isEmpty());
}

TEST_F(main_window_test, the_keyboard_asks_what_lies_in_the_middle_of_the_map) {
  window_->open_paths({grid("a.asc")});
  ASSERT_TRUE(window_->wait_until_drawn(20000));
  map_view& map = window_->views().current();
  map.zoom_to({110, 110, 190, 190});  // the cell of 6
  actions().info_tool->trigger();
  QTest::keyClick(&map, Qt::Key_Return);
  auto* info = window_->findChild<info_window*>();
  ASSERT_EQ(info->topLevelItemCount(), 1);
  EXPECT_EQ(info->topLevelItem(0)->child(0)->text(1), QStringLiteral("6"));
}

TEST_F(main_window_test, a_person_may_say_what_a_file_is) {
  window_->open_paths({grid("a.asc")});
  ASSERT_EQ(content().scene().layers.size(), 1U);
  EXPECT_EQ(content().scene().layers[0].type(), "grid_lr2d");
  answers_.files = {grid("b.asc")};
  actions().open_picture->trigger();
  ASSERT_EQ(content().scene().layers.size(), 2U);
  EXPECT_EQ(content().scene().layers[1].type(), "rtr_lr2d");
  EXPECT_TRUE(window_->wait_until_drawn(20000));
}

TEST_F(main_window_test, the_information_tool_says_what_lies_under_a_click) {
  window_->open_paths({grid("a.asc")});
  ASSERT_TRUE(window_->wait_until_drawn(20000));
  map_view& map = window_->views().current();
  Tzu_box_d2 box = *map.box();
  // The cell of 10, second of the lowest row: its middle is at (150, 50).
  QPoint at(static_cast<int>((150 - box.x0) / (box.x1 - box.x0) * map.width()),
            static_cast<int>((box.y1 - 50) / (box.y1 - box.y0) * map.height()));
  auto* info = window_->findChild<info_window*>();
  QTest::mouseClick(&map, Qt::LeftButton, {}, at);
  EXPECT_FALSE(info->isVisible());
  actions().info_tool->trigger();
  QTest::mouseClick(&map, Qt::LeftButton, {}, at);
  EXPECT_TRUE(info->isVisible());
  ASSERT_EQ(info->topLevelItemCount(), 1);
  EXPECT_EQ(info->topLevelItem(0)->child(0)->text(1), QStringLiteral("10"));
  info->setFocus();
  QTest::keyClick(info, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().endsWith(QStringLiteral("\t10")))
      << QApplication::clipboard()->text().toStdString();
}

TEST_F(main_window_test, writes_the_picture_that_is_seen) {
  window_->open_paths({grid("a.asc")});
  ASSERT_TRUE(window_->wait_until_drawn(20000));
  answers_.picture = path("a.png");
  actions().file_export->trigger();
  QImage written(path("a.png"));
  QImage seen = window_->views().current().picture().convertToFormat(written.format());
  ASSERT_EQ(written.size(), seen.size());
  EXPECT_EQ(written, seen);
  actions().copy_picture->trigger();
  EXPECT_EQ(QApplication::clipboard()->image().convertToFormat(written.format()), written);
  EXPECT_TRUE(messages().isEmpty());
}

TEST_F(main_window_test, no_picture_is_written_over_a_source) {
  window_->open_paths({grid("a.asc")});
  ASSERT_TRUE(QFile::copy(path("a.asc"), path("b.tif")));
  window_->open_paths({path("b.tif")});
  answers_.picture = path("b.tif");
  actions().file_export->trigger();
  EXPECT_EQ(messages().size(), 1);
}

TEST_F(main_window_test, no_two_entries_of_a_menu_answer_to_the_same_letter) {
  for (QAction* speech : {actions().language_english, actions().language_russian}) {
    speech->trigger();
    QList<QList<QAction*>> menus{window_->menuBar()->actions()};
    for (QMenu* menu : window_->findChildren<QMenu*>()) menus += menu->actions();
    for (const QList<QAction*>& menu : menus) {
      QMap<QString, QString> taken;
      for (QAction* entry : menu) {
        QString key = QKeySequence::mnemonic(entry->text()).toString();
        if (key.isEmpty()) continue;
        EXPECT_FALSE(taken.contains(key))
            << entry->text().toStdString() << " and " << taken[key].toStdString();
        taken[key] = entry->text();
      }
    }
  }
}

TEST_F(main_window_test, no_two_actions_share_a_key) {
  QMap<QKeySequence, QString> taken;
  for (QAction* action : actions().findChildren<QAction*>())
    for (const QKeySequence& key : action->shortcuts()) {
      EXPECT_FALSE(taken.contains(key))
          << action->text().toStdString() << " and " << taken[key].toStdString();
      taken[key] = action->text();
    }
  EXPECT_GT(taken.size(), 20);
}

}  // namespace zu::desktop
