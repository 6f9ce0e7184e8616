#include "host/desktop/dialogs/settings_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>

#include "host/core/settings.h"
#include "tests/gui/dialogs/dialog_fixture.h"
#include "zu/platform/zuk_basic.h"

namespace zu::desktop {
namespace {

class settings_dialog_test : public dialog_test {
 protected:
  ~settings_dialog_test() override {
    choose_appearance(appearance::system);
    zu_options_set_build_overviews(false);
  }
  static QComboBox& speech(const QWidget& in) { return *find<QComboBox>(in, "settings_language"); }
  static QComboBox& look(const QWidget& in) { return *find<QComboBox>(in, "settings_appearance"); }
};

TEST_F(settings_dialog_test, what_is_accepted_is_kept_and_in_force) {
  settings_dialog dialog;
  dialog.show();
  grab(dialog, "settings");
  speech(dialog).setCurrentIndex(2);
  look(dialog).setCurrentIndex(2);
  find<QCheckBox>(dialog, "settings_overviews")->click();
  dialog.accept();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(host::settings().get("lang"), "ru");
  EXPECT_EQ(host::settings().get("overviews"), "1");
  EXPECT_TRUE(zu_options_get_build_overviews());
  EXPECT_EQ(language_in_force(), language::russian);
  EXPECT_TRUE(is_dark());
  settings_dialog next;
  EXPECT_EQ(speech(next).currentIndex(), 2);
  EXPECT_EQ(look(next).currentIndex(), 2);
  EXPECT_TRUE(find<QCheckBox>(next, "settings_overviews")->isChecked());
}

TEST_F(settings_dialog_test, a_language_shows_at_once_and_goes_with_cancel) {
  settings_dialog dialog;
  speech(dialog).setCurrentIndex(2);
  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Настройки"));
  look(dialog).setCurrentIndex(2);
  EXPECT_TRUE(is_dark());
  dialog.reject();
  EXPECT_EQ(language_in_force(), language::english);
  EXPECT_FALSE(is_dark());
  EXPECT_EQ(host::settings().get("lang"), "");
}

TEST_F(settings_dialog_test, what_is_kept_comes_into_force_at_the_start) {
  host::settings kept;
  kept.set("lang", "ru");
  kept.set("appearance", "dark");
  kept.set("overviews", "1");
  apply_chosen();
  EXPECT_EQ(language_in_force(), language::russian);
  EXPECT_TRUE(is_dark());
  EXPECT_TRUE(zu_options_get_build_overviews());
  apply_chosen(language::english, appearance::light);
  EXPECT_EQ(language_in_force(), language::english);
  EXPECT_FALSE(is_dark());
}

TEST_F(settings_dialog_test, settings_that_cannot_be_written_are_said) {
  QFile file(path("zugrid"));  // where the folder would be
  file.open(QIODevice::WriteOnly);
  file.close();
  settings_dialog dialog;
  dialog.show();
  dialog.accept();
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(
      find<QLabel>(dialog, "settings_file")->text().contains(QStringLiteral("settings.xml")));
}

}  // namespace
}  // namespace zu::desktop
