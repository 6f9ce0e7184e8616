#pragma once
// What operations on files share: whoever asked hears why one failed.

#include <memory>
#include <string>

#include "platform/zuk_xml_data/nodes.h"
#include "zu/platform/zuk_io.h"
#include "zu/platform/zuk_xml_data.h"

struct Tzu_xml_save_2d {
  std::wstring reason;
};
struct Tzu_xml_save_style {
  std::wstring reason;
};

namespace zu::platform {

/// What `work(reason)` gives; false if it throws. The reason goes to `xml`, which may be null.
template <class holder, class function> bool telling(holder* xml, function&& work) noexcept {
  try {
    std::wstring reason;
    bool done = false;
    try {
      done = work(reason);
    } catch (...) {
      reason = L"not enough memory";
    }
    if (xml != nullptr) xml->reason = done ? std::wstring() : reason;
    return done;
  } catch (...) {
    return false;
  }
}

inline bool save_tree(Tzu_xnode* root, const wchar_t* path, std::wstring& reason) {
  bool saved = false;
  reason = text_of([&](Tzu_string_adp* a) { saved = zu_xnode_save_file_w(root, path, a); });
  return saved;
}

/// The root of the tree in a file; null with the reason.
inline node_ptr load_tree(const wchar_t* path, std::wstring& reason) {
  node_ptr root;
  reason = text_of([&](Tzu_string_adp* a) { root.reset(zu_xnode_load_file_w(path, a)); });
  return root;
}

/// The whole tree of a root as text.
inline std::string tree_text(Tzu_xnode* root) {
  std::string text;
  auto sink = [](const char* t, void* user) { *static_cast<std::string*>(user) = t; };
  std::unique_ptr<Tzu_string_adp, void (*)(Tzu_string_adp*)> adapter(
      zu_string_adp_create(sink, nullptr, &text), &zu_string_adp_destroy);
  zu_xnode_get_text(root, adapter.get());
  return text;
}

inline std::wstring name_of(Tzu_xnode* node) {
  return text_of([&](Tzu_string_adp* a) { zu_xnode_get_name_w(node, a); });
}

}  // namespace zu::platform
