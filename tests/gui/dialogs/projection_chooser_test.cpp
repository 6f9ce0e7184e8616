#include "host/desktop/dialogs/projection_chooser.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "tests/gui/dialogs/dialog_fixture.h"

namespace zu::desktop {
namespace {

class projection_chooser_test : public dialog_test {
 protected:
  static QLineEdit& search(const QWidget& in) { return *find<QLineEdit>(in, "projection_search"); }
  static QTreeWidget& found(const QWidget& in) {
    return *find<QTreeWidget>(in, "projection_found");
  }
  static QString details(const QWidget& in) {
    return find<QLabel>(in, "projection_details")->text();
  }
  static QString shown(const QWidget& in, int row) { return found(in).topLevelItem(row)->text(0); }
};

TEST_F(projection_chooser_test, words_find_the_likeliest_and_enter_takes_it) {
  projection_chooser dialog(QString{});
  dialog.show();
  QTest::keyClicks(&search(dialog), QStringLiteral("utm 37"));
  EXPECT_EQ(dialog.chosen(), QStringLiteral("EPSG:32637"));
  EXPECT_TRUE(details(dialog).contains(QStringLiteral("WGS 84 / UTM zone 37N")));
  grab(dialog, "projection");
  QTest::keyClick(&search(dialog), Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(projection_chooser_test, arrows_move_in_the_list_while_one_types) {
  projection_chooser dialog(QString{});
  dialog.show();
  QTest::keyClicks(&search(dialog), QStringLiteral("utm 37"));
  QTest::keyClick(&search(dialog), Qt::Key_Down);
  EXPECT_EQ(found(dialog).currentIndex().row(), 1);
  EXPECT_NE(dialog.chosen(), QStringLiteral("EPSG:32637"));
  QTest::keyClick(&search(dialog), Qt::Key_Up);
  EXPECT_EQ(dialog.chosen(), QStringLiteral("EPSG:32637"));
}

TEST_F(projection_chooser_test, an_empty_field_offers_none_and_the_one_in_force) {
  projection_chooser dialog(QStringLiteral("EPSG:32637"));
  EXPECT_EQ(shown(dialog, 0), QStringLiteral("No projection"));
  EXPECT_TRUE(shown(dialog, 1).startsWith(QStringLiteral("WGS 84 / UTM zone 37N")));
  EXPECT_EQ(dialog.chosen(), QStringLiteral("EPSG:32637"));
  found(dialog).setCurrentItem(found(dialog).topLevelItem(0));
  EXPECT_EQ(dialog.chosen(), QString());
}

TEST_F(projection_chooser_test, what_was_used_is_offered_next_time) {
  projection_chooser first(QString{});
  search(first).setText(QStringLiteral("28406"));
  first.accept();
  projection_chooser second(QString{});
  EXPECT_TRUE(shown(second, 1).contains(QStringLiteral("Pulkovo 1942")))
      << shown(second, 1).toStdString();
}

TEST_F(projection_chooser_test, a_text_of_one_s_own_is_taken_as_written) {
  projection_chooser dialog(QString{});
  QString text = QStringLiteral("+proj=utm +zone=5 +south +datum=WGS84");
  search(dialog).setText(text);
  EXPECT_EQ(dialog.chosen(), text);
  search(dialog).setText(QStringLiteral("epsg:3857"));
  EXPECT_EQ(dialog.chosen(), QStringLiteral("EPSG:3857"));
}

TEST_F(projection_chooser_test, nothing_found_cannot_be_taken) {
  projection_chooser dialog(QString{});
  dialog.show();
  search(dialog).setText(QStringLiteral("klingon"));
  EXPECT_EQ(found(dialog).topLevelItemCount(), 0);
  EXPECT_FALSE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
  QTest::keyClick(&search(dialog), Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(projection_chooser_test, ask_gives_the_choice_and_nothing_for_escape) {
  when_modal([](QWidget& dialog) {
    search(dialog).setText(QStringLiteral("3857"));
    QTest::keyClick(&search(dialog), Qt::Key_Return);
  });
  EXPECT_EQ(projection_chooser::ask(nullptr, {}), QStringLiteral("EPSG:3857"));
  when_modal([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_EQ(projection_chooser::ask(nullptr, QStringLiteral("EPSG:3857")), std::nullopt);
}

}  // namespace
}  // namespace zu::desktop
