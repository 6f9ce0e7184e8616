#include "src/layer/grid_layer2d.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "src/bundle/strings.h"
#include "src/layer/layer_services.h"
#include "tests/unit/src/layer/bound_layer.h"
#include "tests/unit/src/made_grid.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;
using tests::bound_layer;
using tests::made_grid;

std::wstring projection_of(grid_layer2d& layer) {
  return text_of([&](Tzu_string_adp* a) {
    string_adp_visitor visitor(a);
    layer.get_proj4(string_visitor(handle_of<string_visitor_impl>(visitor)));
  });
}

TEST(grid_layer2d, starts_with_the_settings_of_a_new_layer) {
  grid_layer2d layer;
  EXPECT_EQ(layer.layer, nullptr);
  EXPECT_EQ(layer.get_table_data(), nullptr);
  EXPECT_EQ(layer.draw_type(), 0u);
  EXPECT_EQ(layer.transp_clr().r, 255);
  EXPECT_EQ(layer.transp_clr().a, 0);
  EXPECT_EQ(layer.opacity(), 0u);
  EXPECT_FALSE(layer.interpolate());
  EXPECT_TRUE(layer.has_projection());
  EXPECT_EQ(layer.spacing_x(), 1.0);
  EXPECT_EQ(layer.slice_index(), 0);
  EXPECT_EQ(layer.slice_axis(), 2);
  EXPECT_NE(layer.get_style_manager(), nullptr);
  EXPECT_NE(layer.get_hillshade_style(), nullptr);
  EXPECT_NE(layer.get_isoline_style(), nullptr);
}

TEST(grid_layer2d, cuts_what_it_is_given) {
  grid_layer2d layer;
  layer.set_opacity(101);
  EXPECT_EQ(layer.opacity(), 100u);
  for (double bad : {0.0, -3.0}) {
    layer.set_spacing_x(bad);
    layer.set_spacing_y(bad);
    EXPECT_EQ(layer.spacing_x(), 1.0);
    EXPECT_EQ(layer.spacing_y(), 1.0);
  }
  layer.set_spacing_x(2.5);
  EXPECT_EQ(layer.spacing_x(), 2.5);
}

TEST(grid_layer2d, gives_empty_answers_without_an_entity) {
  grid_layer2d layer;
  EXPECT_EQ(layer.wsource(), L"");
  EXPECT_EQ(layer.wcaption(), L"");
  EXPECT_FALSE(layer.is_image_source());
  EXPECT_FALSE(layer.has_slices());
  EXPECT_EQ(layer.slice_count(), 1);
  EXPECT_EQ(layer.field_count(), 0);
  EXPECT_EQ(layer.field_name(0), L"");
}

TEST(grid_layer2d, places_itself_by_origin_and_spacing) {
  grid_layer2d layer;
  layer.set_origin_x(100);
  layer.set_origin_y(200);
  layer.set_spacing_x(2);
  layer.set_spacing_y(3);
  Tzu_matrix3x3 matrix = layer.affine_matrix();
  double x = 10, y = 10;
  zu_xy_apply_matrix3x3(&x, &y, &matrix);
  EXPECT_EQ(x, 120);
  EXPECT_EQ(y, 230);
}

TEST(grid_layer2d, makes_a_table_when_it_is_bound_and_ties_it_to_the_entity) {
  bound_layer b;
  EXPECT_NE(b.layer->get_table_data(), nullptr);
  EXPECT_EQ(zu_lr2d_get_data_ptr(b.host.get()), b.layer->get_table_data());
}

TEST(update_validity, marks_a_layer_whose_file_is_not_there) {
  std::filesystem::path file = testing::TempDir() + "/validity.bin";
  std::ofstream(file) << "x";
  struct {
    std::wstring source;
    bool missing;
  } const cases[] = {
      {file.wstring(), false}, {file.wstring() + L".no", true}, {L"*memory", false}, {L"", true}};
  for (const auto& c : cases) {
    bound_layer b(c.source);
    call<&layer_2d_impl::update_validity>(b.handle);
    EXPECT_EQ(zu_lr2d_is_missing(b.host.get()), c.missing);
  }
}

TEST(grid_layer2d, has_an_overview_if_its_file_stands_beside_the_source) {
  std::string file = testing::TempDir() + "/overview.tif";
  std::filesystem::remove(file + ".ovr");
  bound_layer b(std::filesystem::path(file).wstring());
  EXPECT_FALSE(b.layer->has_overview());
  std::ofstream(file + ".ovr") << "x";
  EXPECT_TRUE(b.layer->has_overview());
}

