#include <memory>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_io.h"

namespace {

struct closed {
  void operator()(Tzu_xnode* node) const { zu_xnode_close(node); }
};
using node_ptr = std::unique_ptr<Tzu_xnode, closed>;

struct named_channel {
  const wchar_t* key;
  Tzu_clr_channel* (*of)(Tzu_rgb_channels*);
};
constexpr named_channel channels_of_a_set[] = {{L"red", &zu_rgb_channels_get_red},
                                               {L"green", &zu_rgb_channels_get_green},
                                               {L"blue", &zu_rgb_channels_get_blue},
                                               {L"gray", &zu_rgb_channels_get_gray}};

/// An adapter that assigns to a string.
class text_adapter {
 public:
  explicit text_adapter(std::wstring& target)
      : adapter_(zu_string_adp_create(
            nullptr,
            [](const wchar_t* text, void* user) { *static_cast<std::wstring*>(user) = text; },
            &target)) {}
  ~text_adapter() { zu_string_adp_destroy(adapter_); }
  text_adapter(const text_adapter&) = delete;
  text_adapter& operator=(const text_adapter&) = delete;
  Tzu_string_adp* get() { return adapter_; }

 private:
  Tzu_string_adp* adapter_;
};

}  // namespace

void zu_xml_save_style_save_rgb_channels(void*, Tzu_xnode* node, const wchar_t* key,
                                         const Tzu_rgb_channels* channels) {
  node_ptr group(channels != nullptr ? zu_xnode_set_node_w(node, key) : nullptr);
  if (!group) return;
  for (const named_channel& named : channels_of_a_set) {
    node_ptr child(zu_xnode_set_node_w(group.get(), named.key));
    // The getters give what a caller may edit; nothing is edited here.
    const Tzu_clr_channel* channel = named.of(const_cast<Tzu_rgb_channels*>(channels));
    std::wstring name;
    text_adapter adapter(name);
    zu_clr_channel_get_prop_name_w(channel, adapter.get());
    zu_xnode_set_attr_wstr(child.get(), L"prop", name.c_str());
    zu_xnode_set_attr_dbl_w(child.get(), L"min", zu_clr_channel_get_minimum(channel));
    zu_xnode_set_attr_dbl_w(child.get(), L"max", zu_clr_channel_get_maximum(channel));
  }
}

bool zu_xml_save_style_load_rgb_channels(void*, Tzu_xnode* node, const wchar_t* key,
                                         Tzu_rgb_channels* channels) {
  node_ptr group(zu_xnode_get_node_w(node, key));
  if (!group || channels == nullptr) return false;
  for (const named_channel& named : channels_of_a_set) {
    node_ptr child(zu_xnode_get_node_w(group.get(), named.key));
    if (!child) continue;
    Tzu_clr_channel* channel = named.of(channels);
    std::wstring name;
    text_adapter adapter(name);
    zu_clr_channel_get_prop_name_w(channel, adapter.get());  // stays if the key is absent
    zu_xnode_get_attr_wstr(child.get(), L"prop", adapter.get());
    zu_clr_channel_set_prop_name_w(channel, name.c_str());
    zu_clr_channel_set_limits(
        channel, zu_xnode_get_attr_dbl_w(child.get(), L"min", zu_clr_channel_get_minimum(channel)),
        zu_xnode_get_attr_dbl_w(child.get(), L"max", zu_clr_channel_get_maximum(channel)));
  }
  return true;
}

void zu_xml_data_save_color(void*, Tzu_xnode* node, const wchar_t* key, Tzu_color color) {
  node_ptr group(zu_xnode_set_node_w(node, key));
  zu_xnode_set_attr_int_w(group.get(), L"r", color.r);
  zu_xnode_set_attr_int_w(group.get(), L"g", color.g);
  zu_xnode_set_attr_int_w(group.get(), L"b", color.b);
  zu_xnode_set_attr_int_w(group.get(), L"a", color.a);
}

bool zu_xml_data_load_color(void*, Tzu_xnode* node, const wchar_t* key, Tzu_color* color) {
  node_ptr group(zu_xnode_get_node_w(node, key));
  if (!group || color == nullptr) return false;
  int64_t bytes[4];
  const wchar_t* const keys[4] = {L"r", L"g", L"b", L"a"};
  for (int i = 0; i < 4; ++i) {
    bytes[i] = zu_xnode_get_attr_int_w(group.get(), keys[i], -1);
    if (bytes[i] < 0 || bytes[i] > 255) return false;
  }
  *color = {static_cast<uint8_t>(bytes[0]), static_cast<uint8_t>(bytes[1]),
            static_cast<uint8_t>(bytes[2]), static_cast<uint8_t>(bytes[3])};
  return true;
}
