#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "platform/zuk_basic/owned.h"
#include "tests/unit/platform/own_folder.h"
#include "tests/unit/platform/taken_text.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_style_libs.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

using namespace tests;
using manager_ptr = zu::platform::owned<zu_stl_mngr_destroy>;

/// A legend as ArcView writes it: objects get their numbers in the order in which they are added.
class legend_text {
 public:
  /// Adds an object with its fields, each "Name:\tvalue"; gives its number.
  int add(const std::string& kind, const std::vector<std::string>& fields) {
    objects_ += "(" + kind + "." + std::to_string(++last_) + "\n";
    for (const std::string& field : fields) objects_ += "\t" + field + "\n";
    objects_ += ")\n\n";
    return last_;
  }
  int color(const std::string& fields) { return add("TClr", {fields}); }
  static std::string field(const std::string& name, int number) {
    return name + ":\t" + std::to_string(number);
  }
  /// The legend with its field and classes, each with a symbol; what else it says stands in `more`.
  std::string text(const std::string& type, const std::vector<int>& classes,
                   const std::vector<int>& symbols, const std::vector<std::string>& more = {}) {
    std::vector<std::string> children;
    for (int each : symbols) children.push_back(field("Child", each));
    int list = add("SymList", children);
    int name = add("AVStr", {"S:\t\"SOIL\""});
    std::vector<std::string> fields{"LegType:\t" + type, field("Symbols", list),
                                    field("FieldNames", name)};
    for (int each : classes) fields.push_back(field("Class", each));
    fields.insert(fields.end(), more.begin(), more.end());
    int legend = add("Legend", fields);
    return "/3.2\n(ODB.1000\n\tFirstRootClassName:\t\"Legend\"\n\t" + field("Roots", legend) +
           "\n\tVersion:\t32\n)\n\n" + objects_;
  }
  /// A fill in one colour with a black line around.
  int fill(int red, int green, int blue) {
    auto word = [](const char* name, int byte) {
      char text[32];
      std::snprintf(text, sizeof text, "%s:\t0x%02x00", name, static_cast<unsigned>(byte));
      return std::string(text);
    };
    int inside = add("TClr", {word("Red", red), word("Green", green), word("Blue", blue)});
    int outline = add("TClr", {"Name:\t\"Black\""});
    return add("BShSym",
               {field("Color", inside), field("OutlineColor", outline), "OutlineWidth:\t2.0"});
  }
  int one_class(const std::string& label, const std::vector<std::string>& limits) {
    std::vector<std::string> fields{"Label:\t\"" + label + "\""};
    fields.insert(fields.end(), limits.begin(), limits.end());
    return add("LClass", fields);
  }

 private:
  std::string objects_;
  int last_ = 1;
};

struct avl_import : testing::Test {
  avl_import() {
    environment = gp_env_create();
    gp_env_out_set(environment,
                   gp_env_out_create([](const wchar_t* text,
                                        void* user) { *static_cast<std::wstring*>(user) = text; },
                                     &said));
    before = gp_env_main_get_env();
    gp_env_main_set_env(environment);
  }
  ~avl_import() override {
    gp_env_main_set_env(before);
    gp_env_destroy(environment);
  }
  int import(const std::string& text, Tzu_stl_mngr* into) {
    folder.write("a.avl", text);
    return import_file(folder.at("a.avl"), into);
  }
  static int import_file(const std::wstring& path, Tzu_stl_mngr* into) {
    Tgp_avl_to_stlmgr_params* params = gp_avl_to_stlmgr_params_create();
    gp_avl_to_stlmgr_params_set_filename_w(params, path.c_str());
    gp_avl_to_stlmgr_params_set_stl_mngr(params, into);
    int result = gp_avl_to_stlmngr_execute(params);
    gp_avl_to_stlmgr_params_destroy(params);
    return result;
  }
  Tzu_val_scale* values() { return zu_stl_mngr_get_val_scale_ptr(manager.get()); }
  Tzu_rng_scale* ranges() { return zu_stl_mngr_get_rng_scale_ptr(manager.get()); }
  std::wstring value_text(std::uint64_t row) {
    return text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(values(), row, a); });
  }
  std::wstring value_caption(std::uint64_t row) {
    return text_of([&](Tzu_string_adp* a) { zu_val_scale_get_caption_w(values(), row, a); });
  }
  /// Which class of the ranges holds a value; -1 if none does.
  int class_of(double value) {
    for (std::uint64_t i = 0; i < zu_rng_scale_get_size(ranges()); ++i)
      if (zu_rng_scale_get_min(ranges(), i) < value && value <= zu_rng_scale_get_max(ranges(), i))
        return static_cast<int>(i);
    return -1;
  }
  own_folder folder{"avl_import"};
  std::wstring said;
  Tgp_env *environment, *before;
  legend_text made;
  manager_ptr manager{zu_clr_stl_mngr_create()};
};