TEST(copy_from, takes_all_settings_and_tells_the_host) {
  bound_layer from, to;
  from.layer->set_draw_type(2);
  from.layer->set_opacity(30);
  from.layer->set_transp_clr({1, 2, 3, 4});
  from.layer->set_interpolate(true);
  from.layer->clear_has_proj();
  from.layer->set_origin_x(5);
  from.layer->set_spacing_y(6);
  from.layer->set_slice_axis(1);
  from.layer->set_slice_index(9);
  from.layer->set_proj4(L"EPSG:4326");
  zu_stl_mngr_set_mode(from.layer->get_style_manager(), zu_style_range);
  zu_clr_channel_set_limits(zu_rgb_channels_get_gray(from.layer->rgb_channels()), 3, 4);
  Tzu_table_data* table = to.layer->get_table_data();
  auto changes = zu_lr2d_get_change_count(to.host.get());

  call<&layer_2d_impl::copy_from>(to.handle, from.handle);
  EXPECT_EQ(to.layer->draw_type(), 2u);
  EXPECT_EQ(to.layer->opacity(), 30u);
  EXPECT_EQ(to.layer->transp_clr().g, 2);
  EXPECT_TRUE(to.layer->interpolate());
  EXPECT_FALSE(to.layer->has_projection());
  EXPECT_EQ(to.layer->origin_x(), 5);
  EXPECT_EQ(to.layer->spacing_y(), 6);
  EXPECT_EQ(to.layer->slice_axis(), 1);
  EXPECT_EQ(to.layer->slice_index(), 9);
  EXPECT_EQ(zu_stl_mngr_get_mode(to.layer->get_style_manager()), zu_style_range);
  EXPECT_EQ(zu_clr_channel_get_maximum(zu_rgb_channels_get_gray(to.layer->rgb_channels())), 4);
  std::wstring proj4;
  stdwstring_visitor visitor(proj4);
  call<&layer_2d_impl::get_proj4>(to.handle,
                                  string_visitor(handle_of<string_visitor_impl>(visitor)));
  EXPECT_EQ(proj4, L"EPSG:4326");
  EXPECT_EQ(to.layer->get_table_data(), table);
  EXPECT_EQ(to.layer->layer, to.host.get());
  EXPECT_EQ(zu_lr2d_get_change_count(to.host.get()), changes + 1);
}

TEST(copy_from, another_kind_of_layer_changes_nothing) {
  struct other_layer : layer_2d_impl {
  } other;
  bound_layer to;
  to.layer->set_opacity(7);
  call<&layer_2d_impl::copy_from>(to.handle, handle_of<layer_2d_impl>(other));
  call<&layer_2d_impl::copy_from>(to.handle, layer_2d());
  EXPECT_EQ(to.layer->opacity(), 7u);
  EXPECT_EQ(zu_lr2d_get_change_count(to.host.get()), 0u);
}

TEST(grid_layer_of_entity, knows_its_own_kind) {
  bound_layer b;
  EXPECT_EQ(grid_layer_of_entity(b.host.get()), b.layer);
  EXPECT_EQ(grid_layer_of_entity(nullptr), nullptr);
  EXPECT_TRUE(is_grid_layer(b.host.get()));
  EXPECT_FALSE(is_grid_layer(nullptr));
  owned<zu_lr2d_destroy> other(zu_lr2d_create("rtr_lr2d"));
  EXPECT_FALSE(is_grid_layer(other.get()));
  EXPECT_EQ(grid_layer_of_entity(other.get()), nullptr);
}

// Operations that open the source.

TEST(source_changed, an_image_is_opened_as_an_image_whatever_was_set) {
  made_grid file("rgb.tif", 4, 3, GDT_Byte, 3);
  file.roles({GCI_RedBand, GCI_GreenBand, GCI_BlueBand});
  bound_layer b(file.close());
  b.layer->set_draw_type(3);
  call<&layer_2d_impl::source_changed>(b.handle);
  EXPECT_EQ(b.layer->draw_type(), 1u);
  EXPECT_TRUE(b.layer->is_image_source());
  EXPECT_EQ(b.layer->field_count(), 3);
}

