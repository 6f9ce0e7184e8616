#pragma once
// Values in attributes: colours, lists of numbers, lengths and choices.
//
// A colour is four numbers, "red green blue transparency", each 0 to 255. What is read is checked:
// a value that is none, or absent, leaves the one that is there.

#include <optional>
#include <string>
#include <vector>

#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_io.h"

namespace zu::platform {

void save_color(Tzu_xnode* node, const wchar_t* key, Tzu_color color);
void load_color(Tzu_xnode* node, const wchar_t* key, Tzu_color& color);

/// Finite, and not negative.
void load_length(Tzu_xnode* node, const wchar_t* key, double& millimetres);
void save_lengths(Tzu_xnode* node, const wchar_t* key, const std::vector<double>& lengths);
/// At least one and at most `most`.
void load_lengths(Tzu_xnode* node, const wchar_t* key, std::vector<double>& lengths,
                  std::size_t most);
/// Finite.
void load_number(Tzu_xnode* node, const wchar_t* key, double& number);
/// From 0 to below `count`.
void load_choice(Tzu_xnode* node, const wchar_t* key, std::int32_t& choice, std::int32_t count);
void load_flag(Tzu_xnode* node, const wchar_t* key, bool& flag);
void load_text(Tzu_xnode* node, const wchar_t* key, std::wstring& text);

}  // namespace zu::platform
