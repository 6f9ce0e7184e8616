// The second module: its exports and its one service.

#include <dlfcn.h>

#include <set>
#include <string>

#include "tests/abi/bundle_module.h"

namespace plain {
namespace {

std::string common_path() { return build_folder() + "/lib/zuk_common.so"; }

TEST(common_module_file, exports_what_the_bundle_does) {
  std::set<std::string> names;
  auto last_word = [](const std::string& line) { return line.substr(line.rfind(' ') + 1); };
  for (const std::string& line : lines_of("nm -D --defined-only '" + common_path() + "'"))
    names.insert(last_word(line));
  EXPECT_EQ(names, (std::set<std::string>{"zu_bundle_interface_to_custom_pointer",
                                          "scary_vcl_bug_crashes_everything_on_unloading"}));
}

class common_module : public testing::Test {
 protected:
  void SetUp() override {
    module_ = dlopen(common_path().c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(module_, nullptr) << dlerror();
    auto entry = reinterpret_cast<Tzu_handle (*)(void*)>(
        dlsym(module_, "zu_bundle_interface_to_custom_pointer"));
    named_receiver receiver;
    receiver.head.name = "zu_service_factory_receiver_interface_1";
    call<void>(entry(this), 1, receiver.handle());
    factories_ = receiver.visits;
  }
  void TearDown() override {
    if (module_ != nullptr) dlclose(module_);
  }
  void* module_ = nullptr;
  std::vector<named_receiver::visit> factories_;
};

TEST_F(common_module, offers_the_modes_of_viewers_the_gallery_and_classes_of_scales) {
  ASSERT_EQ(factories_.size(), 5u);  // the localizer client is the first
  EXPECT_EQ(factories_[1].id, L"zugrid/viewer/2d");
  EXPECT_EQ(factories_[2].id, L"zugrid/gallery");
  EXPECT_EQ(factories_[3].id, L"");  // its dialog
  EXPECT_EQ(factories_[4].id, L"zugrid/classes");
}

}  // namespace
}  // namespace plain