bool is(Tzu_color c, int r, int g, int b, int a) {
  return c.r == r && c.g == g && c.b == b && c.a == a;
}

TEST_F(avl_import, unique_values_become_a_value_scale) {
  std::vector<int> classes{made.one_class("Water", {"MinNum:\t1.000000", "MaxNum:\t1.000000"}),
                           made.one_class("Half", {"MinNum:\t2.5", "MaxNum:\t2.5"}),
                           made.one_class("Rock", {"MinStr:\t\"R\"", "MaxStr:\t\"R\""})};
  std::vector<int> symbols{made.fill(0, 0, 255), made.fill(10, 20, 30), made.fill(255, 0, 0)};
  ASSERT_EQ(import(made.text("0x08", classes, symbols), manager.get()), 0);
  EXPECT_EQ(zu_stl_mngr_get_mode(manager.get()), zu_style_value);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_stl_mngr_get_val_prop_name_w(manager.get(), a); }),
            L"SOIL");
  ASSERT_EQ(zu_val_scale_get_size(values()), 3u);
  EXPECT_EQ(value_text(0), L"1");
  EXPECT_EQ(value_text(1), L"2.5");
  EXPECT_EQ(value_text(2), L"R");
  EXPECT_EQ(value_caption(2), L"Rock");
  EXPECT_TRUE(is(zu_val_scale_get_scale_prm_ptr(values(), 1)->style.colors[0], 10, 20, 30, 0));
  EXPECT_FALSE(zu_val_scale_get_other_prm_ptr(values())->visible);
  EXPECT_EQ(said, L"");
}

TEST_F(avl_import, graduated_colours_become_ranges_that_hold_what_they_held) {
  std::vector<int> classes{made.one_class("0 - 10", {"MinNum:\t0.0", "MaxNum:\t10.0"}),
                           made.one_class("11 - 20", {"MinNum:\t11", "MaxNum:\t20"}),
                           made.one_class("50 - 60", {"MinNum:\t50", "MaxNum:\t60"})};
  std::vector<int> symbols{made.fill(1, 1, 1), made.fill(2, 2, 2), made.fill(3, 3, 3)};
  ASSERT_EQ(import(made.text("0x02", classes, symbols), manager.get()), 0);
  EXPECT_EQ(zu_stl_mngr_get_mode(manager.get()), zu_style_range);
  ASSERT_EQ(zu_rng_scale_get_size(ranges()), 3u);
  EXPECT_EQ(zu_rng_scale_get_rng_type(ranges()), zu_range_manual);
  struct {
    double value;
    int row;
  } const cases[] = {{-1, -1}, {0, 0},   {10, 0}, {10.5, 1}, {11, 1},
                     {20, 1},  {30, -1}, {50, 2}, {60, 2},   {61, -1}};
  for (const auto& c : cases) EXPECT_EQ(class_of(c.value), c.row) << c.value;
  EXPECT_EQ(zu_rng_scale_get_min(ranges(), 1), 10.0);
  EXPECT_EQ(zu_rng_scale_get_min_value(ranges()), 0.0);
  EXPECT_EQ(zu_rng_scale_get_max_value(ranges()), 60.0);
  EXPECT_FALSE(zu_rng_scale_get_min_prm_ptr(ranges())->visible);
  EXPECT_FALSE(zu_rng_scale_get_max_prm_ptr(ranges())->visible);
  EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_rng_scale_get_caption_w(ranges(), 2, a); }),
            L"50 - 60");
}

