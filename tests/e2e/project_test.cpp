// Projects: made, filled, moved, damaged and hostile.

#include <nlohmann/json.hpp>

#include "host/core/failure.h"
#include "host/core/layer_look.h"
#include "host/core/project.h"
#include "tests/e2e/program.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using zu::host::project_scene;

class project : public in_a_folder {
 protected:
  project() {
    // As the program finds it.
    setenv("ZU_BUNDLE",
           (fs::path(program_path()).parent_path().parent_path() / "lib" / "zuk_grid_layer2d.so")
               .c_str(),
           0);
  }
  /// What must succeed in silence.
  std::string done(const std::vector<std::string>& arguments) const {
    outcome result = run(arguments);
    EXPECT_EQ(result.exit, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return result.out;
  }
  /// A project of two layers, in and below its folder.
  std::string two_layers() const {
    fs::create_directories(path("data"));
    done({"project", "new", path("p.zgp")});
    done({"project", "add", path("p.zgp"), floats("low.tif", 3, 1, {1, 2, 3}),
          floats("data/high.tif", 2, 1, {5, 6})});
    return path("p.zgp");
  }
  /// As the program names a source that a project's text leads to.
  std::string found(const std::string& name) const {
    return fs::path(path(name)).lexically_normal().string();
  }
  std::string content(const std::string& name) const { return text_of_file(path(name)); }
  /// Loads a project and saves it as another file of the folder.
  void resave(const std::string& from, const std::string& to) const {
    zu::host::bundle services;
    zu::host::project loaded(services, path(from));
    loaded.save(path(to));
  }
};

TEST_F(project, layers_are_listed_from_the_lowest) {
  two_layers();
  EXPECT_EQ(done({"project", "info", path("p.zgp")}),
            "scene \"\"\n  1  low.tif  (grid_lr2d, " + found("low.tif") +
                ")\n  2  high.tif  (grid_lr2d, " + found("data/high.tif") + ")\n")
      << content("p.zgp");
  auto all = nlohmann::json::parse(done({"project", "info", path("p.zgp"), "--json"}));
  auto layers = all["scenes"][0]["layers"];
  ASSERT_EQ(layers.size(), 2u);
  EXPECT_EQ(layers[1]["caption"], "high.tif");
  EXPECT_EQ(layers[1]["type"], "grid_lr2d");
  EXPECT_EQ(layers[1]["visible"], true);
  EXPECT_EQ(layers[1]["state"], "ok");
}

TEST_F(project, sources_beside_and_below_are_relative) {
  two_layers();
  std::string text = content("p.zgp");
  EXPECT_NE(text.find("source=\"low.tif\""), std::string::npos) << text;
  EXPECT_NE(text.find("source=\"data/high.tif\""), std::string::npos) << text;
}

TEST_F(project, is_the_same_to_the_byte_when_nothing_changed) {
  two_layers();
  resave("p.zgp", "again.zgp");
  EXPECT_EQ(content("again.zgp"), content("p.zgp"));
}

TEST_F(project, a_layer_added_and_removed_leaves_no_trace) {
  std::string file = two_layers(), before = content("p.zgp");
  done({"project", "add", file, floats("third.tif", 1, 1, {1})});
  EXPECT_NE(content("p.zgp"), before);
  done({"project", "remove", file, "third.tif"});
  EXPECT_EQ(content("p.zgp"), before);
  done({"project", "remove", file, "1"});
  auto all = nlohmann::json::parse(done({"project", "info", file, "--json"}));
  ASSERT_EQ(all["scenes"][0]["layers"].size(), 1u);
  EXPECT_EQ(all["scenes"][0]["layers"][0]["caption"], "high.tif");
}

TEST_F(project, a_caption_that_two_layers_have_needs_a_number) {
  two_layers();
  done({"project", "add", path("p.zgp"), path("low.tif")});
  outcome refused = run({"project", "remove", path("p.zgp"), "low.tif"});
  EXPECT_EQ(refused.exit, 1);
  EXPECT_EQ(refused.err,
            "zugrid: " + path("p.zgp") + ": has 2 layers \"low.tif\": give the number of one\n");
  EXPECT_EQ(run({"project", "remove", path("p.zgp"), "9"}).err,
            "zugrid: " + path("p.zgp") + ": has no layer \"9\"\n");
}

TEST_F(project, shows_the_picture_that_its_sources_show_wherever_it_is_moved) {
  two_layers();
  done({"render", path("low.tif"), path("data/high.tif"), "-o", path("a.png"), "--size", "30x20"});
  done({"project", "render", path("p.zgp"), "-o", path("b.png"), "--size", "30x20"});
  EXPECT_EQ(content("a.png"), content("b.png"));
  fs::create_directories(path("moved/data"));
  for (const char* each : {"p.zgp", "low.tif", "data/high.tif"})
    fs::rename(path(each), path(std::string("moved/") + each));
  done({"project", "render", path("moved/p.zgp"), "-o", path("c.png"), "--size", "30x20"});
  EXPECT_EQ(content("a.png"), content("c.png"));
}

TEST_F(project, styles_are_kept) {
  two_layers();
  zu::host::bundle services;
  {
    zu::host::project styled(services, path("p.zgp"));
    zu::host::layer_look look;
    look.simple = Tzu_color{255, 0, 0, 0};
    zu::host::apply_look(look, *styled.scenes()[0].layers[0].shown);
    styled.scenes()[0].layers[1].shown->set_visible(false);
    styled.scenes()[0].layers[0].shown->set_caption("Red & <low>");
    styled.save(path("p.zgp"));
  }
  done({"project", "render", path("p.zgp"), "-o", path("o.png"), "--size", "3x1"});
  rgba red{255, 0, 0, 255};
  EXPECT_EQ(picture(path("o.png")).all(), (std::vector<rgba>{red, red, red}));
  zu::host::project loaded(services, path("p.zgp"));
  EXPECT_EQ(loaded.scenes()[0].layers[0].caption(), "Red & <low>");
  EXPECT_FALSE(loaded.scenes()[0].layers[1].shown->is_visible());
}

TEST_F(project, several_scenes_keep_name_projection_and_colour_of_the_selected) {
  zu::host::bundle services;
  zu::host::project made(services);
  made.scenes()[0].name = "first";
  made.add_scene("second");
  made.scenes()[1].content->set_projection("EPSG:3857");
  zu_scn_2d_set_selected_style_clr(made.scenes()[1].content->get(), {{1, 2, 3, 4}, 1});
  made.add(made.scenes()[1], floats("a.tif", 2, 1, {1, 2}));
  made.save(path("p.zgp"));
  zu::host::project loaded(services, path("p.zgp"));
  ASSERT_EQ(loaded.scenes().size(), 2u);
  project_scene& second = loaded.find_scene("second");
  EXPECT_EQ(second.content->projection(), "EPSG:3857");
  Tzu_optional_color color = zu_scn_2d_get_selected_style_clr(second.content->get());
  EXPECT_EQ(color.is_set, 1);
  EXPECT_EQ(color.color.b, 3);
  EXPECT_EQ(second.layers.size(), 1u);
  EXPECT_EQ(zu_scn_2d_get_selected_style_clr(loaded.find_scene("first").content->get()).is_set, 0);
  EXPECT_THROW(loaded.find_scene("third"), zu::host::failure);
}

TEST_F(project, a_layer_whose_source_is_missing_stays_as_it_was) {
  two_layers();
  std::string before = content("p.zgp");
  fs::rename(path("low.tif"), path("gone.tif"));
  resave("p.zgp", "p.zgp");
  EXPECT_EQ(content("p.zgp"), before);
  auto all = nlohmann::json::parse(done({"project", "info", path("p.zgp"), "--json"}));
  EXPECT_EQ(all["scenes"][0]["layers"][0]["state"], "missing");
  outcome drawn = run({"project", "render", path("p.zgp"), "-o", path("o.png")});
  EXPECT_EQ(drawn.exit, 1);
  EXPECT_EQ(drawn.err, "zugrid: " + found("low.tif") + ": is missing\n");
  EXPECT_TRUE(exists("o.png"));
  fs::rename(path("gone.tif"), path("low.tif"));
  done({"project", "render", path("p.zgp"), "-o", path("o.png")});
}

TEST_F(project, what_it_does_not_know_is_kept) {
  floats("a.tif", 1, 1, {1});
  const std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<zugrid_project version=\"1\" author=\"someone\">\n"
      "  <!-- said by a person -->\n"
      "  <palette name=\"x\" />\n"
      "  <scene name=\"s\" mood=\"good\">\n"
      "    <grid_lines step=\"5\" />\n"
      "    <layer type=\"cloud_lr2d\" source=\"c.las\" caption=\"Cloud\" density=\"7\">\n"
      "      <deep>\n"
      "        <deeper at=\"1e999\">text</deeper>\n"
      "      </deep>\n"
      "    </layer>\n"
      "    <layer type=\"grid_lr2d\" source=\"a.tif\" note=\"mine\">\n"
      "      <grid_params opacity=\"150\" />\n"
      "      <extra />\n"
      "    </layer>\n"
      "    <layer type=\"grid_lr2d\" source=\"none.tif\" caption=\"Old\" visible=\"0\">\n"
      "      <opacity>35</opacity>\n"
      "    </layer>\n"
      "  </scene>\n"
      "</zugrid_project>\n";
  write("p.zgp", text);
  resave("p.zgp", "again.zgp");
  EXPECT_EQ(content("again.zgp"), text);
  done({"project", "add", path("p.zgp"), path("a.tif")});
  done({"project", "remove", path("p.zgp"), "4"});
  EXPECT_EQ(content("p.zgp"), text);
  outcome drawn = run({"project", "render", path("p.zgp"), "-o", path("o.png"), "--size", "8x8"});
  EXPECT_EQ(drawn.exit, 1);
  EXPECT_EQ(drawn.err, "zugrid: c.las: there are no layers of type cloud_lr2d\n");
}

TEST_F(project, only_what_changed_in_a_layer_is_written_anew) {
  floats("a.tif", 1, 1, {1});
  write("p.zgp",
        "<zugrid_project version=\"1\"><scene><layer type=\"grid_lr2d\" source=\"a.tif\" "
        "note=\"mine\"><extra /></layer></scene></zugrid_project>");
  zu::host::bundle services;
  zu::host::project changed(services, path("p.zgp"));
  zu::host::apply_look({}, *changed.scenes()[0].layers[0].shown);
  changed.save(path("p.zgp"));
  std::string text = content("p.zgp");
  EXPECT_NE(text.find("note=\"mine\""), std::string::npos) << text;
  EXPECT_NE(text.find("<extra />"), std::string::npos) << text;
  EXPECT_NE(text.find("<grid_params "), std::string::npos) << text;
}

TEST_F(project, saved_into_another_folder_it_still_leads_to_its_data) {
  two_layers();
  fs::create_directories(path("other"));
  resave("p.zgp", "other/p.zgp");
  auto all = nlohmann::json::parse(done({"project", "info", path("other/p.zgp"), "--json"}));
  for (const auto& each : all["scenes"][0]["layers"]) EXPECT_EQ(each["state"], "ok");
}

TEST_F(project, hostile_and_broken_files_are_refused_with_the_reason) {
  auto whole = [](const std::string& inside) {
    return "<zugrid_project version=\"1\">" + inside + "</zugrid_project>";
  };
  std::string deep, closing;
  for (int i = 0; i < 100000; ++i) deep += "<a>", closing += "</a>";
  std::string crowd;
  for (int i = 0; i < 10001; ++i) crowd += "<layer type=\"unknown\"/>";
  struct {
    std::string text, reason;
  } const cases[] = {
      {"", "is empty"},
      {"GIF89a", "is no XML: it has no root"},
      {"<svg/>", "is no project of zugrid"},
      {"<zugrid_project/>", "does not say which version of the format it has"},
      {"<zugrid_project version=\"-1\"/>", "does not say which version of the format it has"},
      {"<zugrid_project version=\"1e999\"/>", "does not say which version of the format it has"},
      {"<zugrid_project version=\"999\"/>",
       "was written by a newer zugrid (version 999 of the format, this one reads up to 1)"},
      {"<zugrid_project version=\"1\"><scene", "is no XML: "},
      {whole(""), "has no scene"},
      {whole(deep + closing), "is nested too deeply"},
      {whole("<scene>" + crowd + "</scene>"), "has too many layers"},
      {"<!DOCTYPE l [<!ENTITY a \"ha\"><!ENTITY b \"&a;&a;&a;&a;\"><!ENTITY c "
       "\"&b;&b;&b;&b;\">]>" +
           whole("<scene name=\"&c;\"/>"),
       "declares a document type"},
  };
  for (const auto& c : cases) {
    write("p.zgp", c.text);
    outcome result = run({"project", "info", path("p.zgp")});
    EXPECT_EQ(result.exit, 1) << c.reason;
    std::string expected = "zugrid: " + path("p.zgp") + ": " + c.reason;
    EXPECT_EQ(result.err.substr(0, expected.size()), expected);
    EXPECT_EQ(content("p.zgp"), c.text);
  }
  EXPECT_EQ(run({"project", "info", path("")}).exit, 1);
  EXPECT_EQ(run({"project", "info", path("none.zgp")}).err,
            "zugrid: " + path("none.zgp") + ": no such file\n");
}

TEST_F(project, absurd_values_are_the_defaults) {
  std::string huge(1 << 20, 'x');
  floats("a.tif", 1, 1, {1});
  write("p.zgp", "<zugrid_project version=\"1\"><scene projection=\"" + huge +
                     "\"><layer type=\"grid_lr2d\" source=\"a.tif\" visible=\"perhaps\">"
                     "<grid_params draw_type=\"x\" opacity=\"1e999\" slice_index=\"-5\"/>"
                     "<styles type=\"clr_mngr_style\" mode=\"-7\"><ranges digits=\"1e9\"/>"
                     "</styles></layer><layer/></scene></zugrid_project>");
  outcome result = run({"project", "info", path("p.zgp"), "--json"});
  EXPECT_EQ(result.exit, 0) << result.err;
  auto layers = nlohmann::json::parse(result.out)["scenes"][0]["layers"];
  EXPECT_EQ(layers[0]["visible"], true);
  EXPECT_EQ(layers[1]["state"], "unknown type");
}

TEST_F(project, a_truncated_file_is_refused_at_every_length) {
  std::string file = two_layers(), whole = content("p.zgp");
  for (std::size_t size = 0; size + 20 < whole.size(); size += whole.size() / 12) {
    write("cut.zgp", whole.substr(0, size));
    EXPECT_EQ(run({"project", "info", path("cut.zgp")}).exit, 1) << size;
  }
}

TEST_F(project, a_kill_in_the_middle_of_a_change_leaves_the_old_or_the_new) {
  std::string file = two_layers(), old = content("p.zgp");
  done({"project", "add", file, path("low.tif")});
  std::string changed = content("p.zgp");
  for (int i = 0; i < 12; ++i) {
    write("p.zgp", old);
    pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      if (std::freopen("/dev/null", "w", stderr) == nullptr) _exit(126);
      execl(program_path().c_str(), "zugrid", "project", "add", file.c_str(),
            path("low.tif").c_str(), nullptr);
      _exit(127);
    }
    usleep(static_cast<useconds_t>(4000 * i));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::string left = content("p.zgp");
    EXPECT_TRUE(left == old || left == changed) << left.size();
  }
}

