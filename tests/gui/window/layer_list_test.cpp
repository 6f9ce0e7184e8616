#include "host/desktop/window/layer_list.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>

#include "tests/gui/window/window_fixture.h"

namespace zu::desktop {

class layer_list_test : public main_window_test {
 protected:
  void SetUp() override {
    main_window_test::SetUp();
    window_->open_paths({grid("a.asc"), grid("b.asc"), grid("c.asc")});
    list().setFocus();
  }

  QTreeWidgetItem* row(int index) { return list().topLevelItem(index); }

  void click(QTreeWidgetItem* item) {
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualItemRect(item).center());
  }

  void double_click(QTreeWidgetItem* item) {
    click(item);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, list().visualItemRect(item).center());
  }

  void type_name(const QString& name) {
    QTest::keyClick(&list(), Qt::Key_F2);
    auto* editor = list().findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, name);
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
  }

  /// Drops the current row at a point of another one: above its middle, or below.
  void drop(QTreeWidgetItem* target, bool below) {
    QRect rect = list().visualItemRect(target);
    QPointF at(rect.center().x(), below ? rect.bottom() - 1 : rect.top() + 1);
    std::unique_ptr<QMimeData> data(list().model()->mimeData({list().currentIndex()}));
    QDropEvent event(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    // Qt gives a list its drops only after a drag from that list, which needs a real screen.
    struct reached : layer_list {
      using layer_list::dropEvent;
    };
    (list().*&reached::dropEvent)(&event);
  }

  static QStringList names(const char* spaced) {
    return QString::fromLatin1(spaced).split(QLatin1Char(' '));
  }
};

TEST_F(layer_list_test, shows_the_uppermost_layer_first_with_its_legend) {
  EXPECT_EQ(captions(), names("c.asc b.asc a.asc"));
  EXPECT_GE(row(0)->childCount(), 10);
  // Classes of equal width from 1 to 12, the highest first.
  EXPECT_TRUE(row(0)->child(0)->text(0).contains(QLatin1String("12")))
      << row(0)->child(0)->text(0).toStdString();
}

TEST_F(layer_list_test, a_check_box_hides_and_shows_a_layer) {
  row(1)->setCheckState(0, Qt::Unchecked);
  EXPECT_FALSE(content().scene().layers[1].shown->is_visible());
  EXPECT_EQ(content().undo_name(), QStringLiteral("Hide the layer"));
  actions().edit_undo->trigger();
  EXPECT_TRUE(content().scene().layers[1].shown->is_visible());
  EXPECT_EQ(row(1)->checkState(0), Qt::Checked);
}

TEST_F(layer_list_test, the_menu_of_a_layer_hides_it_too) {
  click(row(0));
  EXPECT_TRUE(actions().layer_visible->isChecked());
  actions().layer_visible->trigger();
  EXPECT_FALSE(content().scene().layers[2].shown->is_visible());
  actions().edit_undo->trigger();
  EXPECT_TRUE(actions().layer_visible->isChecked());
}

TEST_F(layer_list_test, space_toggles_the_current_layer) {
  click(row(2));
  QTest::keyClick(&list(), Qt::Key_Space);
  EXPECT_FALSE(content().scene().layers[0].shown->is_visible());
}

TEST_F(layer_list_test, the_row_that_is_clicked_is_the_active_layer) {
  click(row(2));
  EXPECT_EQ(content().active_layer(), content().scene().layers[0].shown);
}

TEST_F(layer_list_test, f2_renames_and_an_empty_name_is_refused) {
  click(row(0));
  type_name(QStringLiteral("Relief"));
  EXPECT_EQ(content().scene().layers[2].caption(), "Relief");
  type_name(QStringLiteral("  "));
  EXPECT_EQ(row(0)->text(0), QStringLiteral("Relief"));
  actions().edit_undo->trigger();
  EXPECT_EQ(row(0)->text(0), QStringLiteral("c.asc"));
}

TEST_F(layer_list_test, delete_removes_a_layer_and_undo_brings_it_back_in_its_place) {
  click(row(1));
  QTest::keyClick(&list(), Qt::Key_Delete);
  EXPECT_EQ(captions(), names("c.asc a.asc"));
  EXPECT_NE(content().active_layer(), nullptr);
  actions().edit_undo->trigger();
  EXPECT_EQ(captions(), names("c.asc b.asc a.asc"));
  actions().edit_redo->trigger();
  EXPECT_EQ(captions(), names("c.asc a.asc"));
}

TEST_F(layer_list_test, delete_in_a_name_being_typed_removes_no_layer) {
  click(row(0));
  QTest::keyClick(&list(), Qt::Key_F2);
  auto* editor = list().findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  QTest::keyClick(editor, Qt::Key_Delete);
  EXPECT_EQ(captions().size(), 3);
}

TEST_F(layer_list_test, dragging_reorders) {
  struct {
    int from, to;
    bool below;
    const char* order;
  } cases[] = {
      {0, 2, true, "b.asc a.asc c.asc"},  {0, 1, true, "b.asc c.asc a.asc"},
      {0, 1, false, "c.asc b.asc a.asc"}, {2, 0, false, "a.asc c.asc b.asc"},
      {2, 1, false, "c.asc a.asc b.asc"}, {1, 1, true, "c.asc b.asc a.asc"},
  };
  for (const auto& each : cases) {
    for (int i = 0; i < 3; ++i) row(i)->setExpanded(false);
    list().setCurrentItem(row(each.from));
    drop(row(each.to), each.below);
    EXPECT_EQ(captions().join(QLatin1Char(' ')).toStdString(), each.order)
        << each.from << " to " << each.to;
    if (captions() != names("c.asc b.asc a.asc")) actions().edit_undo->trigger();
  }
}

