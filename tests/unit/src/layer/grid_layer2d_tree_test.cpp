// What a grid layer writes into a tree, and what it reads of trees old and new.

#include <gtest/gtest.h>

#include <string>

#include "src/bundle/strings.h"
#include "src/layer/grid_layer2d.h"
#include "src/layer/layer_services.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

using namespace zu;

using node = owned<zu_xnode_close>;

node tree_of(const std::string& text) {
  return node(zu_xnode_read(text.data(), text.size(), nullptr));
}

std::string text_of_tree(Tzu_xnode* root) {
  std::string text;
  auto sink = [](const char* t, void* user) { *static_cast<std::string*>(user) = t; };
  owned<zu_string_adp_destroy> adapter(zu_string_adp_create(sink, nullptr, &text));
  zu_xnode_get_text(root, adapter.get());
  return text;
}

std::wstring projection_of(grid_layer2d& layer) {
  return text_of([&](Tzu_string_adp* a) {
    string_adp_visitor visitor(a);
    layer.get_proj4(string_visitor(handle_of<string_visitor_impl>(visitor)));
  });
}

TEST(layer_tree, the_four_groups_come_back) {
  grid_layer2d from, to;
  zu_stl_mngr_set_mode(from.get_style_manager(), zu_style_range);
  zu_rng_scale_set_size(zu_stl_mngr_get_rng_scale_ptr(from.get_style_manager()), 3);
  zu_clr_channel_set_limits(zu_rgb_channels_get_gray(from.rgb_channels()), 1, 2);
  zu_hillshade_style_set_use(from.get_hillshade_style(), true);
  zu_hillshade_style_set_z_coeff(from.get_hillshade_style(), 2.5);
  zu_isoline_style_set_use(from.get_isoline_style(), true);
  zu_isoline_style_set_thin_step(from.get_isoline_style(), 7);
  node tree(zu_xnode_create_root_w(L"layer"));
  from.save(tree.get(), nullptr);
  to.load(tree.get(), nullptr);
  EXPECT_EQ(zu_stl_mngr_get_mode(to.get_style_manager()), zu_style_range);
  EXPECT_EQ(zu_rng_scale_get_size(zu_stl_mngr_get_rng_scale_ptr(to.get_style_manager())), 3u);
  EXPECT_EQ(zu_clr_channel_get_minimum(zu_rgb_channels_get_gray(to.rgb_channels())), 1);
  EXPECT_TRUE(zu_hillshade_style_get_use(to.get_hillshade_style()));
  EXPECT_EQ(zu_hillshade_style_get_z_coeff(to.get_hillshade_style()), 2.5);
  EXPECT_TRUE(zu_isoline_style_get_use(to.get_isoline_style()));
  EXPECT_EQ(zu_isoline_style_get_thin_step(to.get_isoline_style()), 7);

  node again(zu_xnode_create_root_w(L"layer"));
  to.save(again.get(), nullptr);
  EXPECT_EQ(text_of_tree(again.get()), text_of_tree(tree.get()));
}

TEST(layer_tree, attributes_and_groups_are_written_in_their_order) {
  grid_layer2d layer;
  node tree(zu_xnode_create_root_w(L"layer"));
  layer.save(tree.get(), nullptr);
  std::string text = text_of_tree(tree.get());
  std::size_t at = 0;
  for (const char* part : {"<grid_params proj4=\"\" has_proj=\"1\" draw_type=\"0\" opacity=\"0\" "
                           "interpolate=\"0\" slice_index=\"0\" />",
                           "\n  <transp_clr ", "\n  <styles type=\"clr_mngr_style\"",
                           "\n  <channels>", "\n  <hillshade ", "\n  <isoline "}) {
    std::size_t found = text.find(part, at);
    EXPECT_NE(found, std::string::npos) << part << " in " << text;
    at = found != std::string::npos ? found : at;
  }
}

TEST(layer_tree, a_node_that_cannot_be_had_is_no_fault) {
  grid_layer2d layer;
  layer.set_opacity(20);
  layer.save(nullptr, nullptr);
  layer.load(nullptr, nullptr);
  EXPECT_EQ(layer.opacity(), 0u);  // an old tree without values
}

