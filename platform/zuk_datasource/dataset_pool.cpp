#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <ctime>
#include <list>
#include <mutex>

#include "platform/zuk_datasource/gdal_messages.h"
#include "platform/zuk_datasource/open_dataset.h"

namespace zu::platform {

namespace {

// What tells that a file is still the one that was opened; all zero if there is no file.
struct file_stamp {
  std::string path;
  std::uint64_t size = 0, inode = 0;
  std::int64_t seconds = 0, nanoseconds = 0;
  bool operator==(const file_stamp&) const = default;
};

file_stamp stamp_of(const std::string& path) {
  file_stamp out{path};
  struct stat s {};
  if (stat(path.c_str(), &s) == 0) {
    out.size = static_cast<std::uint64_t>(s.st_size), out.inode = s.st_ino;
    out.seconds = s.st_mtim.tv_sec, out.nanoseconds = s.st_mtim.tv_nsec;
  }
  return out;
}

constexpr std::size_t most_files = 64;  // a mosaic of more files is opened anew each time

// The files of a dataset, and those that would change it if they appeared.
std::vector<file_stamp> stamps_of(const std::string& name, GDALDataset& dataset) {
  std::string main = local_file_of(name);
  if (main.empty()) return {};
  std::vector<std::string> paths = {main, main + ".ovr", main + ".aux.xml"};
  char** listed = dataset.GetFileList();
  for (char** file = listed; file != nullptr && *file != nullptr; ++file) {
    std::string local = local_file_of(*file);
    if (!local.empty()) paths.push_back(local);
  }
  CSLDestroy(listed);
  std::sort(paths.begin() + 1, paths.end());
  paths.erase(std::unique(paths.begin() + 1, paths.end()), paths.end());
  std::vector<file_stamp> out;
  if (paths.size() <= most_files)
    for (const std::string& path : paths) out.push_back(stamp_of(path));
  return out;
}

bool unchanged(const std::vector<file_stamp>& stamps) {
  return std::all_of(stamps.begin(), stamps.end(),
                     [](const file_stamp& s) { return stamp_of(s.path) == s; });
}

// A file written just now may be written again within the same tick of its clock, unseen.
bool is_settled(const std::vector<file_stamp>& stamps) {
  constexpr std::int64_t tick = 20'000'000;  // nanoseconds; clocks of file systems have 4 or 10 ms
  constexpr std::int64_t second = 1'000'000'000;
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return std::all_of(stamps.begin(), stamps.end(), [&](const file_stamp& s) {
    std::int64_t age = (now.tv_sec - s.seconds) * second + now.tv_nsec - s.nanoseconds;
    return s.seconds < now.tv_sec - 1 || age < 0 || age > tick;
  });
}

}  // namespace

struct dataset_pool::entry {
  std::string name;
  dataset_ptr dataset;
  std::vector<file_stamp> stamps;
  std::thread::id user;  // the thread it was last handed to

  bool free_for(std::thread::id thread) const {
    if (user == thread) return true;
    if (dataset.use_count() > 1) return false;
    std::atomic_thread_fence(std::memory_order_acquire);  // sees all that the last holder did
    return true;
  }
};

struct dataset_pool::state {
  std::mutex mutex;
  std::list<entry> entries;  // the last used first
  std::size_t size = 16;
};

dataset_pool::dataset_pool() : state_(std::make_unique<state>()) {}
dataset_pool::~dataset_pool() = default;

dataset_pool& dataset_pool::shared() {
  static dataset_pool pool;
  return pool;
}

dataset_ptr dataset_pool::find(const std::string& name) {
  auto thread = std::this_thread::get_id();
  auto& entries = state_->entries;
  for (auto e = entries.begin(); e != entries.end();) {
    auto here = e++;
    if (here->name != name || !here->free_for(thread)) continue;
    if (!unchanged(here->stamps)) {
      entries.erase(here);
      continue;
    }
    here->user = thread;
    entries.splice(entries.begin(), entries, here);
    return here->dataset;
  }
  return nullptr;
}

dataset_ptr dataset_pool::acquire(const std::string& name, bool read_only, std::string& reason) {
  std::lock_guard lock(state_->mutex);
  if (!read_only) {
    std::string file = local_file_of(name);
    state_->entries.remove_if([&](const entry& e) {
      return e.name == name || (!e.stamps.empty() && !file.empty() && e.stamps[0].path == file);
    });
    return open_by_name(name, false, reason);
  }
  if (dataset_ptr kept = find(name)) return kept;
  dataset_ptr opened = open_by_name(name, true, reason);
  if (opened == nullptr || state_->size == 0) return opened;
  gdal_messages quiet;
  std::vector<file_stamp> stamps = stamps_of(name, opened->gdal());
  if (stamps.empty() || !is_settled(stamps)) return opened;
  state_->entries.push_front({name, opened, std::move(stamps), std::this_thread::get_id()});
  shrink();
  return opened;
}

void dataset_pool::shrink() {
  while (state_->entries.size() > state_->size) state_->entries.pop_back();
}

void dataset_pool::set_size(std::size_t files) {
  std::lock_guard lock(state_->mutex);
  state_->size = files;
  shrink();
}

std::size_t dataset_pool::held() {
  std::lock_guard lock(state_->mutex);
  return state_->entries.size();
}

}  // namespace zu::platform
