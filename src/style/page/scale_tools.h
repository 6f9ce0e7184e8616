#pragma once
// The tools of a scale page, by what they do. A page has some in its tool bar and some in the menu
// of its rows. They all obey what is marked as the operations that they call do.

#include <deque>
#include <string>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/style/page/array_tools.h"
#include "src/style/page/tool_list.h"
#include "src/style/palettes/clr_palettes_dialog.h"
#include "src/style/scale_operations.h"
#include "zu/platform/zuk_palettes.h"
#include "zu/platform/zuk_style_libs.h"

namespace zu::style::detail {

template <class model> class visibility_toolset : public tool_list {
 public:
  explicit visibility_toolset(model& m) : tool_list(m.tool_prefix()) {
    add_action(L"zu_common_style_tool_visible_show", 14545, [&m] { m.show_all(true); });
    add_action(L"zu_common_style_tool_visible_hide", 14546, [&m] { m.show_all(false); });
    add_action(L"zu_common_style_tool_visible_flip", 14547, [&m] { m.flip_visible(); });
  }
};

/// One way to sort, rising and falling. The tools' ids are `id` with "_asc" and "_dsc".
template <class model> class sort_toolset : public tool_list {
 public:
  sort_toolset(model& m, sort_key key, bool as_text, const std::wstring& id)
      : tool_list(m.tool_prefix()) {
    add_action(id + L"_asc", 14554, [=, &m] { sort_scale(m, key, as_text, false); });
    add_action(id + L"_dsc", 14555, [=, &m] { sort_scale(m, key, as_text, true); });
  }
};

/// Sorts by values (key 0) or captions (key 3).
template <class model> class text_toolset : public tool_list {
 public:
  text_toolset(model& m, sort_key key)
      : tool_list(m.tool_prefix()),
        strings_(m, key, true, id(key) + L"strings"),
        numbers_(m, key, false, id(key) + L"numbers") {
    const bool by_value = key == sort_key::value;
    add_menu(id(key) + L"strings", by_value ? 14548 : 14550, strings_);
    add_menu(id(key) + L"numbers", by_value ? 14549 : 14551, numbers_);
  }

 private:
  static std::wstring id(sort_key key) {
    return key == sort_key::value ? L"zu_common_style_tool_value_sort_"
                                  : L"zu_common_style_tool_caption_sort_";
  }

  sort_toolset<model> strings_, numbers_;
};

/// Sorts by minimum (key 1) or maximum (key 2).
template <class model> class number_toolset : public tool_list {
 public:
  number_toolset(model& m, sort_key key)
      : tool_list(m.tool_prefix()), numbers_(m, key, false, id(key)) {
    add_menu(id(key), key == sort_key::minimum ? 14552 : 14553, numbers_);
  }

 private:
  static std::wstring id(sort_key key) {
    return key == sort_key::minimum ? L"zu_common_style_tool_minimum_sort_number"
                                    : L"zu_common_style_tool_maximum_sort_number";
  }

  sort_toolset<model> numbers_;
};

/// Makes rules of the other scales.
template <class model> class rule_toolset : public tool_list {
 public:
  explicit rule_toolset(model& m) : tool_list(m.tool_prefix()) {
    add_action(L"zu_common_style_tool_build_value_rules", 10466, [&m] { import_value_rules(m); });
    add_action(L"zu_common_style_tool_build_range_rules_range", 10467,
               [&m] { import_range_rules(m); });
  }
};

/// The arrays of one menu, and behind them the person's palettes.
template <class model> class arrays_toolset : public tool_list {
 public:
  arrays_toolset(model& m, std::span<const array_entry> entries, spread taken,
                 const wchar_t* own_palettes)
      : tool_list(m.tool_prefix()), own_(14515, taken, [&m, taken](std::uint64_t index) {
          apply_colours(m, 0, zu_clr_palettes_get_ptr(zu_get_user_palettes(), index),
                        static_cast<std::int32_t>(taken));
        }) {
    for (const array_entry& entry : entries)
      this->add(entry.id, arrays_.emplace_back(entry, taken, [&m, taken](std::int32_t array) {
        apply_colours(m, array, nullptr, static_cast<std::int32_t>(taken));
      }));
    this->add(own_palettes, own_);
  }

 private:
  std::deque<array_tool> arrays_;
  palettes_dyn_tools own_;
};

/// What changes the styles of rows.
template <class model> class style_actions_toolset : public tool_list {
 public:
  explicit style_actions_toolset(model& m)
      : tool_list(m.tool_prefix()),
        gradients_(m, gradient_entries(), spread::ramp, L"zu_common_style_tool_dyn_gradients"),
        palettes_(m, palette_entries(), spread::in_turn, L"zu_common_style_tool_dyn_palettes") {
    palettes_.add_action(L"zu_common_style_tool_user_palettes_setting", 14516,
                         [] { run_clr_palettes_dialog(); });
    add_action(L"zu_common_style_tool_edit_style", 14508, [&m] {
      m.several_marked() ? m.edit_style_for_marked(m.active_row(), primary)
                         : m.edit_style(m.active_row(), primary);
    });
    add_action(L"zu_common_style_tool_invert_scale", 14509, [&m] { invert_scale(m); });
    add_action(L"zu_common_style_tool_color_graident", 14510,
               [&m] { gradient(m, gradient_kind::color); });
    add_action(L"zu_common_style_tool_size_graident", 14511,
               [&m] { gradient(m, gradient_kind::size); });
    add_action(L"zu_common_style_tool_opacity_graident", 14512,
               [&m] { gradient(m, gradient_kind::opacity); });
    add_menu(L"zu_common_style_tool_gradients", 14513, gradients_);
    add_menu(L"zu_common_style_tool_palettes", 14514, palettes_);
  }

 private:
  arrays_toolset<model> gradients_, palettes_;
};

/// The legends of the current project.
template <class model>
class mapleg_tools : public toolkit::detail::tool_base<multiaction_tool_impl> {
 public:
  explicit mapleg_tools(model& m) : tool_base(14517), model_(m) {}
  bool enabled() override { return count() > 0; }
  std::uint32_t count() override {
    Tzu_maplegs* all = legends();
    return all != nullptr ? static_cast<std::uint32_t>(zu_maplegs_get_size(all)) : 0;
  }
  void item_text(std::uint32_t index, string_visitor visitor) override {
    if (index >= count()) return;
    std::wstring title = text_of([&](Tzu_string_adp* adapter) {
      zu_mapleg_get_title(zu_maplegs_get_ptr(legends(), index), adapter);
    });
    call<&string_visitor_impl::visit>(visitor, title.c_str());
  }
  void execute(std::uint32_t index) override {
    apply_map_legend(model_, static_cast<std::int32_t>(index));
  }

