#include "host/desktop/gallery.h"

#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QTabWidget>
#include <QTimer>

#include "host/core/failure.h"
#include "host/desktop/realiser/tool_actions.h"

namespace zu::desktop {
namespace {

constexpr char16_t gallery_tool[] = u"zu_gallery_show_tool";

/// Every page of a dialog with tabs, two in a row.
QImage picture_of(QDialog& dialog) {
  auto* tabs = dialog.findChild<QTabWidget*>();
  int count = tabs != nullptr ? tabs->count() : 1;
  std::vector<QPixmap> pages;
  for (int i = 0; i < count; ++i) {
    if (tabs != nullptr) tabs->setCurrentIndex(i);
    QApplication::processEvents();
    pages.push_back(dialog.grab());
  }
  QSize page = pages.front().size();
  QImage all(page.width() * 2, page.height() * ((count + 1) / 2), QImage::Format_RGB32);
  all.fill(dialog.palette().color(QPalette::Window));
  QPainter painter(&all);
  for (int i = 0; i < count; ++i)
    painter.drawPixmap(QRect(QPoint(i % 2 * page.width(), i / 2 * page.height()), page),
                       pages[std::size_t(i)]);
  return all;
}

}  // namespace

void show_gallery(const host::bundle& services, const QString& picture) {
  tool_actions tools;
  for (const auto& each : services.tools()) tools.add_sets_of_service(each.service.get());
  tool_action* show = tools.action(QString::fromUtf16(gallery_tool));
  if (show == nullptr) throw host::failure("zuk_common.so", "it has no gallery");
  bool written = true;
  QTimer shown;
  shown.setSingleShot(true);
  QObject::connect(&shown, &QTimer::timeout, show, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    written = dialog != nullptr && picture_of(*dialog).save(picture);
    if (dialog != nullptr) dialog->reject();
  });
  if (!picture.isEmpty()) shown.start(0);
  show->trigger();
  if (!written) throw host::failure(picture.toStdString(), "it cannot be written");
}

}  // namespace zu::desktop
