// Choices from a list that drops down.

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QToolTip>
#include <QWheelEvent>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/pictures.h"
#include "host/desktop/realiser/realised.h"

namespace zu::desktop {
namespace {

class dropdown_widget final : public realised<dropdown_impl, QComboBox> {
 public:
  dropdown_widget(handle element, QWidget* parent) : realised(element, parent) {
    setObjectName(QStringLiteral("dropdown"));
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(AdjustToContents);
    setMaxVisibleItems(20);
    connect(this, &QComboBox::activated, this, &dropdown_widget::choose);
    begin();
  }
  QSize minimumSizeHint() const override {
    QSize whole = QComboBox::minimumSizeHint();
    return QSize(std::min(whole.width(), characters(this, 14)), whole.height());
  }

 protected:
  void heard(notice what) override {
    QSignalBlocker quiet(this);
    if (what == notice::list || what == notice::language) fill();
    setCurrentIndex(call<&dropdown_impl::current>(element_));
    setToolTip(text_by<&dropdown_impl::hint>(element_));
    set_control_enabled(this, call<&dropdown_impl::enabled>(element_));
  }
  /// A text that does not fit ends in dots.
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QString elided = fontMetrics().elidedText(option.currentText, Qt::ElideRight, room());
    option.currentText = elided;
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
  }
  /// Such a text is said by the tip.
  bool event(QEvent* event) override {
    const bool is_cut = fontMetrics().horizontalAdvance(currentText()) > room();
    if (event->type() != QEvent::ToolTip || !is_cut) return QComboBox::event(event);
    const QString hint = toolTip().isEmpty() ? QString() : QLatin1Char('\n') + toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), currentText() + hint, this);
    return true;
  }
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus())
      QComboBox::wheelEvent(event);
    else
      event->ignore();
  }

 private:
  /// For the text of what is chosen.
  int room() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int picture = option.currentIcon.isNull() ? 0 : option.iconSize.width() + 4;
    return style()
               ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
               .width() -
           picture - 2;
  }
  void choose(int index) {
    QPointer<QObject> alive(this);
    call<&dropdown_impl::set_current>(element_, std::int32_t(index));
    if (alive) heard(notice::value);
    if (alive) input_reached(name_of(this));
  }
  void fill() {
    clear();
    QSize pictures(0, 0);
    auto count = call<&dropdown_impl::count>(element_);
    for (std::uint32_t i = 0; i < count; ++i) {
      picture shown = picture_by<&dropdown_impl::item_picture>(element_, i);
      pictures = pictures.expandedTo(shown.image.size());
      addItem(icon_of(shown), text_by<&dropdown_impl::item_text>(element_, i));
      // Where the list is cut, the tip says the whole.
      setItemData(int(i), itemText(int(i)), Qt::ToolTipRole);
    }
    if (!pictures.isEmpty()) setIconSize(pictures);
    // The list may be wider than the box.
    view()->setMinimumWidth(std::min(view()->sizeHintForColumn(0) + 2 * fontMetrics().height(),
                                     60 * fontMetrics().averageCharWidth()));
  }
};

}  // namespace

std::span<const builder> dropdown_builders() {
  static const builder rows[] = {builder_of<dropdown_impl, dropdown_widget>()};
  return rows;
}

}  // namespace zu::desktop
