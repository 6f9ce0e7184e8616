#include "platform/zuk_io/xnode.h"

#include <charconv>
#include <new>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_io/xml_texts.h"

using zu::platform::from_xml;
using zu::platform::guarded;
using zu::platform::xml_value;

namespace {

/// A null key counts as empty.
std::string name_of(const wchar_t* key) {
  return zu::platform::xml_name(key != nullptr ? key : L"");
}

Tzu_xnode* handed_out(pugi::xml_node node) {
  return node ? new (std::nothrow) Tzu_xnode{node, nullptr} : nullptr;
}

void set_attribute(Tzu_xnode* node, const wchar_t* key, const std::string& value) {
  guarded(node, [&](Tzu_xnode& n) {
    std::string name = name_of(key);
    if (name.empty()) return;  // would be written as what no parser reads
    pugi::xml_attribute attribute = n.node.attribute(name.c_str());
    if (!attribute) attribute = n.node.append_attribute(name.c_str());
    attribute.set_value(value.c_str());
  });
}

pugi::xml_attribute attribute_of(const Tzu_xnode& node, const wchar_t* key) {
  return node.node.attribute(name_of(key).c_str());
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
    std::string name = name_of(&text);
    pugi::xml_node root = tree->append_child(name.empty() ? "root" : name.c_str());
    return new Tzu_xnode{root, std::move(tree)};
  });
}

void zu_xnode_close(Tzu_xnode* node) { delete node; }

void zu_xnode_get_name_w(Tzu_xnode* node, Tzu_string_adp* adapter) {
  guarded(node,
          [&](Tzu_xnode& n) { zu_string_adp_feed(adapter, from_xml(n.node.name()).c_str()); });
}

Tzu_xnode* zu_xnode_set_node_w(Tzu_xnode* node, const wchar_t* key) {
  return guarded(node, static_cast<Tzu_xnode*>(nullptr), [&](Tzu_xnode& n) -> Tzu_xnode* {
    std::string name = name_of(key);
    if (name.empty()) return nullptr;
    pugi::xml_node child = n.node.child(name.c_str());
    return handed_out(child ? child : n.node.append_child(name.c_str()));
  });
}

Tzu_xnode* zu_xnode_get_node_w(Tzu_xnode* node, const wchar_t* key) {
  return guarded(node, static_cast<Tzu_xnode*>(nullptr),
                 [&](Tzu_xnode& n) { return handed_out(n.node.child(name_of(key).c_str())); });
}

Tzu_xnode* zu_xnode_add_node_w(Tzu_xnode* node, const wchar_t* key) {
  return guarded(node, static_cast<Tzu_xnode*>(nullptr), [&](Tzu_xnode& n) -> Tzu_xnode* {
    std::string name = name_of(key);
    return name.empty() ? nullptr : handed_out(n.node.append_child(name.c_str()));
  });
}

Tzu_xnode* zu_xnode_next_node_w(Tzu_xnode* node) {
  return guarded(node, static_cast<Tzu_xnode*>(nullptr),
                 [](Tzu_xnode& n) { return handed_out(n.node.next_sibling(n.node.name())); });
}

void zu_xnode_clear(Tzu_xnode* node) {
  guarded(node, [](Tzu_xnode& n) {
    n.node.remove_attributes();
    n.node.remove_children();
  });
}

void zu_xnode_remove(Tzu_xnode* node) {
  guarded(node, [](Tzu_xnode& n) { n.node.parent().remove_child(n.node); });
  zu_xnode_close(node);
}

void zu_xnode_assign(Tzu_xnode* node, const Tzu_xnode* from) {
  guarded(from, [&](const Tzu_xnode& source) {
    if (node == nullptr || node->node == source.node) return;
    zu_xnode_clear(node);
    for (const pugi::xml_attribute& each : source.node.attributes()) node->node.append_copy(each);
    for (const pugi::xml_node& each : source.node.children()) node->node.append_copy(each);
  });
}

void zu_xnode_set_attr_wstr(Tzu_xnode* node, const wchar_t* key, const wchar_t* value) {
  guarded(value, [&](const wchar_t& text) { set_attribute(node, key, xml_value(&text)); });
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
      zu_string_adp_feed(adapter, from_xml(attribute.value()).c_str());
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

void zu_xnode_get_node_wstr(Tzu_xnode* node, const wchar_t* key, Tzu_string_adp* adapter) {
  guarded(node, [&](Tzu_xnode& n) {
    if (pugi::xml_node child = n.node.child(name_of(key).c_str()))
      zu_string_adp_feed(adapter, from_xml(child.text().get()).c_str());
  });
}
int64_t zu_xnode_get_node_int(Tzu_xnode* node, const wchar_t* key, int64_t otherwise) {
  return guarded(node, otherwise, [&](Tzu_xnode& n) {
    return parsed(n.node.child(name_of(key).c_str()).text().get(), otherwise);
  });
}
