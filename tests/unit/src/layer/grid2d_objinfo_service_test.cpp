#include "src/layer/grid2d_objinfo_service.h"

#include <limits>
#include <optional>

#include "src/bundle/owned.h"
#include "src/layer/grid_layer2d.h"
#include "tests/unit/src/made_grid.h"
#include "zu/platform/zuk_lr2d.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;
using tests::made_grid;

struct told {
  std::wstring title;
  std::vector<std::pair<std::wstring, std::wstring>> values;
};

class values_taker : public objinfo_values_visitor_impl {
 public:
  explicit values_taker(told& out) : out_(out) {}
  void visit(const wchar_t* name, const wchar_t* value) override {
    out_.values.emplace_back(name, value);
  }

 private:
  told& out_;
};

class info_taker : public objinfo_visitor_impl {
 public:
  void visit(std::uint64_t zero, const wchar_t* title, objinfo_object object) override {
    EXPECT_EQ(zero, 0u);
    last.emplace();
    last->title = title;
    call<&objinfo_object_impl::get_values>(object, objinfo_values_visitor());  // skipped
    values_taker values(*last);
    call<&objinfo_object_impl::get_values>(
        object, objinfo_values_visitor(handle_of<objinfo_values_visitor_impl>(values)));
    ++calls;
  }
  std::optional<told> last;
  int calls = 0;
};

class objinfo : public testing::Test {
 protected:
  void SetUp() override {
    language_ = zu_res_get_lng();
    zu_res_set_lng(0);
  }
  void TearDown() override {
    call<&layer_2d_impl::bind_entity>(handle_of<layer_2d_impl>(object_),
                                      static_cast<Izu_layer*>(nullptr));
    zu_res_set_lng(language_);
  }

  /// Cells of 1 by 1 from (0, 0): 1 2 3 in the south, 4 5 6 in the north; a second field.
  std::wstring three_by_two() {
    made_grid grid("objinfo.tif", 3, 2, GDT_Float64, 2);
    grid.values(1, {4, 5, 6, 1, 2, 3});
    grid.values(2, {40, 0.1, 60, 10, -9999, 30});
    grid.band(1)->SetDescription("height");
    grid.band(2)->SetDescription("age");
    grid.band(1)->SetNoDataValue(-9999);
    return grid.close();
  }
  void open(const std::wstring& source, const char* type = "grid_lr2d") {
    entity_.reset(zu_lr2d_create(type));
    zu_lr2d_set_wsource(entity_.get(), source.c_str());
    zu_lr2d_set_plugin_interface(entity_.get(), handle_of<layer_2d_impl>(object_));
    object_.bind_entity(entity_.get());
  }
  std::optional<told> at(double x, double y) {
    info_taker taker;
    grid2d_objinfo_service service;
    service.get_object_info(entity_.get(), x, y, nullptr,
                            objinfo_visitor(handle_of<objinfo_visitor_impl>(taker)));
    EXPECT_LE(taker.calls, 1);
    return taker.last;
  }

  owned<zu_lr2d_destroy> entity_;
  grid_layer2d object_;
  std::int32_t language_ = 0;
};

TEST_F(objinfo, counts_cells_from_one_and_names_them_in_the_language_in_force) {
  open(three_by_two());
  EXPECT_EQ(at(0.5, 0.5).value().title, L"Пикет 1, Профиль 1");
  EXPECT_EQ(at(2.5, 1.5).value().title, L"Пикет 3, Профиль 2");
  zu_res_set_lng(50000);
  EXPECT_EQ(at(0.5, 0.5).value().title, L"Picket 1, Profile 1");
}

TEST_F(objinfo, gives_each_field_with_its_value_in_order) {
  open(three_by_two());
  using pairs = std::vector<std::pair<std::wstring, std::wstring>>;
  EXPECT_EQ(at(0.6, 0.6).value().values, (pairs{{L"height", L"1"}, {L"age", L"10"}}));
  EXPECT_EQ(at(1.6, 1.6).value().values, (pairs{{L"height", L"5"}, {L"age", L"0.1"}}));
  EXPECT_EQ(at(1.6, 0.6).value().values, (pairs{{L"height", L"2"}, {L"age", L""}}))
      << "a cell without a value keeps its field";
}

TEST_F(objinfo, takes_the_cell_whose_node_is_at_or_below_the_point) {
  open(three_by_two());
  const struct {
    double x, y;
    const wchar_t* title;
  } cases[] = {{0.5, 0.5, L"Пикет 1, Профиль 1"},
               {1.49, 1.49, L"Пикет 1, Профиль 1"},
               {1.5, 0.5, L"Пикет 2, Профиль 1"},
               {2.5, 1.5, L"Пикет 3, Профиль 2"},
               {3.49, 2.49, L"Пикет 3, Профиль 2"}};
  for (const auto& c : cases) {
    auto found = at(c.x, c.y);
    ASSERT_TRUE(found) << c.x << " " << c.y;
    EXPECT_EQ(found->title, c.title) << c.x << " " << c.y;
  }
}

TEST_F(objinfo, has_nothing_before_the_first_node_or_beyond_the_last_line) {
  open(three_by_two());
  const double inf = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const std::pair<double, double> points[] = {
      {0.4, 0.5}, {0.5, 0.4}, {3.5, 0.5}, {0.5, 2.5},    {-7, 0.5},        {1e300, 0.5},
      {inf, 0.5}, {nan, 0.5}, {0.5, nan}, {0.5, -1e300}, {4294967297, 0.5}};
  for (auto [x, y] : points) EXPECT_FALSE(at(x, y)) << x << " " << y;
}

TEST_F(objinfo, is_silent_on_layers_of_another_type) {
  open(three_by_two(), "rtr_lr2d");
  EXPECT_FALSE(at(0.5, 0.5));
}

TEST_F(objinfo, is_silent_on_sources_that_do_not_open) {
  open(three_by_two() + L".not_there");
  EXPECT_FALSE(at(0.5, 0.5));
  entity_.reset();
  EXPECT_FALSE(at(0.5, 0.5)) << "no entity at all";
}

TEST_F(objinfo, takes_the_point_from_the_scenes_projection_to_the_layers) {
  made_grid grid("objinfo_utm.tif", 2, 2, GDT_Float64, 1);
  grid.values(1, {3, 4, 1, 2});
  grid.transform({413000, 1000, 0, 6181000, 0, -1000});
  grid.projection("EPSG:32637");
  open(grid.close());
  object_.source_changed();
  owned<zu_scn_2d_destroy> scene(zu_scn_2d_create());
  zu_scn_2d_set_pj4wstr(scene.get(), L"EPSG:4326");
  zu_scn_2d_add_layer(scene.get(), entity_.get());
  // (413224.14, 6179766.95) by PROJ 9.1; nodes at 413500, 414500 and 6179500, 6180500.
  EXPECT_FALSE(at(37.6173, 55.7558));
  // 413724 and the same y, roughly: half a kilometre to the east.
  auto found = at(37.6253, 55.7558);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->title, L"Пикет 1, Профиль 1");
  EXPECT_EQ(found->values[0].second, L"1");
  zu_scn_2d_remove_layer(scene.get(), entity_.get());
}

}  // namespace
