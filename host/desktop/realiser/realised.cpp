#include "host/desktop/realiser/realised.h"

#include <QFontMetrics>
#include <QVariant>
#include <algorithm>

namespace zu::desktop {

void set_hidden(QWidget* control, hidden_by who, bool hidden) {
  static const char* const names[] = {"hidden_by_element", "hidden_by_place"};
  control->setProperty(names[int(who)], hidden);
  bool any = std::any_of(std::begin(names), std::end(names),
                         [&](const char* name) { return control->property(name).toBool(); });
  // A window is shown by whoever opens it, not by its element.
  if (control->isWindow() && !any) return;
  if (control->isHidden() != any || !control->testAttribute(Qt::WA_WState_ExplicitShowHide))
    control->setHidden(any);
}

void set_control_enabled(QWidget* control, bool enabled) {
  QWidget* focus = control->window()->focusWidget();
  if (!enabled && focus != nullptr && (focus == control || control->isAncestorOf(focus)))
    focus->clearFocus();
  control->setEnabled(enabled);
}

int layout_unit(const QWidget* control) {
  return std::max(1, (control->fontMetrics().height() + 1) / 2);
}

int characters(const QWidget* control, std::uint32_t count) {
  // More than any screen holds is no wish to be followed.
  return int(std::min<std::uint32_t>(count, 400)) * control->fontMetrics().averageCharWidth();
}

QString plain_name(QString caption) {
  caption.remove(QLatin1Char('&'));
  while (caption.endsWith(QLatin1Char(':')) || caption.endsWith(QLatin1Char(' '))) caption.chop(1);
  return caption;
}

QString name_of(const QWidget* control, const QString& caption) {
  if (!caption.isEmpty()) return plain_name(caption);
  return plain_name(control->accessibleName().isEmpty() ? control->toolTip()
                                                        : control->accessibleName());
}

}  // namespace zu::desktop
