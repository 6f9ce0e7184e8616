// The bundles as the host takes them.

#include "host/core/bundle.h"

#include <algorithm>

#include "host/core/failure.h"
#include "tests/e2e/program.h"

namespace tests {
namespace {

namespace fs = std::filesystem;

class bundles : public in_a_folder {
 protected:
  bundles() {
    bundle_ = fs::path(program_path()).parent_path().parent_path() / "lib" / "zuk_grid_layer2d.so";
    setenv("ZU_BUNDLE", bundle_.c_str(), 1);
  }
  ~bundles() override { setenv("ZU_BUNDLE", bundle_.c_str(), 1); }
  fs::path bundle_;
};

/// Counts its runs and accepts.
struct counting_runner final : zu::modal_dialog_runner_impl {
  int run(zu::handle) override { return ++runs; }
  int runs = 0;
};

TEST_F(bundles, a_further_one_that_is_absent_is_left_out) {
  zu::host::bundle services({"absent.so"});
  EXPECT_EQ(services.factories().size(), zu::host::bundle().factories().size());
}

TEST_F(bundles, a_further_one_that_is_no_bundle_is_refused) {
  fs::create_symlink(bundle_, path("zuk_grid_layer2d.so"));
  write("other.so", "no library");
  setenv("ZU_BUNDLE", path("zuk_grid_layer2d.so").c_str(), 1);
  EXPECT_THROW(zu::host::bundle({"other.so"}), zu::host::failure);
}

TEST_F(bundles, services_of_all_are_taken) {
  fs::copy_file(bundle_, path("first.so"));
  fs::copy_file(bundle_, path("second.so"));
  setenv("ZU_BUNDLE", path("first.so").c_str(), 1);
  zu::host::bundle one, two({"second.so"});
  EXPECT_EQ(two.factories().size(), 2 * one.factories().size());
  EXPECT_EQ(two.object_infos().size(), 2 * one.object_infos().size());
  EXPECT_EQ(two.layer_editors().size(), 2 * one.layer_editors().size());
}

TEST_F(bundles, every_dialog_is_offered_to_the_host_under_its_id) {
  zu::host::bundle services;
  counting_runner runner;
  std::vector<std::wstring> ids;
  services.set_dialog_runners([&](const std::wstring& id) {
    ids.push_back(id);
    return zu::modal_dialog_runner(zu::handle_of<zu::modal_dialog_runner_impl>(runner));
  });
  EXPECT_EQ(std::count(ids.begin(), ids.end(), L"zu_segy_params_dialog"), 1);
  services.set_dialog_runners({});  // the runner ends before the bundle
}

}  // namespace
}  // namespace tests
