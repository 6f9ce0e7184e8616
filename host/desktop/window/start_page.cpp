#include "host/desktop/window/start_page.h"

#include <QEvent>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "host/desktop/words.h"

namespace zu::desktop {

start_page::start_page(QWidget* parent)
    : QWidget(parent),
      heading_(new QLabel(this)),
      hint_(new QLabel(this)),
      open_(new QPushButton(this)),
      recent_heading_(new QLabel(this)),
      recent_(new QVBoxLayout) {
  setObjectName(QStringLiteral("start_page"));
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  heading_->setFont(large);
  heading_->setAlignment(Qt::AlignHCenter);
  hint_->setAlignment(Qt::AlignHCenter);
  hint_->setWordWrap(true);
  open_->setObjectName(QStringLiteral("start_open"));
  open_->setIcon(QIcon::fromTheme(QStringLiteral("document-open")));
  recent_heading_->setAlignment(Qt::AlignHCenter);
  recent_->setSpacing(2);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(24, 24, 24, 24);
  column->setSpacing(12);
  column->addStretch(2);
  column->addWidget(heading_);
  column->addWidget(hint_);
  column->addWidget(open_, 0, Qt::AlignHCenter);
  column->addSpacing(16);
  column->addWidget(recent_heading_);
  column->addLayout(recent_);
  column->addStretch(3);
  connect(open_, &QPushButton::clicked, this, &start_page::open_wanted);
  set_recent({});
  retranslate();
}

void start_page::set_recent(const QStringList& paths) {
  while (QLayoutItem* item = recent_->takeAt(0)) {
    // One of them may be what was just clicked.
    item->widget()->hide();
    item->widget()->deleteLater();
    delete item;
  }
  recent_heading_->setVisible(!paths.isEmpty());
  for (const QString& path : paths) {
    auto* button = new QPushButton(this);
    button->setFlat(true);
    button->setObjectName(QStringLiteral("start_recent"));
    button->setText(QFileInfo(path).fileName().replace(QLatin1Char('&'), QStringLiteral("&&")));
    button->setToolTip(path);
    connect(button, &QPushButton::clicked, this, [this, path] { Q_EMIT path_chosen(path); });
    recent_->addWidget(button, 0, Qt::AlignHCenter);
  }
}

void start_page::retranslate() {
  heading_->setText(words("Nothing is open yet", "Пока ничего не открыто"));
  hint_->setText(words("Drop a grid, a picture or a project here, or open one with Ctrl+O.",
                       "Перетащите сюда сетку, снимок или проект либо откройте по Ctrl+O."));
  open_->setText(words("&Open…", "&Открыть…"));
  recent_heading_->setText(words("Opened last", "Последние"));
}

void start_page::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) retranslate();
  QWidget::changeEvent(event);
}

}  // namespace zu::desktop
