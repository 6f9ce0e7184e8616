// The filter that asks a person first. The person is a runner of the dialog.

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <list>

#include "src/bundle/factory.h"
#include "src/bundle/strings.h"
#include "src/layer/grid_layer2d.h"
#include "src/sources/segy_params.h"
#include "src/sources/source_filters.h"
#include "tests/unit/src/sources/builder_host.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;
namespace fs = std::filesystem;

/// Holds the service of every dialog, and answers the one of a section's parameters.
class person : public modal_dialog_service_visitor_impl,
               public modal_dialog_visitor_impl,
               public modal_dialog_runner_impl {
 public:
  person() {
    for (auto* factory : service_factories())
      factory->create({}, handle_of<modal_dialog_service_visitor_impl>(*this));
  }
  void visit(modal_dialog_service service) override {
    call<&modal_dialog_service_impl::get_dialog>(
        service, modal_dialog_visitor(handle_of<modal_dialog_visitor_impl>(*this)));
    services_.emplace_back(service);
  }
  void visit(const wchar_t* id, modal_dialog dialog) override {
    if (std::wstring(id) == dialog::segy_params::id)
      call<&modal_dialog_impl::attach_view>(
          dialog, modal_dialog_runner(handle_of<modal_dialog_runner_impl>(*this)));
  }
  int run(handle) override {
    ++asked;
    return accepts ? 1 : 0;
  }
  bool accepts = true;
  int asked = 0;

 private:
  std::list<strong_ref<modal_dialog_service_impl>> services_;
};

/// A host that ties grid layers to their entities.
class grid_host : public tests::builder_host {
 public:
  std::list<grid_layer2d> objects;

 protected:
  void made(Izu_layer* layer) override {
    grid_layer2d& object = objects.emplace_back();
    zu_lr2d_set_plugin_interface(layer, handle_of<layer_2d_impl>(object));
    object.bind_entity(layer);
  }
};

void put(std::string& bytes, std::size_t place, std::uint32_t value, int width) {
  for (int i = 0; i < width; ++i)
    bytes[place + static_cast<std::size_t>(i)] =
        static_cast<char>(value >> (8 * (width - 1 - i)) & 0xff);
}

/// Four traces of three samples, a hundred metres apart.
std::string section() {
  std::string bytes(3600, '\0');
  put(bytes, 3216, 4000, 2);  // microseconds
  put(bytes, 3220, 3, 2);
  put(bytes, 3224, 5, 2);  // IEEE floats
  for (std::uint32_t trace = 0; trace < 4; ++trace) {
    std::string head(240, '\0');
    put(head, 70, 1, 2);
    for (std::size_t x : {72, 80, 180}) put(head, x, 1000 + 100 * trace, 4);
    for (std::size_t y : {76, 84, 184}) put(head, y, 5000, 4);
    put(head, 114, 3, 2);
    put(head, 116, 4000, 2);
    bytes += head;
    for (std::uint32_t sample = 0; sample < 3; ++sample) {
      float value = static_cast<float>(trace * 3 + sample);
      std::uint32_t word;
      std::memcpy(&word, &value, sizeof word);
      std::string four(4, '\0');
      put(four, 0, word, 4);
      bytes += four;
    }
  }
  return bytes;
}

class segy_filter : public testing::Test {
 protected:
  void SetUp() override {
    language_ = zu_res_get_lng();
    zu_res_set_lng(50000);
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    std::ofstream(folder_ / "line.sgy", std::ios::binary) << section();
  }
  void TearDown() override {
    zu_res_set_lng(language_);
    fs::remove_all(folder_);
  }

  fs::path folder_ = fs::path(testing::TempDir()) / "segy_filter";
  std::wstring path_ = (folder_ / "line.sgy").wstring();
  segy_source_filter_adder filter_;
  std::int32_t language_ = 0;
};

TEST_F(segy_filter, accepts_by_its_mask) {
  for (const wchar_t* path : {L"/a/b.sgy", L"/a/b.SEGY", L"/a/b.seg", L"/a/b."})
    EXPECT_TRUE(filter_.accepts(path)) << path;
  for (const wchar_t* path : {L"/a/b.segyx", L"/a/b", L"/a.sgy/b", L"/a/b.tif"})
    EXPECT_FALSE(filter_.accepts(path)) << path;
}

TEST_F(segy_filter, makes_a_section_of_a_grid_layer) {
  person accepting;
  grid_host host;
  filter_.add(host.builder(), path_.c_str());
  EXPECT_EQ(accepting.asked, 1);
  EXPECT_EQ(host.types, std::vector<std::string>{"grid_lr2d"});
  EXPECT_TRUE(host.errors.empty());
  ASSERT_EQ(host.layers.size(), 1u);
  auto text = [&](auto ask) { return text_of([&](Tzu_string_adp* a) { ask(host.layers[0], a); }); };
  EXPECT_EQ(text(zu_lr_get_lr_subtype), L"segy_sub_lr2d");
  EXPECT_EQ(text(zu_lr2d_get_wcaption), L"line.sgy");
  EXPECT_FALSE(host.objects.front().has_projection());
  Tzu_stl_mngr* manager = host.objects.front().get_style_manager();
  EXPECT_EQ(zu_stl_mngr_get_mode(manager), zu_style_range);
  EXPECT_EQ(zu_rng_scale_get_size(zu_stl_mngr_get_rng_scale_ptr(manager)), 11u);
}

TEST_F(segy_filter, leaves_nothing_when_a_person_declines_or_nobody_is_there_to_ask) {
  grid_host host;
  filter_.add(host.builder(), path_.c_str());
  person declining;
  declining.accepts = false;
  filter_.add(host.builder(), path_.c_str());
  EXPECT_EQ(declining.asked, 1);
  EXPECT_TRUE(host.types.empty());
  EXPECT_TRUE(host.errors.empty());
}

TEST_F(segy_filter, reports_a_layer_that_the_host_cannot_make) {
  person accepting;
  grid_host host;
  host.refuses = true;
  filter_.add(host.builder(), path_.c_str());
  EXPECT_EQ(host.errors, std::vector<std::wstring>{L"SEG-Y files are not supported."});
}

}  // namespace
