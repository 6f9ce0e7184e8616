#include "host/desktop/dialogs/about_dialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>

#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

/// What a report of a fault needs.
QString versions() {
  return QStringLiteral("%1 %2\nQt %3\n%4, %5")
      .arg(QApplication::applicationName(), QApplication::applicationVersion(),
           QString::fromUtf8(qVersion()), QSysInfo::prettyProductName(),
           QSysInfo::currentCpuArchitecture());
}

}  // namespace

void about_dialog::ask(QWidget* parent) { about_dialog(parent).exec(); }

about_dialog::about_dialog(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("about"));
  setWindowTitle(words("About %1", "О программе %1").arg(QApplication::applicationName()));
  auto* picture = new QLabel(this);
  picture->setPixmap(QApplication::windowIcon().pixmap(64, 64));
  picture->setAlignment(Qt::AlignTop);
  auto* text = new QLabel(this);
  text->setObjectName(QStringLiteral("about_text"));
  text->setTextFormat(Qt::RichText);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text->setMinimumWidth(360);
  text->setText(
      QStringLiteral("<h2>%1 %2</h2><p>%3</p><p>%4</p><p>%5</p>")
          .arg(
              QApplication::applicationName(), QApplication::applicationVersion(),
              words("Shows, styles and edits grids: fields of values on a map, pictures and "
                    "sections.",
                    "Показывает, раскрашивает и правит сетки: поля значений на карте, снимки и "
                    "разрезы."),
              words("It stands on GDAL, PROJ, Cairo, Pango, ICU, SQLite, segyio and Qt %1.",
                    "Построена на GDAL, PROJ, Cairo, Pango, ICU, SQLite, segyio и Qt %1.")
                  .arg(QString::fromUtf8(qVersion())),
              words("Free software under the MIT License.", "Свободная программа, лицензия MIT.")));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  QPushButton* copy = buttons->addButton(words("&Copy versions", "&Скопировать версии"),
                                         QDialogButtonBox::ActionRole);
  copy->setObjectName(QStringLiteral("about_copy"));
  connect(copy, &QPushButton::clicked, this,
          [] { QApplication::clipboard()->setText(versions()); });
  connect(buttons, &QDialogButtonBox::rejected, this, &about_dialog::reject);
  auto* layout = new QGridLayout(this);
  layout->setHorizontalSpacing(16);
  layout->addWidget(picture, 0, 0);
  layout->addWidget(text, 0, 1);
  layout->addWidget(buttons, 1, 0, 1, 2);
  layout->setColumnStretch(1, 1);
  layout->setRowStretch(0, 1);
  buttons->button(QDialogButtonBox::Close)->setDefault(true);
}

}  // namespace zu::desktop