// Each class is held against the others; a legend of very many must not take longer by their
// square.
TEST_F(avl_import, a_hundred_thousand_classes_are_read) {
  std::vector<int> classes, symbols;
  int symbol = made.fill(1, 2, 3);
  for (int i = 0; i < 100000; ++i) {
    std::string low = std::to_string(i), high = std::to_string(i + 1);
    classes.push_back(made.one_class(low, {"MinNum:\t" + low, "MaxNum:\t" + high}));
    symbols.push_back(symbol);
  }
  ASSERT_EQ(import(made.text("0x02", classes, symbols), manager.get()), 0);
  ASSERT_EQ(zu_rng_scale_get_size(ranges()), 100000u);
  EXPECT_EQ(zu_rng_scale_get_min(ranges(), 99999), 99999.0);
}

TEST_F(avl_import, a_class_without_a_limit_is_open_there) {
  std::vector<int> classes{made.one_class("low", {"MaxNum:\t5"}),
                           made.one_class("high", {"MinNum:\t5"})};
  std::vector<int> symbols{made.fill(1, 1, 1), made.fill(2, 2, 2)};
  ASSERT_EQ(import(made.text("0x02", classes, symbols), manager.get()), 0);
  EXPECT_EQ(class_of(-1e300), 0);
  EXPECT_EQ(class_of(5), 0);
  EXPECT_EQ(class_of(1e300), 1);
}

TEST_F(avl_import, a_single_symbol_is_the_simple_style) {
  std::vector<int> classes{made.one_class("", {})};
  ASSERT_EQ(import(made.text("0x01", classes, {made.fill(7, 8, 9)}), manager.get()), 0);
  EXPECT_EQ(zu_stl_mngr_get_mode(manager.get()), zu_style_simple);
  EXPECT_TRUE(is(zu_stl_mngr_get_simple_sp_ptr(manager.get())->colors[0], 7, 8, 9, 0));
}

// Some lists of symbols have one for the class of no data, and others do not.
TEST_F(avl_import, the_class_of_no_data_is_other) {
  for (bool listed : {false, true}) {
    legend_text legend;
    std::vector<int> classes{legend.one_class("a", {"MinNum:\t1", "MaxNum:\t1"}),
                             legend.one_class("No Data", {"IsNoData:\t1"}),
                             legend.one_class("b", {"MinNum:\t2", "MaxNum:\t2"})};
    int grey = legend.fill(90, 90, 90);
    std::vector<int> symbols{legend.fill(1, 0, 0), legend.fill(2, 0, 0)};
    if (listed) symbols.insert(symbols.begin() + 1, grey);
    std::string text =
        legend.text("0x08", classes, symbols, {legend_text::field("NullSymbol", grey)});
    ASSERT_EQ(import(text, manager.get()), 0);
    ASSERT_EQ(zu_val_scale_get_size(values()), 2u);
    EXPECT_EQ(zu_val_scale_get_scale_prm_ptr(values(), 1)->style.colors[0].r, 2) << listed;
    EXPECT_TRUE(zu_val_scale_get_other_prm_ptr(values())->visible);
    EXPECT_EQ(zu_val_scale_get_other_prm_ptr(values())->style.colors[0].r, 90);
    EXPECT_EQ(text_of([&](Tzu_string_adp* a) { zu_val_scale_get_other_caption_w(values(), a); }),
              L"No Data");
  }
}

