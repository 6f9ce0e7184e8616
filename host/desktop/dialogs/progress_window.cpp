#include "host/desktop/dialogs/progress_window.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

/// Between breaths: often enough for a hand, seldom enough to cost nothing.
constexpr int breath_milliseconds = 40;
constexpr int bar_steps = 1000;

}  // namespace

progress_window::progress_window(int delay_milliseconds) : delay_(delay_milliseconds) {
  Tzu_progress_hooks hooks{};
  hooks.user = this;
  hooks.begin = [](std::int32_t can_stop, void* user) -> void* {
    return static_cast<progress_window*>(user)->begin(can_stop != 0);
  };
  hooks.caption = [](void* window, const wchar_t* text, void* user) {
    static_cast<work*>(window)->caption = QString::fromWCharArray(text);
    static_cast<progress_window*>(user)->breathe();
  };
  hooks.show = [](void* window, std::int64_t done, std::int64_t total, void* user) {
    static_cast<work*>(window)->done = done;
    static_cast<work*>(window)->total = total;
    static_cast<progress_window*>(user)->breathe();
  };
  hooks.stopped = [](void* window, void* user) {
    static_cast<progress_window*>(user)->breathe();
    return static_cast<work*>(window)->stopped;
  };
  hooks.end = [](void* window, void* user) {
    static_cast<progress_window*>(user)->end(static_cast<work*>(window));
  };
  zu_progress_set_hooks(&hooks);
}

progress_window::~progress_window() {
  zu_progress_set_hooks(nullptr);
  delete dialog_;
}

progress_window::work* progress_window::begin(bool can_stop) {
  if (works_.empty()) {
    since_begin_.start();
    since_breath_.start();
  }
  works_.push_back(std::make_unique<work>());
  works_.back()->can_stop = can_stop;
  return works_.back().get();
}

void progress_window::end(work* ended) {
  std::erase_if(works_, [&](const auto& each) { return each.get() == ended; });
  if (works_.empty()) delete dialog_;
}

void progress_window::breathe() {
  if (breathing_ || works_.empty()) return;
  if (!dialog_) {
    if (since_begin_.elapsed() < delay_) return;
    open();
  } else if (since_breath_.elapsed() < breath_milliseconds) {
    return;
  }
  show_state();
  breathing_ = true;
  qApp->installEventFilter(this);
  QCoreApplication::processEvents();
  qApp->removeEventFilter(this);
  breathing_ = false;
  since_breath_.restart();
}

void progress_window::open() {
  dialog_ = new QDialog(QApplication::activeWindow());
  dialog_->setObjectName(QStringLiteral("progress"));
  dialog_->setWindowTitle(words("Working", "Выполняется"));
  dialog_->setWindowModality(Qt::ApplicationModal);
  dialog_->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  caption_ = new QLabel(dialog_);
  caption_->setObjectName(QStringLiteral("progress_caption"));
  caption_->setTextFormat(Qt::PlainText);
  caption_->setWordWrap(true);
  bar_ = new QProgressBar(dialog_);
  bar_->setMinimumWidth(360);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, dialog_);
  cancel_ = buttons->button(QDialogButtonBox::Cancel);
  cancel_->setObjectName(QStringLiteral("progress_cancel"));
  auto* layout = new QVBoxLayout(dialog_);
  layout->addWidget(caption_);
  layout->addWidget(bar_);
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::rejected, this, &progress_window::stop);
  dialog_->installEventFilter(this);
  filtered_ = dialog_;
  dialog_->show();
}

void progress_window::show_state() {
  const work& innermost = *works_.back();
  QString caption;
  for (const auto& each : works_)
    if (!each->caption.isEmpty()) caption = each->caption;
  caption_->setText(caption.isEmpty() ? words("One moment…", "Одну минуту…") : caption);
  bar_->setRange(0, innermost.total > 0 ? bar_steps : 0);
  if (innermost.total > 0)
    bar_->setValue(static_cast<int>(static_cast<double>(innermost.done) /
                                    static_cast<double>(innermost.total) * bar_steps));
  bool can_stop = false, stopping = false;
  for (const auto& each : works_) {
    can_stop = can_stop || each->can_stop;
    stopping = stopping || each->stopped;
  }
  cancel_->setVisible(can_stop);
  cancel_->setEnabled(!stopping);
}

void progress_window::stop() {
  for (const auto& each : works_) each->stopped = each->stopped || each->can_stop;
}

bool progress_window::eventFilter(QObject* watched, QEvent* event) {
  auto is_dialog = [&](const QObject* object) { return !dialog_.isNull() && object == filtered_; };
  if (is_dialog(watched)) {
    bool escape = event->type() == QEvent::KeyPress &&
                  static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (event->type() != QEvent::Close && !escape) return false;
    stop();
    event->ignore();
    return true;  // it stays until the work has ended
  }
  // A timer whose event is withheld stays started and comes again.
  if (!breathing_ || event->type() != QEvent::Timer) return false;
  for (QObject* each = watched; each != nullptr; each = each->parent())
    if (is_dialog(each)) return false;
  return !watched->inherits("QAnimationDriver") && !watched->inherits("QUnifiedTimer");
}

}  // namespace zu::desktop