TEST(source_changed, image_does_not_survive_on_a_source_that_is_none) {
  struct {
    const char* name;
    GDALDataType type;
    std::vector<GDALColorInterp> roles;
  } const cases[] = {{"float.tif", GDT_Float32, {GCI_GrayIndex}},
                     {"no_role.tif", GDT_Byte, {GCI_GrayIndex, GCI_Undefined}}};
  for (const auto& c : cases) {
    made_grid file(c.name, 4, 3, c.type, static_cast<int>(c.roles.size()));
    file.roles(c.roles);
    bound_layer b(file.close());
    for (std::uint32_t set : {0u, 1u, 2u, 3u}) {
      b.layer->set_draw_type(set);
      call<&layer_2d_impl::source_changed>(b.handle);
      EXPECT_EQ(b.layer->draw_type(), set == 1 ? 0 : set) << c.name;
    }
  }
}

TEST(source_changed, fetches_the_projection_only_into_an_empty_one) {
  made_grid file("projected.tif", 4, 3, GDT_Float32, 1);
  file.projection("EPSG:32637");
  std::wstring source = file.close();
  bound_layer fresh(source);
  call<&layer_2d_impl::source_changed>(fresh.handle);
  EXPECT_NE(projection_of(*fresh.layer).find(L"UTM zone 37N"), std::wstring::npos);

  bound_layer set(source);
  owned<zu_xnode_close> tree(zu_xnode_create_root_w(L"layer"));
  Tzu_xnode* params = zu_xnode_set_node_w(tree.get(), L"grid_params");
  zu_xnode_set_attr_wstr(params, L"proj4", L"EPSG:4326");
  zu_xnode_close(params);
  set.layer->load(tree.get(), nullptr);
  call<&layer_2d_impl::source_changed>(set.handle);
  EXPECT_EQ(projection_of(*set.layer), L"EPSG:4326");
}

TEST(source_changed, gives_the_source_to_the_table_and_leaves_the_rest_if_it_will_not_open) {
  bound_layer b(L"/no/such/grid.tif");
  b.layer->set_draw_type(1);
  call<&layer_2d_impl::source_changed>(b.handle);
  EXPECT_EQ(b.layer->draw_type(), 1u);
  EXPECT_EQ(
      text_of([&](Tzu_string_adp* a) { zu_table_data_get_wsource(b.layer->get_table_data(), a); }),
      L"/no/such/grid.tif");
}

TEST(set_proj4, stores_the_projection_with_the_file_where_it_can_and_in_the_layer_always) {
  std::wstring source = made_grid("stored.tif", 4, 3, GDT_Float32, 1).close();
  bound_layer b(source);
  call<&layer_2d_impl::set_proj4>(b.handle, L"EPSG:32637");
  bound_layer again(source);
  call<&layer_2d_impl::source_changed>(again.handle);
  EXPECT_NE(projection_of(*again.layer).find(L"UTM zone 37N"), std::wstring::npos);

  bound_layer missing(L"/no/such/grid.tif");
  call<&layer_2d_impl::set_proj4>(missing.handle, L"EPSG:4326");
  EXPECT_EQ(projection_of(*missing.layer), L"EPSG:4326");
}

TEST(grid_layer2d, counts_its_slices_and_names_its_fields) {
  made_grid file("slices.tif", 4, 3, GDT_Float32, 2);
  file.band(2)->SetDescription("depth");
  bound_layer b(file.close());
  EXPECT_FALSE(b.layer->has_slices());
  const std::int64_t counts[] = {4, 3, 1};
  for (std::int64_t axis = 0; axis < 3; ++axis) {
    b.layer->set_slice_axis(axis);
    EXPECT_EQ(b.layer->slice_count(), counts[axis]);
  }
  EXPECT_EQ(b.layer->field_count(), 2);
  EXPECT_EQ(b.layer->field_name(0), L"Band 1");
  EXPECT_EQ(b.layer->field_name(1), L"depth");
}

TEST(update_box, gives_the_outer_edge_of_the_cells_and_a_failure_as_such) {
  made_grid file("box.tif", 4, 3, GDT_Float32, 1);
  file.transform({100, 10, 0, 500, 0, -20});
  bound_layer b(file.close());
  call<&layer_2d_impl::update_box>(b.handle);
  Tzu_box_d2 box;
  ASSERT_TRUE(zu_lr2d_get_box(b.host.get(), &box));
  EXPECT_EQ(box.x0, 100);
  EXPECT_EQ(box.y0, 440);
  EXPECT_EQ(box.x1, 140);
  EXPECT_EQ(box.y1, 500);
  zu_lr2d_set_wsource(b.host.get(), L"/no/such/grid.tif");
  call<&layer_2d_impl::update_box>(b.handle);
  EXPECT_FALSE(zu_lr2d_get_box(b.host.get(), &box));
}

