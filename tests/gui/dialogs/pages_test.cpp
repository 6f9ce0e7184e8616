// The pages that only tell: about, shortcuts.

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "host/desktop/dialogs/about_dialog.h"
#include "host/desktop/dialogs/shortcuts_dialog.h"
#include "tests/gui/dialogs/dialog_fixture.h"

namespace zu::desktop {
namespace {

class pages : public dialog_test {};

TEST_F(pages, about_tells_the_version_and_copies_it) {
  QString version = QApplication::applicationVersion();
  QApplication::setApplicationVersion(QStringLiteral("9.8.7"));
  about_dialog dialog;
  dialog.show();
  grab(dialog, "about");
  EXPECT_TRUE(find<QLabel>(dialog, "about_text")->text().contains(QStringLiteral("9.8.7")));
  find<QPushButton>(dialog, "about_copy")->click();
  EXPECT_TRUE(QApplication::clipboard()->text().contains(QStringLiteral("9.8.7")));
  QApplication::setApplicationVersion(version);
}

TEST_F(pages, shortcuts_are_those_of_the_actions) {
  QAction open(QStringLiteral("&Open…")), plain(QStringLiteral("Nothing"));
  open.setShortcuts({QKeySequence(QStringLiteral("Ctrl+O")), QKeySequence(QStringLiteral("F3"))});
  shortcuts_dialog dialog({&open, &plain});
  dialog.show();
  auto& list = *find<QTreeWidget>(dialog, "shortcuts_list");
  ASSERT_EQ(list.topLevelItemCount(), 1);
  EXPECT_EQ(list.topLevelItem(0)->text(0), QStringLiteral("Open"));
  EXPECT_EQ(list.topLevelItem(0)->text(1), QStringLiteral("Ctrl+O, F3"));
}

TEST_F(pages, shortcuts_are_narrowed_by_command_or_key) {
  QAction open(QStringLiteral("Open")), save(QStringLiteral("Save"));
  open.setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
  save.setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
  shortcuts_dialog dialog({&open, &save});
  dialog.show();
  grab(dialog, "shortcuts");
  auto& list = *find<QTreeWidget>(dialog, "shortcuts_list");
  auto& search = *find<QLineEdit>(dialog, "shortcuts_search");
  QTest::keyClicks(&search, QStringLiteral("sav"));
  EXPECT_TRUE(list.topLevelItem(0)->isHidden());
  EXPECT_FALSE(list.topLevelItem(1)->isHidden());
  search.setText(QStringLiteral("ctrl+o"));
  EXPECT_FALSE(list.topLevelItem(0)->isHidden());
  EXPECT_TRUE(list.topLevelItem(1)->isHidden());
}

}  // namespace
}  // namespace zu::desktop
