// Texts of several lines.

#include <QFocusEvent>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QTextDocument>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/marked_part.h"
#include "host/desktop/realiser/plain_text.h"
#include "host/desktop/realiser/realised.h"
#include "host/desktop/realiser/typed_line.h"

namespace zu::desktop {

QSize size_of_text(const QPlainTextEdit* control, std::uint32_t width, std::uint32_t lines) {
  QFontMetrics metrics(control->font());
  int frame = 2 * control->frameWidth() + 2 * int(control->document()->documentMargin());
  int bar = control->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, control);
  int rows = lines == 0 ? 5 : int(std::min<std::uint32_t>(lines, 100));
  int columns = characters(control, width == 0 ? 30 : width);
  return QSize(columns + frame + bar, rows * metrics.lineSpacing() + frame);
}

QSize least_size_of_text(const QPlainTextEdit* control, QSize wanted) {
  return wanted.boundedTo(size_of_text(control, 12, 2));
}

void set_monospaced(QPlainTextEdit* control, bool wanted) {
  QFont font = wanted ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QFont();
  if (!wanted || control->font().family() != font.family()) control->setFont(font);
}

namespace {

class multiline_input_widget final : public realised<multiline_input_impl, QPlainTextEdit> {
 public:
  multiline_input_widget(handle element, QWidget* parent)
      : realised(element, parent), marked_(call<&multiline_input_impl::selection>(element)) {
    setObjectName(QStringLiteral("multiline_input"));
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &multiline_input_widget::typed);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { tell_marked(); });
    connect(this, &QPlainTextEdit::selectionChanged, this, [this] { tell_marked(); });
    begin();
  }
  QSize sizeHint() const override {
    return size_of_text(this, call<&multiline_input_impl::width>(element_),
                        call<&multiline_input_impl::lines>(element_));
  }
  QSize minimumSizeHint() const override { return least_size_of_text(this, sizeHint()); }

 protected:
  void heard(notice) override {
    show_text();
    setToolTip(text_by<&multiline_input_impl::hint>(element_));
    set_control_enabled(this, call<&multiline_input_impl::enabled>(element_));
    setReadOnly(call<&multiline_input_impl::read_only>(element_));
    set_monospaced(this, call<&multiline_input_impl::monospaced>(element_));
  }
  void focusOutEvent(QFocusEvent* event) override {
    QPointer<QObject> alive(this);
    QPlainTextEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || !is_typing_) return;
    is_typing_ = false;
    call<&multiline_input_impl::commit>(element_);
    if (alive) input_reached(name_of(this));
  }

 private:
  void typed() {
    is_typing_ = true;
    QPointer<QObject> alive(this);
    bool taken =
        call<&multiline_input_impl::set_text>(element_, toPlainText().toStdWString().c_str());
    if (!alive) return;
    if (!taken) {
      mark_refused(this, true);
      show_text();
      return;
    }
    tell_marked();
    input_reached(name_of(this));
  }
  void show_text() {
    QString text = text_by<&multiline_input_impl::text>(element_);
    QSignalBlocker quiet(this);
    if (toPlainText() != text) {
      int position = textCursor().position();
      // Not setPlainText: what was typed can be undone still.
      QTextCursor all(document());
      all.select(QTextCursor::Document);
      all.insertText(text);
      move_to(position, position);
    }
    if (auto shown = marked_.asked(text)) move_to(shown->first, shown->second);
  }
  void move_to(int begin, int end) {
    QTextCursor cursor = textCursor();
    if (cursor.selectionStart() == begin && cursor.selectionEnd() == end) return;
    int last = document()->characterCount() - 1;
    cursor.setPosition(std::clamp(begin, 0, last));
    cursor.setPosition(std::clamp(end, 0, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
  }
  void tell_marked() {
    QTextCursor cursor = textCursor();
    marked_.tell(toPlainText(), cursor.selectionStart(), cursor.selectionEnd());
  }

  marked_part marked_;
  bool is_typing_ = false;
};

}  // namespace

std::span<const builder> multiline_builders() {
  static const builder rows[] = {builder_of<multiline_input_impl, multiline_input_widget>()};
  return rows;
}

}  // namespace zu::desktop
