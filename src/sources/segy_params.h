#pragma once
// The dialog that asks where the traces of a SEG-Y file lie.

#include <string>
#include <vector>

#include "zu/handle.h"
#include "zu/platform/zuk_file_segy.h"

namespace zu {

/// What the dialog shows and what a person sets in it.
class segy_params_model {
 public:
  explicit segy_params_model(std::wstring path) : path_(std::move(path)) {}

  const std::wstring& path() const { return path_; }
  /// Texts of the sources of coordinates, in the order of the drop-down.
  static std::vector<std::wstring> coord_sources();
  static std::vector<std::wstring> unit_suggestions();

  void fill(const Tzu_segy_prms* record);
  /// Estimates the record from what was set; false if the units are no number or nothing fits.
  bool take(Tzu_segy_prms* record) const;

  int coord_source = 0;  ///< index in the drop-down; -1 for no selection
  std::wstring units;
  bool simplify = false;

 private:
  std::wstring path_;
};

/// What the host's runner of the dialog gets. It answers to no interface.
class segy_params_docker : public plain_interface<segy_params_docker> {
 public:
  static constexpr char name[] = "zu_segy_params_docker_interface_0";
  explicit segy_params_docker(segy_params_model& model) : model(model) {}
  int query_interface(const char*, const void**, void**) override { return 1; }
  using operations = in_order<>;

  segy_params_model& model;
};

/// Asks a person for the parameters of a file, beginning with those stored with it, and stores what
/// was chosen. False, and a message if nothing fits, where there are none.
bool choose_segy_params(const wchar_t* path, Tzu_segy_prms* record);

}  // namespace zu