 private:
  static Tzu_maplegs* legends() {
    Tzu_prj* project = zu_prj_get_instance();
    return project != nullptr ? zu_prj_get_maplegs_ptr(project) : nullptr;
  }

  model& model_;
};

/// A menu of the libraries as they are when somebody looks.
template <class model>
class style_libs_menu : public toolkit::detail::tool_base<category_tool_impl> {
 public:
  explicit style_libs_menu(model& m) : tool_base(14518), model_(m), prefix_(m.tool_prefix()) {}
  bool enabled() override { return zu_wstrings_get_size(captions().get()) > 0; }
  void visit_tools(tool_visitor visitor) override {
    const auto names = captions();
    for (std::uint64_t i = 0, count = zu_wstrings_get_size(names.get()); i < count; ++i) {
      if (i == actions_.size())
        actions_.emplace_back(model_, static_cast<std::int32_t>(i), prefix_);
      lib_action& action = actions_[i];
      action.set_text(zu_wstrings_get_str(names.get(), i));
      call<&tool_visitor_impl::visit>(visitor, action.key(),
                                      handle(handle_of<action_tool_impl>(action)));
    }
  }

  /// Applies the library at a place of the list, whichever that is now.
  class lib_action : public toolkit::detail::tool_base<action_tool_impl> {
   public:
    lib_action(model& m, std::int32_t index, const std::wstring& prefix)
        : tool_base(0, -679, -679),
          model_(m),
          index_(index),
          key_(L"zu_common_style_tool_style_lib_" + std::to_wstring(index) + prefix) {}
    void set_text(const wchar_t* text) {
      if (this->replace(text_, std::wstring(text))) this->redraw();
    }
    const wchar_t* key() const { return key_.c_str(); }
    void caption(string_visitor visitor) override {
      call<&string_visitor_impl::visit>(visitor, text_.c_str());
    }
    void execute() override { apply_library(model_, index_); }

   private:
    model& model_;
    std::wstring text_;
    std::int32_t index_;
    std::wstring key_;
  };

 private:
  static owned<zu_wstrings_destroy> captions() {
    return owned<zu_wstrings_destroy>(zu_global_lib_styles_create_name_list());
  }

  model& model_;
  std::wstring prefix_;
  std::deque<lib_action> actions_;  // a host may hold on to any that it was given
};

/// The menu of the libraries as a set of tools.
template <class model> class style_libs_tools : public tool_list {
 public:
  explicit style_libs_tools(model& m) : tool_list(m.tool_prefix()), menu_(m) {
    this->add(L"zu_common_style_tool_style_libs", menu_);
  }

 private:
  style_libs_menu<model> menu_;
};

/// What stands in the menu of styles. Classes have no values by which a legend could know them.
template <class model> class style_menu_toolset : public tool_list {
 public:
  explicit style_menu_toolset(model& m)
      : tool_list(m.tool_prefix()), actions_(m), legends_(m), libraries_(m) {
    if constexpr (model::scale_traits::has_map_legends)
      this->add(L"zu_common_style_tool_maplegs", legends_);
  }
  void visit_tools(toolkit::tools_visitor& into) {
    actions_.visit_tools(into);
    tool_list::visit_tools(into);
    libraries_.visit_tools(into);
  }

 private:
  style_actions_toolset<model> actions_;
  mapleg_tools<model> legends_;
  style_libs_tools<model> libraries_;
};

}  // namespace zu::style::detail
