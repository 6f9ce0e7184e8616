// zugrid config: what a person chooses once for all.

#include <cstdio>
#include <memory>

#include "host/cli/commands.h"
#include "host/core/settings.h"

namespace zu::cli {
namespace {

struct texts {
  std::string name, value;
};

int run(const texts& given) {
  host::settings kept;
  if (given.value.empty())
    std::printf("%s\n", kept.get(given.name).c_str());
  else
    kept.set(given.name, given.value);
  return exit_success;
}

}  // namespace

command add_config(CLI::App& options) {
  auto given = std::make_shared<texts>();
  options.add_option("NAME", given->name, "lang: the language of what grids say of themselves")
      ->required()
      ->check(CLI::IsMember({"lang"}));
  options.add_option("VALUE", given->value, "ru or en; without it, what is set is said")
      ->check(CLI::IsMember({"ru", "en"}));
  options.footer("Where nothing is set, the language is that of the system.");
  return [given] { return run(*given); };
}

}  // namespace zu::cli
