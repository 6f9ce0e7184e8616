// Colours of a layer from files of the program and of others, and into them.

#include <QFileInfo>

#include "tests/gui/window/window_fixture.h"

namespace zu::desktop {
namespace {

class layer_colors : public main_window_test {
 protected:
  void open_grid() {
    answers_.files = {grid("a.asc")};
    act("file_open");
  }
  QString written(const char* name, const QByteArray& text) {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return file.fileName();
  }
  QByteArray read(const QString& name) {
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }
  Tzu_rng_scale* ranges() {
    return zu_stl_mngr_get_rng_scale_ptr(content().active_layer()->style_manager());
  }
  QAction* action(const char* name) {
    return actions().findChild<QAction*>(QString::fromLatin1(name));
  }
  void act(const char* name) { action(name)->trigger(); }
};

TEST_F(layer_colors, a_table_of_gmt_colours_the_layer_and_undo_takes_it_back) {
  open_grid();
  const std::uint64_t before = zu_rng_scale_get_size(ranges());
  answers_.colors = written("two.cpt", "0 255/0/0 6 255/0/0\n6 0/0/255 12 0/0/255\n");
  act("layer_load_colors");
  ASSERT_EQ(zu_rng_scale_get_size(ranges()), 2u);
  EXPECT_EQ(zu_rng_scale_get_max(ranges(), 0), 6);
  act("edit_undo");
  EXPECT_EQ(zu_rng_scale_get_size(ranges()), before);
  act("edit_redo");
  EXPECT_EQ(zu_rng_scale_get_size(ranges()), 2u);
}
TEST_F(layer_colors, a_broken_table_is_told_and_changes_nothing) {
  open_grid();
  const std::uint64_t before = zu_rng_scale_get_size(ranges());
  answers_.colors = written("broken.cpt", "0 255/0\n");
  act("layer_load_colors");
  EXPECT_EQ(zu_rng_scale_get_size(ranges()), before);
  EXPECT_FALSE(action("edit_undo")->text().contains(QLatin1String("colours")));
  ASSERT_EQ(messages().size(), 1);
  EXPECT_TRUE(messages().front().contains(QLatin1String("broken.cpt")));
}
TEST_F(layer_colors, what_was_saved_as_a_scale_loads_again) {
  open_grid();
  answers_.colors = written("two.cpt", "0 255/0/0 6 255/0/0\n6 0/0/255 12 0/0/255\n");
  act("layer_load_colors");
  answers_.colors = path("saved._rg");
  act("layer_save_colors");
  ASSERT_TRUE(QFileInfo::exists(answers_.colors));
  act("edit_undo");
  act("layer_load_colors");
  EXPECT_EQ(zu_rng_scale_get_size(ranges()), 2u);
}
TEST_F(layer_colors, are_saved_as_a_table_of_gdal) {
  open_grid();
  answers_.colors = path("relief.txt");
  act("layer_save_colors");
  EXPECT_TRUE(read(answers_.colors).contains("nv"));
}
TEST_F(layer_colors, nothing_chosen_is_nothing_done) {
  open_grid();
  answers_.colors.clear();
  act("layer_load_colors");
  act("layer_save_colors");
  EXPECT_FALSE(action("edit_undo")->text().contains(QLatin1String("colours")));
}
TEST_F(layer_colors, apply_to_layers_alone) {
  EXPECT_FALSE(action("layer_load_colors")->isEnabled());
  EXPECT_FALSE(action("layer_save_colors")->isEnabled());
}

}  // namespace
}  // namespace zu::desktop
