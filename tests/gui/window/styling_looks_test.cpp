// Everything that styles a layer, in both languages, light and dark: nothing is cut off.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "host/desktop/map/map_view.h"
#include "host/desktop/map/viewer_builders.h"
#include "host/desktop/realiser/modal_runner.h"
#include "tests/gui/window/window_fixture.h"
#include "tests/unit/src/made_pgrid.h"

namespace zu::desktop {
namespace {

constexpr int patience = 20000;  // milliseconds

struct look_and_speech {
  const char* name;
  appearance look;
  language speech;
};

std::string said(const QWidget* at, const QString& what) {
  QString name = at->objectName();
  for (const QWidget* up = at->parentWidget(); up != nullptr && !up->isWindow();
       up = up->parentWidget())
    if (!up->objectName().isEmpty()) name = up->objectName() + QLatin1Char('/') + name;
  return (name + QStringLiteral(": ") + what).toStdString();
}

/// Controls whose texts are wider than they are, and what scrolls sidewards.
std::vector<std::string> cut_off(const QWidget* in) {
  std::vector<std::string> found;
  auto look = [&](const QWidget* control, const QString& what, int wanted) {
    if (control->isVisible() && control->width() < wanted) found.push_back(said(control, what));
  };
  for (auto* label : in->findChildren<QLabel*>())
    if (!label->wordWrap()) look(label, label->text(), label->sizeHint().width());
  for (auto* button : in->findChildren<QAbstractButton*>())
    if (!button->text().isEmpty()) look(button, button->text(), button->sizeHint().width());
  for (auto* list : in->findChildren<QComboBox*>())
    look(list, list->currentText(), list->minimumSizeHint().width());
  for (auto* bar : in->findChildren<QScrollBar*>())
    if (bar->orientation() == Qt::Horizontal && bar->isVisible() && bar->maximum() > 0)
      found.push_back(said(bar, QStringLiteral("scrolls")));
  return found;
}

class styling_looks : public main_window_test, public testing::WithParamInterface<look_and_speech> {
 protected:
  void SetUp() override {
    serve_viewers(&services_);
    main_window_test::SetUp();
    choose_appearance(GetParam().look);
    choose_language(GetParam().speech);
    former_data_ = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", folder_.path().toUtf8());
    services_.set_dialog_runners([this](const std::wstring& id) {
      auto& runner = runners_[id];
      if (!runner) runner = std::make_unique<modal_runner>(QString::fromStdWString(id));
      return runner->runner();
    });
    window_->resize(1366, 768);
  }
  void TearDown() override {
    services_.set_dialog_runners({});
    serve_viewers(nullptr);
    choose_appearance(appearance::light);
    if (former_data_.isNull())
      qunsetenv("XDG_DATA_HOME");
    else
      qputenv("XDG_DATA_HOME", former_data_);
    main_window_test::TearDown();
  }

  void open(const QString& file) {
    window_->open_paths({file});
    ASSERT_TRUE(window_->wait_until_drawn(patience));
  }
  static QString sample(const char* name) {
    return qEnvironmentVariable("ZU_SOURCE_DIR", QStringLiteral(".")) +
           QStringLiteral("/samples/") + QString::fromUtf8(name);
  }
  QDockWidget* raise(const char* id) {
    auto* found =
        window_->findChild<QDockWidget*>(QStringLiteral("panel_") + QString::fromUtf8(id));
    EXPECT_NE(found, nullptr) << id;
    if (found == nullptr) return nullptr;
    EXPECT_FALSE(found->isHidden()) << id;
    found->raise();
    QCoreApplication::processEvents();
    return found;
  }
  /// Nothing of a panel or a dialog is cut off; $ZU_GRABS names a folder for its picture.
  static void look_at(const std::string& name, QWidget* shown) {
    for (auto* map : shown->findChildren<map_view*>())
      EXPECT_TRUE(QTest::qWaitFor([&] { return !map->isVisible() || map->is_up_to_date(); }));
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();  // what the last one put off
    EXPECT_EQ(cut_off(shown), std::vector<std::string>()) << name;
    QByteArray folder = qgetenv("ZU_GRABS");
    if (!folder.isEmpty())
      shown->grab().save(QString::fromStdString(folder.toStdString() + "/" + name + "_" +
                                                GetParam().name + ".png"));
  }
  /// Each page of each group of tabs, the others as they are.
  static void look_at_pages(const std::string& name, QWidget* shown) {
    for (auto* tabs : shown->findChildren<QTabWidget*>())
      for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        look_at(name + "_" + std::to_string(tabs->count()) + std::to_string(i), shown);
      }
  }
  /// Runs what opens a dialog, and `act` on it; it is left by Escape.
  static void in_the_dialog(const std::function<void()>& opens,
                            const std::function<void(QDialog*)>& act) {
    bool shown = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer.stop();
      shown = true;
      QCoreApplication::processEvents();
      act(dialog);
      dialog->reject();
    });
    timer.start(1);
    opens();
    EXPECT_TRUE(shown);
  }
  static void choose(QWidget* in, int list, int item) {
    QList<QComboBox*> all;
    for (auto* each : in->findChildren<QComboBox*>())
      if (each->isVisible()) all += each;
    ASSERT_LT(list, all.size());
    all[list]->setCurrentIndex(item);
    Q_EMIT all[list]->activated(item);
    QCoreApplication::processEvents();
  }
  static QAction* tool(QWidget* in, const char* id) {
    for (auto* bar : in->findChildren<QToolBar*>())
      for (QAction* each : bar->actions())
        if (bar->isVisible() && each->objectName().startsWith(QString::fromUtf8(id))) return each;
    ADD_FAILURE() << id;
    return nullptr;
  }

  QByteArray former_data_;
  std::map<std::wstring, std::unique_ptr<modal_runner>> runners_;
};

