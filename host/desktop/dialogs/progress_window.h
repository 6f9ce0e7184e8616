#pragma once
// Progress of the platform's and the bundles' long work, with Cancel.

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <memory>
#include <vector>

#include "zu/platform/zuk_msgs.h"

class QDialog;
class QLabel;
class QProgressBar;
class QPushButton;

namespace zu::desktop {

/// While it lives, work that tells its progress shows a window once it has lasted for the delay.
/// Work is done on the thread of windows, so it lets the window breathe each time it tells its
/// progress: that window alone gets a person's input, and timers of the others wait, since what
/// they would do may be what is being done. One at a time.
class progress_window final : public QObject {
  Q_OBJECT

 public:
  explicit progress_window(int delay_milliseconds = 500);
  ~progress_window() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// One piece of work; pieces inside each other share the window, which shows the innermost.
  struct work {
    bool can_stop = false, stopped = false;
    QString caption;
    qint64 done = 0, total = 0;
  };

  work* begin(bool can_stop);
  void end(work* ended);
  void breathe();
  void open();
  void show_state();
  void stop();

  int delay_;
  QElapsedTimer since_begin_, since_breath_;
  std::vector<std::unique_ptr<work>> works_;
  QPointer<QDialog> dialog_;           // may go with the window under it
  const QObject* filtered_ = nullptr;  // its address: a dialog that ends is no longer a QDialog
  QLabel* caption_ = nullptr;
  QProgressBar* bar_ = nullptr;
  QPushButton* cancel_ = nullptr;
  bool breathing_ = false;
};

}  // namespace zu::desktop
