#include "platform/zuk_file_tos4/pgrid_file.h"

#include <algorithm>
#include <cstring>

#include "platform/zuk_file_tos4/tables.h"

namespace zu::platform {
namespace {

constexpr std::size_t most_held = std::size_t(64) << 20;

/// Samples of a level along an axis that were taken from `count` nodes at `start`; first > last if
/// none was.
struct run_of_samples {
  std::int64_t first, last;
};

run_of_samples samples_of(const tile_level& level, int axis, std::int64_t start, std::int64_t count,
                          std::int64_t nodes) {
  std::int64_t half = level.step / 2, end = start + count - 1;
  std::int64_t first = start <= half ? 0 : (start - half - 1) / level.step + 1;
  std::int64_t last = end < half ? -1 : (end - half) / level.step;
  // The last sample of a level stands for a step that the grid may cut short.
  if (start + count == nodes) last = level.size[axis] - 1;
  return {first, last};
}

template <std::size_t width>
void gather(const std::byte* from, std::int64_t step, std::byte* to, std::int64_t count) {
  auto stride = static_cast<std::size_t>(step) * width;
  for (std::int64_t i = 0; i < count; ++i, from += stride, to += width)
    std::memcpy(to, from, width);
}

void gather(const std::byte* from, std::int64_t step, std::byte* to, std::int64_t count,
            std::size_t width) {
  if (step == 1)
    std::memcpy(to, from, static_cast<std::size_t>(count) * width);
  else if (width == 1)
    gather<1>(from, step, to, count);
  else if (width == 2)
    gather<2>(from, step, to, count);
  else if (width == 4)
    gather<4>(from, step, to, count);
  else
    gather<8>(from, step, to, count);
}

/// Whether nothing but `sample`, again and again.
bool is_full_of(const std::vector<std::byte>& samples, const std::vector<std::byte>& sample) {
  std::size_t width = sample.size();
  return std::memcmp(samples.data(), sample.data(), width) == 0 &&
         std::memcmp(samples.data(), samples.data() + width, samples.size() - width) == 0;
}

void fill(std::vector<std::byte>& samples, const std::vector<std::byte>& sample) {
  for (std::size_t at = 0; at < samples.size(); at += sample.size())
    std::memcpy(samples.data() + at, sample.data(), sample.size());
}

}  // namespace

pgrid_file::pgrid_file(const std::string& path, access mode) {
  check_first_bytes(path);
  base_ = std::make_unique<database>(path, mode);
  check_tables(*base_, path);
  read_all();
  plan_ = tile_plan(head_);
  prepare();
}

pgrid_file::pgrid_file(const std::string& path, grid_head head) : head_(std::move(head)) {
  for (std::int64_t& side : head_.tile) side = 1;
  head_.levels = 0;
  for (std::int64_t side : head_.size)
    if (side < 1) throw pgrid_failure("has an impossible size");
  plan_tiles(head_);
  check(head_);
  plan_ = tile_plan(head_);
  try {
    temporary_ = std::make_unique<atomic_file>(path);
  } catch (const write_failure& failure) {
    throw pgrid_failure(failure.what());
  }
  base_ = std::make_unique<database>(temporary_->temporary(), access::build);
  base_->run("PRAGMA page_size = 65536");
  base_->run("BEGIN EXCLUSIVE");
  make_tables(*base_);
  store_head(*base_, head_);
  prepare();
}

// The statements before the database, the database before its file.
pgrid_file::~pgrid_file() {
  version_.reset(), remove_.reset(), insert_.reset(), select_.reset();
  base_.reset();
}

void pgrid_file::prepare() {
  select_ = std::make_unique<statement>(base_->get(), "SELECT samples FROM tile WHERE id = ?1");
  version_ = std::make_unique<statement>(base_->get(), "PRAGMA data_version");
  if (!can_write()) return;
  insert_ =
      std::make_unique<statement>(base_->get(), "INSERT OR REPLACE INTO tile VALUES (?1, ?2)");
  remove_ = std::make_unique<statement>(base_->get(), "DELETE FROM tile WHERE id = ?1");
}

void pgrid_file::read_all() {
  head_ = read_head(*base_);
  properties_ = read_properties(*base_, head_);
  empty_.clear();
  for (const grid_property& property : properties_) empty_.push_back(empty_sample(property));
}

database& pgrid_file::base() {
  if (base_ == nullptr) throw pgrid_failure("is finished");
  return *base_;
}

const grid_property& pgrid_file::at(std::size_t property) const {
  if (property >= properties_.size()) throw pgrid_failure("has no such property");
  return properties_[property];
}

std::size_t pgrid_file::tile_bytes(std::size_t property) const {
  return static_cast<std::size_t>(head_.tile[0] * head_.tile[1]) * sample_width(at(property).type);
}

// --- Head and properties

std::size_t pgrid_file::add_property(grid_property property) {
  property.slot = properties_.empty() ? 0 : properties_.back().slot + 1;
  check(property);
  for (const grid_property& other : properties_)
    if (other.name == property.name) throw pgrid_failure("has two properties of one name");
  edit change(*this);
  store_property(*base_, property);
  change.commit();
  empty_.push_back(empty_sample(property));
  properties_.push_back(std::move(property));
  return properties_.size() - 1;
}

void pgrid_file::set_head(const grid_head& head) {
  grid_head next = head;
  next.size = head_.size, next.tile = head_.tile, next.levels = head_.levels;
  check(next);
  edit change(*this);
  store_head(*base_, next);
  change.commit();
  head_ = std::move(next);
}

void pgrid_file::set_property(std::size_t index, const grid_property& property) {
  grid_property next = property;
  next.slot = at(index).slot, next.type = at(index).type;
  check(next);
  edit change(*this);
  store_property(*base_, next);
  change.commit();
  properties_[index] = std::move(next);
}

void pgrid_file::forget_statistics(std::size_t property) {
  if (!at(property).has_stat) return;
  properties_[property].has_stat = false;
  store_property(*base_, properties_[property]);
}

// --- Transactions

pgrid_file::reading::reading(pgrid_file& file)
    : file_(file.base().in_transaction() ? nullptr : &file) {
  if (file_ == nullptr) return;
  file_->base_->run("BEGIN");
  try {
    file_->version_->step();
    std::int64_t now = file_->version_->integer(0);
    file_->version_->reset();
    if (now != file_->seen_version_) file_->forget_tiles();
    file_->seen_version_ = now;
  } catch (...) {
    file_->version_->reset();
    file_->base_->run("ROLLBACK");
    throw;
  }
}

pgrid_file::reading::~reading() {
  if (file_ == nullptr) return;
  try {
    file_->base_->run("COMMIT");
  } catch (const pgrid_failure&) {
    file_->forget_tiles();  // nothing was changed; what was read may be half of two states
  }
}

pgrid_file::edit::edit(pgrid_file& file) : file_(file), open_(!file.base().in_transaction()) {
  if (!file_.can_write()) throw pgrid_failure("is open for reading alone");
  if (!open_) return;
  file_.base_->run("BEGIN IMMEDIATE");
  file_.forget_tiles();
}

pgrid_file::edit::~edit() {
  if (committed_) return;
  file_.spoiled_ = true;
  if (!open_) return;
  file_.spoiled_ = false;
  file_.forget_tiles();
  try {
    if (file_.base_->in_transaction()) file_.base_->run("ROLLBACK");
    file_.read_all();
  } catch (const std::exception&) {
    // The reason of the edit's own failure is on its way; the next reading meets this one again.
  }
}

void pgrid_file::edit::commit() {
  if (open_) file_.finish();
  committed_ = true;
}

void pgrid_file::finish() {
  if (spoiled_) throw pgrid_failure("a part of it could not be written");
  store_changed();
  base().run("COMMIT");
}

void pgrid_file::commit() {
  if (temporary_ == nullptr) throw pgrid_failure("is in its place already");
  finish();
  version_.reset(), remove_.reset(), insert_.reset(), select_.reset();
  base_.reset();
  try {
    temporary_->commit();
  } catch (const write_failure& failure) {
    throw pgrid_failure(failure.what());
  }
}

// --- Tiles

pgrid_file::held_tile& pgrid_file::hold(std::size_t property, std::int64_t id) {
  if (auto found = by_id_.find(id); found != by_id_.end()) {
    held_.splice(held_.begin(), held_, found->second);
    return held_.front();
  }
  std::size_t bytes = tile_bytes(property);
  while (!held_.empty() && held_bytes_ + bytes > most_held) {
    held_tile& last = held_.back();
    if (last.changed) store(last);
    held_bytes_ -= last.samples.size();
    by_id_.erase(last.id);
    held_.pop_back();
  }
  held_tile tile{id, property, std::vector<std::byte>(bytes), false};
  load(tile);
  held_.push_front(std::move(tile));
  by_id_[id] = held_.begin();
  held_bytes_ += bytes;
  return held_.front();
}

void pgrid_file::load(held_tile& tile) {
  select_->bind(1, tile.id);
  try {
    if (!select_->step()) {
      fill(tile.samples, empty_[tile.property]);
    } else {
      auto samples = select_->blob(0);
      if (samples.size() != tile.samples.size()) throw pgrid_failure("has a tile of a wrong size");
      std::memcpy(tile.samples.data(), samples.data(), samples.size());
    }
  } catch (...) {
    select_->reset();
    throw;
  }
  select_->reset();
}

void pgrid_file::store(held_tile& tile) {
  statement& way = is_full_of(tile.samples, empty_[tile.property]) ? *remove_ : *insert_;
  way.bind(1, tile.id);
  if (&way == insert_.get()) way.bind(2, std::span<const std::byte>(tile.samples));
  try {
    way.run();
  } catch (...) {
    way.reset();
    throw;
  }
  tile.changed = false;
}

void pgrid_file::store_changed() {
  for (held_tile& tile : held_)
    if (tile.changed) store(tile);
}

void pgrid_file::forget_tiles() {
  held_.clear(), by_id_.clear();
  held_bytes_ = 0;
}

const std::byte* pgrid_file::tile(std::size_t property, int level, std::int64_t z, std::int64_t y,
                                  std::int64_t x) {
  return hold(property, plan_.id(at(property).slot, level, z, y, x)).samples.data();
}

bool pgrid_file::for_tiles(std::size_t property, int level,
                           const std::function<bool(const seen_tile&)>& see) {
  const tile_level& l = plan_.level(level);
  const std::int64_t first = plan_.id(at(property).slot, level, 0, 0, 0);
  const std::int64_t in_slice = l.tiles[0] * l.tiles[1], all = in_slice * head_.size[2];
  statement next(base().get(),
                 "SELECT id FROM tile WHERE id >= ?1 AND id < ?2 ORDER BY id LIMIT 1");
  for (std::int64_t number = 0; number < all; ++number) {
    next.bind(1, first + number).bind(2, first + all);
    if (!next.step()) break;
    number = next.integer(0) - first;
    next.reset();
    std::int64_t z = number / in_slice, y = number % in_slice / l.tiles[0];
    std::int64_t x = number % in_slice % l.tiles[0];
    seen_tile seen{tile(property, level, z, y, x),
                   std::min(head_.tile[0], l.size[0] - x * head_.tile[0]),
                   std::min(head_.tile[1], l.size[1] - y * head_.tile[1]),
                   static_cast<double>(number + 1) / static_cast<double>(all)};
    if (!see(seen)) return false;
  }
  return true;
}

// --- Samples

void pgrid_file::write_level(std::size_t property, int level, const node_box& box,
                             const std::byte* samples) {
  const tile_level& l = plan_.level(level);
  const std::size_t width = sample_width(at(property).type);
  const std::int64_t across = head_.tile[0], down = head_.tile[1];
  run_of_samples columns = samples_of(l, 0, box.x, box.nx, head_.size[0]);
  run_of_samples rows = samples_of(l, 1, box.y, box.ny, head_.size[1]);
  if (columns.first > columns.last || rows.first > rows.last) return;
  for (std::int64_t ty = rows.first / down; ty <= rows.last / down; ++ty)
    for (std::int64_t tx = columns.first / across; tx <= columns.last / across; ++tx) {
      held_tile& tile = hold(property, plan_.id(at(property).slot, level, box.z, ty, tx));
      tile.changed = true;
      std::int64_t first = std::max(columns.first, tx * across);
      std::int64_t last = std::min(columns.last, (tx + 1) * across - 1);
      std::int64_t row_end = std::min(rows.last, (ty + 1) * down - 1);
      for (std::int64_t row = std::max(rows.first, ty * down); row <= row_end; ++row) {
        std::int64_t source_row = l.node_of(row, head_.size[1]) - box.y;
        auto from = [&](std::int64_t i) {
          std::int64_t node = l.node_of(i, head_.size[0]) - box.x;
          return samples + static_cast<std::size_t>(source_row * box.nx + node) * width;
        };
        auto to = [&](std::int64_t i) {
          std::int64_t cell = (row - ty * down) * across + i - tx * across;
          return tile.samples.data() + static_cast<std::size_t>(cell) * width;
        };
        // The last sample may stand nearer than a step.
        gather(from(first), l.step, to(first), last - first, width);
        std::memcpy(to(last), from(last), width);
      }
    }
}

void pgrid_file::write(std::size_t property, const node_box& box, const std::byte* samples) {
  auto fits = [](std::int64_t start, std::int64_t count, std::int64_t all) {
    return start >= 0 && count > 0 && start < all && count <= all - start;
  };
  if (!fits(box.x, box.nx, head_.size[0]) || !fits(box.y, box.ny, head_.size[1]) ||
      !fits(box.z, 1, head_.size[2]))
    throw pgrid_failure("has no such nodes");
  forget_statistics(property);
  for (int level = 0; level < plan_.levels(); ++level) write_level(property, level, box, samples);
}

void pgrid_file::check_run(std::int64_t start, std::int64_t count) const {
  if (start < 0 || count < 0 || start > head_.nodes() || count > head_.nodes() - start)
    throw pgrid_failure("has no such nodes");
}

// A run in row order is at most a part of a row, whole rows and a part of a row in each slice.
template <class work>
void pgrid_file::for_boxes_of_run(std::int64_t start, std::int64_t count, work w) const {
  std::int64_t nx = head_.size[0], slice = nx * head_.size[1];
  for (std::int64_t done = 0; done < count;) {
    std::int64_t at = start + done, in_slice = at % slice, x = in_slice % nx;
    std::int64_t left = std::min(count - done, slice - in_slice);
    node_box box{x, in_slice / nx, std::min(left, nx - x), 1, at / slice};
    if (box.nx == nx) box.ny = left / nx;
    w(box, done);
    done += box.nx * box.ny;
  }
}

void pgrid_file::write_run(std::size_t property, std::int64_t start, std::int64_t count,
                           const std::byte* samples) {
  std::size_t width = sample_width(at(property).type);
  check_run(start, count);
  edit change(*this);
  for_boxes_of_run(start, count, [&](const node_box& box, std::int64_t done) {
    write(property, box, samples + static_cast<std::size_t>(done) * width);
  });
  change.commit();
}

void pgrid_file::read_run(std::size_t property, std::int64_t start, std::int64_t count,
                          std::byte* samples) {
  const std::size_t width = sample_width(at(property).type);
  const std::int64_t across = head_.tile[0], down = head_.tile[1];
  check_run(start, count);
  reading state(*this);
  for_boxes_of_run(start, count, [&](const node_box& box, std::int64_t done) {
    std::byte* out = samples + static_cast<std::size_t>(done) * width;
    for (std::int64_t x = box.x; x < box.x + box.nx;) {
      std::int64_t run = std::min(box.x + box.nx - x, across - x % across);
      for (std::int64_t y = box.y; y < box.y + box.ny; ++y) {
        const std::byte* from = tile(property, 0, box.z, y / down, x / across);
        std::memcpy(out + static_cast<std::size_t>((y - box.y) * box.nx + x - box.x) * width,
                    from + static_cast<std::size_t>(y % down * across + x % across) * width,
                    static_cast<std::size_t>(run) * width);
      }
      x += run;
    }
  });
}

}  // namespace zu::platform
