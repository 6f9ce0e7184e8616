#include "platform/zuk_datasource/plain_tiff.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <bit>
#include <cstring>
#include <thread>

#include <gdal_priv.h>

#include "platform/zuk_datasource/elements.h"

namespace zu::platform {

namespace {

// A call for one row costs about as much as copying this many bytes.
constexpr std::size_t call_worth = 4096;
constexpr std::size_t most_at_once = std::size_t(1) << 20;
constexpr std::size_t worth_two_threads = 200'000;  // cells

bool has_machine_byte_order(int file) {
  static_assert(std::endian::native == std::endian::little);
  char head[2] = {};
  return pread(file, head, 2, 0) == 2 && head[0] == 'I' && head[1] == 'I';
}

bool is_stored_as_is(GDALDataset& dataset, GDALRasterBand& band) {
  GDALDataType type = band.GetRasterDataType();
  return dataset.GetMetadataItem("COMPRESSION", "IMAGE_STRUCTURE") == nullptr &&
         band.GetMetadataItem("NBITS", "IMAGE_STRUCTURE") == nullptr &&
         !GDALDataTypeIsComplex(type) && type != GDT_Unknown;
}

template <class cell>
void gather(const std::byte* from, std::size_t step, const std::int64_t* columns,
            std::int64_t first, std::size_t count, void* out) {
  auto* to = static_cast<cell*>(out);
  for (std::size_t i = 0; i < count; ++i)
    std::memcpy(to + i, from + static_cast<std::size_t>(columns[i] - first) * step, sizeof(cell));
}

void gather(const std::byte* from, std::size_t step, const std::int64_t* columns,
            std::int64_t first, std::size_t count, void* out, std::size_t width) {
  switch (width) {
    case 1:
      return gather<std::uint8_t>(from, step, columns, first, count, out);
    case 2:
      return gather<std::uint16_t>(from, step, columns, first, count, out);
    case 4:
      return gather<std::uint32_t>(from, step, columns, first, count, out);
    default:
      return gather<std::uint64_t>(from, step, columns, first, count, out);
  }
}

bool read_at(int file, void* to, std::size_t bytes, std::uint64_t offset) {
  return pread(file, to, bytes, static_cast<off_t>(offset)) == static_cast<ssize_t>(bytes);
}

}  // namespace

// Sampled cells begin..end of one direction that lie in one column or row of blocks.
struct plain_tiff_band::block_run {
  std::size_t block, begin, end;
};

plain_tiff_band::plain_tiff_band(GDALRasterBand& band, int file, int interleaved, int place)
    : band_(band), file_(file), interleaved_(interleaved), place_(place) {
  band.GetBlockSize(&block_width_, &block_height_);
  auto across = [](int cells, int block) {
    return static_cast<std::size_t>((std::int64_t(cells) + block - 1) / block);
  };
  blocks_across_ = across(band.GetXSize(), block_width_);
  offsets_.resize(blocks_across_ * across(band.GetYSize(), block_height_));
}

plain_tiff_band::~plain_tiff_band() { close(file_); }

std::unique_ptr<plain_tiff_band> plain_tiff_band::make(GDALDataset& dataset,
                                                       const std::string& path, int band,
                                                       int level) {
  if (!EQUAL(dataset.GetDriverName(), "GTiff")) return nullptr;
  GDALRasterBand* found = dataset.GetRasterBand(band);
  if (found != nullptr && level >= 0) {
    if (access((path + ".ovr").c_str(), F_OK) == 0) return nullptr;
    found = found->GetOverview(level);
  }
  GDALDataset* own = found != nullptr ? found->GetDataset() : nullptr;  // overviews have their own
  if (own == nullptr || !is_stored_as_is(*own, *found)) return nullptr;
  int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return nullptr;
  struct stat s {};
  if (fstat(file, &s) != 0 || !S_ISREG(s.st_mode) || !has_machine_byte_order(file)) {
    close(file);
    return nullptr;
  }
  const char* layout = own->GetMetadataItem("INTERLEAVE", "IMAGE_STRUCTURE");
  bool interleaved = layout != nullptr && EQUAL(layout, "PIXEL");
  return std::unique_ptr<plain_tiff_band>(new plain_tiff_band(
      *found, file, interleaved ? own->GetRasterCount() : 1, interleaved ? band - 1 : 0));
}

std::vector<plain_tiff_band::block_run> plain_tiff_band::runs_of(
    const std::vector<std::int64_t>& cells, int block) const {
  std::vector<block_run> out;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    auto in = static_cast<std::size_t>(cells[i] / block);
    if (out.empty() || out.back().block != in) out.push_back({in, i, i});
    out.back().end = i + 1;
  }
  return out;
}

