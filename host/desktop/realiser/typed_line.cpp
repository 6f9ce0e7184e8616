#include "host/desktop/realiser/typed_line.h"

#include <QBasicTimer>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>

#include "host/desktop/realiser/realised.h"

namespace zu::desktop {
namespace {

const QString mark_name = QStringLiteral("refused_mark");

/// Lies over a control, or a part of one, and lets everything through.
class refused_mark final : public QWidget {
 public:
  refused_mark(QWidget* control, const QRect& place) : QWidget(control) {
    setObjectName(mark_name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(place);
    if (place == control->rect()) control->installEventFilter(this);
    show();
    raise();
  }
  /// Goes by itself after a moment, or stays.
  void pass(bool wanted) {
    if (wanted)
      moment_.start(900, this);
    else
      moment_.stop();
  }

 protected:
  void timerEvent(QTimerEvent*) override {
    moment_.stop();
    deleteLater();
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
  }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xda, 0x44, 0x53), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
  }

 private:
  QBasicTimer moment_;
};

}  // namespace

void unmark_refused(QWidget* control) {
  delete control->findChild<QWidget*>(mark_name, Qt::FindDirectChildrenOnly);
}

void mark_refused(QWidget* control, bool for_a_moment) {
  auto* mark = dynamic_cast<refused_mark*>(
      control->findChild<QWidget*>(mark_name, Qt::FindDirectChildrenOnly));
  if (mark == nullptr) mark = new refused_mark(control, control->rect());
  mark->pass(for_a_moment);
}

void mark_refused_part(QWidget* control, const QRect& part) {
  unmark_refused(control);
  (new refused_mark(control, part))->pass(true);
}

typed_line::typed_line(QLineEdit* line, QWidget* owner, element_calls element)
    : QObject(owner), line_(line), owner_(owner), element_(std::move(element)) {
  setObjectName(QStringLiteral("typed_line"));
  connect(line, &QLineEdit::textEdited, this, &typed_line::typed);
  owner->installEventFilter(this);
}

void typed_line::refresh(bool all) {
  if (is_refused_ && !all) return;
  QString text = element_.shown();
  if (line_->text() == text) return;
  if (is_typing_ && element_.says_it && element_.says_it(line_->text())) return;
  int cursor = line_->cursorPosition();
  bool at_end = cursor == line_->text().size();
  line_->setText(text);
  // A line that is only read begins at its beginning.
  line_->setCursorPosition(!line_->hasFocus() ? 0 : at_end ? int(text.size()) : cursor);
}

void typed_line::typed(const QString& text) {
  if (!is_typing_) before_ = element_.shown();
  is_typing_ = true;
  is_refused_ = !element_.offer(text);
  if (is_refused_) {
    mark_refused(owner_, false);
    return;
  }
  unmark_refused(owner_);
  QPointer<typed_line> alive(this);
  input_reached(name_of(owner_));
  if (alive) refresh(false);
}

bool typed_line::offer(const QString& text) {
  is_typing_ = is_refused_ = false;
  unmark_refused(owner_);
  if (!element_.offer(text)) {
    mark_refused(owner_, true);
    refresh(true);
    return false;
  }
  element_.commit();
  QPointer<typed_line> alive(this);
  input_reached(name_of(owner_));
  if (alive) refresh(true);
  return true;
}

bool typed_line::finish() {
  if (!is_typing_) return true;
  if (is_refused_) {
    give_back();
    mark_refused(owner_, true);
    return false;
  }
  is_typing_ = false;
  QPointer<typed_line> alive(this);
  element_.commit();
  if (alive) input_reached(name_of(owner_));
  if (alive) refresh(true);
  return true;
}

void typed_line::give_back() {
  is_typing_ = is_refused_ = false;
  unmark_refused(owner_);
  if (element_.shown() != before_) element_.offer(before_);
  QPointer<typed_line> alive(this);
  input_reached(name_of(owner_));
  if (alive) refresh(true);
}

bool typed_line::eventFilter(QObject* watched, QEvent* event) {
  auto key_of = [&] { return static_cast<QKeyEvent*>(event)->key(); };
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      if (key_of() == Qt::Key_Escape && is_typing_) event->accept();
      break;
    case QEvent::KeyPress:
      if (key_of() == Qt::Key_Escape && is_typing_) {
        give_back();
        line_->selectAll();
        return true;
      }
      // A refused text does not go through with the dialog.
      if ((key_of() == Qt::Key_Return || key_of() == Qt::Key_Enter) && !finish()) return true;
      break;
    case QEvent::FocusOut:
      if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) finish();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

bool finish_typing(const QWidget* beside) {
  QWidget* focused = beside->window()->focusWidget();
  if (focused == nullptr) return true;
  auto* line = dynamic_cast<typed_line*>(
      focused->findChild<QObject*>(QStringLiteral("typed_line"), Qt::FindDirectChildrenOnly));
  return line == nullptr || line->finish();
}

}  // namespace zu::desktop
