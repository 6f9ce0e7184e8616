#include "host/desktop/realiser/tool_actions.h"

#include <QMenu>

#include "host/desktop/realiser/visitors.h"

namespace zu::desktop {

void tool_actions::add(tool_set set) {
  std::vector<std::shared_ptr<tool_action>> row;
  visit_tools<&tool_set_impl::visit>(
      [&](const QString& id, handle tool) {
        if (auto action = tool_action::of_tool(id, tool)) row.push_back(std::move(action));
      },
      set);
  if (!row.empty()) sets_.push_back(std::move(row));
}

void tool_actions::add_sets_of_toolbar(handle toolbar) {
  visit_tool_sets<&toolbar_impl::visit>([this](tool_set set) { add(set); }, toolbar);
}
void tool_actions::add_sets_of_context_menu(handle menu) {
  visit_tool_sets<&context_menu_impl::visit>([this](tool_set set) { add(set); }, menu);
}
void tool_actions::add_sets_of_service(handle service) {
  visit_tool_sets<&tool_service_impl::visit>([this](tool_set set) { add(set); }, service);
}

tool_action* tool_actions::action(const QString& id) const {
  for (const auto& set : sets_)
    for (const auto& action : set)
      if (action->id() == id) return action.get();
  return nullptr;
}

void tool_actions::fill(QWidget* control) const {
  bool is_first = true;
  for (const auto& set : sets_) {
    if (!std::exchange(is_first, false)) {
      auto* line = new QAction(control);
      line->setSeparator(true);
      control->addAction(line);
    }
    for (const auto& action : set) control->addAction(action.get());
  }
}

void tool_actions::retranslate() {
  for (const auto& set : sets_)
    for (const auto& action : set) action->retranslate();
}

}  // namespace zu::desktop
