#pragma once
// The bundle as a host gets hold of it: loaded anew for each test, by its two exports alone.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/abi/plain_host.h"

namespace plain {

/// Folder of the build that is looked at, from the environment variable ZU_BUILD_DIR.
std::string build_folder();
std::string bundle_path();
/// Lines that a command prints; the test fails if the command does.
std::vector<std::string> lines_of(const std::string& command);

class bundle_module : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  /// The bundle's handle for an instance pointer.
  Tzu_handle bundle(void* instance = nullptr) const;
  /// Factories with their namespaces, in the order in which they are offered.
  std::vector<named_receiver::visit> factories() const;
  /// The factory of a row: 0 is the localizer client, 1 to 39 are the services.
  Tzu_handle factory(std::size_t row) const { return factories().at(row).object; }
  void create(std::size_t row, Tzu_handle visitor, Tzu_handle owner = {}) const {
    call<void>(factory(row), 1, owner, visitor);
  }

  void* module_ = nullptr;
};

}  // namespace plain
