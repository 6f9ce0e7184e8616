#pragma once
// A number that is typed, stepped by arrows and turned by the wheel.

#include <QAbstractSpinBox>
#include <functional>

#include "host/desktop/realiser/typed_line.h"

namespace zu::desktop {

/// Unlike Qt's own boxes it never cuts digits off a value. What a person does goes to `calls`, from
/// which `refresh` shows what came of it. A value outside the limits is refused.
class number_box final : public QAbstractSpinBox {
 public:
  struct number_calls {
    std::function<double()> value, minimum, maximum, step;
    std::function<bool(double)> set_value;  ///< false: refused
    std::function<void()> apply;            ///< what was set is meant
    std::function<QString(double)> text;
    bool is_whole = false;
  };
  number_box(number_calls calls, QWidget* parent);

  void refresh(bool all);
  /// In characters; 0: as usual.
  void set_characters(std::uint32_t count);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  void stepBy(int steps) override;
  QValidator::State validate(QString&, int&) const override { return QValidator::Acceptable; }

 protected:
  StepEnabled stepEnabled() const override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool offer(double value);
  bool is_limited() const { return calls_.minimum() < calls_.maximum(); }
  QSize size_for(int width) const;

  number_calls calls_;
  typed_line typed_;
  std::uint32_t characters_ = 0;
};

}  // namespace zu::desktop
