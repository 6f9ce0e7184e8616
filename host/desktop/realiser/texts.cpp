// Texts and pictures that are only shown: labels, outputs, images.

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QResizeEvent>
#include <QStyle>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/number_text.h"
#include "host/desktop/realiser/pictures.h"
#include "host/desktop/realiser/plain_text.h"
#include "host/desktop/realiser/realised.h"

namespace zu::desktop {
namespace {

/// A caption; cut with an ellipsis, and whole in its tip, where it has too little room.
class label_widget final : public realised<label_impl, QLabel> {
 public:
  label_widget(handle element, QWidget* parent) : realised(element, parent) {
    setObjectName(QStringLiteral("label"));
    begin();
  }

  QSize minimumSizeHint() const override {
    QSize whole = QLabel::minimumSizeHint();
    return QSize(std::min(whole.width(), characters(this, 8)), whole.height());
  }

 protected:
  void heard(notice) override {
    setText(text_by<&label_impl::text>(element_));
    setEnabled(call<&label_impl::enabled>(element_));
    if (buddy() != nullptr) buddy()->setAccessibleName(plain_name(text()));
    show_tip();
  }
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    show_tip();
  }
  void paintEvent(QPaintEvent* event) override {
    if (!is_cut()) {
      QLabel::paintEvent(event);
      return;
    }
    QPainter painter(this);
    int flags = buddy() != nullptr ? int(Qt::TextShowMnemonic) : 0;
    QString cut = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width(), flags);
    style()->drawItemText(&painter, contentsRect(), int(alignment()) | flags, palette(),
                          isEnabled(), cut, foregroundRole());
  }

 private:
  bool is_cut() const {
    return !text().contains(QLatin1Char('\n')) && width() < QLabel::sizeHint().width();
  }
  void show_tip() { setToolTip(is_cut() ? text() : QString()); }
};

class image_widget final : public realised<image_impl, QLabel> {
 public:
  image_widget(handle element, QWidget* parent) : realised(element, parent) {
    setObjectName(QStringLiteral("image"));
    begin();
  }

 protected:
  void heard(notice) override {
    setPixmap(pixmap_of(picture_by<&image_impl::picture>(element_), devicePixelRatioF()));
    setEnabled(call<&image_impl::enabled>(element_));
    set_hidden(this, hidden_by::element, !call<&image_impl::visible>(element_));
  }
};

/// A line that is read and copied.
template <class element, class notices>
class output_line : public realised<element, QLineEdit, notices> {
 protected:
  output_line(handle h, QWidget* parent) : realised<element, QLineEdit, notices>(h, parent) {
    this->setObjectName(QStringLiteral("output"));
    this->setReadOnly(true);
    this->setFrame(false);
    QPalette colors = this->palette();
    colors.setBrush(QPalette::Base, Qt::transparent);
    this->setPalette(colors);
  }
  void show_line(const QString& text) {
    if (this->text() != text) {
      this->setText(text);
      this->setCursorPosition(0);
    }
    handle h = this->element_;
    hint_ = text_by<&element::hint>(h);
    this->setEnabled(call<&element::enabled>(h));
    if (auto width = call<&element::width>(h); width != 0)
      this->setMinimumWidth(characters(this, width));
    show_tip();
  }
  void resizeEvent(QResizeEvent* event) override {
    QLineEdit::resizeEvent(event);
    show_tip();
  }

 private:
  void show_tip() {
    int room = this->width() - 6;
    bool is_cut = this->fontMetrics().horizontalAdvance(this->text()) > room;
    this->setToolTip(is_cut ? this->text() : hint_);
  }
  QString hint_;
};

class output_widget final : public output_line<output_impl, element_notices> {
 public:
  output_widget(handle element, QWidget* parent) : output_line(element, parent) { begin(); }

 protected:
  void heard(notice) override {
    show_line(text_by<&output_impl::text>(element_));
    set_hidden(this, hidden_by::element, !call<&output_impl::visible>(element_));
  }
};

class integer_output_widget final : public output_line<integer_output_impl, integer_notices> {
 public:
  integer_output_widget(handle element, QWidget* parent) : output_line(element, parent) { begin(); }

 protected:
  void heard(notice) override {
    show_line(QString::number(call<&integer_output_impl::value>(element_)));
  }
};

class floating_output_widget final : public output_line<floating_output_impl, floating_notices> {
 public:
  floating_output_widget(handle element, QWidget* parent) : output_line(element, parent) {
    begin();
  }

 protected:
  void heard(notice) override {
    show_line(number_text(call<&floating_output_impl::value>(element_),
                          call<&floating_output_impl::decimals>(element_)));
  }
};

class multiline_output_widget final : public realised<multiline_output_impl, QPlainTextEdit> {
 public:
  multiline_output_widget(handle element, QWidget* parent) : realised(element, parent) {
    setObjectName(QStringLiteral("multiline_output"));
    setReadOnly(true);
    setTabChangesFocus(true);
    begin();
  }
  QSize sizeHint() const override {
    return size_of_text(this, call<&multiline_output_impl::width>(element_),
                        call<&multiline_output_impl::lines>(element_));
  }
  QSize minimumSizeHint() const override { return least_size_of_text(this, sizeHint()); }

 protected:
  void heard(notice) override {
    QString text = text_by<&multiline_output_impl::text>(element_);
    if (toPlainText() != text) setPlainText(text);
    setToolTip(text_by<&multiline_output_impl::hint>(element_));
    setEnabled(call<&multiline_output_impl::enabled>(element_));
    set_monospaced(this, call<&multiline_output_impl::monospaced>(element_));
    updateGeometry();
  }
};

}  // namespace

std::span<const builder> text_builders() {
  static const builder rows[] = {
      builder_of<label_impl, label_widget>(),
      builder_of<image_impl, image_widget>(),
      builder_of<output_impl, output_widget>(),
      builder_of<integer_output_impl, integer_output_widget>(),
      builder_of<floating_output_impl, floating_output_widget>(),
      builder_of<multiline_output_impl, multiline_output_widget>(),
  };
  return rows;
}

}  // namespace zu::desktop