TEST_F(avl_import, the_class_of_all_other_values_is_other_before_that_of_no_data) {
  std::vector<int> classes{made.one_class("All other values", {}),
                           made.one_class("a", {"MinNum:\t1", "MaxNum:\t1"}),
                           made.one_class("No Data", {"IsNoData:\t1"})};
  std::vector<int> symbols{made.fill(5, 0, 0), made.fill(1, 0, 0), made.fill(9, 0, 0)};
  for (const char* type : {"0x08", "0x00"}) {
    legend_text copy = made;
    ASSERT_EQ(import(copy.text(type, classes, symbols), manager.get()), 0);
    EXPECT_EQ(zu_stl_mngr_get_mode(manager.get()), zu_style_value);
    ASSERT_EQ(zu_val_scale_get_size(values()), 1u);
    EXPECT_EQ(value_caption(0), L"a");
    EXPECT_EQ(zu_val_scale_get_scale_prm_ptr(values(), 0)->style.colors[0].r, 1);
    EXPECT_EQ(zu_val_scale_get_other_prm_ptr(values())->style.colors[0].r, 5);
    EXPECT_TRUE(zu_val_scale_get_other_prm_ptr(values())->visible);
  }
}

TEST_F(avl_import, lines_keep_width_and_dashes_in_millimetres) {
  int red = made.color("Red:\t0xffff");
  int line = made.add("BLnSym", {legend_text::field("Color", red), "Width:\t2.0", "Pattern:\t4.0",
                                 "Pattern:\t2.0", "Pattern:\t0.0", "Pattern:\t9.0"});
  manager.reset(zu_stl_mngr_create("pln_mngr_style"));
  ASSERT_EQ(import(made.text("0x01", {made.one_class("", {})}, {line}), manager.get()), 0);
  Tzu_pln_style* style =
      zu_stl_prm_get_pln_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager.get()), 0);
  Tzu_bpln_style* base = zu_pln_style_get_bpln_style_ptr(style);
  double point = 25.4 / 72, dashes[zu_line_dashes] = {};
  EXPECT_DOUBLE_EQ(zu_bpln_style_get_width(base), 2 * point);
  ASSERT_EQ(zu_bpln_style_get_dashes(base, dashes), 2);
  EXPECT_DOUBLE_EQ(dashes[0], 4 * point);
  EXPECT_TRUE(is(zu_bpln_style_get_color(base), 255, 0, 0, 0));
  EXPECT_TRUE(zu_pln_style_get_pln_visible(style));
}

TEST_F(avl_import, markers_keep_size_and_angle_and_a_composite_counts_as_its_first_part) {
  int green = made.color("Green:\t0x8000");
  int mark = made.add("BMkSym", {legend_text::field("Color", green), "Size:\t8.0", "Angle:\t30"});
  int other = made.add("BMkSym", {"Size:\t99"});
  int parts =
      made.add("SymList", {legend_text::field("Child", mark), legend_text::field("Child", other)});
  int composite = made.add("CMkSym", {legend_text::field("Symbols", parts)});
  manager.reset(zu_stl_mngr_create("pnt_mngr_style"));
  ASSERT_EQ(import(made.text("0x01", {made.one_class("", {})}, {composite}), manager.get()), 0);
  Tzu_bpnt_style* base = zu_pnt_style_get_bpnt_style_ptr(
      zu_stl_prm_get_pnt_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager.get()), 0));
  EXPECT_DOUBLE_EQ(zu_bpnt_style_get_size(base), 8 * 25.4 / 72);
  EXPECT_EQ(zu_bpnt_style_get_angle(base), 30);
  EXPECT_TRUE(zu_bpnt_style_get_use_figure(base));
  EXPECT_TRUE(is(zu_bpnt_style_get_color(base), 0, 128, 0, 0));
}

TEST_F(avl_import, fills_keep_their_contour_and_transparent_is_not_drawn) {
  int clear = made.add("TClr", {"Name:\t\"Transparent\""});
  int blue = made.color("Blue:\t0xff00");
  int shade = made.add("BShSym", {legend_text::field("Color", clear),
                                  legend_text::field("OutlineColor", blue), "OutlineWidth:\t1"});
  manager.reset(zu_pgn_stl_mngr_create());
  ASSERT_EQ(import(made.text("0x01", {made.one_class("", {})}, {shade}), manager.get()), 0);
  Tzu_pgn_style* style =
      zu_stl_prm_get_pgn_style_ptr(zu_stl_mngr_get_simple_sp_ptr(manager.get()), 0);
  EXPECT_FALSE(zu_pgn_style_get_pgn_visible(style));
  EXPECT_TRUE(zu_pgn_style_get_pln_visible(style));
  EXPECT_TRUE(is(zu_bpln_style_get_color(zu_pgn_style_get_bpln_style_ptr(style)), 0, 0, 255, 0));
  EXPECT_TRUE(is(zu_stl_mngr_get_simple_sp_ptr(manager.get())->colors[0], 0, 0, 0, 255));
}

