#pragma once
// What a person types into one line, on its way to an element.

#include <QObject>
#include <QString>
#include <functional>

class QLineEdit;
class QRect;
class QWidget;

namespace zu::desktop {

/// Gives each state of a line to the element as it is typed. What the element refuses stays, marked
/// by a red frame, as long as the person types on. Enter or leaving the line commits what was
/// taken; instead of a refused text the value from before the typing stands again, as after Escape.
class typed_line final : public QObject {
 public:
  struct element_calls {
    std::function<QString()> shown;             ///< the text that the element has
    std::function<bool(const QString&)> offer;  ///< a candidate; false: refused
    std::function<void()> commit;               ///< what was taken is meant
    /// Whether a text says what the element has; then it is not touched while it is typed.
    std::function<bool(const QString&)> says_it;
  };

  /// `owner` is the control that has the focus: the line itself, or a box around it.
  typed_line(QLineEdit* line, QWidget* owner, element_calls element);

  /// Shows the element's text; with `all` even if a refused one is being typed.
  void refresh(bool all);
  /// A value that was not typed: by an arrow, a wheel, a list.
  bool offer(const QString& text);
  /// As if the person left the line. False if what stood there was refused.
  bool finish();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void typed(const QString& text);
  void give_back();

  QLineEdit* line_;
  QWidget* owner_;
  element_calls element_;
  QString before_;  // what stood there when the typing began
  bool is_typing_ = false;
  bool is_refused_ = false;
};

/// Ends typing in the line that has the focus beside a control: a button that is pressed by its key
/// leaves the focus there. False if what stands in the line was refused.
bool finish_typing(const QWidget* beside);

/// Frames a control in red: for a moment, or as long as what stands in it is refused.
void mark_refused(QWidget* control, bool for_a_moment);
void unmark_refused(QWidget* control);
/// Frames a part of a control, such as a cell of a list, for a moment.
void mark_refused_part(QWidget* control, const QRect& part);

}  // namespace zu::desktop
