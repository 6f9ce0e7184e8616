#include "host/desktop/realiser/modal_runner.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "host/desktop/realiser/button_box.h"
#include "host/desktop/realiser/docker.h"
#include "host/desktop/realiser/realiser.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

QString text_of(QSize size) { return QStringLiteral("%1x%2").arg(size.width()).arg(size.height()); }
QSize size_of(const QString& text) {
  QStringList sides = text.split(QLatin1Char('x'));
  return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

}  // namespace

element_dialog::element_dialog(handle panel, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("element_dialog"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  panel_ = new realised_docker(panel, this);
  panel_->set_margins(true);
  column->addWidget(panel_, 1);
  auto show_title = [this] {
    setWindowTitle(panel_->title());
    if (!panel_->icon().isNull()) setWindowIcon(panel_->icon());
  };
  connect(panel_, &realised_docker::title_changed, this, show_title);
  show_title();
  if (panel_->findChild<QDialogButtonBox*>() == nullptr) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->setObjectName(QStringLiteral("close_box"));
    connect(buttons, &QDialogButtonBox::rejected, this, &element_dialog::reject);
    auto* framed = new QVBoxLayout;
    framed->addWidget(buttons);
    framed->setContentsMargins(panel_->widget()->layout()->contentsMargins());
    column->addLayout(framed);
    changeEvent(nullptr);
  }
  QSize least = panel_->widget()->minimumSizeHint();
  panel_->setMinimumSize(least.boundedTo(screen()->availableSize() * 8 / 10));
}

element_dialog::~element_dialog() { delete panel_; }

void element_dialog::reject() {
  auto* buttons = panel_->findChild<button_box_widget*>();
  if (buttons == nullptr || buttons->lets_cancel()) QDialog::reject();
}

void element_dialog::changeEvent(QEvent* event) {
  if (event != nullptr) QDialog::changeEvent(event);
  if (event != nullptr && event->type() != QEvent::LanguageChange) return;
  auto* buttons = findChild<QDialogButtonBox*>(QStringLiteral("close_box"));
  if (buttons != nullptr)
    buttons->button(QDialogButtonBox::Close)->setText(words("&Close", "&Закрыть"));
}

int modal_runner::run(handle panel) {
  element_dialog dialog(panel, QApplication::activeWindow());
  QString place = QStringLiteral("dialog/") + id_;
  QSize kept = id_.isEmpty() ? QSize() : size_of(choice(place));
  QSize opened =
      kept.isValid() ? kept.boundedTo(dialog.screen()->availableSize()) : dialog.sizeHint();
  dialog.resize(opened);
  int result = dialog.exec();
  if (!id_.isEmpty() && dialog.size() != opened) keep_choice(place, text_of(dialog.size()));
  return result;
}

}  // namespace zu::desktop
