#include "host/desktop/dialogs/export_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "tests/gui/dialogs/dialog_fixture.h"

namespace zu::desktop {
namespace {

class export_dialog_test : public dialog_test {
 protected:
  export_dialog_test() {
    seen_.picture.nx = 800;
    seen_.picture.ny = 400;
    seen_.picture.extent = Tzu_box_d2{0, 0, 20, 10};
    seen_.picture.background = Tzu_color{255, 255, 255, 0};
  }
  void SetUp() override {
    dialog_ = std::make_unique<export_dialog>(seen_, QStringLiteral("map"));
    dialog_->may_replace = [this](const QString&) {
      ++asked_;
      return replaces_;
    };
    dialog_->show();
  }
  QLineEdit& file() { return *find<QLineEdit>(*dialog_, "export_path"); }
  QComboBox& format() { return *find<QComboBox>(*dialog_, "export_format"); }
  QSpinBox& width() { return *find<QSpinBox>(*dialog_, "export_width"); }
  QSpinBox& height() { return *find<QSpinBox>(*dialog_, "export_height"); }
  QString problem() { return find<QLabel>(*dialog_, "export_problem")->text(); }
  bool can_accept() {
    return dialog_->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled();
  }
  void choose_format(int index) {
    format().setFocus();
    while (format().currentIndex() < index) QTest::keyClick(&format(), Qt::Key_Down);
  }

