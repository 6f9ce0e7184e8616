// The page of a scale in the real window: its tools, its rows and their samples.

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <set>

#include "host/desktop/map/map_view.h"
#include "host/desktop/realiser/outline_flat_view.h"
#include "host/desktop/window/editor_docks.h"
#include "host/desktop/words.h"
#include "tests/gui/window/window_fixture.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::desktop {
namespace {

constexpr int patience = 20000;  // milliseconds
enum column { minimum, maximum, caption, is_shown, drawn, selected };

class scale_page : public main_window_test {
 protected:
  void SetUp() override {
    main_window_test::SetUp();
    QString source = qEnvironmentVariable("ZU_SOURCE_DIR", QStringLiteral("."));
    window_->resize(1100, 900);
    window_->open_paths({source + QStringLiteral("/samples/hills.tif")});
    ASSERT_TRUE(window_->wait_until_drawn(patience));
    panel_ = window_->findChild<QDockWidget*>(
        QStringLiteral("panel_zu_grid_layer2d_plugin_style_editor"));
    ASSERT_NE(panel_, nullptr);
    panel_->raise();
    QCoreApplication::processEvents();
    for (auto* each : panel_->findChildren<flat_view*>())
      if (each->isVisible()) rows_ = each;
    for (auto* each : panel_->findChildren<QToolBar*>())
      if (each->isVisible()) tools_ = each;
    ASSERT_NE(rows_, nullptr);
    ASSERT_NE(tools_, nullptr);
  }
  void TearDown() override {
    zu_set_asking_hooks(nullptr);
    main_window_test::TearDown();
  }

  QImage map() {
    EXPECT_TRUE(window_->wait_until_drawn(patience));
    return window_->views().current().grab().toImage();
  }
  QAction* tool(const char* id) {
    for (QAction* each : tools_->actions())
      if (each->objectName().startsWith(QString::fromUtf8(id))) return each;
    ADD_FAILURE() << id;
    return nullptr;
  }
  QAction* entry(QAction* menu, const char* text) {
    Q_EMIT menu->menu()->aboutToShow();
    for (QAction* each : menu->menu()->actions())
      if (each->text() == QString::fromUtf8(text)) return each;
    ADD_FAILURE() << text;
    return nullptr;
  }
  QModelIndex cell(int row, int column) { return rows_->model()->index(row, column); }
  void click(const QModelIndex& index, Qt::KeyboardModifiers keys = {}) {
    rows_->scrollTo(index);
    QTest::mouseClick(rows_->viewport(), Qt::LeftButton, keys, rows_->visualRect(index).center());
  }
  bool is_on(int row) { return cell(row, is_shown).data(Qt::CheckStateRole) == Qt::Checked; }
  void answer_colors() {
    Tzu_asking_hooks hooks{};
    hooks.color = [](Tzu_color* color, void*) {
      *color = {255, 0, 255, 0};
      return true;
    };
    zu_set_asking_hooks(&hooks);
  }
  QColor sample(int row) {
    QImage shown = rows_->viewport()->grab(rows_->visualRect(cell(row, drawn))).toImage();
    return shown.pixelColor(shown.width() / 2, shown.height() / 2);
  }
  /// For a person to look at: $ZU_GRABS names a folder.
  void grab(const QString& name, QWidget* shown) {
    QByteArray folder = qgetenv("ZU_GRABS");
    if (!folder.isEmpty()) shown->grab().save(QString::fromUtf8(folder) + QLatin1Char('/') + name);
  }

