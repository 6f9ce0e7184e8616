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
  panel_ = new realised_docker(panel, this);
  panel_->set_margins(false);
  column->addWidget(panel_, 1);
  // The buttons stay in sight where the rest scrolls.
  buttons_ = panel_->findChild<button_box_widget*>();
  column->addWidget(buttons_ != nullptr ? buttons_ : close_box());
  auto show_title = [this] {
    setWindowTitle(panel_->title());
    if (!panel_->icon().isNull()) setWindowIcon(panel_->icon());
  };
  connect(panel_, &realised_docker::title_changed, this, show_title);
  show_title();
  QSize least = panel_->widget()->minimumSizeHint();
  panel_->setMinimumSize(least.boundedTo(screen()->availableSize() * 7 / 10));
}

element_dialog::~element_dialog() {
  delete buttons_;
  delete panel_;
}

QWidget* element_dialog::close_box() {
  auto* box = new QDialogButtonBox(QDialogButtonBox::Close, this);
  box->setObjectName(QStringLiteral("close_box"));
  connect(box, &QDialogButtonBox::rejected, this, &element_dialog::reject);
  close_ = box->button(QDialogButtonBox::Close);
  close_->setText(words("&Close", "&Закрыть"));
  return box;
}

void element_dialog::reject() {
  if (buttons_ == nullptr || buttons_->lets_cancel()) QDialog::reject();
}

void element_dialog::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::LanguageChange && close_ != nullptr)
    close_->setText(words("&Close", "&Закрыть"));
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