bool plain_tiff_band::find_offsets(const std::vector<block_run>& across,
                                   const std::vector<block_run>& down) {
  for (const block_run& row : down)
    for (const block_run& column : across) {
      std::uint64_t& offset = offsets_[row.block * blocks_across_ + column.block];
      if (offset != 0) continue;
      std::string item =
          "BLOCK_OFFSET_" + std::to_string(column.block) + "_" + std::to_string(row.block);
      const char* text = band_.GetMetadataItem(item.c_str(), "TIFF");
      if (text == nullptr) return false;
      offset = std::strtoull(text, nullptr, 10);
      if (offset == 0) return false;
    }
  return true;
}

bool plain_tiff_band::sample_runs(const std::vector<block_run>& across, const block_run* down,
                                  const block_run* down_end, const std::int64_t* columns,
                                  const std::int64_t* rows, std::size_t column_count, void* out,
                                  std::size_t width) const {
  std::size_t step = width * static_cast<std::size_t>(interleaved_);
  std::size_t row_bytes = step * static_cast<std::size_t>(block_width_);
  std::vector<std::byte> buffer;
  for (; down != down_end; ++down)
    for (const block_run& run : across) {
      auto first_column = columns[run.begin];
      auto first_row = rows[down->begin];
      std::uint64_t start = offsets_[down->block * blocks_across_ + run.block] +
                            static_cast<std::uint64_t>(first_row % block_height_) * row_bytes +
                            static_cast<std::uint64_t>(first_column % block_width_) * step +
                            width * static_cast<std::size_t>(place_);
      std::size_t span =
          static_cast<std::size_t>(columns[run.end - 1] - first_column) * step + width;
      std::size_t all =
          static_cast<std::size_t>(rows[down->end - 1] - first_row) * row_bytes + span;
      std::size_t count = down->end - down->begin;
      bool at_once = all <= most_at_once && all < count * (span + call_worth);
      buffer.resize(std::max(buffer.size(), at_once ? all : span));
      if (at_once && !read_at(file_, buffer.data(), all, start)) return false;
      for (std::size_t k = down->begin; k < down->end; ++k) {
        std::size_t below = static_cast<std::size_t>(rows[k] - first_row) * row_bytes;
        if (!at_once && !read_at(file_, buffer.data(), span, start + below)) return false;
        gather(buffer.data() + (at_once ? below : 0), step, columns + run.begin, first_column,
               run.end - run.begin,
               static_cast<std::byte*>(out) + (k * column_count + run.begin) * width, width);
      }
    }
  return true;
}

bool plain_tiff_band::sample(const std::vector<std::int64_t>& columns,
                             const std::vector<std::int64_t>& rows, void* out, std::size_t width) {
  auto across = runs_of(columns, block_width_), down = runs_of(rows, block_height_);
  if (!find_offsets(across, down)) return false;
  auto read = [&](std::size_t begin, std::size_t end) {
    return sample_runs(across, down.data() + begin, down.data() + end, columns.data(), rows.data(),
                       columns.size(), out, width);
  };
  if (columns.size() * rows.size() < worth_two_threads) return read(0, down.size());
  std::size_t half = down.size() / 2;
  bool lower = false;
  std::jthread second([&] {
    try {
      lower = read(half, down.size());
    } catch (...) {
      lower = false;
    }
  });
  bool upper = read(0, half);
  second.join();
  return upper && lower;
}

}  // namespace zu::platform
