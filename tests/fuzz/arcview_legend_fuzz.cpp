// Legends of ArcView from anybody, into managers of every kind: refused, and the manager is as it
// was; or read, and what is made of it is saved and read the same.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "tests/fuzz/memory_folder.h"
#include "zu/platform/zuk_style_libs.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

using zu::platform::owned;
using manager_ptr = owned<zu_stl_mngr_destroy>;

owned<zu_xnode_close> tree_of(const manager_ptr& manager, const char* type) {
  owned<zu_xnode_close> root(zu_xnode_create_root_w(L"r"));
  zu_xml_save_style_save_mngr_style(nullptr, root.get(), L"styles", type, manager.get());
  return root;
}

std::wstring text(Tzu_xnode* root) {
  return zu::platform::text_of([&](Tzu_string_adp* a) { zu_xnode_get_text(root, a); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  static const memory_folder folder("arcview_legend_fuzz");
  folder.write("given.avl", data, size);
  for (const char* type :
       {"clr_mngr_style", "pnt_mngr_style", "pln_mngr_style", "pgn_mngr_style"}) {
    manager_ptr manager(zu_stl_mngr_create(type)), again(zu_stl_mngr_create(type));
    owned<gp_avl_to_stlmgr_params_destroy> params(gp_avl_to_stlmgr_params_create());
    gp_avl_to_stlmgr_params_set_filename_w(params.get(), folder.at("given.avl").c_str());
    gp_avl_to_stlmgr_params_set_stl_mngr(params.get(), manager.get());
    bool read = gp_avl_to_stlmngr_execute(params.get()) == 0;
    auto tree = tree_of(manager, type);
    if (!read && text(tree.get()) != text(tree_of(again, type).get())) std::abort();
    if (!zu_xml_save_style_load_mngr_style(nullptr, tree.get(), L"styles", type, again.get()) ||
        text(tree_of(again, type).get()) != text(tree.get()))
      std::abort();
  }
  return 0;
}
