#pragma once
// What the three style dialogs differ in besides their forms: files, clipboard, libraries,
// previews.

#include "src/style/dialogs/style_parts.h"

namespace zu::style::detail {

struct point_dialog_traits : point_kind {
  using parts = point_parts;
  static constexpr std::int32_t file_filter = 10223;
  static constexpr wchar_t clipboard_format[] = L"zugrid/format/pnt_style";
  static constexpr auto save_text = &zu_xml_save_style_save_style_pnt_str;
  static constexpr auto load_text = &zu_xml_save_style_load_style_pnt_str;
  static constexpr auto save_file = &zu_xml_save_style_save_style_pnt_file;
  static constexpr auto load_file = &zu_xml_save_style_load_style_pnt_file;
  static constexpr auto library_list = &zu_style_lib_get_pnt_list_ptr;
  static constexpr auto library_style = &zu_idx_pnt_style_get_pnt_style_ptr;
  static void draw(Tzu_drwc* page, double width, double height, argument shown);
};

struct line_dialog_traits : line_kind {
  using parts = line_parts;
  static constexpr std::int32_t file_filter = 10224;
  static constexpr wchar_t clipboard_format[] = L"zugrid/format/pln_style";
  static constexpr auto save_text = &zu_xml_save_style_save_style_pln_str;
  static constexpr auto load_text = &zu_xml_save_style_load_style_pln_str;
  static constexpr auto save_file = &zu_xml_save_style_save_style_pln_file;
  static constexpr auto load_file = &zu_xml_save_style_load_style_pln_file;
  static constexpr auto library_list = &zu_style_lib_get_pln_list_ptr;
  static constexpr auto library_style = &zu_idx_pln_style_get_pln_style_ptr;
  static void draw(Tzu_drwc* page, double width, double height, argument shown);
};

struct polygon_dialog_traits : polygon_kind {
  using parts = polygon_parts;
  static constexpr std::int32_t file_filter = 10225;
  static constexpr wchar_t clipboard_format[] = L"zugrid/format/pgn_style";
  static constexpr auto save_text = &zu_xml_save_style_save_style_pgn_str;
  static constexpr auto load_text = &zu_xml_save_style_load_style_pgn_str;
  static constexpr auto save_file = &zu_xml_save_style_save_style_pgn_file;
  static constexpr auto load_file = &zu_xml_save_style_load_style_pgn_file;
  static constexpr auto library_list = &zu_style_lib_get_pgn_list_ptr;
  static constexpr auto library_style = &zu_idx_pgn_style_get_pgn_style_ptr;
  static void draw(Tzu_drwc* page, double width, double height, argument shown);
};

}  // namespace zu::style::detail
