#pragma once
// A list box: an outline of one column that passes everything on to a list of a bundle.

#include <QWidget>
#include <memory>

#include "zu/outline.h"

namespace zu::desktop {

class outline_widget;

class list_widget final : public QWidget {
  Q_OBJECT
 public:
  list_widget(handle shown, QWidget* parent);
  ~list_widget() override;

 private:
  class list_as_outline;
  std::unique_ptr<list_as_outline> items_;
  std::unique_ptr<outline_widget> widget_;  // goes before what it shows
};

}  // namespace zu::desktop
