#include "tests/abi/bundle_module.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

namespace plain {

std::string build_folder() {
  const char* folder = std::getenv("ZU_BUILD_DIR");
  return folder != nullptr ? folder : "build";
}

std::string bundle_path() { return build_folder() + "/lib/zuk_grid_layer2d.so"; }

std::vector<std::string> lines_of(const std::string& command) {
  std::vector<std::string> lines;
  FILE* pipe = popen(("LC_ALL=C " + command).c_str(), "r");
  if (pipe == nullptr) {
    ADD_FAILURE() << "cannot run " << command;
    return lines;
  }
  char* line = nullptr;
  std::size_t room = 0;
  for (ssize_t size; (size = getline(&line, &room, pipe)) > 0;) {
    lines.emplace_back(line, static_cast<std::size_t>(size));
    if (lines.back().back() == '\n') lines.back().pop_back();
  }
  std::free(line);
  EXPECT_EQ(pclose(pipe), 0) << command;
  return lines;
}

void bundle_module::SetUp() {
  module_ = dlopen(bundle_path().c_str(), RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(module_, nullptr) << dlerror();
}

void bundle_module::TearDown() {
  if (module_ != nullptr) dlclose(module_);
}

Tzu_handle bundle_module::bundle(void* instance) const {
  auto entry = reinterpret_cast<Tzu_handle (*)(void*)>(
      dlsym(module_, "zu_bundle_interface_to_custom_pointer"));
  EXPECT_NE(entry, nullptr);
  static int anything;
  return entry(instance != nullptr ? instance : &anything);
}

std::vector<named_receiver::visit> bundle_module::factories() const {
  named_receiver receiver;
  receiver.head.name = "zu_service_factory_receiver_interface_1";
  call<void>(bundle(), 1, receiver.handle());
  return receiver.visits;
}

}  // namespace plain
