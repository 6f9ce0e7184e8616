#include <charconv>
#include <memory>
#include <new>
#include <pugixml.hpp>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "zu/platform/zuk_io.h"

using zu::platform::from_utf8;
using zu::platform::guarded;
using zu::platform::to_utf8;

/// A place in a tree; the root's holds the tree.
struct Tzu_xnode {
  pugi::xml_node node;
  std::unique_ptr<pugi::xml_document> tree;
};

namespace {

Tzu_xnode* handed_out(pugi::xml_node node) {
  return node ? new (std::nothrow) Tzu_xnode{node, nullptr} : nullptr;
}

void set_attribute(Tzu_xnode* node, const wchar_t* key, const std::string& value) {
  guarded(node, [&](Tzu_xnode& n) {
    std::string name = to_utf8(key);
    if (name.empty()) return;  // would be written as what no parser reads
    pugi::xml_attribute attribute = n.node.attribute(name.c_str());
    if (!attribute) attribute = n.node.append_attribute(name.c_str());
    attribute.set_value(value.c_str());
  });
}

pugi::xml_attribute attribute_of(const Tzu_xnode& node, const wchar_t* key) {
  return node.node.attribute(to_utf8(key).c_str());
}

/// The whole text as a number, with a point in every locale.
template <class number> number parsed(std::string_view text, number otherwise) {
  number value;
  auto end = std::from_chars(text.data(), text.data() + text.size(), value);
  return end.ec == std::errc() && end.ptr == text.data() + text.size() ? value : otherwise;
}

template <class number> std::string written(number value) {
  char buffer[32];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

}  // namespace

Tzu_xnode* zu_xnode_create_root_w(const wchar_t* name) {
  return guarded(name, static_cast<Tzu_xnode*>(nullptr), [](const wchar_t& text) {
    auto tree = std::make_unique<pugi::xml_document>();
    pugi::xml_node root = tree->append_child(to_utf8(&text).c_str());
    return new Tzu_xnode{root, std::move(tree)};
  });
}

void zu_xnode_close(Tzu_xnode* node) { delete node; }

Tzu_xnode* zu_xnode_set_node_w(Tzu_xnode* node, const wchar_t* key) {
  return guarded(node, static_cast<Tzu_xnode*>(nullptr), [&](Tzu_xnode& n) -> Tzu_xnode* {
    std::string name = to_utf8(key);
    if (name.empty()) return nullptr;
    pugi::xml_node child = n.node.child(name.c_str());
    return handed_out(child ? child : n.node.append_child(name.c_str()));
  });
}

Tzu_xnode* zu_xnode_get_node_w(Tzu_xnode* node, const wchar_t* key) {
  return guarded(node, static_cast<Tzu_xnode*>(nullptr),
                 [&](Tzu_xnode& n) { return handed_out(n.node.child(to_utf8(key).c_str())); });
}

void zu_xnode_set_attr_wstr(Tzu_xnode* node, const wchar_t* key, const wchar_t* value) {
  guarded(value, [&](const wchar_t& text) { set_attribute(node, key, to_utf8(&text)); });
}
void zu_xnode_set_attr_bool_w(Tzu_xnode* node, const wchar_t* key, bool value) {
  set_attribute(node, key, value ? "1" : "0");
}
void zu_xnode_set_attr_int_w(Tzu_xnode* node, const wchar_t* key, int64_t value) {
  set_attribute(node, key, written(value));
}
void zu_xnode_set_attr_dbl_w(Tzu_xnode* node, const wchar_t* key, double value) {
  set_attribute(node, key, written(value));
}

void zu_xnode_get_attr_wstr(Tzu_xnode* node, const wchar_t* key, Tzu_string_adp* adapter) {
  guarded(node, [&](Tzu_xnode& n) {
    if (pugi::xml_attribute attribute = attribute_of(n, key))
      zu_string_adp_feed(adapter, from_utf8(attribute.value()).c_str());
  });
}
bool zu_xnode_get_attr_bool_w(Tzu_xnode* node, const wchar_t* key, bool otherwise) {
  return guarded(node, otherwise, [&](Tzu_xnode& n) {
    std::string_view text = attribute_of(n, key).value();
    if (text == "1" || text == "true") return true;
    return text == "0" || text == "false" ? false : otherwise;
  });
}
int64_t zu_xnode_get_attr_int_w(Tzu_xnode* node, const wchar_t* key, int64_t otherwise) {
  return guarded(node, otherwise,
                 [&](Tzu_xnode& n) { return parsed(attribute_of(n, key).value(), otherwise); });
}
double zu_xnode_get_attr_dbl_w(Tzu_xnode* node, const wchar_t* key, double otherwise) {
  return guarded(node, otherwise,
                 [&](Tzu_xnode& n) { return parsed(attribute_of(n, key).value(), otherwise); });
}
