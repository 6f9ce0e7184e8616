// Any text as a tree: refused with a reason, or read, and written and read again it is the same.

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "zu/platform/zuk_io.h"

namespace {

template <auto destroy> struct destroyed_by {
  template <class object> void operator()(object* o) const { destroy(o); }
};
using adapter_ptr = std::unique_ptr<Tzu_string_adp, destroyed_by<zu_string_adp_destroy>>;
using node_ptr = std::unique_ptr<Tzu_xnode, destroyed_by<zu_xnode_close>>;

adapter_ptr into(std::string& text) {
  auto narrow = [](const char* given, void* user) { *static_cast<std::string*>(user) = given; };
  auto wide = [](const wchar_t*, void* user) { *static_cast<std::string*>(user) = "a reason"; };
  return adapter_ptr(zu_string_adp_create(narrow, wide, &text));
}

node_ptr tree_of(const std::string& text) {
  std::string reason;
  node_ptr root(zu_xnode_read(text.data(), text.size(), into(reason).get()));
  if (!root && reason.empty()) std::abort();
  return root;
}

std::string text_of(Tzu_xnode* root) {
  std::string text;
  zu_xnode_get_text(root, into(text).get());
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  node_ptr given = tree_of(std::string(reinterpret_cast<const char*>(data), size));
  if (!given) return 0;
  std::string written = text_of(given.get());
  node_ptr again = tree_of(written);
  if (!again || text_of(again.get()) != written) std::abort();
  return 0;
}
