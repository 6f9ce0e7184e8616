// The panels of a grid in the real window, worked as a person works them: the map follows each
// change, and undo takes it back in both.

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QFile>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>

#include "host/desktop/map/map_view.h"
#include "host/desktop/realiser/modal_runner.h"
#include "host/desktop/window/editor_docks.h"
#include "tests/gui/window/window_fixture.h"

namespace zu::desktop {
namespace {

constexpr int patience = 20000;  // milliseconds

class layer_panels : public main_window_test {
 protected:
  void SetUp() override {
    main_window_test::SetUp();
    QString source = qEnvironmentVariable("ZU_SOURCE_DIR", QStringLiteral("."));
    window_->open_paths({source + QStringLiteral("/samples/hills.tif")});
    ASSERT_TRUE(window_->wait_until_drawn(patience));
    shown_ = map();
  }

  QImage map() {
    EXPECT_TRUE(window_->wait_until_drawn(patience));
    return window_->views().current().grab().toImage();
  }
  /// The map is another now than it was at the last look.
  void expect_another_map() {
    QImage now = map();
    EXPECT_NE(now, shown_);
    shown_ = now;
  }
  /// Undo brings back what the map was at `before`; the step was one.
  void expect_undone_to(const QImage& before, bool steps_left = true) {
    actions().edit_undo->trigger();
    EXPECT_EQ(map(), before);
    EXPECT_EQ(content().can_undo(), steps_left);
    shown_ = before;
  }

  QDockWidget* dock(const char* id) {
    auto* found = window_->findChild<QDockWidget*>(
        QStringLiteral("panel_zu_grid_layer2d_plugin_%1").arg(QString::fromUtf8(id)));
    EXPECT_NE(found, nullptr) << id;
    return found;
  }
  QDockWidget* raise(const char* id) {
    QDockWidget* found = dock(id);
    found->raise();
    QCoreApplication::processEvents();
    return found;
  }
  /// The control that a label or its own caption names, among those that are seen.
  template <class widget> widget* control(QWidget* in, const char* caption) {
    const QList<widget*> all = in->findChildren<widget*>();
    for (widget* each : all) {
      QString name = each->accessibleName();
      if constexpr (std::is_base_of_v<QAbstractButton, widget>) name = each->text();
      if (name == QString::fromUtf8(caption) && each->isVisible()) return each;
    }
    ADD_FAILURE() << caption;
    return nullptr;
  }
  static void choose(QComboBox* list, const char* item) {
    int index = list->findText(QString::fromUtf8(item));
    ASSERT_GE(index, 0) << item;
    list->setFocus();
    list->setCurrentIndex(index);
    Q_EMIT list->activated(index);
  }
  static void type(QAbstractSpinBox* number, const char* text) {
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QString::fromUtf8(text));
    QTest::keyClick(number, Qt::Key_Return);
  }
  static void click(QCheckBox* box) {
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
  }
  /// The panel in front among the tabs.
  QString front() {
    for (const char* id : {"style_editor", "hillshade", "isoline"})
      if (!dock(id)->visibleRegion().isEmpty()) return QString::fromUtf8(id);
    return {};
  }
  /// For a person to look at: $ZU_GRABS names a folder.
  void grab(const QString& name) {
    QByteArray folder = qgetenv("ZU_GRABS");
    if (!folder.isEmpty())
      window_->grab().save(QString::fromUtf8(folder) + QLatin1Char('/') + name);
  }

