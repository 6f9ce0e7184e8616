#pragma once
// What all controls of elements share: the view that lies with the element, and the moments at
// which a control shows anew what the element says.

#include <QEvent>
#include <QString>
#include <QWidget>

#include "host/core/texts.h"
#include "host/desktop/realiser/realiser.h"
#include "zu/toolkit.h"

namespace zu::desktop {

/// Why a control is to look at its element again.
enum class notice { value, all, list, language };

// Views of each kind, which tell one function of everything.

struct element_notices : element_view_impl {
  virtual void heard(notice) = 0;
  void value_changed() override { heard(notice::value); }
  void redraw() override { heard(notice::all); }
  void list_changed() override { heard(notice::list); }
  using interface = element_view_impl;
};
struct integer_notices : integer_view_impl {
  virtual void heard(notice) = 0;
  void value_changed(std::int32_t) override { heard(notice::value); }
  void redraw() override { heard(notice::all); }
  void range_changed() override { heard(notice::list); }
  using interface = integer_view_impl;
};
struct floating_notices : floating_view_impl {
  virtual void heard(notice) = 0;
  void value_changed(double) override { heard(notice::value); }
  void redraw() override { heard(notice::all); }
  void range_changed() override { heard(notice::list); }
  using interface = floating_view_impl;
};

/// A view that stays with an element as long as this lives. After it the element is not touched: it
/// may end itself when its view goes.
template <class element, class notices = element_notices> class link : protected notices {
 public:
  explicit link(handle h) : element_(h) {}
  link(const link&) = delete;
  link& operator=(const link&) = delete;
  ~link() {
    if (attached_) call<&element::attach_view>(element_, of<typename notices::interface>());
  }

 protected:
  /// To be called when the control is ready: the element may answer at once.
  void attach() {
    attached_ = true;
    call<&element::attach_view>(element_, handle_of<typename notices::interface>(*this));
  }
  const handle element_;

 private:
  bool attached_ = false;
};

/// A control of an element: `widget` with a link. `heard` shows what the getters say; it is also
/// called when the language changes, since the element's texts follow it.
template <class element, class widget, class notices = element_notices>
class realised : public widget, protected link<element, notices> {
 public:
  realised(handle h, QWidget* parent) : link<element, notices>(h) { widget::setParent(parent); }

 protected:
  void begin() {
    this->heard(notice::list);
    this->attach();
  }
  void changeEvent(QEvent* event) override {
    widget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) this->heard(notice::language);
  }
};

/// The text that an operation of an element gives.
template <auto operation, class... given> QString text_by(handle h, given... values) {
  host::kept_text text;
  call<operation>(h, values..., text.visitor());
  return QString::fromStdWString(text.get());
}

/// Who hides a control: its element, or the row and column that it stands in. It shows when neither
/// does.
enum class hidden_by { element, place };
void set_hidden(QWidget* control, hidden_by who, bool hidden);

/// Enables a control or not. The focus of one that is disabled goes nowhere: its next one may stand
/// in a panel behind this one, which it would bring to the front.
void set_control_enabled(QWidget* control, bool enabled);

/// Half the height of a character of a control, the unit of layouts.
int layout_unit(const QWidget* control);
/// Width of so many characters in a control's font.
int characters(const QWidget* control, std::uint32_t count);

/// A caption without mnemonics and the colon behind it.
QString plain_name(QString caption);
/// What a control is called: its caption, that of the label in front of it, or its tip.
QString name_of(const QWidget* control, const QString& caption = {});

}  // namespace zu::desktop
