// The dialogs that fill a scale from data, opened by the tool of a scale's page in the real window.

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolBar>
#include <algorithm>
#include <functional>

#include "host/desktop/map/map_view.h"
#include "host/desktop/realiser/modal_runner.h"
#include "host/desktop/realiser/outline_flat_view.h"
#include "host/desktop/window/editor_docks.h"
#include "tests/gui/window/window_fixture.h"

namespace zu::desktop {
namespace {

constexpr int patience = 20000;  // milliseconds

class scale_dialogs : public main_window_test {
 protected:
  void SetUp() override {
    main_window_test::SetUp();
    services_.set_dialog_runners([this](const std::wstring&) { return runner_.runner(); });
    QString source = qEnvironmentVariable("ZU_SOURCE_DIR", QStringLiteral("."));
    window_->resize(1100, 900);
    window_->open_paths({source + QStringLiteral("/samples/hills.tif")});
    ASSERT_TRUE(window_->wait_until_drawn(patience));
    auto* panel = window_->findChild<QDockWidget*>(
        QStringLiteral("panel_zu_grid_layer2d_plugin_style_editor"));
    ASSERT_NE(panel, nullptr);
    panel->raise();
    QCoreApplication::processEvents();
    for (auto* each : panel->findChildren<flat_view*>())
      if (each->isVisible()) rows_ = each;
    for (auto* each : panel->findChildren<QToolBar*>())
      if (each->isVisible()) tools_ = each;
    ASSERT_NE(rows_, nullptr);
    ASSERT_NE(tools_, nullptr);
  }
  void TearDown() override {
    services_.set_dialog_runners({});
    main_window_test::TearDown();
  }

  /// Opens the dialog by its tool; a person acts on it and leaves it by OK or Cancel.
  void settings(bool ok, const std::function<void(QDialog*)>& act) {
    bool shown = false;
    QTimer::singleShot(0, qApp, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      shown = true;
      act(dialog);
      auto* button = dialog->findChild<QPushButton*>(ok ? QStringLiteral("button_2")
                                                        : QStringLiteral("button_8"));
      if (button == nullptr) {
        ADD_FAILURE() << "no button";
        return dialog->reject();
      }
      QTest::mouseClick(button, Qt::LeftButton);
    });
    for (QAction* each : tools_->actions())
      if (each->objectName().startsWith(QStringLiteral("zu_common_scale_tool_settings")))
        each->trigger();
    EXPECT_TRUE(shown);
  }
  /// On the pages; the preview's tools have captions of their own.
  template <class widget> static widget* control(QWidget* in, const char* caption) {
    const QList<widget*> all = in->findChildren<widget*>();
    for (widget* each : all) {
      bool is_tool = qobject_cast<QToolBar*>(each->parentWidget()) != nullptr;
      if (!is_tool && each->isVisible() && each->accessibleName() == QString::fromUtf8(caption))
        return each;
    }
    ADD_FAILURE() << caption;
    return nullptr;
  }
  static void type(QAbstractSpinBox* number, const char* text) {
    ASSERT_NE(number, nullptr);
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QString::fromUtf8(text));
    QTest::keyClick(number, Qt::Key_Tab);
  }
  static QString typed(QAbstractSpinBox* number) {
    return number != nullptr ? number->text() : QString();
  }
  static void choose(QComboBox* list, const char* item) {
    ASSERT_NE(list, nullptr);
    int index = list->findText(QString::fromUtf8(item));
    ASSERT_GE(index, 0) << item;
    list->setFocus();
    list->setCurrentIndex(index);
    Q_EMIT list->activated(index);
  }
  /// For a person to look at: $ZU_GRABS names a folder.
  static void grab(const char* name, QWidget* shown) {
    QByteArray folder = qgetenv("ZU_GRABS");
    if (!folder.isEmpty()) shown->grab().save(QString::fromUtf8(folder + "/" + name));
  }
  int classes() { return rows_->model()->rowCount() - 2; }
  QImage map() {
    EXPECT_TRUE(window_->wait_until_drawn(patience));
    return window_->views().current().grab().toImage();
  }

  modal_runner runner_{QStringLiteral("test")};
  flat_view* rows_ = nullptr;
  QToolBar* tools_ = nullptr;
};

TEST_F(scale_dialogs, a_number_of_classes_and_ok_make_other_classes_on_the_map) {
  QImage before = map();
  ASSERT_EQ(classes(), 10);
  settings(true, [&](QDialog* dialog) {
    grab("range_dialog.png", dialog);
    auto* step = control<QAbstractSpinBox>(dialog, "Interval");
    EXPECT_EQ(typed(step), QStringLiteral("84.5"));
    type(control<QAbstractSpinBox>(dialog, "Number of ranges"), "5");
    EXPECT_EQ(typed(step), QStringLiteral("169")) << "the inputs are tied";
  });
  EXPECT_EQ(classes(), 5);
  EXPECT_NE(map(), before);
}

TEST_F(scale_dialogs, cancel_leaves_everything_as_it_was) {
  QImage before = map();
  auto counts_seen = [](QWidget* dialog) {
    QCoreApplication::processEvents();
    const QList<QAbstractSpinBox*> all = dialog->findChildren<QAbstractSpinBox*>();
    return std::count_if(all.begin(), all.end(), [](const QAbstractSpinBox* each) {
      return each->isVisible() && each->accessibleName() == QStringLiteral("Number of ranges");
    });
  };
  settings(false, [&](QDialog* dialog) {
    type(control<QAbstractSpinBox>(dialog, "Number of ranges"), "3");
    EXPECT_EQ(counts_seen(dialog), 1) << "on the page";
    choose(control<QComboBox>(dialog, "Classification method"), "Manual");
    EXPECT_EQ(counts_seen(dialog), 1) << "above the histogram";
    grab("manual_ranges.png", dialog);
  });
  EXPECT_EQ(classes(), 10);
  EXPECT_EQ(map(), before);
}

TEST_F(scale_dialogs, a_method_shows_its_own_inputs) {
  settings(true, [&](QDialog* dialog) {
    choose(control<QComboBox>(dialog, "Classification method"), "Natural breaks");
    QCoreApplication::processEvents();
    for (auto* each : dialog->findChildren<QAbstractSpinBox*>())
      EXPECT_FALSE(each->isVisible() && each->accessibleName() == QStringLiteral("Interval"));
    type(control<QAbstractSpinBox>(dialog, "Number of ranges"), "4");
    grab("natural_breaks.png", dialog);
  });
  EXPECT_EQ(classes(), 4);
}

}  // namespace
}  // namespace zu::desktop
