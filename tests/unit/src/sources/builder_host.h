#pragma once
// A host that makes entities for a builder and writes down what it is told.

#include <string>
#include <vector>

#include "zu/platform/zuk_lr2d.h"

namespace tests {

class builder_host {
 public:
  builder_host() : builder_(zu_lr_builder_create(&add, &fail, this)) {}
  virtual ~builder_host() {
    zu_lr_builder_destroy(builder_);
    for (Izu_layer* layer : layers) zu_lr2d_destroy(layer);
  }
  builder_host(const builder_host&) = delete;
  builder_host& operator=(const builder_host&) = delete;
  Tzu_lr_builder* builder() { return builder_; }

  bool refuses = false;
  std::vector<Izu_layer*> layers;
  std::vector<std::string> types;    // asked for, made or not
  std::vector<std::wstring> errors;  // texts of the failures
  std::vector<std::wstring> paths;   // of all calls

 protected:
  /// Ties a new entity to what stands behind it.
  virtual void made(Izu_layer*) {}

 private:
  static Izu_layer* add(const wchar_t* path, const char* type, void* user) {
    auto& self = *static_cast<builder_host*>(user);
    self.types.emplace_back(type);
    self.paths.emplace_back(path);
    if (self.refuses) return nullptr;
    Izu_layer* layer = zu_lr2d_create(type);
    zu_lr2d_set_wsource(layer, path);
    self.layers.push_back(layer);
    self.made(layer);
    return layer;
  }
  static void fail(const wchar_t* path, const wchar_t* text, void* user) {
    auto& self = *static_cast<builder_host*>(user);
    self.paths.emplace_back(path);
    self.errors.emplace_back(text);
  }

  Tzu_lr_builder* builder_;
};

}  // namespace tests
