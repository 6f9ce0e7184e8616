#pragma once
// Panels.

#include <QIcon>
#include <QScrollArea>

#include "host/desktop/realiser/realised.h"
#include "zu/editors.h"

namespace zu::desktop {

/// A panel of a bundle with its title and picture. It scrolls where it has too little room. Whoever
/// shows one listens to its signals.
class realised_docker final : public QScrollArea,
                              private link<docker_impl>,
                              private panel_observer_impl {
  Q_OBJECT

 public:
  realised_docker(handle panel, QWidget* parent);
  ~realised_docker() override;

  QString title() const { return title_; }
  QIcon icon() const { return icon_; }
  /// Whether the panel applies to what is selected; else it is to be hidden. True of what is not a
  /// panel of an editor.
  bool is_wanted() const;
  /// Room around the content, as the inside of a window has.
  void set_margins(bool wanted);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void title_changed();  ///< or its icon
  void wanted_changed();

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void heard(notice) override;
  void enabled_changed() override;
  void fill();
  /// Labels below each other, of whatever grid, get one width.
  void align_labels();

  panel editor_;  // empty: not a panel of an editor
  QString title_;
  QIcon icon_;
  handle shown_;  // the root of what is realised
};

}  // namespace zu::desktop
