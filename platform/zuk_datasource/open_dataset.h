#pragma once
// Opening of a GDAL dataset by name, and the pool of those that stay open.

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gdal_priv.h>

#include "platform/zuk_datasource/georeference.h"
#include "platform/zuk_datasource/plain_tiff.h"

namespace zu::platform {

/// An open dataset that is closed with the object. It never saves what GDAL worked out about a file
/// that is open for reading. Used by one thread at a time.
class open_dataset {
 public:
  open_dataset(GDALDataset* dataset, std::string path, bool read_only);
  ~open_dataset();
  open_dataset(const open_dataset&) = delete;
  open_dataset& operator=(const open_dataset&) = delete;

  GDALDataset& gdal() { return *dataset_; }
  const std::string& path() const { return path_; }  ///< what GDAL was given
  bool read_only() const { return read_only_; }
  /// Worked out on first use; after a change of the place it has to be forgotten.
  const georeference& place();
  void forget_place() { place_.reset(); }
  /// A shortcut to the cells of band `index`, from 0, or of its overview `level`, from 0 (-1: of
  /// the band itself); null if the file does not allow it.
  plain_tiff_band* plain_band(int index, int level);

 private:
  GDALDataset* dataset_;
  std::string path_;
  bool read_only_;
  std::optional<georeference> place_;
  std::map<std::pair<int, int>, std::unique_ptr<plain_tiff_band>> plain_bands_;  // null: none
};
using dataset_ptr = std::shared_ptr<open_dataset>;

/// Opens `name` anew; null, and why in `reason`, on failure.
dataset_ptr open_by_name(const std::string& name, bool read_only, std::string& reason);

/// Datasets open for reading, by name, as long as their files stay as they were.
class dataset_pool {
 public:
  static dataset_pool& shared();

  /// A dataset of the pool that no other thread holds, or one opened anew. One that is opened for
  /// update is the caller's alone, and the pool forgets the file.
  dataset_ptr acquire(const std::string& name, bool read_only, std::string& reason);
  void set_size(std::size_t files);
  std::size_t held();  ///< datasets in the pool now

 private:
  struct entry;
  dataset_pool();
  ~dataset_pool();
  dataset_ptr find(const std::string& name);
  void shrink();

  struct state;
  std::unique_ptr<state> state_;
};

/// The file on this machine's disks that `name` leads to (through archives and connection texts);
/// empty if there is none.
std::string local_file_of(const std::string& name);

}  // namespace zu::platform