TEST(layer_tree, an_old_tree_has_its_values_in_children) {
  grid_layer2d layer;
  node tree = tree_of(
      "<layer><proj4>+proj=utm +zone=37</proj4><draw_type>2</draw_type><opacity>35</opacity>"
      "<interpolate>7</interpolate><slice_axis>3</slice_axis><slice_index>9</slice_index>"
      "<has_proj>0</has_proj></layer>");
  layer.load(tree.get(), nullptr);
  EXPECT_EQ(projection_of(layer), L"+proj=utm +zone=37");
  EXPECT_EQ(layer.draw_type(), 2u);
  EXPECT_EQ(layer.opacity(), 35u);
  EXPECT_TRUE(layer.interpolate());
  EXPECT_EQ(layer.slice_index(), 3);
  EXPECT_EQ(layer.slice_axis(), 2);
  EXPECT_TRUE(layer.has_projection());
}

TEST(layer_tree, an_old_tree_leaves_whether_the_layer_is_reprojected) {
  grid_layer2d layer;
  layer.clear_has_proj();
  node tree = tree_of("<layer/>");
  layer.load(tree.get(), nullptr);
  EXPECT_FALSE(layer.has_projection());
}

TEST(layer_tree, what_a_tree_does_not_say_is_the_default) {
  for (const char* text : {"<layer><grid_params/></layer>", "<layer/>"}) {
    grid_layer2d layer;
    layer.set_draw_type(2);
    layer.set_opacity(30);
    layer.set_interpolate(true);
    layer.set_slice_index(4);
    layer.set_transp_clr({1, 2, 3, 4});
    node tree = tree_of(text);
    layer.load(tree.get(), nullptr);
    EXPECT_EQ(layer.draw_type(), 0u) << text;
    EXPECT_EQ(layer.opacity(), 0u) << text;
    EXPECT_FALSE(layer.interpolate()) << text;
    EXPECT_EQ(layer.slice_index(), 0) << text;
    EXPECT_TRUE(layer.has_projection()) << text;
    EXPECT_EQ(layer.transp_clr().b, 3) << text;  // a group that is absent leaves the field
  }
}

TEST(layer_tree, a_projection_that_is_known_is_not_replaced) {
  for (const char* text : {"<layer><grid_params proj4=\"of the tree\"/></layer>",
                           "<layer><proj4>of the tree</proj4></layer>"}) {
    grid_layer2d layer, known;
    node of_source = tree_of("<layer><proj4>of the source</proj4></layer>");
    known.load(of_source.get(), nullptr);
    node tree = tree_of(text);
    layer.load(tree.get(), nullptr);
    known.load(tree.get(), nullptr);
    EXPECT_EQ(projection_of(layer), L"of the tree");
    EXPECT_EQ(projection_of(known), L"of the source");
  }
}

TEST(layer_tree, an_old_opacity_is_taken_as_it_stands_until_a_writer_cuts_it) {
  grid_layer2d layer;
  node tree = tree_of("<layer><opacity>150</opacity></layer>");
  layer.load(tree.get(), nullptr);
  EXPECT_EQ(layer.opacity(), 150u);
  layer.set_opacity(layer.opacity());
  EXPECT_EQ(layer.opacity(), 100u);
}

TEST(layer_tree, the_placement_and_the_axis_of_slices_are_not_kept) {
  grid_layer2d from, to;
  from.set_slice_axis(0);
  from.set_origin_x(1);
  from.set_origin_y(2);
  from.set_spacing_x(3);
  from.set_spacing_y(4);
  node tree(zu_xnode_create_root_w(L"layer"));
  from.save(tree.get(), nullptr);
  to.load(tree.get(), nullptr);
  EXPECT_EQ(to.slice_axis(), 2);
  EXPECT_EQ(to.origin_x(), 0.0);
  EXPECT_EQ(to.origin_y(), 0.0);
  EXPECT_EQ(to.spacing_x(), 1.0);
  EXPECT_EQ(to.spacing_y(), 1.0);
}

TEST(layer_tree, a_layer_of_another_kind_is_neither_written_nor_read) {
  toolkit::layer2d_externalization_service<grid_layer2d, c_grid_lr2d, c_grid_lr2d> service;
  struct other_layer : layer_2d_impl {
  } other;
  node tree = tree_of("<layer old=\"1\"/>");
  std::string before = text_of_tree(tree.get());
  service.save(handle_of<layer_2d_impl>(other), tree.get(), nullptr);
  service.save(layer_2d(), tree.get(), nullptr);
  service.load(handle_of<layer_2d_impl>(other), tree.get(), nullptr);
  EXPECT_EQ(text_of_tree(tree.get()), before);
}

}  // namespace
