// Buttons, check marks and radio buttons.

#include <QCheckBox>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <algorithm>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/pictures.h"
#include "host/desktop/realiser/realised.h"
#include "host/desktop/realiser/typed_line.h"

namespace zu::desktop {
namespace {

/// The image element that a button shows instead of a picture of its own.
class button_image final : private link<image_impl> {
 public:
  button_image(handle image, std::function<void()> changed)
      : link(image), changed_(std::move(changed)) {
    attach();
  }
  picture get() const { return picture_by<&image_impl::picture>(element_); }

 private:
  void heard(notice) override { changed_(); }
  std::function<void()> changed_;
};

/// What buttons of all kinds show.
template <class element, class control> class button_control : public realised<element, control> {
 protected:
  button_control(handle h, QWidget* parent) : realised<element, control>(h, parent) {
    if (handle image = call<&element::image>(h))
      image_ = std::make_unique<button_image>(image, [this] { this->heard(notice::all); });
  }
  void show_common() {
    handle h = this->element_;
    picture shown = image_ ? image_->get() : picture_by<&element::picture>(h);
    this->setIcon(icon_of(shown));
    if (!shown.image.isNull()) this->setIconSize(shown.image.size().expandedTo(QSize(16, 16)));
    QString caption = text_by<&element::caption>(h), hint = text_by<&element::hint>(h);
    this->setText(caption);
    this->setToolTip(hint);
    // A picture alone is read out as its hint.
    this->setAccessibleName(caption.isEmpty() ? hint : QString());
    set_control_enabled(this, call<&element::enabled>(h));
    set_hidden(this, hidden_by::element, !call<&element::visible>(h));
  }

 private:
  std::unique_ptr<button_image> image_;
};

class button_widget final : public button_control<button_impl, QPushButton> {
 public:
  button_widget(handle element, QWidget* parent) : button_control(element, parent) {
    setObjectName(QStringLiteral("button"));
    setAutoDefault(false);
    is_link_ = call<&button_impl::is_link>(element);
    if (is_link_) {
      setFlat(true);
      setCursor(Qt::PointingHandCursor);
      setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    }
    connect(this, &QPushButton::clicked, this, &button_widget::pressed);
    begin();
  }

  QSize sizeHint() const override {
    if (!is_link_) return QPushButton::sizeHint();
    QSize size(text_width(), fontMetrics().height());
    if (!icon().isNull())
      size = {size.width() + picture_gap + iconSize().width(),
              std::max(size.height(), iconSize().height())};
    return size + QSize(2 * link_margin, 2 * link_margin);
  }

 protected:
  void heard(notice) override {
    show_common();
    setCheckable(call<&button_impl::toggle>(element_));
    if (isCheckable()) setChecked(call<&button_impl::pressed>(element_));
  }
  void paintEvent(QPaintEvent* event) override {
    if (!is_link_) {
      QPushButton::paintEvent(event);
      return;
    }
    QPainter painter(this);
    QFont font = this->font();
    font.setUnderline(true);
    painter.setFont(font);
    QColor color = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                   isEnabled() ? QPalette::Link : QPalette::WindowText);
    painter.setPen(underMouse() || isDown() ? color.lighter(120) : color);
    const QRect inside = rect().adjusted(link_margin, 0, -link_margin, 0);
    painter.drawText(inside, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextShowMnemonic, text());
    const QRect behind = inside.adjusted(text_width() + picture_gap, 0, 0, 0);
    icon().paint(&painter, QStyle::visualRect(layoutDirection(), inside, behind),
                 Qt::AlignVCenter | Qt::AlignLeading,
                 isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (!hasFocus()) return;
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
  }

 private:
  static constexpr int link_margin = 2, picture_gap = 6;

  int text_width() const { return fontMetrics().size(Qt::TextShowMnemonic, text()).width(); }
  void pressed() {
    QPointer<QObject> alive(this);
    finish_typing(this);
    QString name = name_of(this, text());
    if (alive) call<&button_impl::press>(element_);
    if (alive) heard(notice::value);
    input_reached(name);
  }

  bool is_link_ = false;
};

class checkbox_widget final : public realised<checkbox_impl, QCheckBox> {
 public:
  checkbox_widget(handle element, QWidget* parent) : realised(element, parent) {
    setObjectName(QStringLiteral("checkbox"));
    connect(this, &QCheckBox::clicked, this, &checkbox_widget::mark);
    begin();
  }

 protected:
  void heard(notice) override {
    setText(text_by<&checkbox_impl::caption>(element_));
    setToolTip(text_by<&checkbox_impl::hint>(element_));
    set_control_enabled(this, call<&checkbox_impl::enabled>(element_));
    bool undecided = call<&checkbox_impl::is_undecided>(element_);
    setTristate(undecided);
    setCheckState(undecided                                    ? Qt::PartiallyChecked
                  : call<&checkbox_impl::is_checked>(element_) ? Qt::Checked
                                                               : Qt::Unchecked);
  }
  /// A person decides: nobody goes back to undecided.
  void nextCheckState() override {
    setCheckState(checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
  }

 private:
  void mark(bool checked) {
    QPointer<QObject> alive(this);
    call<&checkbox_impl::set_checked>(element_, checked);
    if (alive) heard(notice::value);
    if (alive) input_reached(name_of(this, text()));
  }
};

class radiobutton_widget final : public button_control<radiobutton_impl, QRadioButton> {
 public:
  radiobutton_widget(handle element, QWidget* parent) : button_control(element, parent) {
    setObjectName(QStringLiteral("radiobutton"));
    connect(this, &QRadioButton::clicked, this, &radiobutton_widget::pressed);
    begin();
  }

 protected:
  void heard(notice) override {
    show_common();
    // Which of them is down is the elements' matter; of the buttons it is but how arrows move.
    setAutoExclusive(false);
    setChecked(call<&radiobutton_impl::pressed>(element_));
    setAutoExclusive(true);
  }

 private:
  void pressed() {
    QPointer<QWidget> alive(this);
    bool is_new = !call<&radiobutton_impl::pressed>(element_);
    if (is_new) call<&radiobutton_impl::press>(element_);
    if (!alive) return;
    // The click took the mark from every neighbour, of which some may be of another group.
    const QObjectList siblings = parent()->children();
    for (QObject* sibling : siblings)
      if (auto* radio = dynamic_cast<radiobutton_widget*>(sibling)) radio->heard(notice::value);
    if (is_new) input_reached(name_of(this, text()));
  }
};

}  // namespace

std::span<const builder> button_builders() {
  static const builder rows[] = {
      builder_of<button_impl, button_widget>(),
      builder_of<checkbox_impl, checkbox_widget>(),
      builder_of<radiobutton_impl, radiobutton_widget>(),
  };
  return rows;
}

}  // namespace zu::desktop
