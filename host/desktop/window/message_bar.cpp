#include "host/desktop/window/message_bar.h"

#include <QEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStyle>
#include <QToolButton>

#include "host/desktop/words.h"

namespace zu::desktop {

namespace {

constexpr int most_lines = 1000;

}  // namespace

message_bar::message_bar(QWidget* parent)
    : QFrame(parent),
      icon_(new QLabel(this)),
      summary_(new QLabel(this)),
      details_(new QToolButton(this)),
      close_(new QToolButton(this)),
      all_(new QPlainTextEdit(this)) {
  setObjectName(QStringLiteral("message_bar"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  summary_->setObjectName(QStringLiteral("message_summary"));
  summary_->setTextFormat(Qt::PlainText);
  summary_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  summary_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  details_->setObjectName(QStringLiteral("message_details"));
  details_->setCheckable(true);
  details_->setAutoRaise(true);
  close_->setObjectName(QStringLiteral("message_close"));
  close_->setAutoRaise(true);
  close_->setIcon(QIcon::fromTheme(QStringLiteral("window-close")));
  all_->setObjectName(QStringLiteral("message_lines"));
  all_->setReadOnly(true);
  all_->setTabChangesFocus(true);
  all_->setMaximumHeight(fontMetrics().lineSpacing() * 8);
  all_->hide();

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(8, 4, 4, 4);
  grid->addWidget(icon_, 0, 0);
  grid->addWidget(summary_, 0, 1);
  grid->addWidget(details_, 0, 2);
  grid->addWidget(close_, 0, 3);
  grid->addWidget(all_, 1, 0, 1, 4);
  grid->setColumnStretch(1, 1);
  connect(details_, &QToolButton::toggled, all_, &QWidget::setVisible);
  connect(close_, &QToolButton::clicked, this, &message_bar::dismiss);
  hide();
  take_colors();
  retranslate();
}

/// The window's ground with a touch of amber, whether it is light or dark.
void message_bar::take_colors() {
  constexpr double touch = 0.22;
  const QColor amber(246, 176, 0);
  QColor ground = QGuiApplication::palette().color(QPalette::Window);
  if (ground == ground_) return;
  ground_ = ground;
  auto mixed = [&](int from, int to) { return static_cast<int>(from + (to - from) * touch); };
  QPalette own;
  own.setColor(QPalette::Window,
               QColor(mixed(ground.red(), amber.red()), mixed(ground.green(), amber.green()),
                      mixed(ground.blue(), amber.blue())));
  setPalette(own);
  int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon_->setPixmap(QIcon::fromTheme(QStringLiteral("data-warning")).pixmap(size));
}

void message_bar::tell(const QStringList& lines) {
  for (const QString& line : lines)
    if (!lines_.contains(line)) lines_ += line;
  if (lines_.size() > most_lines) lines_ = lines_.mid(lines_.size() - most_lines);
  if (lines_.isEmpty()) return;
  all_->setPlainText(lines_.join(QLatin1Char('\n')));
  details_->setVisible(lines_.size() > 1);
  show();
  show_summary();
}

void message_bar::dismiss() {
  lines_.clear();
  details_->setChecked(false);
  hide();
}

void message_bar::show_summary() {
  if (lines_.isEmpty()) return;
  QString text = lines_.last();
  if (lines_.size() > 1) text += words(" (and %1 more)", " (и ещё %1)").arg(lines_.size() - 1);
  summary_->setText(fontMetrics().elidedText(text, Qt::ElideMiddle, summary_->width()));
  summary_->setToolTip(text);
}

void message_bar::retranslate() {
  details_->setText(words("Details", "Подробнее"));
  close_->setToolTip(words("Close (Esc)", "Закрыть (Esc)"));
  close_->setAccessibleName(words("Close the message", "Закрыть сообщение"));
  show_summary();
}

void message_bar::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) retranslate();
  if (event->type() == QEvent::PaletteChange) take_colors();
  QFrame::changeEvent(event);
}

void message_bar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return dismiss();
  QFrame::keyPressEvent(event);
}

void message_bar::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  show_summary();
}

}  // namespace zu::desktop
