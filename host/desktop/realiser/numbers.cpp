// Numbers that are typed or slid.

#include <QHBoxLayout>
#include <QPointer>
#include <QSignalBlocker>
#include <QSlider>
#include <QWheelEvent>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/number_box.h"
#include "host/desktop/realiser/number_text.h"
#include "host/desktop/realiser/realised.h"

namespace zu::desktop {
namespace {

QString text_of_number(handle h, double value, bool is_whole) {
  return is_whole ? QString::number(value, 'f', 0)
                  : number_text(value, call<&floating_input_impl::decimals>(h));
}

/// A number box with the view of one of the two kinds of numeric elements.
template <class element, class notices, class number>
class number_input final : public realised<element, QWidget, notices> {
 public:
  number_input(handle h, QWidget* parent)
      : realised<element, QWidget, notices>(h, parent), box_(new number_box(calls_of(h), this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(box_);
    this->setFocusProxy(box_);
    this->begin();
  }

 protected:
  void heard(notice what) override {
    handle h = this->element_;
    box_->setToolTip(text_by<&element::hint>(h));
    set_control_enabled(box_, call<&element::enabled>(h));
    box_->setReadOnly(call<&element::read_only>(h));
    box_->set_characters(call<&element::width>(h));
    box_->refresh(what == notice::value);
  }

 private:
  static number_box::number_calls calls_of(handle h) {
    constexpr bool is_whole = std::is_integral_v<number>;
    return {
        [h] { return double(call<&element::value>(h)); },
        [h] { return double(call<&element::minimum>(h)); },
        [h] { return double(call<&element::maximum>(h)); },
        [h] { return double(call<&element::step>(h)); },
        [h](double value) {
          if (is_whole && std::abs(value) > 2147483647.0) return false;
          return call<&element::set_value>(h, number(value));
        },
        [h] { call<&element::apply>(h); },
        [h](double value) { return text_of_number(h, value, is_whole); },
        is_whole,
    };
  }

  number_box* box_;
};
using integer_input_widget = number_input<integer_input_impl, integer_notices, std::int32_t>;
using floating_input_widget = number_input<floating_input_impl, floating_notices, double>;

/// Set while it moves, applied when it is let go; keys and the wheel do both at once.
class slider_widget final : public realised<slider_impl, QSlider, integer_notices> {
 public:
  slider_widget(handle element, QWidget* parent) : realised(element, parent) {
    setObjectName(QStringLiteral("slider"));
    setOrientation(Qt::Horizontal);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSlider::valueChanged, this, &slider_widget::moved);
    connect(this, &QSlider::sliderReleased, this, &slider_widget::let_go);
    begin();
  }
  QSize sizeHint() const override {
    return QSize(characters(this, 16), QSlider::sizeHint().height());
  }

 protected:
  void heard(notice) override {
    QSignalBlocker quiet(this);
    setRange(0, std::max(0, call<&slider_impl::maximum>(element_)));
    setSingleStep(std::max(1, call<&slider_impl::step>(element_)));
    setPageStep(std::max(1, call<&slider_impl::page>(element_)));
    int tick = call<&slider_impl::tick>(element_);
    // Ticks that would run into each other say nothing.
    bool ticks = tick > 0 && maximum() / tick <= 25;
    setTickInterval(ticks ? tick : 0);
    setTickPosition(ticks ? TicksBelow : NoTicks);
    setValue(call<&slider_impl::value>(element_));
    set_control_enabled(this, call<&slider_impl::enabled>(element_));
  }
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus())
      QSlider::wheelEvent(event);
    else
      event->ignore();
  }

 private:
  void moved(int value) {
    QPointer<QObject> alive(this);
    call<&slider_impl::set_value>(element_, value);
    if (!alive) return;
    if (isSliderDown()) {
      input_reached(name_of(this));
      return;
    }
    let_go();
  }
  void let_go() {
    QPointer<QObject> alive(this);
    call<&slider_impl::apply>(element_);
    if (alive) heard(notice::value);
    if (alive) input_reached(name_of(this));
  }
};

}  // namespace

std::span<const builder> number_builders() {
  static const builder rows[] = {
      builder_of<integer_input_impl, integer_input_widget>(),
      builder_of<floating_input_impl, floating_input_widget>(),
      builder_of<slider_impl, slider_widget>(),
  };
  return rows;
}

}  // namespace zu::desktop