TEST_F(avl_import, texts_of_a_code_page_are_read_in_that_of_the_language) {
  std::int32_t language = zu_res_get_lng();
  zu_res_set_lng(0);
  std::string water = "\xC2\xEE\xE4\xE0";  // "Вода" in Windows-1251
  std::vector<int> classes{made.one_class(water, {"MinNum:\t1", "MaxNum:\t1"}),
                           made.one_class("\xD0\x92", {"MinNum:\t2", "MaxNum:\t2"})};
  std::string text = made.text("0x08", classes, {made.fill(1, 1, 1), made.fill(2, 2, 2)});
  ASSERT_EQ(import(text, manager.get()), 0);
  EXPECT_EQ(value_caption(0), L"\u0412\u043e\u0434\u0430");
  EXPECT_EQ(value_caption(1), L"\u0412");
  zu_res_set_lng(50000);
  ASSERT_EQ(import(text, manager.get()), 0);
  zu_res_set_lng(language);
  EXPECT_EQ(value_caption(0), L"\u00C2\u00EE\u00E4\u00E0");
}

TEST_F(avl_import, what_is_no_legend_leaves_the_manager_and_says_why) {
  zu_stl_mngr_set_mode(manager.get(), zu_style_range);
  zu_val_scale_set_size(values(), 3);
  struct {
    std::string text;
    const wchar_t* reason;
  } const cases[] = {{"", L"is empty"},
                     {"<xml/>", L"is no text of ArcView objects"},
                     {"/3.2\n(ODB.1\n\tRoots:\t2\n)\n", L"holds no legend"},
                     {"/3.2\n(Legend.2\n\tSymbols:\t2\n)\n", L"holds a legend without symbols"},
                     {"/3.2\n(Legend.2\n\tSymbols:\t2", L"ends inside an object"}};
  for (const auto& c : cases) {
    EXPECT_NE(import(c.text, manager.get()), 0) << c.text;
    EXPECT_NE(said.find(c.reason), std::wstring::npos) << testing::PrintToString(said);
    EXPECT_EQ(said.find(folder.at("a.avl")), 0u);
  }
  EXPECT_NE(import_file(folder.at("none.avl"), manager.get()), 0);
  EXPECT_NE(said.find(L"no such file"), std::wstring::npos);
  EXPECT_NE(import_file(folder.at(""), manager.get()), 0);
  EXPECT_NE(said.find(L"is not a regular file"), std::wstring::npos);
  EXPECT_NE(import_file(folder.at("a.avl"), nullptr), 0);
  EXPECT_EQ(zu_stl_mngr_get_mode(manager.get()), zu_style_range);
  EXPECT_EQ(zu_val_scale_get_size(values()), 3u);
  EXPECT_NE(gp_avl_to_stlmngr_execute(nullptr), 0);
}

TEST_F(avl_import, symbols_that_contain_themselves_are_none) {
  std::string text =
      "/3.2\n(Legend.1\n\tSymbols:\t2\n\tClass:\t4\n)\n(SymList.2\n\tChild:\t3\n)\n"
      "(CMkSym.3\n\tSymbols:\t2\n)\n(LClass.4\n)\n";
  EXPECT_NE(import(text, manager.get()), 0);
  EXPECT_NE(said.find(L"without symbols"), std::wstring::npos);
}

TEST_F(avl_import, the_current_environment_hears_alone) {
  gp_env_main_set_env(nullptr);
  EXPECT_NE(import("", manager.get()), 0);
  EXPECT_EQ(said, L"");
  gp_env_main_set_env(environment);
  EXPECT_EQ(gp_env_main_get_env(), environment);
  gp_env_destroy(environment);
  EXPECT_EQ(gp_env_main_get_env(), nullptr);
  environment = nullptr;
}

}  // namespace
