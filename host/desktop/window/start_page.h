#pragma once
// What stands in the map's place while nothing is open.

#include <QStringList>
#include <QWidget>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace zu::desktop {

/// Says how a file is opened, and offers those that were opened last.
class start_page final : public QWidget {
  Q_OBJECT

 public:
  explicit start_page(QWidget* parent = nullptr);
  void set_recent(const QStringList& paths);

 Q_SIGNALS:
  void open_wanted();
  void path_chosen(const QString& path);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void retranslate();

  QLabel* heading_;
  QLabel* hint_;
  QPushButton* open_;
  QLabel* recent_heading_;
  QVBoxLayout* recent_;
};

}  // namespace zu::desktop
