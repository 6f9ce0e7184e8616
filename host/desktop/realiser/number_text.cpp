#include "host/desktop/realiser/number_text.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

namespace zu::desktop {

QString number_text(double value, std::uint32_t decimals) {
  if (std::isnan(value)) return {};
  if (value == 0) value = 0;  // no minus in front of it
  if (decimals == 0) return QString::number(value, 'g', 15);
  QString text = QString::number(value, 'f', int(std::min(decimals, 15u)));
  return text.startsWith(QLatin1Char('-')) && text.toDouble() == 0 ? text.mid(1) : text;
}

std::optional<double> number_of(const QString& text) {
  QString plain = text.trimmed();
  plain.replace(QLatin1Char(','), QLatin1Char('.'));
  plain.replace(QChar(0x2212), QLatin1Char('-'));
  bool ok = false;
  double value = plain.toDouble(&ok);
  if (!ok || !std::isfinite(value)) return {};
  return value;
}

}  // namespace zu::desktop
