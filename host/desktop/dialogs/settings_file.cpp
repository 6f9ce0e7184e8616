#include "host/desktop/dialogs/settings_file.h"

#include "host/core/failure.h"
#include "host/core/settings.h"

namespace zu::desktop {
namespace {

constexpr QChar separator = u'|';

}  // namespace

QString kept_text(const char* name) {
  try {
    return QString::fromStdString(host::settings().get(name));
  } catch (const host::failure&) {
    return {};
  }
}

void keep_text(const char* name, const QString& value) {
  host::settings().set(name, value.toStdString());
}

QStringList kept_list(const char* name) {
  return kept_text(name).split(separator, Qt::SkipEmptyParts);
}

void keep_list(const char* name, const QStringList& texts) {
  QStringList kept;
  for (const QString& text : texts)
    if (!text.contains(separator)) kept += text;
  keep_text(name, kept.join(separator));
}

void keep_used(const char* name, const QString& text, int most) {
  if (text.isEmpty() || text.contains(separator)) return;
  QStringList all = kept_list(name);
  all.removeAll(text);
  all.prepend(text);
  try {
    keep_text(name, all.mid(0, most).join(separator));
  } catch (const host::failure&) {  // as the header says
  }
}

}  // namespace zu::desktop
