// The dialog of a person's own palettes, opened from the page of a scale.

#include <QAbstractItemView>
#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QToolBar>
#include <functional>

#include "host/desktop/realiser/outline_flat_view.h"
#include "host/desktop/words.h"
#include "tests/gui/window/window_fixture.h"
#include "zu/platform/zuk_msgs.h"
#include "zu/platform/zuk_palettes.h"

namespace zu::desktop {
namespace {

constexpr int patience = 20000;  // milliseconds

class user_palettes : public main_window_test {
 protected:
  void SetUp() override {
    main_window_test::SetUp();
    former_data_ = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", folder_.path().toUtf8());
    zu_clr_palettes_assign(former_.get(), zu_get_user_palettes());
    while (zu_clr_palettes_get_size(zu_get_user_palettes()) > 0)
      zu_clr_palettes_del(zu_get_user_palettes(), 0);
    QString source = qEnvironmentVariable("ZU_SOURCE_DIR", QStringLiteral("."));
    window_->resize(1100, 900);
    window_->open_paths({source + QStringLiteral("/samples/hills.tif")});
    ASSERT_TRUE(window_->wait_until_drawn(patience));
    auto* panel = window_->findChild<QDockWidget*>(
        QStringLiteral("panel_zu_grid_layer2d_plugin_style_editor"));
    ASSERT_NE(panel, nullptr);
    panel->raise();
    QCoreApplication::processEvents();
    for (auto* each : panel->findChildren<QToolBar*>())
      if (each->isVisible()) tools_ = each;
    ASSERT_NE(tools_, nullptr);
    Tzu_asking_hooks hooks{};
    hooks.color = [](Tzu_color* color, void*) {
      *color = {200, 30, 40, 0};
      return true;
    };
    zu_set_asking_hooks(&hooks);
  }
  void TearDown() override {
    zu_set_asking_hooks(nullptr);
    zu_clr_palettes_assign(zu_get_user_palettes(), former_.get());
    if (former_data_.isNull())
      qunsetenv("XDG_DATA_HOME");
    else
      qputenv("XDG_DATA_HOME", former_data_);
    main_window_test::TearDown();
  }

  static QAction* with_id(const QList<QAction*>& all, const QString& id) {
    for (QAction* each : all)
      if (each->objectName().startsWith(id)) return each;
    return nullptr;
  }
  /// The menu of palettes, as it is now.
  QMenu* palettes_menu() {
    QAction* styles = with_id(tools_->actions(), QStringLiteral("zu_common_scale_tool_style"));
    if (styles == nullptr) return nullptr;
    Q_EMIT styles->menu()->aboutToShow();
    QAction* palettes =
        with_id(styles->menu()->actions(), QStringLiteral("zu_common_style_tool_palettes"));
    if (palettes == nullptr) return nullptr;
    Q_EMIT palettes->menu()->aboutToShow();
    return palettes->menu();
  }
  /// Opens the dialog and runs `act` in it.
  void in_the_dialog(const std::function<void(QDialog&)>& act) {
    QMenu* menu = palettes_menu();
    ASSERT_NE(menu, nullptr);
    QAction* setting =
        with_id(menu->actions(), QStringLiteral("zu_common_style_tool_user_palettes_setting"));
    ASSERT_NE(setting, nullptr);
    bool shown = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer.stop();
      shown = true;
      act(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
    timer.start(1);
    setting->trigger();
    EXPECT_TRUE(shown);
  }
  static void press(QDialog& dialog, const char* id) {
    for (auto* bar : dialog.findChildren<QToolBar*>())
      if (QAction* found = with_id(bar->actions(), QString::fromUtf8(id))) {
        EXPECT_TRUE(found->isEnabled()) << id;
        EXPECT_FALSE(found->icon().isNull()) << id;
        return found->trigger();
      }
    ADD_FAILURE() << id;
  }
  static void import(QDialog& dialog, const char* id) {
    for (auto* bar : dialog.findChildren<QToolBar*>())
      if (QAction* menu = with_id(bar->actions(), QStringLiteral("zu_clr_palettes_tool_import"))) {
        Q_EMIT menu->menu()->aboutToShow();
        QAction* found = with_id(menu->menu()->actions(), QString::fromUtf8(id));
        ASSERT_NE(found, nullptr) << id;
        EXPECT_FALSE(found->icon().isNull()) << "a picture of the array";
        return found->trigger();
      }
    ADD_FAILURE() << id;
  }
  static QAbstractItemView* table(QDialog& dialog, int n) {
    QList<flat_view*> all = dialog.findChildren<flat_view*>();
    return n < all.size() ? all[n] : nullptr;
  }
  static void accept(QDialog& dialog) {
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    ASSERT_NE(buttons, nullptr);
    QTest::mouseClick(buttons->buttons().front(), Qt::LeftButton);
  }
  /// For a person to look at: $ZU_GRABS names a folder.
  static void grab(const QString& name, QWidget& shown) {
    QByteArray folder = qgetenv("ZU_GRABS");
    if (!folder.isEmpty()) shown.grab().save(QString::fromUtf8(folder) + QLatin1Char('/') + name);
  }

  struct ended {
    void operator()(Tzu_clr_palettes* list) const { zu_clr_palettes_destroy(list); }
  };
  std::unique_ptr<Tzu_clr_palettes, ended> former_{zu_clr_palettes_create()};
  QByteArray former_data_;
  QToolBar* tools_ = nullptr;
};

TEST_F(user_palettes, that_a_person_makes_stand_in_the_menu_and_in_their_file) {
  in_the_dialog([](QDialog& dialog) {
    grab(QStringLiteral("palettes_empty.png"), dialog);
    press(dialog, "zu_clr_palettes_tool_add");
    import(dialog, "zu_common_style_tool_height_depth_grad");
    press(dialog, "zu_clr_palettes_tool_add");
    press(dialog, "zu_clr_palettes_tool_add_color");
    ASSERT_EQ(table(dialog, 0)->model()->rowCount(), 2);
    EXPECT_EQ(table(dialog, 0)->model()->index(0, 0).data().toString(),
              QStringLiteral("User palette 1"));
    ASSERT_EQ(table(dialog, 1)->model()->rowCount(), 1);
    EXPECT_EQ(table(dialog, 1)->model()->index(0, 0).data().toString(),
              QStringLiteral("RGBA = {200, 30, 40, 255}"));
    QTest::mouseClick(
        table(dialog, 0)->viewport(), Qt::LeftButton, {},
        table(dialog, 0)->visualRect(table(dialog, 0)->model()->index(0, 0)).center());
    EXPECT_EQ(table(dialog, 1)->model()->rowCount(), 12);
    QCoreApplication::processEvents();
    grab(QStringLiteral("palettes_en.png"), dialog);
    choose_language(language::russian);
    QCoreApplication::processEvents();
    grab(QStringLiteral("palettes_ru.png"), dialog);
    choose_language(language::english);
    accept(dialog);
  });
  EXPECT_TRUE(QFile::exists(path("zugrid/user_palettes/user_palettes.clrs")));
  EXPECT_EQ(zu_clr_palettes_get_size(zu_get_user_palettes()), 2U);
}

TEST_F(user_palettes, that_are_not_accepted_are_forgotten) {
  in_the_dialog([](QDialog& dialog) {
    press(dialog, "zu_clr_palettes_tool_add");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_EQ(zu_clr_palettes_get_size(zu_get_user_palettes()), 0U);
  EXPECT_FALSE(QFile::exists(path("zugrid/user_palettes/user_palettes.clrs")));
}

}  // namespace
}  // namespace zu::desktop
