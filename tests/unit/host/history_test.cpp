// Undo and redo, held against what the project's file says at each step.

#include "host/core/history.h"

#include <random>

#include "host/core/failure.h"
#include "host/core/layer_look.h"
#include "tests/e2e/program.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using zu::host::layer;
using zu::host::project_scene;

class history : public in_a_folder {
 protected:
  history() {
    setenv("ZU_BUNDLE",
           (fs::path(program_path()).parent_path().parent_path() / "lib" / "zuk_grid_layer2d.so")
               .c_str(),
           0);
    floats("low.tif", 3, 1, {1, 2, 3});
    floats("high.tif", 2, 1, {5, 6});
    // A layer whose file is away and one of a type that nobody knows, with what others wrote there.
    write("old.zgp", R"(<?xml version="1.0" encoding="UTF-8"?>
<zugrid_project version="1" of_others="1">
  <scene name="Map" projection="EPSG:32637" of_scene="2">
    <layer type="grid_lr2d" source="low.tif" caption="Low" visible="1" of_layer="3">
      <note>kept</note>
    </layer>
    <layer type="grid_lr2d" source="away/missing.tif" caption="Away" visible="0">
      <grid_params proj4="" has_proj="1" draw_type="0" opacity="40" interpolate="0" slice_index="0" />
    </layer>
    <layer type="dreams" source="x" caption="Nobody knows" depth="7"><inner a="1" /></layer>
  </scene>
</zugrid_project>
)");
  }

  void SetUp() override {
    services_ = std::make_unique<zu::host::bundle>();
    content_ = std::make_unique<zu::host::project>(*services_, path("old.zgp"));
    steps_ = std::make_unique<zu::host::history>(*content_);
  }

  project_scene& scene(std::size_t index = 0) { return content_->scenes().at(index); }
  layer& shown(std::size_t index, std::size_t in_scene = 0) {
    return *scene(in_scene).layers.at(index).shown;
  }
  /// What the project's file would hold.
  std::string text() {
    content_->save(path("now.zgp"));
    return text_of_file(path("now.zgp"));
  }
  void set_transparency(layer& of, int percent) {
    zu::host::draw_settings settings = of.settings();
    settings.transparency = percent;
    of.set_settings(settings);
  }

  std::unique_ptr<zu::host::bundle> services_;
  std::unique_ptr<zu::host::project> content_;
  std::unique_ptr<zu::host::history> steps_;
};

TEST_F(history, nothing_done_is_nothing_to_undo) {
  EXPECT_FALSE(steps_->record("Nothing"));
  EXPECT_FALSE(steps_->can_undo());
  EXPECT_FALSE(steps_->can_redo());
  EXPECT_FALSE(steps_->undo());
  EXPECT_FALSE(steps_->redo());
  EXPECT_FALSE(steps_->is_changed());
}

TEST_F(history, a_step_has_its_name_both_ways) {
  shown(0).set_caption("Deep");
  EXPECT_TRUE(steps_->record("Rename layer"));
  EXPECT_EQ(steps_->undo_name(), "Rename layer");
  EXPECT_EQ(steps_->redo_name(), "");
  ASSERT_TRUE(steps_->undo());
  EXPECT_EQ(shown(0).caption(), "Low");
  EXPECT_EQ(steps_->undo_name(), "");
  EXPECT_EQ(steps_->redo_name(), "Rename layer");
  ASSERT_TRUE(steps_->redo());
  EXPECT_EQ(shown(0).caption(), "Deep");
}

TEST_F(history, a_removed_layer_comes_back_with_its_look_and_its_id) {
  set_transparency(shown(0), 30);
  steps_->record("Look");
  std::string before = text();
  std::uint64_t id = scene().layers[0].id;
  content_->remove(scene(), 0);
  steps_->record("Remove");
  ASSERT_EQ(scene().layers.size(), 2u);
  steps_->undo();
  ASSERT_EQ(scene().layers.size(), 3u);
  EXPECT_EQ(scene().layers[0].id, id);
  EXPECT_EQ(shown(0).settings().transparency, 30);
  EXPECT_EQ(text(), before);
}

