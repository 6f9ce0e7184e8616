#include "host/desktop/window/recent_files.h"

#include "host/core/failure.h"
#include "host/core/settings.h"

namespace zu::desktop {
namespace {

constexpr int most_recent = 10;
constexpr char recent_name[] = "recent_files";
constexpr QLatin1Char separator('\n');

/// A person's settings that cannot be read are said where they are changed, not where they are
/// used.
QString setting(const char* name) {
  try {
    return QString::fromStdString(host::settings().get(name));
  } catch (const host::failure&) {
    return {};
  }
}

}  // namespace

QStringList recent_files() { return setting(recent_name).split(separator, Qt::SkipEmptyParts); }

void add_recent_file(const QString& path) {
  QStringList files = recent_files();
  files.removeAll(path);
  files.prepend(path);
  host::settings().set(recent_name, files.mid(0, most_recent).join(separator).toStdString());
}

void forget_recent_files() { host::settings().set(recent_name, {}); }

QByteArray kept_bytes(const char* name) { return QByteArray::fromBase64(setting(name).toLatin1()); }

void keep_bytes(const char* name, const QByteArray& bytes) {
  host::settings().set(name, bytes.toBase64().toStdString());
}

}  // namespace zu::desktop
