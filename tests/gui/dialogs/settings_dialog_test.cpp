#include "host/desktop/dialogs/settings_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

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
    zu_options_set_style_libs_path(nullptr);
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
  QCoreApplication::processEvents();
  grab(dialog, "settings-dark-ru");
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

TEST_F(settings_dialog_test, units_of_coordinates_are_kept) {
  EXPECT_EQ(chosen_units(), host::coordinate_units::map);
  const std::pair<host::coordinate_units, const char*> cases[] = {
      {host::coordinate_units::degrees, "degrees"},
      {host::coordinate_units::dms, "dms"},
      {host::coordinate_units::map, "map"},
  };
  for (const auto& [units, name] : cases) {
    settings_dialog dialog;
    find<QComboBox>(dialog, "settings_units")->setCurrentIndex(static_cast<int>(units));
    dialog.accept();
    EXPECT_EQ(host::settings().get("units"), name);
    EXPECT_EQ(chosen_units(), units);
    settings_dialog next;
    EXPECT_EQ(find<QComboBox>(next, "settings_units")->currentIndex(), static_cast<int>(units));
  }
  host::settings().set("units", "furlongs");
  EXPECT_EQ(chosen_units(), host::coordinate_units::map);
}

TEST_F(settings_dialog_test, the_folder_of_style_libraries_is_kept_and_in_force) {
  const std::wstring own = zu_options_get_style_libs_path();
  settings_dialog dialog;
  auto& folder = *find<QLineEdit>(dialog, "settings_style_libraries");
  EXPECT_EQ(folder.text(), QString());
  QDir(path("")).mkdir(QStringLiteral("Стили"));
  folder.setText(path("Стили"));
  dialog.accept();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(QString::fromWCharArray(zu_options_get_style_libs_path()), path("Стили"));
  zu_options_set_style_libs_path(nullptr);
  apply_chosen();
  EXPECT_EQ(QString::fromWCharArray(zu_options_get_style_libs_path()), path("Стили"));
  settings_dialog next;
  auto& kept = *find<QLineEdit>(next, "settings_style_libraries");
  EXPECT_EQ(kept.text(), path("Стили"));
  kept.clear();
  next.accept();
  EXPECT_EQ(zu_options_get_style_libs_path(), own);
}

TEST_F(settings_dialog_test, a_folder_that_is_not_there_is_said_and_not_taken) {
  QFile file(path("file"));
  file.open(QIODevice::WriteOnly);
  file.close();
  settings_dialog dialog;
  dialog.show();
  auto& folder = *find<QLineEdit>(dialog, "settings_style_libraries");
  auto& problem = *find<QLabel>(dialog, "settings_style_libraries_problem");
  auto& ok = *find<QDialogButtonBox>(dialog, "settings_buttons")->button(QDialogButtonBox::Ok);
  EXPECT_FALSE(problem.isVisible());
  for (const QString& wrong : {path("nothing"), path("file"), QStringLiteral(".")}) {
    folder.selectAll();
    QTest::keyClicks(&folder, wrong);
    EXPECT_TRUE(problem.isVisible()) << wrong.toStdString();
    EXPECT_FALSE(ok.isEnabled()) << wrong.toStdString();
  }
  grab(dialog, "settings-no-folder");
  QTest::keyClick(&folder, Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
  folder.setText(path(""));
  EXPECT_FALSE(problem.isVisible());
  EXPECT_TRUE(ok.isEnabled());
}

TEST_F(settings_dialog_test, a_folder_can_be_chosen) {
  settings_dialog dialog;
  dialog.show();
  when_modal([this](QWidget& chooser) {
    auto* asked = qobject_cast<QFileDialog*>(&chooser);
    ASSERT_NE(asked, nullptr);
    EXPECT_EQ(asked->fileMode(), QFileDialog::Directory);
    asked->selectFile(path(""));
    static_cast<QDialog*>(asked)->accept();
  });
  QTest::mouseClick(find<QPushButton>(dialog, "settings_browse"), Qt::LeftButton);
  EXPECT_EQ(QDir(find<QLineEdit>(dialog, "settings_style_libraries")->text()),
            QDir(folder_.path()));
}

}  // namespace
}  // namespace zu::desktop
