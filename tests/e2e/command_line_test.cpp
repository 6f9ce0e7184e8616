// The line that makes a picture again: written, run by a shell, and its picture compared.

#include "host/core/command_line.h"

#include "host/core/look_of.h"
#include "tests/e2e/program.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using zu::host::command_line;

class command_lines : public in_a_folder {
 protected:
  command_lines() {
    fs::path bin = fs::absolute(program_path()).parent_path();
    setenv("ZU_BUNDLE", (bin.parent_path() / "lib" / "zuk_grid_layer2d.so").c_str(), 0);
    setenv("PATH", (bin.string() + ":" + std::getenv("PATH")).c_str(), 1);
  }
  void SetUp() override {
    services_ = std::make_unique<zu::host::bundle>();
    content_ = std::make_unique<zu::host::project>(*services_);
    page_.picture.nx = 60;
    page_.picture.ny = 40;
  }
  zu::host::project_scene& scene() { return content_->scenes().front(); }
  zu::host::layer& add(const std::string& source) {
    zu::host::layer& added = *content_->add(scene(), source).back();
    zu::host::apply_look({}, added);
    return added;
  }
  std::string hills(const std::string& name = "hills.tif") {
    std::vector<double> values;
    for (int i = 0; i < 12 * 8; ++i) values.push_back((i % 12) * (i / 12) + 0.5);
    return floats(name, 12, 8, values);
  }
  command_line command(const std::string& project_path = {}) {
    return zu::host::command_of(*content_, scene(), page_, project_path);
  }
  /// The line's picture is the one that is seen.
  void expect_same(const command_line& made) {
    zu::host::save_picture(draw(*scene().content, page_), path("seen.png"), {});
    std::string shell = "cd '" + path("") + "' && " + made.line;
    EXPECT_EQ(std::system(shell.c_str()), 0) << made.line;
    EXPECT_EQ(picture(path("picture.png")).all(), picture(path("seen.png")).all()) << made.line;
  }
  /// Options can say it.
  void expect_said(const std::string& part) {
    command_line made = command();
    EXPECT_TRUE(made.lacks.empty()) << made.text();
    EXPECT_NE(made.line.find(part), std::string::npos) << made.line;
    expect_same(made);
  }

  std::unique_ptr<zu::host::bundle> services_;
  std::unique_ptr<zu::host::project> content_;
  zu::host::page_request page_;
};

TEST_F(command_lines, a_grid_as_it_opens_needs_no_options) {
  std::string source = hills();
  add(source);
  EXPECT_EQ(command().line, "zugrid render " + source + " -o picture.png --size 60x40");
  expect_same(command());
}

TEST_F(command_lines, the_window_is_the_one_seen) {
  add(hills());
  page_.picture.extent = Tzu_box_d2{-1.5, 0.1, 9.25, 7};
  page_.picture.background = Tzu_color{1, 2, 3, 0};
  page_.picture.dots_per_inch = 120;
  expect_said("--extent=-1.5,0.1,9.25,7 --dpi 120 --background '#010203'");
}

TEST_F(command_lines, classes_of_one_s_own_are_written) {
  zu::host::layer_look look;
  look.breaks = {-1.5, 10, 20.25};
  look.colors = {{1, 1, 1, 0}, {255, 0, 0, 0}, {0, 255, 0, 51}, {2, 2, 2, 0}};
  apply_look(look, add(hills()));
  expect_said("--breaks=-1.5,10,20.25 --colors '#010101,#ff0000,#00ff00cc,#020202'");
}

TEST_F(command_lines, hidden_tails_and_hidden_classes_stay_hidden) {
  zu::host::layer_look look;
  look.breaks = {0, 10, 20, 30};
  look.colors = {{255, 0, 0, 0}, {0, 255, 0, 0}, {0, 0, 255, 0}};
  zu::host::layer& made = add(hills());
  apply_look(look, made);
  expect_said("--breaks 0,10,20,30 --colors '#ff0000,#00ff00,#0000ff'");
  zu_scale_prm_set_visible(
      zu_rng_scale_get_scale_prm_ptr(zu_stl_mngr_get_rng_scale_ptr(made.style_manager()), 1),
      false);
  expect_said("'#ff0000,#00ff0000,#0000ff'");
}

TEST_F(command_lines, values_and_the_rest_are_written) {
  zu::host::layer_look look;
  look.values = {{"1", {255, 0, 0, 0}}, {"3", {0, 0, 255, 0}}};
  look.other = Tzu_color{9, 9, 9, 0};
  apply_look(look, add(floats("few.tif", 3, 1, {1, 2, 3})));
  expect_said("--values '1=#ff0000,3=#0000ff' --other '#090909'");
}

TEST_F(command_lines, gray_shade_lines_and_transparency_are_written) {
  zu::host::layer_look look;
  look.draw = zu::host::draw_type::gray;
  look.limits = {0, 50};
  look.transparency = 25;
  look.hillshade.emplace().z_factor = 0.5;
  look.isolines.emplace().thin = 10;
  apply_look(look, add(hills()));
  expect_said("--draw gray --field 'Band 1' --limits 0,50 --transparency 25 --hillshade 'z=0.5,");
}

TEST_F(command_lines, a_single_colour_is_written) {
  zu::host::layer_look look;
  look.simple = Tzu_color{10, 20, 30, 0};
  look.interpolate = true;
  apply_look(look, add(hills()));
  expect_said("--simple '#0a141e'");
}

TEST_F(command_lines, names_are_quoted_for_a_shell) {
  add(hills("it's $HOME `x` \"y\".tif"));
  expect_said("it'\\''s $HOME `x` \"y\".tif'");
}

TEST_F(command_lines, hidden_and_missing_layers_are_no_sources) {
  add(hills());
  add(hills("hidden.tif")).set_visible(false);
  scene().content->add_layer("grid_lr2d", path("gone.tif"));
  expect_said("hills.tif -o");
}

TEST_F(command_lines, a_projection_that_a_person_chose_is_written) {
  made_grid made = grid("geo.tif", 4, 4, GDT_Float32);
  made.values(1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
  made.projection("EPSG:4326");
  made.close();
  add(path("geo.tif"));
  scene().content->set_projection("EPSG:3857");
  expect_said("--crs EPSG:3857");
}

TEST_F(command_lines, layers_of_different_looks_take_the_saved_project) {
  zu::host::layer_look look;
  look.simple = Tzu_color{10, 20, 30, 0};
  apply_look(look, add(hills("below.tif")));
  add(floats("above.tif", 3, 1, {1, 2, 3}));
  content_->save(path("two.zgp"));
  command_line made = command(path("two.zgp"));
  EXPECT_TRUE(made.lacks.empty());
  EXPECT_EQ(made.line.find("zugrid project render"), 0u) << made.line;
  expect_same(made);
}

TEST_F(command_lines, what_no_line_can_make_is_said_above_it) {
  zu::host::layer_look look;
  look.simple = Tzu_color{10, 20, 30, 0};
  apply_look(look, add(hills("below.tif")));
  add(floats("above.tif", 3, 1, {1, 2, 3}));
  command_line made = command();
  EXPECT_EQ(made.lacks.size(), 1u);
  EXPECT_EQ(made.text(), "# " + made.lacks[0] + "\n" + made.line);
}

TEST_F(command_lines, an_empty_scene_has_no_line) {
  EXPECT_EQ(command().line, "");
  EXPECT_FALSE(command().lacks.empty());
}

}  // namespace
}  // namespace tests