TEST_F(history, what_others_wrote_comes_back_with_a_removed_layer) {
  std::string before = text();
  for (int i = 0; i < 3; ++i) content_->remove(scene(), 0);
  steps_->record("Remove all");
  EXPECT_EQ(text().find("dreams"), std::string::npos);
  steps_->undo();
  EXPECT_EQ(text(), before);
  EXPECT_NE(before.find("<inner a=\"1\" />"), std::string::npos) << before;
  EXPECT_NE(before.find("of_layer=\"3\""), std::string::npos) << before;
}

TEST_F(history, a_layer_that_stays_keeps_its_object) {
  layer* low = &shown(0);
  set_transparency(*low, 30);
  steps_->record("Look");
  content_->add(scene(), path("high.tif"));
  steps_->record("Add");
  content_->move(scene(), 0, 3);
  steps_->record("Move");
  for (int i = 0; i < 3; ++i) steps_->undo();
  EXPECT_EQ(&shown(0), low);
  EXPECT_EQ(low->settings().transparency, 0);
  for (int i = 0; i < 3; ++i) steps_->redo();
  EXPECT_EQ(&shown(3), low);
}

TEST_F(history, the_scene_draws_in_the_order_that_came_back) {
  content_->move(scene(), 0, 1);
  steps_->record("Move");
  Tzu_scn_2d* drawn = scene().content->get();
  EXPECT_EQ(zu_scn_2d_get_layer(drawn, 1), shown(1).entity());
  steps_->undo();
  EXPECT_EQ(zu_scn_2d_get_layer(drawn, 0), shown(0).entity());
  EXPECT_EQ(scene().content->layers()[0].get(), &shown(0));
  EXPECT_EQ(shown(0).caption(), "Low");
}

TEST_F(history, steps_of_one_key_are_one_step) {
  for (int percent : {10, 20, 30}) {
    set_transparency(shown(0), percent);
    steps_->record("Transparency", "transparency 1");
  }
  steps_->undo();
  EXPECT_EQ(shown(0).settings().transparency, 0);
  EXPECT_FALSE(steps_->can_undo());
}

TEST_F(history, steps_without_a_key_or_of_another_stay_apart) {
  for (const char* key : {"", "", "a", "b"}) {
    set_transparency(shown(0), shown(0).settings().transparency + 10);
    steps_->record("Transparency", key);
  }
  for (int percent : {30, 20, 10, 0}) {
    ASSERT_TRUE(steps_->undo());
    EXPECT_EQ(shown(0).settings().transparency, percent);
  }
}

TEST_F(history, a_joined_step_that_ends_where_it_began_is_none) {
  for (int percent : {10, 0}) {
    set_transparency(shown(0), percent);
    steps_->record("Transparency", "t");
  }
  EXPECT_FALSE(steps_->can_undo());
  EXPECT_FALSE(steps_->is_changed());
}

TEST_F(history, an_undo_ends_the_joining) {
  set_transparency(shown(0), 10);
  steps_->record("Transparency", "t");
  set_transparency(shown(0), 20);
  steps_->record("Transparency", "t");
  steps_->undo();
  steps_->redo();
  set_transparency(shown(0), 30);
  steps_->record("Transparency", "t");
  steps_->undo();
  EXPECT_EQ(shown(0).settings().transparency, 20);
}

TEST_F(history, a_save_ends_the_joining) {
  set_transparency(shown(0), 10);
  steps_->record("Transparency", "t");
  steps_->mark_saved();
  set_transparency(shown(0), 20);
  steps_->record("Transparency", "t");
  steps_->undo();
  EXPECT_EQ(shown(0).settings().transparency, 10);
  EXPECT_FALSE(steps_->is_changed());
}

TEST_F(history, undone_to_what_was_saved_is_not_changed) {
  shown(0).set_visible(false);
  steps_->record("Hide");
  EXPECT_TRUE(steps_->is_changed());
  steps_->mark_saved();
  EXPECT_FALSE(steps_->is_changed());
  steps_->undo();
  EXPECT_TRUE(steps_->is_changed());
  steps_->redo();
  EXPECT_FALSE(steps_->is_changed());
}

