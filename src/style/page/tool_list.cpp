#include "src/style/page/tool_list.h"

namespace zu::style::detail {

void tool_list::begin_set() { tools_.push_back({nullptr, {}}); }

toolkit::action_tool& tool_list::add_action(const std::wstring& id, std::int32_t text,
                                            std::function<void()> action) {
  toolkit::action_tool& added = actions_.emplace_back(text);
  added.on_execute = std::move(action);
  add(id, added);
  return added;
}

void tool_list::visit_tools(toolkit::tools_visitor& into) {
  for (const keyed_tool& t : tools_)
    if (t.key == nullptr)
      into.toolset();
    else
      into.tool(t.key->c_str(), t.tool);
}

}  // namespace zu::style::detail
