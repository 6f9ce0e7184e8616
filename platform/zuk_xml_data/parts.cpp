#include "platform/zuk_xml_data/parts.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <vector>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_styles/parameters.h"
#include "platform/zuk_xml_data/nodes.h"

namespace zu::platform {
namespace {

constexpr const wchar_t* color_keys[] = {L"color", L"selected"};
constexpr const wchar_t* line_keys[] = {L"line", L"selected_line"};

template <class number> std::wstring written(const number* numbers, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) {
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

void save_color(Tzu_xnode* node, const wchar_t* key, Tzu_color c) {
  const unsigned bytes[] = {c.r, c.g, c.b, c.a};
  zu_xnode_set_attr_wstr(node, key, written(bytes, 4).c_str());
}

void load_color(Tzu_xnode* node, const wchar_t* key, Tzu_color& color) {
  std::vector<std::uint8_t> bytes = numbers_in<std::uint8_t>(attribute(node, key));
  if (bytes.size() == 4) color = {bytes[0], bytes[1], bytes[2], bytes[3]};
}

void load_choice(Tzu_xnode* node, const wchar_t* key, std::int32_t& choice) {
  std::int64_t read = zu_xnode_get_attr_int_w(node, key, choice);
  if (read >= 0 && read <= 2) choice = static_cast<std::int32_t>(read);
}

void load_dashes(Tzu_xnode* node, Tzu_bpln_style& line) {
  std::vector<double> dashes = numbers_in<double>(attribute(node, L"dashes"));
  bool lengths = std::all_of(dashes.begin(), dashes.end(), is_length);
  if (lengths && !dashes.empty() && dashes.size() <= zu_line_dashes) line.dashes = dashes;
}

}  // namespace

void save_line(Tzu_xnode* node, const wchar_t* key, const Tzu_pln_style& style) {
  node_ptr group = emptied(node, key);
  const Tzu_bpln_style& line = style.line;
  zu_xnode_set_attr_dbl_w(group.get(), L"width", line.width);
  if (!line.dashes.empty())
    zu_xnode_set_attr_wstr(
        group.get(), L"dashes",
        written(line.dashes.data(), static_cast<int>(line.dashes.size())).c_str());
  zu_xnode_set_attr_int_w(group.get(), L"cap", line.cap);
  zu_xnode_set_attr_int_w(group.get(), L"join", line.join);
  save_color(group.get(), L"color", line.color);
  zu_xnode_set_attr_bool_w(group.get(), L"visible", style.line_visible);
  zu_xnode_set_attr_bool_w(group.get(), L"label", style.number_visible);
}

void load_line(Tzu_xnode* node, const wchar_t* key, Tzu_pln_style& style) {
  node_ptr group(zu_xnode_get_node_w(node, key));
  if (!group) return;
  Tzu_bpln_style& line = style.line;
  double width = zu_xnode_get_attr_dbl_w(group.get(), L"width", line.width);
  if (is_length(width)) line.width = width;
  load_dashes(group.get(), line);
  load_choice(group.get(), L"cap", line.cap);
  load_choice(group.get(), L"join", line.join);
  load_color(group.get(), L"color", line.color);
  style.line_visible = zu_xnode_get_attr_bool_w(group.get(), L"visible", style.line_visible);
  style.number_visible = zu_xnode_get_attr_bool_w(group.get(), L"label", style.number_visible);
}

void save_style(Tzu_xnode* node, const Tzu_stl_prm& style, bool lines) {
  style_parameters copy(style);  // of which a line may be made
  for (int i = 0; i < 2; ++i) save_color(node, color_keys[i], style.colors[i]);
  for (int i = 0; lines && i < 2; ++i)
    save_line(node, line_keys[i], *zu_stl_prm_get_pln_style_ptr(&copy, i));
}

void load_style(Tzu_xnode* node, Tzu_stl_prm& style, bool lines) {
  for (int i = 0; i < 2; ++i) load_color(node, color_keys[i], style.colors[i]);
  for (int i = 0; lines && i < 2; ++i)
    load_line(node, line_keys[i], *zu_stl_prm_get_pln_style_ptr(&style, i));
}

void save_row(Tzu_xnode* node, const Tzu_scale_prm& row, bool lines) {
  zu_xnode_set_attr_bool_w(node, L"visible", row.visible);
  save_style(node, row.style, lines);
}

void load_row(Tzu_xnode* node, Tzu_scale_prm& row, bool lines) {
  row.visible = zu_xnode_get_attr_bool_w(node, L"visible", row.visible);
  load_style(node, row.style, lines);
}

}  // namespace zu::platform
