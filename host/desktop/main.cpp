// zugrid-desktop: the window.

#include <QApplication>

#include "host/desktop/words.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Zugrid"));
  QApplication::setApplicationVersion(QStringLiteral(ZU_VERSION));
  return 0;
}
