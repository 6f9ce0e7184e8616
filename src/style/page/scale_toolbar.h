#pragma once
// The tool bar of a scale page and the menu of its rows.

#include "src/bundle/texts.h"
#include "src/style/classes/scale_dialogs.h"
#include "src/style/file_warning.h"
#include "src/style/page/scale_tools.h"
#include "src/toolkit/toolbars.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::style::detail {

/// Has the person choose a file for the scale and writes it there.
template <class model> void save_scale(model& m);
/// Has the person choose a file and reads the scale from it; tells if that worked.
template <class model> void load_scale(model& m);
/// Has the person fill the scale from its field; tells if they accepted. Rules are not made of
/// data.
template <class model> void run_settings(model& m);
/// Adds a row, and tells. A rule is written before its row is made, which is the matter of whoever
/// has an editor of rules: here nothing is added.
template <class model> void append_row(model& m);

/// What makes a scale and its rows.
template <class model> class scale_toolset : public tool_list {
 public:
  explicit scale_toolset(model& m);

 private:
  style_menu_toolset<model> styles_;
};

/// What stands in the menu of rows, set by set.
template <class model> class style_menu_tools;

template <class style_traits>
class style_menu_tools<scale_model<style_traits, value_scale_traits>> {
 public:
  using model = scale_model<style_traits, value_scale_traits>;
  explicit style_menu_tools(model& m)
      : values_(m, sort_key::value), captions_(m, sort_key::caption), visibility_(m) {}
  void visit_tools(toolkit::tools_visitor& into) {
    values_.visit_tools(into.toolset());
    captions_.visit_tools(into.toolset());
    visibility_.visit_tools(into.toolset());
  }

 private:
  text_toolset<model> values_, captions_;
  visibility_toolset<model> visibility_;
};

template <class style_traits>
class style_menu_tools<scale_model<style_traits, range_scale_traits>> {
 public:
  using model = scale_model<style_traits, range_scale_traits>;
  explicit style_menu_tools(model& m)
      : minima_(m, sort_key::minimum),
        maxima_(m, sort_key::maximum),
        captions_(m, sort_key::caption),
        visibility_(m) {}
  void visit_tools(toolkit::tools_visitor& into) {
    minima_.visit_tools(into.toolset());
    maxima_.visit_tools(into.toolset());
    captions_.visit_tools(into.toolset());
    visibility_.visit_tools(into.toolset());
  }

 private:
  number_toolset<model> minima_, maxima_;
  text_toolset<model> captions_;
  visibility_toolset<model> visibility_;
};

template <class style_traits> class style_menu_tools<scale_model<style_traits, rule_scale_traits>> {
 public:
  using model = scale_model<style_traits, rule_scale_traits>;
  explicit style_menu_tools(model& m)
      : rules_(m), captions_(m, sort_key::caption), visibility_(m) {}
  void visit_tools(toolkit::tools_visitor& into) {
    rules_.visit_tools(into.toolset());
    captions_.visit_tools(into.toolset());
    visibility_.visit_tools(into.toolset());
  }

 private:
  rule_toolset<model> rules_;
  text_toolset<model> captions_;
  visibility_toolset<model> visibility_;
};

template <class model>
using style_context_menu = toolkit::toolbar<style_menu_tools<model>, context_menu_impl>;

template <class model> void save_scale(model& m) {
  if (m.scale() == nullptr) return;
  using traits = typename model::scale_traits;
  const std::wstring beside = scale_file_path(m.source.name, m.field(), traits::extension);
  const std::wstring path = text_of([&](Tzu_string_adp* adapter) {
    zu_ask_save_file_w(load_text(traits::file_filter).c_str(),
                       beside.empty() ? nullptr : beside.c_str(), adapter);
  });
  std::wstring reason;
  if (path.empty() || traits::save(path, m.mngr, model::style_traits::manager_key, &reason)) return;
  warn_of_file(path, reason);
}

template <class model> void load_scale(model& m) {
  if (m.scale() == nullptr) return;
  using traits = typename model::scale_traits;
  const std::wstring path = text_of([&](Tzu_string_adp* adapter) {
    zu_ask_open_file_w(load_text(traits::file_filter).c_str(), adapter);
  });
  if (!path.empty() && traits::load(path, m.mngr, model::style_traits::manager_key)) m.changed();
}

template <class model> void run_settings(model& m) {
  auto* scale = m.scale();
  if (scale == nullptr) return;
  bool accepted = false;
  if constexpr (std::is_same_v<typename model::scale_traits, value_scale_traits>)
    accepted = run_value_scale_dialog(scale, m.source, m.field());
  else if constexpr (std::is_same_v<typename model::scale_traits, range_scale_traits>)
    accepted = run_range_scale_dialog(scale, m.source, m.field());
  if (accepted) m.changed();
}

template <class model> void append_row(model& m) {
  if constexpr (!std::is_same_v<typename model::scale_traits, rule_scale_traits>) m.append();
}

template <class model>
scale_toolset<model>::scale_toolset(model& m) : tool_list(m.tool_prefix()), styles_(m) {
  add_action(L"zu_common_scale_tool_settings", 10450, [&m] { run_settings(m); });
  if constexpr (model::scale_traits::can_rescale)
    add_action(L"zu_common_scale_tool_rescale", 14502, [&m] { rescale(m); });
  begin_set();
  add_action(L"zu_common_scale_tool_save", 14503, [&m] { save_scale(m); });
  add_action(L"zu_common_scale_tool_load", 14504, [&m] { load_scale(m); });
  begin_set();
  add_action(L"zu_common_scale_tool_append", 14505, [&m] { append_row(m); });
  add_action(L"zu_common_scale_tool_remove", 14506, [&m] { m.remove_marked(); });
  begin_set();
  add_menu(L"zu_common_scale_tool_style", 14507, styles_);
}

}  // namespace zu::style::detail