TEST_F(layer_list_test, the_order_of_rows_is_the_order_of_drawing) {
  list().setCurrentItem(row(0));
  QTest::keyClick(&list(), Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(captions(), names("b.asc c.asc a.asc"));
  const auto& drawn = content().scene().content->layers();
  EXPECT_EQ(drawn[2]->caption(), "b.asc");
  QTest::keyClick(&list(), Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(captions(), names("c.asc b.asc a.asc"));
  EXPECT_FALSE(actions().layer_up->isEnabled());
}

TEST_F(layer_list_test, a_folded_layer_stays_folded) {
  row(1)->setExpanded(false);
  list().setCurrentItem(row(0));
  QTest::keyClick(&list(), Qt::Key_Delete);
  EXPECT_FALSE(row(0)->isExpanded());
  EXPECT_TRUE(row(1)->isExpanded());
}

TEST_F(layer_list_test, double_click_zooms_to_the_layer) {
  window_->open_paths({grid("far.asc", 100000)});
  window_->views().current().zoom_to({0, 0, 10, 10});
  double_click(row(0));
  Tzu_box_d2 box = *window_->views().current().box();
  EXPECT_GT(box.x0, 90000);
  EXPECT_LE(box.x0, 100000);
}

TEST_F(layer_list_test, a_missing_source_is_marked_and_another_one_chosen) {
  answers_.save_as = path("mine.zgp");
  actions().file_save->trigger();
  ASSERT_TRUE(QFile::rename(path("b.asc"), path("moved.asc")));
  window_->open_paths({path("mine.zgp")});
  EXPECT_FALSE(row(1)->icon(0).isNull());
  EXPECT_TRUE(row(1)->font(0).italic());
  EXPECT_TRUE(row(1)->toolTip(0).contains(QLatin1String("missing")));
  EXPECT_TRUE(row(0)->icon(0).isNull());

  answers_.source = path("nowhere.asc");
  list().setCurrentItem(row(1));
  actions().layer_source->trigger();
  EXPECT_EQ(messages().size(), 1);
  EXPECT_TRUE(row(1)->font(0).italic());

  answers_.source = path("moved.asc");
  double_click(row(1));
  EXPECT_TRUE(row(1)->icon(0).isNull()) << row(1)->toolTip(0).toStdString();
  EXPECT_FALSE(row(1)->font(0).italic());
  EXPECT_FALSE(content().scene().layers[1].shown->is_missing());
  EXPECT_EQ(row(1)->text(0), QStringLiteral("moved.asc"));
}

TEST_F(layer_list_test, a_file_that_cannot_be_read_to_its_end_is_marked) {
  QFile file(path("cut.asc"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("ncols 4\nnrows 3\nxllcorner 0\nyllcorner 0\ncellsize 100\n1 2 3 4\n5");
  file.close();
  window_->open_paths({path("cut.asc")});
  EXPECT_EQ(captions()[0], QStringLiteral("cut.asc"));
  window_->wait_until_drawn(20000);
  EXPECT_FALSE(row(0)->icon(0).isNull());
  EXPECT_TRUE(row(1)->icon(0).isNull());
}

TEST_F(layer_list_test, a_layer_without_a_projection_in_a_scene_with_one_is_marked) {
  EXPECT_TRUE(row(0)->icon(0).isNull());
  content().set_projection(QStringLiteral("EPSG:32637"));
  EXPECT_FALSE(row(0)->icon(0).isNull());
  EXPECT_TRUE(row(0)->toolTip(0).contains(QLatin1String("no projection")));
}

TEST_F(layer_list_test, a_layer_of_an_unknown_type_is_kept_and_said) {
  answers_.save_as = path("mine.zgp");
  actions().file_save->trigger();
  QFile file(path("mine.zgp"));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  QByteArray text = file.readAll();
  text.replace("</scene>", "<layer type=\"alien\" caption=\"X\" source=\"x.y\"/></scene>");
  file.resize(0);
  file.seek(0);
  file.write(text);
  file.close();
  window_->open_paths({path("mine.zgp")});
  EXPECT_EQ(captions(), names("X c.asc b.asc a.asc"));
  EXPECT_TRUE(row(0)->toolTip(0).contains(QLatin1String("alien")));
  list().setCurrentItem(row(0));
  EXPECT_EQ(content().active_layer(), nullptr);
  EXPECT_FALSE(actions().layer_rename->isEnabled());
  EXPECT_TRUE(actions().layer_remove->isEnabled());
}

TEST_F(layer_list_test, each_scene_keeps_its_active_layer) {
  click(row(1));
  actions().scene_add->trigger();
  EXPECT_EQ(content().active_layer(), nullptr);
  content().set_active_scene(0);
  EXPECT_EQ(content().active_layer(), content().scene().layers[1].shown);
  EXPECT_EQ(list().currentItem(), row(1));
}

}  // namespace zu::desktop
