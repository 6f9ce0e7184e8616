#pragma once
// Nodes and texts as scope objects.

#include <memory>
#include <string>
#include <utility>

#include "zu/platform/zuk_io.h"

namespace zu::platform {

struct node_closed {
  void operator()(Tzu_xnode* node) const { zu_xnode_close(node); }
};
using node_ptr = std::unique_ptr<Tzu_xnode, node_closed>;

/// The last text that `ask` delivers to an adapter; `otherwise` if there is none.
template <class function> std::wstring text_of(function&& ask, std::wstring otherwise = {}) {
  std::wstring text = std::move(otherwise);
  auto sink = [](const wchar_t* t, void* user) { *static_cast<std::wstring*>(user) = t; };
  std::unique_ptr<Tzu_string_adp, void (*)(Tzu_string_adp*)> adapter(
      zu_string_adp_create(nullptr, sink, &text), &zu_string_adp_destroy);
  ask(adapter.get());
  return text;
}

inline std::wstring attribute(Tzu_xnode* node, const wchar_t* key) {
  return text_of([&](Tzu_string_adp* a) { zu_xnode_get_attr_wstr(node, key, a); });
}

/// The child of a key, emptied.
inline node_ptr emptied(Tzu_xnode* node, const wchar_t* key) {
  node_ptr group(zu_xnode_set_node_w(node, key));
  zu_xnode_clear(group.get());
  return group;
}

}  // namespace zu::platform
