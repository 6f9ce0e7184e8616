#include "host/core/scale_files.h"

#include <filesystem>
#include <memory>

#include "host/core/failure.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_style_libs.h"
#include "zu/platform/zuk_xml_data.h"

namespace zu::host {
namespace {

using load_function = bool (*)(Tzu_xml_save_style*, const wchar_t*, Tzu_stl_mngr*);
using save_function = bool (*)(Tzu_xml_save_style*, const wchar_t*, const Tzu_stl_mngr*);
struct scale_kind {
  const char* extension;
  load_function load;
  save_function save;
  Tzu_style_mode mode;
};
constexpr scale_kind kinds[] = {
    {"._rg", &zu_xml_save_style_load_rng_scale, &zu_xml_save_style_save_rng_scale, zu_style_range},
    {"._vl", &zu_xml_save_style_load_val_scale, &zu_xml_save_style_save_val_scale, zu_style_value}};

const scale_kind* kind_of(const std::string& path) {
  std::string extension = std::filesystem::path(path).extension().string();
  for (const scale_kind& kind : kinds)
    if (extension == kind.extension) return &kind;
  return nullptr;
}

bool is_legend(const std::string& path) {
  return std::filesystem::path(path).extension() == ".avl";
}

/// Runs one of the functions above.
template <class function, class manager>
void work(function f, const std::string& path, manager* m) {
  std::unique_ptr<Tzu_xml_save_style, void (*)(Tzu_xml_save_style*)> xml(
      zu_xml_save_style_create(), &zu_xml_save_style_destroy);
  if (f(xml.get(), wide(path).c_str(), m)) return;
  throw failure(path, narrow(text_of([&](Tzu_string_adp* adapter) {
                  zu_xml_save_style_get_reason_w(xml.get(), adapter);
                })));
}

void load_legend(const std::string& path, Tzu_stl_mngr* manager) {
  std::wstring reason;
  auto listen = [](const wchar_t* text, void* user) { *static_cast<std::wstring*>(user) = text; };
  std::unique_ptr<Tgp_env, void (*)(Tgp_env*)> own(gp_env_create(), &gp_env_destroy);
  gp_env_out_set(own.get(), gp_env_out_create(listen, &reason));
  Tgp_env* former = gp_env_main_get_env();
  gp_env_main_set_env(own.get());
  std::unique_ptr<Tgp_avl_to_stlmgr_params, void (*)(Tgp_avl_to_stlmgr_params*)> params(
      gp_avl_to_stlmgr_params_create(), &gp_avl_to_stlmgr_params_destroy);
  gp_avl_to_stlmgr_params_set_filename_w(params.get(), wide(path).c_str());
  gp_avl_to_stlmgr_params_set_stl_mngr(params.get(), manager);
  bool done = gp_avl_to_stlmngr_execute(params.get()) == 0;
  gp_env_main_set_env(former);
  if (!done) throw failure(narrow(reason));
}

}  // namespace

bool is_scale_file(const std::string& path) { return is_legend(path) || kind_of(path) != nullptr; }

void load_scale(const std::string& path, Tzu_stl_mngr* manager) {
  if (is_legend(path)) return load_legend(path, manager);
  const scale_kind* kind = kind_of(path);
  if (kind == nullptr)
    throw failure(path, "is no scale of a grid: those end in ._rg, ._vl or .avl");
  work(kind->load, path, manager);
  zu_stl_mngr_set_mode(manager, kind->mode);
}

void save_scale(const std::string& path, const Tzu_stl_mngr* manager) {
  const scale_kind* kind = kind_of(path);
  for (const scale_kind& each : kinds) {
    if (each.mode != zu_stl_mngr_get_mode(manager)) continue;
    if (kind != &each)
      throw failure(path, std::string("the scale in use has files that end in ") + each.extension);
    return work(kind->save, path, manager);
  }
  throw failure(path, "there is no scale to write");
}

}  // namespace zu::host
