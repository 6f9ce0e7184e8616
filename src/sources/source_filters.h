#pragma once
// The filters of this bundle: which files they take, and the layer that they make of one.

#include <cstdint>
#include <string>

#include "zu/layer2d.h"
#include "zu/scene_editor.h"

namespace zu {

/// What the filters share: their texts, and a layer with the file's name for a caption.
class source_filter : public scene_editor_filter_impl {
 public:
  void get_description(string_visitor visitor) override;
  void get_mask(string_visitor visitor) override;

 protected:
  source_filter(std::int32_t description, std::int32_t mask, std::int32_t failure)
      : description_(description), mask_(mask), failure_(failure) {}
  ~source_filter() = default;

  /// Whether the mask holds the extension anywhere: it is not split into its items.
  bool mask_holds(const std::wstring& extension) const;
  /// Adds a layer; null, and an error at the builder, if there is none.
  Izu_layer* add_layer(Tzu_lr_builder* builder, const wchar_t* path, const char* type) const;

 private:
  std::int32_t description_, mask_, failure_;
};

class gdal_source_filter_adder : public source_filter {
 public:
  gdal_source_filter_adder() : source_filter(201, 202, 203) {}
  /// A path without an extension may be a folder that is a grid: it is opened to see.
  bool accepts(const wchar_t* path) override;
  void add(Tzu_lr_builder* builder, const wchar_t* path) override;
};

class rastr_source_filter_adder : public source_filter {
 public:
  rastr_source_filter_adder() : source_filter(230, 231, 232) {}
  bool accepts(const wchar_t* path) override;
  void add(Tzu_lr_builder* builder, const wchar_t* path) override;
};

/// One layer of the kind that the file's grid is.
class tos4_grid_source_filter_adder : public source_filter {
 public:
  tos4_grid_source_filter_adder() : source_filter(210, 212, 213) {}
  bool accepts(const wchar_t* path) override;
  void add(Tzu_lr_builder* builder, const wchar_t* path) override;
};

class tos4_coord_source_filter_adder : public source_filter {
 public:
  tos4_coord_source_filter_adder() : source_filter(211, 212, 213) {}
  bool accepts(const wchar_t* path) override;
  void add(Tzu_lr_builder* builder, const wchar_t* path) override;
};

/// A section, after a person has said where its traces lie.
class segy_source_filter_adder : public source_filter {
 public:
  segy_source_filter_adder() : source_filter(220, 221, 222) {}
  bool accepts(const wchar_t* path) override;
  /// A person who declines leaves no layer and no error.
  void add(Tzu_lr_builder* builder, const wchar_t* path) override;
};

}  // namespace zu
