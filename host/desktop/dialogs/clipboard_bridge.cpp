#include "host/desktop/dialogs/clipboard_bridge.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

namespace zu::desktop {
namespace {

std::unique_ptr<QMimeData> copy_of(const QMimeData* there) {
  auto copy = std::make_unique<QMimeData>();
  if (there == nullptr) return copy;
  const QStringList formats = there->formats();
  for (const QString& format : formats) copy->setData(format, there->data(format));
  return copy;
}

bool set_text(const wchar_t* format, const wchar_t* text, bool empty_first, void* /*user*/) {
  QClipboard* board = QGuiApplication::clipboard();
  auto data = empty_first ? std::make_unique<QMimeData>() : copy_of(board->mimeData());
  data->setData(clipboard_bridge::media_type(QString::fromWCharArray(format)),
                QString::fromWCharArray(text).toUtf8());
  board->setMimeData(data.release());
  return true;
}

bool get_text(const wchar_t* format, Tzu_string_adp* adapter, void* /*user*/) {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  QString type = clipboard_bridge::media_type(QString::fromWCharArray(format));
  if (data == nullptr || !data->hasFormat(type)) return false;
  zu_string_adp_feed(adapter, QString::fromUtf8(data->data(type)).toStdWString().c_str());
  return true;
}

}  // namespace

clipboard_bridge::clipboard_bridge() {
  Tzu_clipboard_hooks hooks{&set_text, &get_text, nullptr};
  zu_os_set_clipboard_hooks(&hooks);
}

clipboard_bridge::~clipboard_bridge() { zu_os_set_clipboard_hooks(nullptr); }

QString clipboard_bridge::media_type(const QString& format) {
  QString name = format;
  while (name.startsWith(QLatin1Char('/'))) name.remove(0, 1);
  return QStringLiteral("application/x-") + name.replace(QLatin1Char('/'), QLatin1Char('.'));
}

}  // namespace zu::desktop