TEST(write_info, tells_the_structure_of_the_file) {
  zu_res_set_lng(50000);
  made_grid file("info.tif", 4, 3, GDT_Float32, 1);
  file.transform({100, 10, 0, 500, 0, -20});
  bound_layer b(file.close());
  owned<zu_json_obj_destroy> info(zu_json_obj_create());
  call<&layer_2d_impl::write_info>(b.handle, info.get());
  std::wstring text = text_of([&](Tzu_string_adp* a) { zu_json_obj_get_text_w(info.get(), a); });
  for (const wchar_t* part : {L"\"Grid file structure\"", L"\"Grid type\": \"Uniform 2D Grid\"",
                              L"\"Pickets\": 4", L"\"Profiles\": 3", L"\"Layers\": 1",
                              L"\"Step X\": 10.0", L"\"Step Y\": 20.0", L"\"Azimuth\": 0.0"})
    EXPECT_NE(text.find(part), std::wstring::npos) << std::string(text.begin(), text.end());
}

TEST(tree, a_layer_written_and_read_back_is_the_same) {
  bound_layer from, to;
  from.layer->set_draw_type(3);
  from.layer->set_opacity(40);
  from.layer->set_interpolate(true);
  from.layer->set_slice_index(2);
  from.layer->clear_has_proj();
  from.layer->set_transp_clr({9, 8, 7, 6});
  zu_clr_channel_set_prop_name_w(zu_rgb_channels_get_red(from.layer->rgb_channels()), L"Поле");
  from.layer->set_slice_axis(0);
  from.layer->set_origin_x(3);
  owned<zu_xnode_close> tree(zu_xnode_create_root_w(L"layer"));
  from.layer->save(tree.get(), nullptr);
  to.layer->load(tree.get(), nullptr);
  EXPECT_EQ(to.layer->draw_type(), 3u);
  EXPECT_EQ(to.layer->opacity(), 40u);
  EXPECT_TRUE(to.layer->interpolate());
  EXPECT_EQ(to.layer->slice_index(), 2);
  EXPECT_FALSE(to.layer->has_projection());
  EXPECT_EQ(to.layer->transp_clr().a, 6);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) {
              zu_clr_channel_get_prop_name_w(zu_rgb_channels_get_red(to.layer->rgb_channels()), a);
            }),
            L"Поле");
  EXPECT_EQ(to.layer->slice_axis(), 2);
  EXPECT_EQ(to.layer->origin_x(), 0.0);
}

TEST(tree, an_opacity_from_a_tree_is_taken_as_it_stands) {
  bound_layer b;
  owned<zu_xnode_close> tree(zu_xnode_create_root_w(L"layer"));
  Tzu_xnode* params = zu_xnode_set_node_w(tree.get(), L"grid_params");
  zu_xnode_set_attr_int_w(params, L"opacity", 150);
  zu_xnode_close(params);
  b.layer->load(tree.get(), nullptr);
  EXPECT_EQ(b.layer->opacity(), 150u);
  EXPECT_TRUE(b.layer->has_projection());
}

// Names of layer types.

TEST(layer_types, are_compared_exactly) {
  for (const char* type : {"shp_pnt_lr2d", "shp_pln_lr2d", "shp_pgn_lr2d"})
    EXPECT_TRUE(is_shp_layer(type));
  EXPECT_FALSE(is_shp_layer("shp_pnt_lr2"));
  EXPECT_FALSE(is_shp_layer("grid_lr2d"));
  for (const wchar_t* type : {L"shp_pntz_sub_lr2d", L"shp_plnz_sub_lr2d", L"shp_pgnz_sub_lr2d"})
    EXPECT_TRUE(is_shp_z_subtype(type));
  EXPECT_FALSE(is_shp_z_subtype(L"shp_pntz_sub_lr2dx"));
  EXPECT_FALSE(is_shp_z_subtype(L"segy_sub_lr2d"));
  for (const char* type : {"vector_point_lr2d", "vector_multipoint_lr2d", "vector_polyline_lr2d",
                           "vector_polygon_lr2d", "vector_lr2d"})
    EXPECT_TRUE(is_vector_layer(type));
  EXPECT_FALSE(is_vector_layer("vector"));
}

}  // namespace
