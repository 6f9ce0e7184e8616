// What the platform says and asks, as a person sees it.

#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>

#include "host/desktop/dialogs/clipboard_bridge.h"
#include "host/desktop/dialogs/message_windows.h"
#include "host/desktop/dialogs/progress_window.h"
#include "tests/gui/dialogs/dialog_fixture.h"

namespace zu::desktop {
namespace {

class bridges : public dialog_test {
 protected:
  static QWidget* progress() {
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* each : all)
      if (each->objectName() == QStringLiteral("progress") && each->isVisible()) return each;
    return nullptr;
  }
};

TEST_F(bridges, messages_and_warnings_open_a_window) {
  message_windows windows;
  QStringList seen;
  auto close = [&](QWidget& window) {
    seen += dynamic_cast<QMessageBox&>(window).text();
    QTest::keyClick(&window, Qt::Key_Return);
  };
  when_modal(close);
  zu_show_wmessage(L"<b>one</b>");
  when_modal(close);
  zu_show_wwarning(L"two");
  EXPECT_EQ(seen, (QStringList{QStringLiteral("<b>one</b>"), QStringLiteral("two")}));
}

TEST_F(bridges, a_question_is_answered_by_a_click) {
  message_windows windows;
  when_modal([](QWidget& window) {
    dynamic_cast<QMessageBox&>(window).button(QMessageBox::Yes)->click();
  });
  EXPECT_TRUE(zu_ask_wyes_no(L"Really?"));
  when_modal(
      [](QWidget& window) { dynamic_cast<QMessageBox&>(window).button(QMessageBox::No)->click(); });
  EXPECT_FALSE(zu_ask_wyes_no(L"Really?"));
}

TEST_F(bridges, short_work_shows_no_window) {
  progress_window window(100000);
  Tzu_progress* work = zu_progress_create(1);
  zu_progress_show64(work, 1, 2);
  EXPECT_EQ(progress(), nullptr);
  zu_progress_destroy(work);
}

TEST_F(bridges, long_work_shows_its_state_and_the_window_goes_with_it) {
  progress_window window(0);
  Tzu_progress* work = zu_progress_create(1);
  zu_progress_wcaption(work, L"Reading");
  QTest::qWait(50);
  zu_progress_show64(work, 1, 4);
  QWidget* shown = progress();
  ASSERT_NE(shown, nullptr);
  grab(*shown, "progress");
  EXPECT_EQ(find<QLabel>(*shown, "progress_caption")->text(), QStringLiteral("Reading"));
  EXPECT_EQ(shown->findChild<QProgressBar*>()->value(), 250);
  EXPECT_EQ(shown->windowModality(), Qt::ApplicationModal);
  EXPECT_FALSE(zu_progress_get_stopped(work));
  zu_progress_destroy(work);
  EXPECT_EQ(progress(), nullptr);
}

TEST_F(bridges, cancel_stops_the_work_and_escape_does_too) {
  progress_window window(0);
  for (bool by_key : {false, true}) {
    Tzu_progress* work = zu_progress_create(1);
    zu_progress_show64(work, 1, 4);
    QWidget* shown = progress();
    ASSERT_NE(shown, nullptr);
    if (by_key)
      QTest::keyClick(shown, Qt::Key_Escape);
    else
      QTest::mouseClick(find<QPushButton>(*shown, "progress_cancel"), Qt::LeftButton);
    EXPECT_TRUE(zu_progress_get_stopped(work));
    EXPECT_NE(progress(), nullptr) << "it stays until the work has ended";
    zu_progress_destroy(work);
  }
}

TEST_F(bridges, work_that_cannot_be_stopped_has_no_cancel_and_stays_open) {
  progress_window window(0);
  Tzu_progress* work = zu_progress_create(0);
  zu_progress_show64(work, 1, 4);
  QWidget* shown = progress();
  ASSERT_NE(shown, nullptr);
  EXPECT_FALSE(find<QPushButton>(*shown, "progress_cancel")->isVisible());
  shown->close();
  EXPECT_TRUE(shown->isVisible());
  EXPECT_FALSE(zu_progress_get_stopped(work));
  zu_progress_destroy(work);
}

TEST_F(bridges, timers_of_other_windows_wait_for_the_end_of_the_work) {
  progress_window window(0);
  QTimer other;
  int fired = 0;
  QObject::connect(&other, &QTimer::timeout, &other, [&] { ++fired; });
  other.start(1);
  Tzu_progress* work = zu_progress_create(1);
  QElapsedTimer busy;
  busy.start();
  for (int i = 0; busy.elapsed() < 200; ++i) zu_progress_show64(work, i, 1000000);
  EXPECT_EQ(fired, 0);
  zu_progress_destroy(work);
  EXPECT_TRUE(QTest::qWaitFor([&] { return fired > 0; }));
}

TEST_F(bridges, work_inside_work_shares_the_window) {
  progress_window window(0);
  Tzu_progress* outer = zu_progress_create(1);
  zu_progress_wcaption(outer, L"Outer");
  Tzu_progress* inner = zu_progress_create(0);
  QTest::qWait(50);
  zu_progress_wcaption(inner, L"Inner");
  QWidget* shown = progress();
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(find<QLabel>(*shown, "progress_caption")->text(), QStringLiteral("Inner"));
  QTest::keyClick(shown, Qt::Key_Escape);
  EXPECT_FALSE(zu_progress_get_stopped(inner));
  zu_progress_destroy(inner);
  EXPECT_EQ(progress(), shown);
  EXPECT_TRUE(zu_progress_get_stopped(outer));
  zu_progress_destroy(outer);
}

TEST_F(bridges, private_formats_lie_on_the_desktop_s_clipboard) {
  clipboard_bridge bridge;
  QApplication::clipboard()->setText(QStringLiteral("plain"));
  EXPECT_FALSE(zu_os_get_clipboard_w(L"zugrid/format/a", nullptr));
  EXPECT_TRUE(zu_os_set_clipboard_w(L"zugrid/format/a", L"Ж", false));
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("plain"));
  EXPECT_EQ(
      QApplication::clipboard()->mimeData()->data(QStringLiteral("application/x-zugrid.format.a")),
      QStringLiteral("Ж").toUtf8());
  EXPECT_TRUE(zu_os_get_clipboard_w(L"zugrid/format/a", nullptr));
  EXPECT_TRUE(zu_os_set_clipboard_w(L"zugrid/format/b", L"b", true));
  EXPECT_EQ(QApplication::clipboard()->text(), QString());
  EXPECT_FALSE(zu_os_get_clipboard_w(L"zugrid/format/a", nullptr));
}

}  // namespace
}  // namespace zu::desktop
