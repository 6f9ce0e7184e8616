#pragma once
// Choice of a coordinate system by name, code or place.

#include <QDialog>
#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace zu::desktop {

/// A field to search in, what was found, and what is known of the one chosen. With an empty field
/// it offers no projection, the one in force and those used lately. The keys of the list work while
/// one types; a PROJ text or WKT is taken as it is written.
class projection_chooser final : public QDialog {
  Q_OBJECT

 public:
  /// The text of the one chosen, empty for no projection; nothing if the person declined. `now` is
  /// the one in force.
  static std::optional<QString> ask(QWidget* parent, const QString& now);

  explicit projection_chooser(const QString& now, QWidget* parent = nullptr);

  QString chosen() const;
  void accept() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void fill();
  void fill_offers();
  void add(const QString& text, const QString& name, const QString& note = {},
           bool withdrawn = false);
  void add_written(const QString& text);
  void show_details();

  QString now_;
  QLineEdit* search_;
  QTreeWidget* found_;
  QLabel *details_, *count_;
  QPushButton* ok_;
};

/// Name of a projection for people; of an empty text "No projection".
QString name_of_projection(const QString& text);

}  // namespace zu::desktop
