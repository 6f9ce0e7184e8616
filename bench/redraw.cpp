// Times the window's map as a person meets it: from the release of a drag to the new picture on the
// window, a step of the drag, a notch of the wheel until the map follows, and the window's first
// picture since the program was started.

#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <vector>

#include "host/core/failure.h"
#include "host/core/layer_look.h"
#include "host/desktop/map/map_view.h"
#include "host/desktop/window/main_window.h"

namespace {

using namespace zu::desktop;
using steady = std::chrono::steady_clock;

constexpr int runs = 11;

double milliseconds_since(steady::time_point start) {
  return std::chrono::duration<double, std::milli>(steady::now() - start).count();
}

double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

void send(map_view& map, QEvent::Type type, QPointF at, Qt::MouseButton button) {
  QMouseEvent event(type, at, at, button, type == QEvent::MouseMove ? Qt::LeftButton : button, {});
  QCoreApplication::sendEvent(&map, &event);
}

void wait_until_drawn(map_view& map) {
  while (!map.is_up_to_date()) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  map.repaint();
}

/// Drags the map by a third of its width and back, and turns the wheel in and out.
int pan(const char* file, double x0, double y0, double x1, double y1) {
  zu::host::bundle services;
  zu::host::scene scene(services);
  zu::host::apply_look({}, scene.add(file));
  map_view map(scene);
  map.resize(1920, 1080);
  map.zoom_to({x0, y0, x1, y1});
  map.show();
  wait_until_drawn(map);
  if (map.picture().pixelColor(960, 540) == QColor(Qt::white)) {
    std::fprintf(stderr, "nothing was drawn\n");
    return 1;
  }
  std::vector<double> pictures, steps, notches;
  for (int run = 0; run <= runs; ++run) {
    QPointF from(960, 540), to(run % 2 == 0 ? 1600 : 320, 540);
    send(map, QEvent::MouseButtonPress, from, Qt::LeftButton);
    auto start = steady::now();
    send(map, QEvent::MouseMove, to, Qt::NoButton);
    map.repaint();
    steps.push_back(milliseconds_since(start));
    start = steady::now();
    send(map, QEvent::MouseButtonRelease, to, Qt::LeftButton);
    wait_until_drawn(map);
    pictures.push_back(milliseconds_since(start));
  }
  for (int run = 0; run <= runs; ++run) {
    QWheelEvent event(QPointF(700, 500), QPointF(700, 500), {},
                      QPoint(0, run % 2 == 0 ? 120 : -120), Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    auto start = steady::now();
    QCoreApplication::sendEvent(&map, &event);
    map.repaint();
    notches.push_back(milliseconds_since(start));
    wait_until_drawn(map);
  }
  std::printf("{\"ms\": %.3f, \"step\": %.3f, \"notch\": %.3f}\n", median(pictures), median(steps),
              median(notches));
  return 0;
}

/// The whole window with a file. `started` is the steady clock's time in seconds when the program
/// was started.
int first(const char* file, double started) {
  QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  zu::host::bundle services;
  main_window window(services);
  window.resize(1920, 1080);
  window.show();
  window.open_paths({QString::fromUtf8(file)});
  if (!window.wait_until_drawn(60000)) return 1;
  window.repaint();
  double now = std::chrono::duration<double>(steady::now().time_since_epoch()).count();
  std::printf("{\"ms\": %.3f}\n", (now - started) * 1e3);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  try {
    if (argc == 7 && std::strcmp(argv[1], "pan") == 0)
      return pan(argv[2], std::atof(argv[3]), std::atof(argv[4]), std::atof(argv[5]),
                 std::atof(argv[6]));
    if (argc == 4 && std::strcmp(argv[1], "first") == 0) return first(argv[2], std::atof(argv[3]));
  } catch (const zu::host::failure& problem) {
    std::fprintf(stderr, "%s\n", problem.what());
    return 1;
  }
  std::fprintf(stderr, "usage: redraw pan FILE X0 Y0 X1 Y1 | redraw first FILE STARTED\n");
  return 2;
}
