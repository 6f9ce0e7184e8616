#include "platform/zuk_xml_data/values.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_xml_data/nodes.h"

namespace zu::platform {
namespace {

template <class number> std::wstring written(const number* numbers, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    char buffer[32];
    if (i > 0) text += ' ';
    text.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, numbers[i]).ptr);
  }
  return from_utf8(text);
}

/// The numbers of a text, a blank between two; none at all if anything else stands there.
template <class number> std::vector<number> numbers_in(const std::wstring& wide) {
  std::string text = to_utf8(wide);
  std::vector<number> all;
  for (const char *at = text.data(), *end = at + text.size(); at < end;) {
    number value;
    auto read = std::from_chars(at, end, value);
    if (read.ec != std::errc() || (read.ptr != end && *read.ptr != ' ')) return {};
    all.push_back(value);
    at = read.ptr == end ? end : read.ptr + 1;
  }
  return all;
}

bool is_length(double millimetres) { return std::isfinite(millimetres) && millimetres >= 0.0; }

}  // namespace

void save_color(Tzu_xnode* node, const wchar_t* key, Tzu_color c) {
  const unsigned bytes[] = {c.r, c.g, c.b, c.a};
  zu_xnode_set_attr_wstr(node, key, written(bytes, 4).c_str());
}

void load_color(Tzu_xnode* node, const wchar_t* key, Tzu_color& color) {
  std::vector<std::uint8_t> bytes = numbers_in<std::uint8_t>(attribute(node, key));
  if (bytes.size() == 4) color = {bytes[0], bytes[1], bytes[2], bytes[3]};
}

void load_length(Tzu_xnode* node, const wchar_t* key, double& millimetres) {
  double read = zu_xnode_get_attr_dbl_w(node, key, millimetres);
  if (is_length(read)) millimetres = read;
}

void save_lengths(Tzu_xnode* node, const wchar_t* key, const std::vector<double>& lengths) {
  if (!lengths.empty())
    zu_xnode_set_attr_wstr(node, key, written(lengths.data(), lengths.size()).c_str());
}

void load_lengths(Tzu_xnode* node, const wchar_t* key, std::vector<double>& lengths,
                  std::size_t most) {
  std::vector<double> read = numbers_in<double>(attribute(node, key));
  bool good = !read.empty() && read.size() <= most;
  if (good && std::all_of(read.begin(), read.end(), is_length)) lengths = read;
}

void load_number(Tzu_xnode* node, const wchar_t* key, double& number) {
  double read = zu_xnode_get_attr_dbl_w(node, key, number);
  if (std::isfinite(read)) number = read;
}

void load_choice(Tzu_xnode* node, const wchar_t* key, std::int32_t& choice, std::int32_t count) {
  std::int64_t read = zu_xnode_get_attr_int_w(node, key, choice);
  if (read >= 0 && read < count) choice = static_cast<std::int32_t>(read);
}

void load_flag(Tzu_xnode* node, const wchar_t* key, bool& flag) {
  flag = zu_xnode_get_attr_bool_w(node, key, flag);
}

void load_text(Tzu_xnode* node, const wchar_t* key, std::wstring& text) {
  text = text_of([&](Tzu_string_adp* a) { zu_xnode_get_attr_wstr(node, key, a); }, text);
}

}  // namespace zu::platform