  host::page_request seen_;
  int asked_ = 0;
  bool replaces_ = true;
  std::unique_ptr<export_dialog> dialog_;
};

TEST_F(export_dialog_test, the_picture_on_screen_is_proposed) {
  grab(*dialog_, "export");
  export_request made = dialog_->request();
  EXPECT_TRUE(made.path.endsWith(QStringLiteral("/map.png")));
  EXPECT_EQ(made.page.picture.nx, 800u);
  EXPECT_EQ(made.page.picture.ny, 400u);
  EXPECT_EQ(made.page.picture.extent->x1, 20);
  EXPECT_EQ(made.page.picture.background->r, 255);
  EXPECT_EQ(made.page.picture.kind, host::page_kind::screen);
  EXPECT_FALSE(made.page.legend);
}

TEST_F(export_dialog_test, format_and_ending_follow_each_other) {
  choose_format(2);
  EXPECT_TRUE(file().text().endsWith(QStringLiteral("map.pdf")));
  EXPECT_EQ(dialog_->request().page.picture.kind, host::page_kind::pdf);
  file().setText(path("other.TIF"));
  EXPECT_EQ(format().currentText(), QStringLiteral("GeoTIFF"));
  find<QCheckBox>(*dialog_, "export_accurate")->click();
  EXPECT_EQ(dialog_->request().page.picture.kind, host::page_kind::print);
}

TEST_F(export_dialog_test, sides_keep_the_shape_until_let_go) {
  width().setValue(1600);
  EXPECT_EQ(height().value(), 800);
  height().setValue(100);
  EXPECT_EQ(width().value(), 200);
  find<QCheckBox>(*dialog_, "export_keep_shape")->click();
  width().setValue(300);
  EXPECT_EQ(height().value(), 100);
}

TEST_F(export_dialog_test, paper_is_told_in_millimetres) {
  width().setValue(1000);
  find<QDoubleSpinBox>(*dialog_, "export_dots")->setValue(254);
  EXPECT_EQ(find<QLabel>(*dialog_, "export_paper")->text(), QStringLiteral("100 × 50 mm"));
}

TEST_F(export_dialog_test, a_sheet_of_paper_gives_the_size_at_each_resolution) {
  auto& sheet = *find<QComboBox>(*dialog_, "export_sheet");
  auto choose = [&](int index) {
    sheet.setFocus();
    while (sheet.currentIndex() != index)
      QTest::keyClick(&sheet, index > sheet.currentIndex() ? Qt::Key_Down : Qt::Key_Up);
  };
  auto& dots = *find<QDoubleSpinBox>(*dialog_, "export_dots");
  auto& keep_shape = *find<QCheckBox>(*dialog_, "export_keep_shape");
  dots.setValue(254);
  EXPECT_EQ(width().value(), 800);
  choose(1);  // A4 on its side
  EXPECT_EQ(width().value(), 2970);
  EXPECT_EQ(height().value(), 2100);
  EXPECT_FALSE(keep_shape.isChecked());
  EXPECT_EQ(find<QLabel>(*dialog_, "export_paper")->text(), QStringLiteral("297 × 210 mm"));
  dots.setValue(127);
  EXPECT_EQ(width().value(), 1485);
  choose(2);  // upright
  EXPECT_EQ(width().value(), 1050);
  EXPECT_EQ(height().value(), 1485);
  height().setValue(1000);  // by hand: no sheet any more
  EXPECT_EQ(sheet.currentIndex(), 0);
  EXPECT_EQ(width().value(), 1050);
  dots.setValue(200);
  EXPECT_EQ(width().value(), 1050);
  choose(1);
  choose(0);
  EXPECT_EQ(width().value(), 800);
  EXPECT_EQ(height().value(), 400);
  EXPECT_TRUE(keep_shape.isChecked());
}

TEST_F(export_dialog_test, extent_legend_and_background_are_taken) {
  find<QRadioButton>(*dialog_, "export_all_layers")->click();
  find<QComboBox>(*dialog_, "export_legend")->setCurrentIndex(2);
  find<QCheckBox>(*dialog_, "export_transparent")->click();
  host::page_request made = dialog_->request().page;
  EXPECT_FALSE(made.picture.extent);
  EXPECT_FALSE(made.picture.background);
  EXPECT_EQ(made.legend, host::corner::top_right);
}

TEST_F(export_dialog_test, what_cannot_be_written_is_said_and_not_accepted) {
  struct bad_name {
    QString path;
    const char* part;
  };
  const bad_name cases[] = {{QString(), "no name"},
                            {path("map.jpg"), "must end in"},
                            {path("nowhere/map.png"), "no folder"}};
  for (const bad_name& each : cases) {
    file().setText(each.path);
    EXPECT_TRUE(problem().contains(QString::fromUtf8(each.part))) << problem().toStdString();
    EXPECT_FALSE(can_accept());
    dialog_->accept();
    EXPECT_TRUE(dialog_->isVisible());
  }
  file().setText(path("map.png"));
  EXPECT_EQ(problem(), QString());
  EXPECT_TRUE(can_accept());
}

TEST_F(export_dialog_test, a_file_that_stands_there_is_asked_about) {
  QFile(path("map.png")).open(QIODevice::WriteOnly);
  file().setText(path("map.png"));
  replaces_ = false;
  dialog_->accept();
  EXPECT_EQ(asked_, 1);
  EXPECT_TRUE(dialog_->isVisible());
  replaces_ = true;
  dialog_->accept();
  EXPECT_EQ(dialog_->result(), QDialog::Accepted);
}

TEST_F(export_dialog_test, the_tab_key_goes_from_the_top_down) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
  find<QCheckBox>(*dialog_, "export_transparent")->setChecked(false);
  file().setFocus();
  QPoint before;
  int visited = 0;
  for (QWidget* now = &file(); now->objectName() != QStringLiteral("export_color"); ++visited) {
    ASSERT_LT(visited, 20);
    QTest::keyClick(now, Qt::Key_Tab);
    now = dialog_->focusWidget();
    QPoint place = now->mapTo(dialog_.get(), now->rect().center());
    bool lower = place.y() > before.y() + 8, same_row = std::abs(place.y() - before.y()) <= 8;
    EXPECT_TRUE(lower || (same_row && place.x() > before.x())) << now->objectName().toStdString();
    before = place;
  }
  EXPECT_GE(visited, 10);
}

TEST_F(export_dialog_test, folder_and_format_are_remembered) {
  QDir(folder_.path()).mkdir(QStringLiteral("pictures"));
  file().setText(path("pictures/a.svg"));
  dialog_->accept();
  export_dialog next(seen_, QStringLiteral("b"));
  EXPECT_EQ(find<QLineEdit>(next, "export_path")->text(), path("pictures/b.svg"));
}

}  // namespace
}  // namespace zu::desktop
