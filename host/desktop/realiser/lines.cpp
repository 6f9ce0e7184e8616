// Texts that are typed into one line.

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStringListModel>

#include "host/desktop/realiser/answers.h"
#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/marked_part.h"
#include "host/desktop/realiser/realised.h"
#include "host/desktop/realiser/typed_line.h"

namespace zu::desktop {
namespace {

/// What a plain and an assisted line share.
template <class element> class line_control : public realised<element, QLineEdit> {
 public:
  QSize sizeHint() const override {
    QSize size = QLineEdit::sizeHint();
    if (width_ != 0) size.setWidth(characters(this, width_) + 2 * this->fontMetrics().height() / 2);
    return size;
  }
  QSize minimumSizeHint() const override {
    return QSize(std::min(sizeHint().width(), characters(this, 8)), sizeHint().height());
  }

 protected:
  line_control(handle h, QWidget* parent)
      : realised<element, QLineEdit>(h, parent),
        typed_(this, this,
               {[h] { return text_by<&element::text>(h); },
                [h](const QString& text) {
                  return call<&element::set_text>(h, text.toStdWString().c_str());
                },
                [h] { call<&element::commit>(h); }, nullptr}),
        marked_(call<&element::cursor>(h)) {
    this->setObjectName(QStringLiteral("input"));
    QObject::connect(this, &QLineEdit::cursorPositionChanged, this, [this] { tell_marked(); });
    QObject::connect(this, &QLineEdit::selectionChanged, this, [this] { tell_marked(); });
  }

  void heard(notice what) override {
    handle h = this->element_;
    typed_.refresh(what == notice::value);
    this->setToolTip(text_by<&element::hint>(h));
    set_control_enabled(this, call<&element::enabled>(h));
    this->setReadOnly(call<&element::read_only>(h));
    set_hidden(this, hidden_by::element, !call<&element::visible>(h));
    if (auto width = call<&element::width>(h); width != width_) {
      width_ = width;
      this->updateGeometry();
    }
    if (what == notice::value) show_marked();
  }
  typed_line& typed() { return typed_; }

 private:
  void tell_marked() {
    int begin = this->hasSelectedText() ? this->selectionStart() : this->cursorPosition();
    int end = this->hasSelectedText() ? this->selectionEnd() : begin;
    marked_.tell(this->text(), begin, end);
  }
  void show_marked() {
    auto shown = marked_.asked(this->text());
    if (!shown) return;
    QSignalBlocker quiet(this);
    this->setSelection(shown->first, shown->second - shown->first);
    if (shown->first == shown->second) this->setCursorPosition(shown->first);
  }

  std::uint32_t width_ = 0;
  typed_line typed_;
  marked_part marked_;
};

class input_widget final : public line_control<input_impl> {
 public:
  input_widget(handle element, QWidget* parent) : line_control(element, parent) { begin(); }
};

/// The list of suggestions opens under the line as it is typed, and whole with the arrow down.
class assisted_input_widget final : public line_control<assisted_input_impl> {
 public:
  assisted_input_widget(handle element, QWidget* parent)
      : line_control(element, parent), suggestions_(new QStringListModel(this)) {
    auto* completer = new QCompleter(suggestions_, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    setCompleter(completer);
    connect(completer, qOverload<const QString&>(&QCompleter::activated), this,
            [this](const QString& chosen) { typed().offer(chosen); });
    auto* open =
        addAction(QIcon::fromTheme(QStringLiteral("arrow-down")), QLineEdit::TrailingPosition);
    connect(open, &QAction::triggered, this, &assisted_input_widget::open_list);
    begin();
  }

 protected:
  void heard(notice what) override {
    line_control::heard(what);
    if (what == notice::value) return;
    QStringList found = texts_by<&assisted_input_impl::visit_suggestions>(element_);
    if (found != suggestions_->stringList()) suggestions_->setStringList(found);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Down && !completer()->popup()->isVisible())
      open_list();
    else
      line_control::keyPressEvent(event);
  }

 private:
  void open_list() {
    if (isReadOnly()) return;
    completer()->setCompletionPrefix(QString());
    completer()->complete();
  }

  QStringListModel* suggestions_;
};

}  // namespace

std::span<const builder> line_builders() {
  static const builder rows[] = {
      builder_of<input_impl, input_widget>(),
      builder_of<assisted_input_impl, assisted_input_widget>(),
  };
  return rows;
}

}  // namespace zu::desktop