  QDockWidget* panel_ = nullptr;
  flat_view* rows_ = nullptr;
  QToolBar* tools_ = nullptr;
};

TEST_F(scale_page, shows_a_grid_s_classes_between_two_tails) {
  EXPECT_EQ(rows_->model()->rowCount(), 12);
  EXPECT_EQ(cell(0, minimum).data().toString(), QString::fromUtf8("-∞"));
  EXPECT_EQ(cell(11, maximum).data().toString(), QString::fromUtf8("+∞"));
  for (language each : {language::english, language::russian}) {
    choose_language(each);
    QCoreApplication::processEvents();
    grab(each == language::english ? QStringLiteral("page_en.png") : QStringLiteral("page_ru.png"),
         window_.get());
  }
  choose_language(language::english);
}

TEST_F(scale_page, names_its_columns_and_its_rows_in_full) {
  auto* header = rows_->findChild<QHeaderView*>(QStringLiteral("header"));
  ASSERT_NE(header, nullptr);
  for (int column : {minimum, maximum, is_shown, drawn, selected})
    EXPECT_GE(header->sectionSize(column), header->sectionSizeHint(column)) << column;
  EXPECT_EQ(cell(0, caption).data().toString(), QStringLiteral("up to 235"));
  EXPECT_EQ(cell(1, caption).data().toString(), QString::fromUtf8("235 – 319.5"));
  EXPECT_EQ(cell(11, caption).data().toString(), QStringLiteral("above 1080"));
}

TEST_F(scale_page, a_caption_of_a_person_s_own_stands_in_the_legend_too) {
  rows_->setFocus();
  rows_->setCurrentIndex(cell(1, caption));
  rows_->edit(cell(1, caption));
  auto* editor = rows_->viewport()->findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  editor->selectAll();
  QTest::keyClicks(editor, QStringLiteral("shore"));
  QTest::keyClick(editor, Qt::Key_Return);
  QCoreApplication::processEvents();
  map();
  const QTreeWidgetItem* layer = list().topLevelItem(0);
  ASSERT_EQ(layer->childCount(), 12);
  EXPECT_EQ(layer->child(10)->text(0), QStringLiteral("shore"));
  EXPECT_EQ(layer->child(11)->text(0), QStringLiteral("up to 235"));
}

TEST_F(scale_page, has_its_controls_in_line_below_each_other) {
  for (language each : {language::english, language::russian}) {
    choose_language(each);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    std::set<int> left;
    int seen = 0;
    for (auto* list : panel_->findChildren<QComboBox*>()) {
      if (!list->isVisible()) continue;
      ++seen;
      left.insert(list->mapTo(panel_, QPoint()).x());
    }
    EXPECT_EQ(seen, 3) << "method, kind of scale, field";
    EXPECT_EQ(left.size(), 1u);
  }
  choose_language(language::english);
}

TEST_F(scale_page, is_no_wider_than_its_dock) {
  window_->resizeDocks({panel_}, {300}, Qt::Horizontal);
  QCoreApplication::processEvents();
  grab(QStringLiteral("page_300.png"), panel_);
  EXPECT_LE(panel_->width(), 310);
  EXPECT_LE(rows_->mapTo(panel_, QPoint(rows_->width(), 0)).x(), panel_->width());
  EXPECT_GE(rows_->visualRect(cell(0, caption)).width(), 40);
  EXPECT_LE(rows_->visualRect(cell(0, selected)).right(), rows_->viewport()->width());
}

TEST_F(scale_page, a_gradient_recolours_the_map_and_is_a_step_of_undo) {
  QImage before = map();
  QAction* gradients = entry(tool("zu_common_scale_tool_style"), "Gradients");
  ASSERT_NE(gradients, nullptr);
  QAction* grays = entry(gradients, "White to gray");
  ASSERT_NE(grays, nullptr);
  EXPECT_FALSE(grays->icon().isNull());
  grab(QStringLiteral("gradients.png"), gradients->menu());
  grays->trigger();
  QImage after = map();
  EXPECT_NE(after, before);
  actions().edit_undo->trigger();
  EXPECT_EQ(map(), before);
}

TEST_F(scale_page, a_box_of_any_row_holds_for_the_chosen_rows) {
  click(cell(2, caption));
  click(cell(4, caption), Qt::ControlModifier);
  click(cell(6, is_shown));
  EXPECT_FALSE(is_on(2));
  EXPECT_FALSE(is_on(4));
  EXPECT_TRUE(is_on(6));
  EXPECT_EQ(rows_->selectionModel()->selectedRows().size(), 2);
}

TEST_F(scale_page, a_click_on_the_sample_of_a_chosen_row_recolours_all_that_are_chosen) {
  answer_colors();
  click(cell(2, caption));
  click(cell(4, caption), Qt::ShiftModifier);
  click(cell(3, drawn));
  for (int row : {2, 3, 4}) EXPECT_EQ(sample(row), QColor(255, 0, 255)) << row;
  EXPECT_NE(sample(5), QColor(255, 0, 255));
  EXPECT_EQ(rows_->selectionModel()->selectedRows().size(), 3);
  click(cell(6, drawn));
  EXPECT_EQ(sample(6), QColor(255, 0, 255));
  EXPECT_EQ(rows_->selectionModel()->selectedRows().size(), 1);
}

TEST_F(scale_page, the_space_bar_edits_the_sample_that_is_current) {
  answer_colors();
  rows_->setFocus();
  rows_->setCurrentIndex(cell(3, drawn));
  QTest::keyClick(rows_, Qt::Key_Space);
  EXPECT_EQ(sample(3), QColor(255, 0, 255));
}

TEST_F(scale_page, rows_are_removed_and_classes_inserted_by_tools) {
  click(cell(2, caption));
  click(cell(3, caption), Qt::ControlModifier);
  tool("zu_common_scale_tool_remove")->trigger();
  EXPECT_EQ(rows_->model()->rowCount(), 10);
  click(cell(3, caption));
  tool("zu_common_scale_tool_append")->trigger();
  EXPECT_EQ(rows_->model()->rowCount(), 11);
}

TEST_F(scale_page, a_limit_is_typed_into_its_cell) {
  rows_->setFocus();
  rows_->setCurrentIndex(cell(2, maximum));
  rows_->edit(cell(2, maximum));
  auto* editor = rows_->viewport()->findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(editor, QStringLiteral("12,5"));
  QTest::keyClick(editor, Qt::Key_Return);
  QCoreApplication::processEvents();  // the key is the editor's first, and then the table's
  EXPECT_EQ(cell(2, maximum).data().toString(), QStringLiteral("12.5"));
}

}  // namespace
}  // namespace zu::desktop
