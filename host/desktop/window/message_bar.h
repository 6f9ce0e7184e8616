#pragma once
// What did not work, said above the map without stopping anybody.

#include <QColor>
#include <QFrame>
#include <QStringList>

class QLabel;
class QPlainTextEdit;
class QToolButton;

namespace zu::desktop {

/// A strip with one line of text, the rest behind "Details", and a cross that puts it away. What
/// comes while it is open joins what stands there.
class message_bar final : public QFrame {
  Q_OBJECT

 public:
  explicit message_bar(QWidget* parent = nullptr);

  /// Says what did not work, a line each. No lines say nothing.
  void tell(const QStringList& lines);
  const QStringList& lines() const { return lines_; }
  void dismiss();

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void retranslate();
  void take_colors();
  void show_summary();

  QLabel* icon_;
  QLabel* summary_;
  QToolButton* details_;
  QToolButton* close_;
  QPlainTextEdit* all_;
  QStringList lines_;
  QColor ground_;
};

}  // namespace zu::desktop
