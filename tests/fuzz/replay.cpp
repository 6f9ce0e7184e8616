// Runs a target once with nothing and once with each file of the folder named on the command line,
// if there is such a folder. What was found once is not to come back.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void run(const std::string& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]), 2;
  run("");
  if (!std::filesystem::is_directory(argv[1])) return 0;
  for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
    std::printf("%s\n", entry.path().filename().c_str());
    std::fflush(stdout);  // a crash comes behind the name of its file
    std::ifstream file(entry.path(), std::ios::binary);
    run({std::istreambuf_iterator<char>(file), {}});
  }
}
