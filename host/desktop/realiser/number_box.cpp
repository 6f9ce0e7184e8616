#include "host/desktop/realiser/number_box.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <cmath>

#include "host/desktop/realiser/number_text.h"
#include "host/desktop/realiser/realised.h"

namespace zu::desktop {

number_box::number_box(number_calls calls, QWidget* parent)
    : QAbstractSpinBox(parent),
      calls_(std::move(calls)),
      typed_(lineEdit(), this,
             {[this] { return calls_.text(calls_.value()); },
              [this](const QString& text) {
                auto value = number_of(text);
                return value && offer(*value);
              },
              [this] { calls_.apply(); },
              [this](const QString& text) { return number_of(text) == calls_.value(); }}) {
  setObjectName(QStringLiteral("number"));
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

bool number_box::offer(double value) {
  if (calls_.is_whole && value != std::trunc(value)) return false;
  if (is_limited() && (value < calls_.minimum() || value > calls_.maximum())) return false;
  return calls_.set_value(value);
}

void number_box::refresh(bool all) {
  typed_.refresh(all);
  update();
}

void number_box::set_characters(std::uint32_t count) {
  if (std::exchange(characters_, count) != count) updateGeometry();
}

QSize number_box::size_for(int width) const {
  QStyleOptionSpinBox option;
  initStyleOption(&option);
  QSize inner(width, lineEdit()->sizeHint().height());
  return style()->sizeFromContents(QStyle::CT_SpinBox, &option, inner, this);
}
QSize number_box::sizeHint() const {
  return size_for(zu::desktop::characters(this, characters_ != 0 ? characters_ : 10) + 8);
}
QSize number_box::minimumSizeHint() const {
  std::uint32_t least = characters_ != 0 ? std::min(characters_, 6u) : 6u;
  return size_for(zu::desktop::characters(this, least) + 8);
}

void number_box::stepBy(int steps) {
  double by = calls_.step();
  if (!(by > 0)) by = 1;
  double value = calls_.value();
  if (!std::isfinite(value)) value = 0;
  // The text of a sum is free of what a binary fraction adds to it.
  double next = number_of(number_text(value + steps * by)).value_or(value);
  if (is_limited()) next = std::clamp(next, calls_.minimum(), calls_.maximum());
  if (next == value) return;
  if (typed_.offer(calls_.is_whole ? QString::number(next, 'f', 0) : number_text(next)))
    lineEdit()->selectAll();
}

QAbstractSpinBox::StepEnabled number_box::stepEnabled() const {
  if (isReadOnly()) return StepNone;
  if (!is_limited()) return StepUpEnabled | StepDownEnabled;
  StepEnabled enabled = StepNone;
  if (calls_.value() < calls_.maximum()) enabled |= StepUpEnabled;
  if (calls_.value() > calls_.minimum()) enabled |= StepDownEnabled;
  return enabled;
}

void number_box::wheelEvent(QWheelEvent* event) {
  // A wheel that scrolls the panel must not turn the numbers that pass under it.
  if (hasFocus())
    QAbstractSpinBox::wheelEvent(event);
  else
    event->ignore();
}

}  // namespace zu::desktop