TEST_F(project, is_not_made_over_another_file_and_takes_only_what_opens) {
  write("p.zgp", "mine");
  outcome refused = run({"project", "new", path("p.zgp")});
  EXPECT_EQ(refused.exit, 1);
  EXPECT_EQ(refused.err, "zugrid: " + path("p.zgp") + ": exists already\n");
  EXPECT_EQ(content("p.zgp"), "mine");
  done({"project", "new", path("q.zgp"), "--crs", "EPSG:4326", "--scene", "World"});
  std::string before = content("q.zgp");
  EXPECT_EQ(
      run({"project", "add", path("q.zgp"), floats("a.tif", 1, 1, {1}), path("none.tif")}).exit, 1);
  EXPECT_EQ(content("q.zgp"), before);
  EXPECT_EQ(run({"project", "render", path("q.zgp"), "-o", path("o.png")}).err,
            "zugrid: the scene has no layers to show\n");
  EXPECT_EQ(run({"project", "render", path("q.zgp"), "-o", path("o.png"), "--scene", "Moon"}).err,
            "zugrid: " + path("q.zgp") + ": the project has no scene \"Moon\"\n");
  EXPECT_EQ(run({"project", "render", path("q.zgp"), "-o", path("q.zgp")}).exit, 2);
  EXPECT_EQ(run({"project"}).exit, 2);
  EXPECT_EQ(run({"project", "new", path("r.zgp"), "--crs", "nonsense"}).exit, 2);
}

}  // namespace
}  // namespace tests