  QImage shown_;
};

TEST_F(layer_panels, stand_at_the_right_with_the_style_in_front) {
  EXPECT_FALSE(dock("style_editor")->isHidden());
  EXPECT_FALSE(dock("hillshade")->isHidden());
  EXPECT_FALSE(dock("isoline")->isHidden());
  EXPECT_TRUE(dock("slice_editor")->isHidden()) << "of one slice";
  EXPECT_EQ(window_->dockWidgetArea(dock("style_editor")), Qt::RightDockWidgetArea);
  EXPECT_EQ(front(), QStringLiteral("style_editor"));
}

TEST_F(layer_panels, the_way_of_drawing_is_a_step_of_undo) {
  QDockWidget* panel = raise("style_editor");
  QImage by_scale = shown_;
  choose(control<QComboBox>(panel, "Method"), "Gray");
  EXPECT_EQ(content().undo_name(), QStringLiteral("Method"));
  expect_another_map();
  QImage gray = shown_;
  type(control<QAbstractSpinBox>(panel, "Minimum"), "500");
  expect_another_map();
  expect_undone_to(gray);
  expect_undone_to(by_scale);
  EXPECT_EQ(control<QComboBox>(panel, "Method")->currentText(), QStringLiteral("Scale"));
  actions().edit_redo->trigger();
  EXPECT_EQ(map(), gray);
  EXPECT_EQ(control<QComboBox>(panel, "Method")->currentText(), QStringLiteral("Gray"));
}

TEST_F(layer_panels, the_map_follows_the_slider_of_transparency_while_it_moves) {
  QDockWidget* panel = raise("style_editor");
  QImage before = shown_;
  auto* slider = control<QSlider>(panel, "Overall transparency, %");
  ASSERT_NE(slider, nullptr);
  slider->setSliderDown(true);
  slider->setValue(30);
  expect_another_map();
  slider->setValue(60);
  expect_another_map();
  slider->setSliderDown(false);
  EXPECT_EQ(control<QAbstractSpinBox>(panel, "Overall transparency, %")->text(),
            QStringLiteral("60"));
  expect_undone_to(before);
  EXPECT_EQ(control<QSlider>(panel, "Overall transparency, %")->value(), 0);
}

TEST_F(layer_panels, handles_of_the_histogram_are_dragged) {
  QDockWidget* panel = raise("style_editor");
  choose(control<QComboBox>(panel, "Method"), "Gray");
  shown_ = map();
  QImage before = shown_;
  const QList<QWidget*> all = panel->findChildren<QWidget*>(QStringLiteral("histogram"));
  auto seen = std::find_if(all.begin(), all.end(), [](QWidget* each) { return each->isVisible(); });
  ASSERT_NE(seen, all.end());
  QWidget* bars = *seen;
  QTest::mousePress(bars, Qt::LeftButton, {}, QPoint(6, bars->height() / 2));
  for (double share : {0.1, 0.2, 0.3})
    QTest::mouseMove(bars, QPoint(int(bars->width() * share), bars->height() / 2));
  QTest::mouseRelease(bars, Qt::LeftButton, {},
                      QPoint(int(bars->width() * 0.3), bars->height() / 2));
  expect_another_map();
  double low = control<QAbstractSpinBox>(panel, "Minimum")->property("text").toDouble();
  EXPECT_NEAR(low, 235 + 0.3 * (1080 - 235), 10);
  grab(QStringLiteral("panel_gray.png"));
  expect_undone_to(before);
  EXPECT_EQ(control<QAbstractSpinBox>(panel, "Minimum")->property("text").toDouble(), 235);
}

TEST_F(layer_panels, three_fields_make_a_picture) {
  QDockWidget* panel = raise("style_editor");
  choose(control<QComboBox>(panel, "Method"), "RGB");
  auto* tabs = panel->findChild<QTabBar*>();
  ASSERT_NE(tabs, nullptr);
  EXPECT_EQ(tabs->tabText(0), QStringLiteral("Red"));
  for (int tab : {0, 1, 2}) {
    tabs->setCurrentIndex(tab);
    EXPECT_EQ(control<QComboBox>(panel, "Classification field")->currentText(),
              QStringLiteral("height"))
        << "the only band";
    EXPECT_EQ(control<QAbstractSpinBox>(panel, "Minimum")->property("text").toDouble(), 235)
        << "cut to the data";
    EXPECT_EQ(control<QAbstractSpinBox>(panel, "Maximum")->property("text").toDouble(), 1080);
  }
  expect_another_map();
  grab(QStringLiteral("panel_rgb.png"));
}

TEST_F(layer_panels, bands_without_roles_are_red_green_and_blue_in_their_order) {
  QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("four.vrt")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("<VRTDataset rasterXSize=\"2\" rasterYSize=\"2\">");
  for (const char* band : {"a", "b", "c", "d"})
    file.write(QByteArray("<VRTRasterBand dataType=\"Float32\"><Description>") + band +
               "</Description></VRTRasterBand>");
  file.write("</VRTDataset>");
  file.close();
  window_->open_paths({file.fileName()});
  QDockWidget* panel = raise("style_editor");
  choose(control<QComboBox>(panel, "Method"), "RGB");
  auto* tabs = panel->findChild<QTabBar*>();
  ASSERT_NE(tabs, nullptr);
  for (int tab : {0, 1, 2}) {
    tabs->setCurrentIndex(tab);
    EXPECT_EQ(control<QComboBox>(panel, "Classification field")->currentText(),
              QStringLiteral("abc").mid(tab, 1));
  }
}

TEST_F(layer_panels, gray_begins_with_the_first_band_between_its_extremes) {
  QDockWidget* panel = raise("style_editor");
  QImage before = shown_;
  choose(control<QComboBox>(panel, "Method"), "Gray");
  EXPECT_EQ(control<QComboBox>(panel, "Classification field")->currentText(),
            QStringLiteral("height"));
  EXPECT_EQ(control<QAbstractSpinBox>(panel, "Minimum")->text(), QStringLiteral("235"));
  EXPECT_EQ(control<QAbstractSpinBox>(panel, "Maximum")->text(), QStringLiteral("1080"));
  expect_another_map();
  expect_undone_to(before);
}

TEST_F(layer_panels, a_picture_that_is_drawn_by_channels_begins_with_its_own_bands) {
  QString source = qEnvironmentVariable("ZU_SOURCE_DIR", QStringLiteral("."));
  window_->open_paths({source + QStringLiteral("/samples/photo.tif")});
  QDockWidget* panel = raise("style_editor");
  ASSERT_NE(control<QComboBox>(panel, "Method"), nullptr);
  EXPECT_EQ(control<QComboBox>(panel, "Method")->currentText(), QStringLiteral("Image"));
  choose(control<QComboBox>(panel, "Method"), "RGB");
  auto* tabs = panel->findChild<QTabBar*>();
  ASSERT_NE(tabs, nullptr);
  for (int tab : {0, 1, 2}) {
    tabs->setCurrentIndex(tab);
    EXPECT_EQ(control<QComboBox>(panel, "Classification field")->currentText(),
              QStringLiteral("Band %1").arg(tab + 1));
  }
}

TEST_F(layer_panels, a_relief_is_shaded) {
  QDockWidget* panel = raise("hillshade");
  QImage before = shown_;
  click(control<QCheckBox>(panel, "Use"));
  EXPECT_EQ(content().undo_name(), QStringLiteral("Use"));
  expect_another_map();
  QImage shaded = shown_;
  auto* azimuth = control<QSlider>(panel, "Azimuth");
  azimuth->setValue(100);
  expect_another_map();
  QImage turned = shown_;
  auto* blend = control<QSlider>(panel, "Blend");
  blend->setValue(90);
  expect_another_map();
  grab(QStringLiteral("panel_hillshade.png"));
  expect_undone_to(turned);
  expect_undone_to(shaded);
  EXPECT_EQ(control<QSlider>(panel, "Azimuth")->value(), 315);
  expect_undone_to(before);
  EXPECT_FALSE(control<QCheckBox>(panel, "Use")->isChecked());
  EXPECT_EQ(front(), QStringLiteral("hillshade")) << "stays";
}

TEST_F(layer_panels, isolines_are_drawn) {
  QDockWidget* panel = raise("isoline");
  QImage before = shown_;
  click(control<QCheckBox>(panel, "Use"));
  expect_another_map();
  QImage lines = shown_;
  type(control<QAbstractSpinBox>(panel, "Contour interval"), "50");
  expect_another_map();
  grab(QStringLiteral("panel_isoline.png"));
  expect_undone_to(lines);
  expect_undone_to(before);
  EXPECT_FALSE(control<QCheckBox>(panel, "Use")->isChecked());
}

TEST_F(layer_panels, the_one_in_front_stays_in_front_through_undo_and_redo) {
  choose(control<QComboBox>(raise("style_editor"), "Method"), "Gray");
  click(control<QCheckBox>(raise("hillshade"), "Use"));
  click(control<QCheckBox>(raise("isoline"), "Use"));
  for (const char* id : {"isoline", "hillshade", "style_editor"}) {
    raise(id);
    for (QAction* step : {actions().edit_undo, actions().edit_redo})
      for (int i = 0; i < 2; ++i) {
        step->trigger();
        QCoreApplication::processEvents();
        EXPECT_EQ(front().toStdString(), id) << step->text().toStdString();
      }
  }
}

TEST_F(layer_panels, the_one_in_front_comes_there_again_with_the_next_layer) {
  raise("isoline");
  actions().edit_undo->trigger();  // the opening
  ASSERT_TRUE(QTest::qWaitFor([&] { return dock("isoline")->isHidden(); }));
  actions().edit_redo->trigger();
  content().set_active_layer(content().scene().layers.back().shown);
  QCoreApplication::processEvents();
  EXPECT_EQ(front().toStdString(), "isoline");
}

TEST_F(layer_panels, stay_where_they_were_scrolled_through_undo) {
  QDockWidget* panel = raise("hillshade");
  click(control<QCheckBox>(panel, "Use"));
  window_->addDockWidget(Qt::BottomDockWidgetArea, panel);
  window_->resizeDocks({panel}, {100}, Qt::Vertical);
  QCoreApplication::processEvents();
  auto* area = qobject_cast<QScrollArea*>(panel->widget());
  ASSERT_GT(area->verticalScrollBar()->maximum(), 20);
  area->verticalScrollBar()->setValue(20);
  for (QAction* step : {actions().edit_undo, actions().edit_redo}) {
    step->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(area->verticalScrollBar()->value(), 20);
  }
}

TEST_F(layer_panels, keep_the_channel_in_front_through_undo) {
  QDockWidget* panel = raise("style_editor");
  choose(control<QComboBox>(panel, "Method"), "RGB");
  auto* tabs = panel->findChild<QTabBar*>();
  ASSERT_NE(tabs, nullptr);
  tabs->setCurrentIndex(2);
  choose(control<QComboBox>(panel, "Classification field"), "height");
  actions().edit_undo->trigger();
  EXPECT_EQ(tabs->currentIndex(), 2);
  actions().edit_redo->trigger();
  EXPECT_EQ(tabs->currentIndex(), 2);
}

TEST_F(layer_panels, a_click_on_the_sample_of_a_line_opens_its_dialog) {
  modal_runner runner(QStringLiteral("test"));
  services_.set_dialog_runners([&](const std::wstring&) { return runner.runner(); });
  QDockWidget* panel = raise("isoline");
  click(control<QCheckBox>(panel, "Use"));
  auto* link = control<QPushButton>(panel, "Contour style");
  ASSERT_NE(link, nullptr);
  ASSERT_FALSE(link->icon().isNull());
  EXPECT_GE(link->width(), link->sizeHint().width()) << "nothing is cut off";
  int opened = 0;
  for (int x : {4, link->sizeHint().width() - 10}) {
    QTimer::singleShot(0, link, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      ++opened;
      dialog->reject();
    });
    QTest::mouseClick(link, Qt::LeftButton, {}, QPoint(x, link->height() / 2));
  }
  services_.set_dialog_runners({});
  EXPECT_EQ(opened, 2) << "at the text and at the sample";
  grab(QStringLiteral("panel_isoline_links.png"));
}

TEST_F(layer_panels, are_as_wide_as_what_they_show) {
  window_->resize(1366, 768);
  for (const char* id : {"style_editor", "hillshade", "isoline"}) {
    QDockWidget* panel = raise(id);
    for (language speech : {language::english, language::russian}) {
      choose_language(speech);
      QCoreApplication::processEvents();
      map();
      grab(QStringLiteral("window_%1_%2.png")
               .arg(QString::fromUtf8(id))
               .arg(speech == language::english ? QStringLiteral("en") : QStringLiteral("ru")));
      auto* area = qobject_cast<QScrollArea*>(panel->widget());
      ASSERT_NE(area, nullptr);
      EXPECT_GE(area->viewport()->width(), area->widget()->minimumSizeHint().width()) << id;
    }
    choose_language(language::english);
  }
  EXPECT_GE(window_->views().width(), 700) << "the map keeps its room";
}

}  // namespace
}  // namespace zu::desktop
