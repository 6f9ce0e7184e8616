#include "src/style/page/legend_import.h"

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "zu/platform/zuk_msgs.h"
#include "zu/platform/zuk_style_libs.h"

namespace zu::style::detail {
namespace {

/// An environment that is the current one while this lives. What it is told is not shown: the
/// person hears one sentence.
class own_environment {
 public:
  own_environment() : former_(gp_env_main_get_env()), own_(gp_env_create()) {
    gp_env_out_set(own_.get(), gp_env_out_create(nullptr, nullptr));
    gp_env_main_set_env(own_.get());
  }
  own_environment(const own_environment&) = delete;
  own_environment& operator=(const own_environment&) = delete;
  ~own_environment() { gp_env_main_set_env(former_); }

 private:
  Tgp_env* former_;
  owned<gp_env_destroy> own_;
};

}  // namespace

bool import_avl(Tzu_stl_mngr* mngr) {
  if (mngr == nullptr) return false;
  const std::wstring path = text_of(
      [](Tzu_string_adp* adapter) { zu_ask_open_file_w(load_text(10314).c_str(), adapter); });
  if (path.empty()) return false;
  owned<gp_avl_to_stlmgr_params_destroy> params(gp_avl_to_stlmgr_params_create());
  gp_avl_to_stlmgr_params_set_filename_w(params.get(), path.c_str());
  gp_avl_to_stlmgr_params_set_stl_mngr(params.get(), mngr);
  own_environment environment;
  if (gp_avl_to_stlmngr_execute(params.get()) != 0) {
    zu_show_wmessage(load_text(10315).c_str());
    return false;
  }
  zu_stl_mngr_set_just_loaded(mngr, true);
  return true;
}

}  // namespace zu::style::detail
