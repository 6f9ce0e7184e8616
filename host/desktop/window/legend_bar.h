#pragma once
// A legend whose colours run into each other, as a row of the layer list.

#include <QWidget>
#include <vector>

#include "host/core/legend.h"

namespace zu::desktop {

QColor color_of(const Tzu_color& color);

/// A column of colours with numbers beside some of them.
class legend_bar final : public QWidget {
 public:
  explicit legend_bar(std::vector<host::legend_row> rows, QWidget* parent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<host::legend_row> rows_;
};

}  // namespace zu::desktop