constexpr char style_panel[] = "zu_grid_layer2d_plugin_style_editor";

TEST_P(styling_looks, of_the_style_page) {
  open(sample("hills.tif"));
  QDockWidget* panel = raise(style_panel);
  look_at("style_ranges", panel);
  for (auto [kind, name] :
       {std::pair(0, "style_single"), {1, "style_values"}, {2, "style_again"}}) {
    choose(panel, 1, kind);
    look_at(name, panel);
  }
  choose(panel, 0, 1);
  choose(panel, 1, 0);
  look_at("style_gray", panel);
  choose(panel, 0, 2);
  choose(panel, 1, 0);
  look_at("style_rgb", panel);
}

TEST_P(styling_looks, of_the_panels_of_relief_and_contours) {
  open(sample("hills.tif"));
  for (const char* id : {"zu_grid_layer2d_plugin_hillshade", "zu_grid_layer2d_plugin_isoline"}) {
    QDockWidget* panel = raise(id);
    look_at((std::string(id) + "_off"), panel);
    for (auto* box : panel->findChildren<QCheckBox*>())
      if (box->isVisible() && !box->isChecked()) {
        box->click();
        break;
      }
    QCoreApplication::processEvents();
    look_at(id, panel);
    for (auto* button : panel->findChildren<QPushButton*>())
      if (button->isVisible() && !button->text().isEmpty()) {
        in_the_dialog([&] { button->click(); },
                      [&](QDialog* dialog) { look_at_pages("dialog_line", dialog); });
        break;
      }
  }
  look_at("window", window_.get());
}

TEST_P(styling_looks, of_the_dialogs_of_classes) {
  open(sample("hills.tif"));
  QDockWidget* panel = raise(style_panel);
  QAction* settings = tool(panel, "zu_common_scale_tool_settings");
  in_the_dialog([&] { settings->trigger(); },
                [&](QDialog* dialog) {
                  QComboBox* methods = nullptr;
                  for (auto* each : dialog->findChildren<QComboBox*>())
                    if (each->isVisible() && each->count() == 6) methods = each;
                  ASSERT_NE(methods, nullptr);
                  tool(dialog, "zuk_histogramm_element_make_histogramm_tool")->trigger();
                  for (int i = 0; i < methods->count(); ++i) {
                    methods->setCurrentIndex(i);
                    Q_EMIT methods->activated(i);
                    QCoreApplication::processEvents();
                    look_at(("dialog_ranges" + std::to_string(i)), dialog);
                  }
                });
  choose(panel, 1, 1);
  in_the_dialog([&] { tool(panel, "zu_common_scale_tool_settings")->trigger(); },
                [&](QDialog* dialog) { look_at("dialog_values", dialog); });
  QAction* styles = tool(panel, "zu_common_scale_tool_style");
  Q_EMIT styles->menu()->aboutToShow();
  look_at("menu_styles", styles->menu());
  for (QAction* each : styles->menu()->actions()) {
    if (each->menu() == nullptr) continue;
    Q_EMIT each->menu()->aboutToShow();
    look_at(("menu_" + each->objectName().left(40).toStdString()), each->menu());
    for (QAction* inner : each->menu()->actions())
      if (inner->objectName().startsWith(
              QStringLiteral("zu_common_style_tool_user_palettes_setting")))
        in_the_dialog([&] { inner->trigger(); },
                      [&](QDialog* dialog) {
                        look_at("dialog_palettes_empty", dialog);
                        tool(dialog, "zu_clr_palettes_tool_add")->trigger();
                        QCoreApplication::processEvents();
                        look_at("dialog_palettes", dialog);
                      });
  }
}

TEST_P(styling_looks, of_slices) {
  tests::made_pgrid file("styling_looks_volume.pgrid");
  file.grid.type = zu_tos4_volume;
  file.grid.size[0] = 2, file.grid.size[1] = 1, file.grid.size[2] = 3;
  file.add(L"v", {1, 2, 3, 4, 5, 6});
  content().add_sources({QString::fromStdWString(file.close())}, host::open_as::grid);
  ASSERT_TRUE(window_->wait_until_drawn(patience));
  look_at("slices", raise("zu_grid_layer2d_plugin_slice_editor"));
}

TEST_P(styling_looks, of_profiles) {
  tests::made_pgrid file("styling_looks_profile.pgrid");
  file.grid.type = zu_tos4_profile;
  file.grid.size[0] = 4;
  file.add(L"first", {1, 2, 3, 2});
  file.add(L"second", {3, 1, 2, 4});
  open(QString::fromStdWString(file.close()));
  QDockWidget* panel = raise("zu_grid_layer2d_tos4_grid1d_style_editor");
  look_at("profile", panel);
  look_at("profile_window", window_.get());
}

INSTANTIATE_TEST_SUITE_P(
    all, styling_looks,
    testing::Values(look_and_speech{"light_en", appearance::light, language::english},
                    look_and_speech{"dark_ru", appearance::dark, language::russian}),
    [](const auto& way) { return way.param.name; });

}  // namespace
}  // namespace zu::desktop
