// Tool bars inside panels.

#include <QEvent>
#include <QStyle>
#include <QToolBar>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/tool_actions.h"

namespace zu::desktop {
namespace {

/// A row of small buttons; a tool bar has no view of its own, its tools have.
class toolbar_widget final : public QToolBar {
 public:
  toolbar_widget(handle element, QWidget* parent) : QToolBar(parent) {
    setObjectName(QStringLiteral("toolbar"));
    setMovable(false);
    setFloatable(false);
    int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    setIconSize(QSize(side, side));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    tools_.add_sets_of_toolbar(element);
    tools_.fill(this);
  }
  ~toolbar_widget() override { clear(); }

 protected:
  void changeEvent(QEvent* event) override {
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) tools_.retranslate();
  }

 private:
  tool_actions tools_;
};

}  // namespace

std::span<const builder> toolbar_builders() {
  static const builder rows[] = {builder_of<toolbar_impl, toolbar_widget>()};
  return rows;
}

}  // namespace zu::desktop
