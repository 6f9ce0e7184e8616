#include <QToolBar>

#include "host/desktop/window/info_window.h"
#include "tests/gui/window/window_fixture.h"

namespace zu::desktop {

/// A window whose maps have modes, which the second plug-in gives.
class map_modes_test : public testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_CONFIG_HOME", folder_.path().toUtf8());
    choose_language(language::english);
    window_ = std::make_unique<main_window>(services_, answers_.as_prompts());
    window_->resize(1000, 700);
    window_->show();
    window_->open_paths({grid("a.asc")});
    ASSERT_TRUE(window_->wait_until_drawn(20000));
  }
  QString grid(const char* name) {
    QFile file(folder_.filePath(QString::fromLatin1(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 100\n1 2\n3 4\n");
    return file.fileName();
  }
  tool_action* tool(const char* name) {
    return window_->views().current_modes().action(
        QStringLiteral("zu_common_plugin_viewer2d_panel_tool_") + QString::fromLatin1(name));
  }

  QTemporaryDir folder_;
  host::bundle services_{{"zuk_common.so"}};
  answers answers_;
  std::unique_ptr<main_window> window_;
};

TEST_F(map_modes_test, stand_in_a_tool_bar_and_one_of_them_is_in_force) {
  auto* bar = window_->findChild<QToolBar*>(QStringLiteral("bar_modes"));
  EXPECT_TRUE(bar->isVisible());
  ASSERT_NE(tool("zoom_in"), nullptr);
  EXPECT_TRUE(tool("zoom_pan")->isChecked());
  tool("zoom_in")->trigger();
  EXPECT_TRUE(tool("zoom_in")->isChecked());
  tool("zoom_pan")->trigger();
  EXPECT_FALSE(tool("zoom_in")->isChecked());
  EXPECT_TRUE(tool("zoom_pan")->isChecked());
}

TEST_F(map_modes_test, the_information_tool_and_the_modes_put_each_other_off) {
  QAction* info = window_->actions().info_tool;
  tool("zoom_in")->trigger();
  info->trigger();
  EXPECT_FALSE(tool("zoom_in")->isChecked());
  EXPECT_FALSE(tool("zoom_pan")->isChecked());
  map_view& map = window_->views().current();
  QTest::mouseClick(&map, Qt::LeftButton, {}, map.rect().center());
  EXPECT_EQ(window_->findChild<info_window*>()->topLevelItemCount(), 1);
  tool("zoom_in")->trigger();
  EXPECT_FALSE(info->isChecked());
  EXPECT_TRUE(tool("zoom_in")->isChecked());
  info->trigger();
  info->trigger();
  EXPECT_TRUE(tool("zoom_pan")->isChecked());
}

TEST_F(map_modes_test, each_scene_has_its_own) {
  tool("zoom_in")->trigger();
  window_->actions().scene_add->trigger();
  EXPECT_FALSE(tool("zoom_in")->isChecked());
  window_->content().set_active_scene(0);
  EXPECT_TRUE(tool("zoom_in")->isChecked());
  window_->content().remove_scene(1);
  EXPECT_TRUE(tool("zoom_in")->isChecked());
}

TEST_F(map_modes_test, follow_the_language) {
  QString english = tool("zoom_in")->text();
  window_->actions().language_russian->trigger();
  EXPECT_NE(tool("zoom_in")->text(), english);
  window_->actions().language_english->trigger();
  EXPECT_EQ(tool("zoom_in")->text(), english);
}

}  // namespace zu::desktop
