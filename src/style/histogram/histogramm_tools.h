#pragma once
// The tools above a histogram.

#include "src/toolkit/toolbars.h"

namespace zu::element::detail {

class histogramm_tools {
 public:
  void visit_tools(toolkit::tools_visitor& visitor) {
    visitor.toolset()
        .tool(L"zuk_histogramm_element_mode_tool", mode)
        .tool(L"zuk_histogramm_element_bounds_count_tool", bounds_count)
        .tool(L"zuk_histogramm_element_make_histogramm_tool", make_histogramm);
  }

  toolkit::boolean_tool mode{13452};
  toolkit::integer_tool bounds_count{13451};
  toolkit::action_tool make_histogramm{13450};
};

}  // namespace zu::element::detail
