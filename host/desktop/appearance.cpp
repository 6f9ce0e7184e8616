#include "host/desktop/appearance.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QProxyStyle>
#include <QStandardPaths>
#include <QStyle>
#include <QStyleOption>

namespace zu::desktop {
namespace {

QPalette palette_of(QColor window, QColor base, QColor text, QColor highlight, QColor disabled) {
  QPalette colors(text, window.lighter(115), window.lighter(150), window.darker(200),
                  window.darker(120), text, base);
  colors.setColor(QPalette::Window, window);
  colors.setColor(QPalette::Button, window.lighter(108));
  colors.setColor(QPalette::AlternateBase, window);
  colors.setColor(QPalette::ToolTipBase, base);
  colors.setColor(QPalette::ToolTipText, text);
  colors.setColor(QPalette::Highlight, highlight);
  colors.setColor(QPalette::HighlightedText, Qt::white);
  colors.setColor(QPalette::Link, highlight);
  colors.setColor(QPalette::PlaceholderText, disabled);
  for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    colors.setColor(QPalette::Disabled, role, disabled);
  colors.setColor(QPalette::Disabled, QPalette::Highlight, disabled);
  return colors;
}

QPalette light() {
  return palette_of(QColor(0xf0, 0xf0, 0xf1), Qt::white, QColor(0x1f, 0x23, 0x26),
                    QColor(0x2a, 0x76, 0xc6), QColor(0x93, 0x98, 0x9c));
}
QPalette dark() {
  return palette_of(QColor(0x2b, 0x2e, 0x32), QColor(0x1f, 0x22, 0x25), QColor(0xee, 0xef, 0xf0),
                    QColor(0x2f, 0x81, 0xd6), QColor(0x7c, 0x81, 0x86));
}

/// On a dark window the style draws the frames of check and radio buttons darker still: one that is
/// not marked would not be seen.
class framed_marks final : public QProxyStyle {
 public:
  framed_marks() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const auto* given = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (given == nullptr || !is_dark() ||
        (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton))
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
    QStyleOptionButton framed(*given);
    // The frame is a darker shade of the window's colour.
    framed.palette.setColor(QPalette::Window,
                            option->palette.color(QPalette::Disabled, QPalette::Text).lighter(150));
    QProxyStyle::drawPrimitive(element, &framed, painter, widget);
  }
};

}  // namespace

bool is_dark() {
  QPalette colors = QApplication::palette();
  return colors.color(QPalette::WindowText).lightness() >
         colors.color(QPalette::Window).lightness();
}

void choose_appearance(appearance chosen) {
  QStringList places = QIcon::themeSearchPaths();
  // Not every kind of screen knows where the system keeps its icons.
  const QStringList folders =
      QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("icons"),
                                QStandardPaths::LocateDirectory);
  for (const QString& folder : folders)
    if (!places.contains(folder)) places << folder;
  QIcon::setThemeSearchPaths(places);
  static const QString system_style = QApplication::style()->name();
  static bool is_own = false;
  if (chosen != appearance::system) {
    QApplication::setStyle(new framed_marks);
    QApplication::setPalette(chosen == appearance::dark ? dark() : light());
  } else if (is_own) {  // a palette that sets nothing brings back the system's
    QApplication::setStyle(system_style);
    QApplication::setPalette(QPalette());
  }
  is_own = chosen != appearance::system;
  QIcon::setThemeName(is_dark() ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
  QIcon::setFallbackThemeName(QStringLiteral("breeze"));
}

}  // namespace zu::desktop
