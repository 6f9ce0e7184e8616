#include "host/desktop/realiser/context_menu.h"

#include <QContextMenuEvent>
#include <QMenu>

#include "host/desktop/realiser/tool_actions.h"

namespace zu::desktop {
namespace {

class menu_opener final : public QObject {
 public:
  menu_opener(QWidget* control, of<context_menu_impl> menu) : QObject(control), menu_(menu) {
    control->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ContextMenu) return QObject::eventFilter(watched, event);
    tool_actions tools;
    tools.add_sets_of_context_menu(menu_);
    if (tools.sets().empty()) return false;
    QMenu menu(static_cast<QWidget*>(watched));
    menu.setObjectName(QStringLiteral("context_menu"));
    tools.fill(&menu);
    menu.exec(static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
  }

 private:
  of<context_menu_impl> menu_;
};

}  // namespace

void offer_context_menu(QWidget* control, of<context_menu_impl> menu) {
  new menu_opener(control, menu);
}

}  // namespace zu::desktop
