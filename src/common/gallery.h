#pragma once
// The gallery: a dialog that shows every kind of element in every state, and the tool that opens
// it.

#include "src/bundle/service_factory.h"
#include "src/common/gallery_lists.h"
#include "src/common/gallery_pages.h"
#include "src/toolkit/dialog.h"
#include "src/toolkit/tabs.h"
#include "src/viewer/viewer2d.h"

namespace zu::gallery {

struct histogram_closed {
  void operator()(Tzu_histogramm_data* data) const;
};

class drawn_page : public toolkit::with_element {
 public:
  explicit drawn_page(const listener& heard);
  void change();
  void set_enabled(bool enabled) { canvas_.set_enabled(enabled); }
  handle element() override { return handle_of<grid_layout_impl>(root_); }

 private:
  void draw(Tzu_drwc* page) const;

  std::vector<point_2d> strokes_;
  std::unique_ptr<Tzu_histogramm_data, histogram_closed> bins_;
  toolkit::groupbox<1, 1> canvas_frame_{text::canvas}, histogram_frame_{text::histogram},
      image_frame_{text::image}, viewer_frame_{text::viewer};
  toolkit::canvas canvas_{80, 40};
  toolkit::histogram histogram_;
  toolkit::image image_{-62};
  element::viewer2d viewer_;
  toolkit::grid_layout<2, 2> root_;
};

/// A tool of every kind.
class sample_tools {
 public:
  void visit_tools(toolkit::tools_visitor& visitor);
  void listen(const listener& heard);
  void change();
  void set_enabled(bool enabled);

 private:
  struct menu {
    toolkit::action_tool first{text::first}, second{text::second};
    void visit_tools(toolkit::tools_visitor& visitor);
  };
  menu menu_;
  toolkit::action_tool action_{text::action};
  toolkit::boolean_tool toggle_{text::toggle_tool};
  toolkit::integer_tool count_{text::count_tool};
  toolkit::list_tool choice_{text::choice_tool};
  toolkit::multiaction_tool many_{text::many_tool};
  toolkit::category_tool category_{text::menu_tool};
};

class tools_page : public toolkit::with_element {
 public:
  explicit tools_page(const listener& heard);
  void change() { bar_.tools().change(); }
  void set_enabled(bool enabled) { bar_.tools().set_enabled(enabled); }
  handle element() override { return handle_of<grid_layout_impl>(root_); }

 private:
  toolkit::toolbar<sample_tools> bar_;
  toolkit::toolbar<sample_tools, context_menu_impl> menu_;
  toolkit::list list_;
  toolkit::grid_layout<1, 2> root_;
};

class dialog : public toolkit::with_element {
 public:
  static constexpr wchar_t id[] = L"zu_gallery_dialog";
  static constexpr std::int32_t caption = text::gallery;

  dialog();
  handle element() override { return handle_of<grid_layout_impl>(root_); }

 private:
  void change();

  listener heard_;
  texts_page texts_{heard_};
  numbers_page numbers_{heard_};
  choices_page choices_{heard_};
  lists_page lists_;
  table_page table_;
  drawn_page drawn_{heard_};
  tools_page tools_{heard_};
  toolkit::tab_layout<7> tabs_;
  toolkit::checkbox enabled_{text::enable_all};
  toolkit::button change_{text::change_all};
  toolkit::output log_;
  toolkit::button_box buttons_{10};
  toolkit::grid_layout<3, 1> below_;
  toolkit::grid_layout<1, 3> root_;
};

/// Offers the gallery among the host's tools.
class tool_service : public referent<tool_service_impl> {
 public:
  explicit tool_service(handle owner = {});
  void visit(tool_set_visitor visitor) override { tools_.visit(visitor); }

 private:
  struct tools {
    toolkit::action_tool show{text::gallery};
    void visit_tools(toolkit::tools_visitor& visitor);
  };
  toolkit::toolbar<tools> tools_;
};

}  // namespace zu::gallery
