#include "host/desktop/window/status_line.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <QToolButton>
#include <cmath>

#include "host/core/projections.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

constexpr double usual_scales[] = {500,    1000,   2000,   5000,    10000,   25000,   50000,
                                   100000, 200000, 500000, 1000000, 2500000, 10000000};
constexpr std::size_t longest_projection = 40;

host::compass_letters letters_in_force() {
  if (language_in_force() == language::russian) return {" в.д.", " з.д.", " с.ш.", " ю.ш."};
  return {"E", "W", "N", "S"};
}

/// As wide as coordinates are as a rule.
QString wide_coordinates(host::coordinate_units units) {
  if (units == host::coordinate_units::map) return QStringLiteral("-0000000.00; -00000000.00");
  QString sample = units == host::coordinate_units::dms
                       ? QStringLiteral("000°00′00.0″%1 00°00′00.0″%2")
                       : QStringLiteral("000.00000°%1 00.00000°%2");
  host::compass_letters letters = letters_in_force();
  return sample.arg(QString::fromStdString(letters.west), QString::fromStdString(letters.south));
}

}  // namespace

double scale_of_text(const QString& text) {
  QString digits = text.section(QLatin1Char(':'), -1);
  digits.remove(QLatin1Char(' ')).remove(QChar(0xA0)).replace(QLatin1Char(','), QLatin1Char('.'));
  bool is_number = false;
  double scale = digits.toDouble(&is_number);
  return is_number && std::isfinite(scale) && scale > 0 ? scale : 0;
}

QString text_of_scale(double scale) {
  if (!(scale > 0)) return {};
  // A map's scale is no measurement; a section's may be below 1.
  return QStringLiteral("1:") + (scale < 1000 ? QString::number(scale, 'g', 4)
                                              : QString::number(std::round(scale), 'f', 0));
}

status_line::status_line(QWidget* parent)
    : QStatusBar(parent),
      coordinates_(new QLabel(this)),
      scale_title_(new QLabel(this)),
      scale_(new QComboBox(this)),
      projection_(new QToolButton(this)),
      busy_(new QProgressBar(this)) {
  setObjectName(QStringLiteral("status_line"));
  coordinates_->setObjectName(QStringLiteral("status_coordinates"));
  coordinates_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  coordinates_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  scale_->setObjectName(QStringLiteral("status_scale"));
  scale_->setEditable(true);
  scale_->setInsertPolicy(QComboBox::NoInsert);
  for (double scale : usual_scales) scale_->addItem(text_of_scale(scale));
  scale_->setCurrentIndex(-1);
  scale_title_->setBuddy(scale_);
  projection_->setObjectName(QStringLiteral("status_projection"));
  projection_->setAutoRaise(true);
  projection_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  projection_->setIcon(QIcon::fromTheme(QStringLiteral("globe")));
  projection_->setFocusPolicy(Qt::TabFocus);
  busy_->setObjectName(QStringLiteral("status_busy"));
  busy_->setRange(0, 0);
  busy_->setTextVisible(false);
  busy_->setMaximumWidth(100);
  busy_->hide();
  addPermanentWidget(busy_);
  addPermanentWidget(coordinates_);
  addPermanentWidget(scale_title_);
  addPermanentWidget(scale_);
  addPermanentWidget(projection_);
  connect(projection_, &QToolButton::clicked, this, &status_line::projection_wanted);
  connect(scale_, &QComboBox::textActivated, this, &status_line::take_scale);
  connect(scale_->lineEdit(), &QLineEdit::editingFinished, this, &status_line::take_scale);
  retranslate();
}

void status_line::take_scale() {
  QString typed = scale_->currentText();
  if (typed == text_of_scale(shown_scale_)) return;
  double scale = scale_of_text(typed);
  if (scale > 0) Q_EMIT scale_chosen(scale);
  // What is no scale gives way to the one in force.
  scale_->setEditText(text_of_scale(shown_scale_));
}

void status_line::show_coordinates(double x, double y, bool inside) {
  pointer_ = inside ? std::optional(QPointF(x, y)) : std::nullopt;
  say_coordinates();
}

void status_line::set_units(host::coordinate_units units) {
  units_ = units;
  reserve_coordinates();
  say_coordinates();
}

/// So that nothing beside them jumps.
void status_line::reserve_coordinates() {
  coordinates_->setMinimumWidth(
      coordinates_->fontMetrics().horizontalAdvance(wide_coordinates(units_)));
}

void status_line::say_coordinates() {
  coordinates_->setText(pointer_
                            ? QString::fromStdString(texts_.text(
                                  pointer_->x(), pointer_->y(), pixel_, units_, letters_in_force()))
                            : QString());
}

void status_line::show_scale(double scale, double pixel) {
  shown_scale_ = scale;
  pixel_ = pixel;
  scale_->setEnabled(scale > 0);
  if (!scale_->lineEdit()->hasFocus() || !scale_->lineEdit()->isModified())
    scale_->setEditText(text_of_scale(scale));
}

void status_line::show_projection(const QString& text) {
  if (text != shown_projection_) {
    texts_.set_projection(text.toStdString());
    pointer_.reset();
    say_coordinates();
  }
  shown_projection_ = text;
  say_what_scale_is();
  QString name = QString::fromStdString(host::projection_name(text.toStdString()));
  if (name.size() > static_cast<qsizetype>(longest_projection))
    name = name.left(longest_projection - 1) + QChar(0x2026);
  projection_->setText(text.isEmpty() ? words("No projection", "Без проекции") : name);
  projection_->setToolTip(words("Projection of the scene", "Проекция сцены") +
                          (text.isEmpty() ? QString() : QStringLiteral("\n") + text));
}

void status_line::say_what_scale_is() {
  QString tip = words("Scale in the middle of the map; type another one",
                      "Масштаб в середине карты; можно ввести другой");
  if (shown_projection_.isEmpty())
    tip += QLatin1Char('\n') + words("Without a projection a unit counts as a metre",
                                     "Без проекции единица считается метром");
  scale_->setToolTip(tip);
}

void status_line::show_busy(bool busy) { busy_->setVisible(busy); }

void status_line::retranslate() {
  scale_title_->setText(words("Scale", "Масштаб"));
  busy_->setToolTip(words("The map is being drawn", "Карта рисуется"));
  coordinates_->setToolTip(words("Coordinates under the pointer", "Координаты под указателем"));
  show_projection(shown_projection_);
  reserve_coordinates();
  say_coordinates();
}

void status_line::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) retranslate();
  QStatusBar::changeEvent(event);
}

}  // namespace zu::desktop
