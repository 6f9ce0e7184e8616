#include "platform/zuk_file_segy/segy_pyramid.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

#include "platform/zuk_file_segy/side_file.h"
#include "platform/zuk_io/atomic_file.h"

namespace zu::platform {

namespace {

constexpr char magic[] = {'Z', 'U', 'S', 'E', 'G', 'O', 'V', '1'};
constexpr std::uint64_t most_levels = 32;
constexpr std::size_t head_numbers = 6, level_numbers = 3;

std::uint64_t reduced(std::uint64_t size, std::uint64_t factor) {
  return size / factor + (size % factor != 0);
}

std::uint64_t whole(std::uint64_t index, std::uint64_t factor, std::uint64_t size) {
  return std::min(index * factor + factor / 2, size - 1);
}

}  // namespace

std::unique_ptr<segy_pyramid> segy_pyramid::open(const std::string& section,
                                                 const section_file& file) {
  std::string path = existing_side_file(section, pyramid_suffix);
  if (path.empty() || !is_newer(path, section)) return nullptr;
  try {
    std::unique_ptr<segy_pyramid> made(new segy_pyramid(path));
    return made->read_head(file) ? std::move(made) : nullptr;
  } catch (const segy_failure&) {
    return nullptr;  // pictures are drawn from the section itself
  }
}

bool segy_pyramid::read_head(const section_file& section) {
  char name[sizeof magic];
  std::uint64_t head[head_numbers];
  file_.read(0, reinterpret_cast<std::byte*>(name), sizeof name);
  file_.read(sizeof name, reinterpret_cast<std::byte*>(head), sizeof head);
  const std::uint64_t wanted[] = {static_cast<std::uint64_t>(section.format().element),
                                  section.format().element_bytes, section.traces(),
                                  section.samples(), section.size()};
  if (std::memcmp(name, magic, sizeof magic) != 0 ||
      !std::equal(std::begin(wanted), std::end(wanted), head) || head[5] > most_levels)
    return false;
  width_ = section.format().element_bytes;
  std::uint64_t at = sizeof name + sizeof head, offset = at + head[5] * level_numbers * 8;
  for (std::uint64_t i = 0; i < head[5]; ++i) {
    std::uint64_t numbers[level_numbers];
    file_.read(at, reinterpret_cast<std::byte*>(numbers), sizeof numbers);
    at += sizeof numbers;
    level l{numbers[0], numbers[1], numbers[2], offset};
    if (l.factor < 2 || l.columns != reduced(section.traces(), l.factor) ||
        l.samples != reduced(section.samples(), l.factor))
      return false;
    offset += l.columns * l.samples * width_;
    levels_.push_back(l);
  }
  return offset == file_.size();
}

const segy_pyramid::level* segy_pyramid::best(double reduction) const {
  const level* found = nullptr;
  for (const level& l : levels_)
    if (static_cast<double>(l.factor) <= reduction &&
        (found == nullptr || l.factor > found->factor))
      found = &l;
  return found;
}

void segy_pyramid::read(const level& from, std::uint64_t column,
                        const std::vector<std::int64_t>& rows, void* out) {
  if (column >= from.columns) throw segy_failure("no such column");
  file_.pick(from.offset + column * from.samples * width_, width_, rows,
             static_cast<std::byte*>(out));
}

bool build_segy_pyramid(const std::string& section, const std::vector<std::uint64_t>& factors,
                        const std::function<bool(double)>& progress) {
  section_file file(section);
  std::vector<std::uint64_t> head = {static_cast<std::uint64_t>(file.format().element),
                                     file.format().element_bytes,
                                     file.traces(),
                                     file.samples(),
                                     file.size(),
                                     factors.size()};
  std::uint64_t columns = 0, done = 0;
  for (std::uint64_t factor : factors) {
    if (factor < 2 || factors.size() > most_levels) throw segy_failure("no such levels");
    head.insert(head.end(),
                {factor, reduced(file.traces(), factor), reduced(file.samples(), factor)});
    columns += reduced(file.traces(), factor);
  }

  atomic_file target(side_file_to_write(section, pyramid_suffix));
  std::ofstream out(target.temporary(), std::ios::binary);
  out.write(magic, sizeof magic);
  out.write(reinterpret_cast<const char*>(head.data()),
            static_cast<std::streamsize>(head.size() * sizeof head[0]));
  std::vector<std::byte> column;
  for (std::uint64_t factor : factors) {
    std::vector<std::int64_t> rows(reduced(file.samples(), factor));
    for (std::size_t j = 0; j < rows.size(); ++j)
      rows[j] = static_cast<std::int64_t>(whole(j, factor, file.samples()));
    column.resize(rows.size() * file.format().element_bytes);
    for (std::uint64_t i = 0; i < reduced(file.traces(), factor); ++i) {
      if (!progress(static_cast<double>(done++) / static_cast<double>(columns))) return false;
      file.read(whole(i, factor, file.traces()), rows, column.data());
      out.write(reinterpret_cast<const char*>(column.data()),
                static_cast<std::streamsize>(column.size()));
    }
  }
  out.close();
  if (!out) throw write_failure("cannot be written");
  target.commit();
  progress(1);
  return true;
}

}  // namespace zu::platform