TEST_F(history, a_change_that_nobody_recorded_is_a_step_of_its_own) {
  shown(0).set_caption("Deep");
  steps_->record("Rename");
  shown(0).set_visible(false);
  steps_->undo();
  EXPECT_TRUE(shown(0).is_visible());
  EXPECT_EQ(shown(0).caption(), "Deep");
  steps_->undo();
  EXPECT_EQ(shown(0).caption(), "Low");
}

TEST_F(history, a_new_step_ends_what_could_be_redone) {
  shown(0).set_caption("A");
  steps_->record("Rename");
  steps_->undo();
  shown(0).set_visible(false);
  steps_->record("Hide");
  EXPECT_FALSE(steps_->can_redo());
}

TEST_F(history, a_layer_is_told_of_before_it_ends) {
  layer* low = &shown(0);
  content_->add(scene(), path("high.tif"));
  steps_->record("Add");
  layer* added = &shown(3);
  std::vector<std::pair<layer*, std::string>> told;
  steps_->before_change = [&](layer& each) { told.emplace_back(&each, each.caption()); };
  steps_->undo();
  ASSERT_EQ(told.size(), 1u);
  EXPECT_EQ(told[0], std::make_pair(added, std::string("high.tif")));
  set_transparency(*low, 10);
  steps_->record("Look");
  steps_->undo();
  ASSERT_EQ(told.size(), 2u);
  EXPECT_EQ(told[1].first, low);
}

TEST_F(history, a_layer_led_to_another_source_is_led_back) {
  set_transparency(shown(1), 40);
  EXPECT_TRUE(shown(1).is_missing());
  steps_->record("Look");
  content_->relink(scene(), 1, path("high.tif"));
  EXPECT_FALSE(shown(1).is_missing());
  EXPECT_EQ(shown(1).settings().transparency, 40);
  EXPECT_EQ(shown(1).data().fields().size(), 1u);
  EXPECT_EQ(shown(1).caption(), "Away");
  steps_->record("Lead to another source");
  steps_->undo();
  EXPECT_TRUE(shown(1).is_missing());
}

TEST_F(history, a_removed_scene_comes_back_with_all_in_it) {
  std::string before = text();
  content_->add_scene("Second");
  steps_->record("Add scene");
  content_->remove_scene(0);
  steps_->record("Remove scene");
  EXPECT_EQ(scene().name, "Second");
  steps_->undo();
  ASSERT_EQ(content_->scenes().size(), 2u);
  EXPECT_EQ(scene(0).name, "Map");
  steps_->undo();
  EXPECT_EQ(text(), before);
}

TEST_F(history, the_last_scene_stays) {
  EXPECT_THROW(content_->remove_scene(0), zu::host::failure);
}

TEST_F(history, the_projection_of_a_first_layer_goes_with_it) {
  project_scene& empty = content_->add_scene("Empty");
  steps_->record("Add scene");
  empty.content->set_projection("EPSG:4326");
  steps_->record("Projection");
  steps_->undo();
  EXPECT_EQ(scene(1).content->projection(), "");
  steps_->redo();
  EXPECT_EQ(scene(1).content->projection(), "EPSG:4326");
}

TEST_F(history, the_projection_of_a_layer_comes_back) {
  std::string before = text();
  shown(0).set_projection("EPSG:4326");
  steps_->record("Projection of a layer");
  steps_->undo();
  EXPECT_EQ(shown(0).projection(), "");
  EXPECT_EQ(text(), before);
  steps_->redo();
  EXPECT_EQ(shown(0).projection(), "EPSG:4326");
  content_->remove(scene(), 0);
  steps_->record("Remove");
  steps_->undo();
  EXPECT_EQ(shown(0).projection(), "EPSG:4326");
}

TEST_F(history, the_colour_of_the_selected_comes_back) {
  std::string before = text();
  Tzu_optional_color color{{1, 2, 3, 4}, 1};
  zu_scn_2d_set_selected_style_clr(scene().content->get(), color);
  EXPECT_TRUE(steps_->record("Colour"));
  std::string after = text();
  EXPECT_NE(after, before);
  steps_->undo();
  EXPECT_EQ(text(), before);
  steps_->redo();
  EXPECT_EQ(text(), after);
}

