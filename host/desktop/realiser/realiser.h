#pragma once
// Controls for elements: whoever has an element of a bundle gets a widget for it here.

#include <QString>
#include <functional>

#include "zu/handle.h"

class QWidget;

namespace zu::desktop {

/// How one kind of element becomes a control. The widget leaves its view with the element, and
/// takes it back when it dies; until then the element must live.
struct builder {
  const char* interface;                               ///< name of the element's interface
  QWidget* (*build)(handle element, QWidget* parent);  ///< of that interface's own handle
};

/// A control for an element of any kind, owned by `parent`. Nobody knowing the kind gives a label
/// that says so. An element that also answers as a context menu has one.
QWidget* realise(handle element, QWidget* parent);

/// Called after each input of a person that reached an element, with what the element is called, or
/// an empty text. None: nobody listens.
void set_input_listener(std::function<void(const QString& what)> listener);
/// For controls: an input has reached its element. The control may be gone afterwards.
void input_reached(const QString& what);
/// The same once the control has done its work, which goes on: whoever listens may take it down.
void input_reached_later(const QString& what);

/// Where controls keep what a person chose, by name: "tab/…" the last tab, "dialog/…" a size.
struct choice_store {
  std::function<QString(const QString& name)> get;  ///< empty if nothing was chosen
  std::function<void(const QString& name, const QString& value)> set;
};
/// Without a store choices are kept for the run.
void set_choice_store(choice_store store);
QString choice(const QString& name);
void keep_choice(const QString& name, const QString& value);

}  // namespace zu::desktop
