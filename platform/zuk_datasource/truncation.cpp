#include <sys/stat.h>

#include <cstdlib>

#include "platform/zuk_datasource/band_reader.h"

namespace zu::platform {

namespace {

std::uint64_t block_offset(GDALRasterBand& band, int x, int y) {
  std::string name = "BLOCK_OFFSET_" + std::to_string(x) + "_" + std::to_string(y);
  const char* text = band.GetMetadataItem(name.c_str(), "TIFF");
  return text == nullptr ? 0 : std::strtoull(text, nullptr, 10);
}

std::string cut_block(GDALRasterBand& band, std::uint64_t size) {
  int block_x = 0, block_y = 0;
  band.GetBlockSize(&block_x, &block_y);
  for (int y = 0; y * std::int64_t(block_y) < band.GetYSize(); ++y)
    for (int x = 0; x * std::int64_t(block_x) < band.GetXSize(); ++x) {
      std::uint64_t offset = block_offset(band, x, y);
      // A block that begins inside and ends outside may be the only bad one: the rest is read.
      if (offset >= size)
        return "the file is truncated: a block at byte " + std::to_string(offset) +
               " lies beyond its end at " + std::to_string(size);
    }
  return "";
}

}  // namespace

std::string truncation_of(GDALRasterBand& band, const std::string& path) {
  struct stat file {
  }, beside{};
  GDALDataset* dataset = band.GetDataset();
  if (dataset == nullptr || !EQUAL(dataset->GetDriverName(), "GTiff") ||
      stat(path.c_str(), &file) != 0)
    return "";
  std::string found = cut_block(band, static_cast<std::uint64_t>(file.st_size));
  bool inner = stat((path + ".ovr").c_str(), &beside) != 0;
  for (int i = 0; inner && found.empty() && i < band.GetOverviewCount(); ++i)
    if (GDALRasterBand* overview = band.GetOverview(i))
      found = cut_block(*overview, static_cast<std::uint64_t>(file.st_size));
  return found;
}

}  // namespace zu::platform