TEST_F(history, only_so_many_steps_are_kept) {
  for (std::size_t i = 0; i < zu::host::history::most_steps + 5; ++i) {
    shown(0).set_caption("caption " + std::to_string(i));
    steps_->record("Rename");
  }
  std::size_t undone = 0;
  while (steps_->undo()) ++undone;
  EXPECT_EQ(undone, zu::host::history::most_steps);
  EXPECT_EQ(shown(0).caption(), "caption 4");
  EXPECT_TRUE(steps_->is_changed());
}

/// A person who does things at random.
class restless {
 public:
  restless(zu::host::project& content, unsigned seed, std::vector<std::string> sources)
      : content_(content), random_(seed), sources_(std::move(sources)) {}

  std::size_t below(std::size_t count) { return random_() % count; }

  void act() {
    project_scene& scene = content_.scenes()[below(content_.scenes().size())];
    switch (below(12)) {
      case 0:
        content_.add_scene("scene " + std::to_string(below(100)));
        return;
      case 1:
        if (content_.scenes().size() > 1) content_.remove_scene(below(content_.scenes().size()));
        return;
      case 2:
        scene.name = "name " + std::to_string(below(100));
        return;
      case 3:
        scene.content->set_projection(below(2) == 0 ? "EPSG:32637" : "EPSG:3857");
        return;
      case 4:
      case 5:
        content_.add(scene, sources_[below(sources_.size())]);
        return;
      default:
        if (!scene.layers.empty()) act_on_layer(scene, below(scene.layers.size()));
    }
  }

 private:
  void act_on_layer(project_scene& scene, std::size_t index) {
    layer* shown = scene.layers[index].shown;
    std::size_t chosen = below(7);
    if (chosen == 0) return content_.remove(scene, index);
    if (chosen == 1) return content_.move(scene, index, below(scene.layers.size()));
    if (shown == nullptr) return;
    if (chosen == 2) return shown->set_caption("caption " + std::to_string(below(100)));
    if (chosen == 3) return shown->set_visible(!shown->is_visible());
    if (chosen == 4) return content_.relink(scene, index, sources_[below(sources_.size())]);
    if (chosen == 5 && !shown->is_missing()) return restyle(*shown);
    zu::host::draw_settings settings = shown->settings();
    settings.transparency = static_cast<int>(below(101));
    settings.interpolate = below(2) == 0;
    shown->set_settings(settings);
  }
  void restyle(layer& shown) {
    zu::host::layer_look look;
    for (std::size_t i = 0; i < 2 + below(4); ++i)
      look.breaks.push_back(static_cast<double>(i * 10 + below(9)));
    if (below(2) == 0) look.simple = Tzu_color{1, 2, static_cast<std::uint8_t>(below(256)), 0};
    if (below(2) == 0) look.hillshade.emplace().z_factor = static_cast<double>(below(5));
    if (below(2) == 0) look.isolines.emplace().thin = static_cast<double>(1 + below(5));
    if (below(3) == 0) look.values = {{"1", {9, 9, 9, 0}}};
    zu::host::apply_look(look, shown);
  }

  zu::host::project& content_;
  std::mt19937 random_;
  std::vector<std::string> sources_;
};

TEST_F(history, at_random_each_step_back_and_forth_gives_the_file_that_was) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    SetUp();
    restless person(*content_, seed, {path("low.tif"), path("high.tif"), path("gone.tif")});
    write("gone.tif", text_of_file(path("high.tif")));
    std::vector<std::string> known = {text()};
    std::size_t at = 0;
    for (int turn = 0; turn < 60; ++turn) {
      std::size_t choice = person.below(5);
      if (choice == 0) {
        EXPECT_EQ(steps_->undo(), at > 0);
        if (at > 0) --at;
      } else if (choice == 1) {
        EXPECT_EQ(steps_->redo(), at + 1 < known.size());
        if (at + 1 < known.size()) ++at;
      } else {
        person.act();
        if (steps_->record("Step")) {
          known.resize(++at);
          known.push_back(text());
        }
      }
      ASSERT_EQ(text(), known[at]) << "seed " << seed << ", turn " << turn;
      EXPECT_EQ(steps_->is_changed(), known[at] != known[0]);
    }
    while (steps_->undo()) ASSERT_EQ(text(), known[--at]) << "seed " << seed;
    EXPECT_EQ(at, 0u);
  }
}

}  // namespace
}  // namespace tests
