// click_repaint PPD [CLICKS]
// How long a click on the half-cut box takes until the dialog has painted the answer: the box, the
// preview's picture and the summary. Milliseconds over CLICKS clicks (200), in the real dialog on
// the platform that QT_QPA_PLATFORM names.
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "host/core/HostPlatform.h"
#include "host/core/Installation.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrintModel.h"
#include "host/dialog/Appearance.h"
#include "host/dialog/PrintDialog.h"
#include "platform/ports/Controls.h"
#include "qt/QtToolkit.h"

namespace {

using namespace cutline;

// Notes when something of a window has been asked to paint.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(const QWidget& window) : mWindow(window) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint || !object->isWidgetType()) return false;
    if (static_cast<QWidget*>(object)->window() == &mWindow) mHasPainted = true;
    return false;
  }

  void reset() { mHasPainted = false; }
  bool hasPainted() const { return mHasPainted; }

 private:
  const QWidget& mWindow;
  bool mHasPainted = false;
};

QCheckBox* boxOf(PrintModel& model, const std::string& keyword) {
  for (const PanelEntry& panel : model.panels()) {
    if (!panel.view) continue;
    for (const std::shared_ptr<View>& view : panel.view->subviews()) {
      const auto* box = dynamic_cast<CheckBox*>(view.get());
      if (box != nullptr && box->ppdKeyword() == keyword) {
        return qobject_cast<QCheckBox*>(QtToolkit::widgetOf(*view));
      }
    }
  }
  return nullptr;
}

double clickUntilPainted(QCheckBox& box, PaintWatch& watch) {
  watch.reset();
  QElapsedTimer timer;
  timer.start();
  QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
  while (!watch.hasPainted()) QCoreApplication::processEvents();
  // What the click has made stale beyond the box.
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void print(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  std::printf("%-28s %-16s median %9.2f  min %9.2f  max %9.2f  n=%zu\n", "cutline", "click_ms",
              times[times.size() / 2], times.front(), times.back(), times.size());
}

}  // namespace

int main(int argc, char** argv) {
  applyStyle();
  QApplication application(argc, argv);
  if (argc < 2) return 2;
  const int clicks = argc > 2 ? std::atoi(argv[2]) : 200;
  applyAppearance(false);
  const Result<std::shared_ptr<PpdFile>> ppd = PpdFile::open(argv[1]);
  if (!ppd || clicks < 1) return 1;

  QtToolkit toolkit;
  HostPlatform platform(toolkit);
  PluginLoader plugIns({Installation::ofThisProgram().plugInDirectory()});
  PrintModel model(plugIns, {});
  PrintDialog dialog(model, std::make_shared<CupsPrintServer>(ServerOptions{}), PrintSource{});
  dialog.openPrinter(PrinterChoice{{}, *ppd});
  dialog.show();
  if (!QTest::qWaitForWindowExposed(&dialog)) return 1;
  QCheckBox* box = boxOf(model, "LxHalfCut");
  if (box == nullptr) return 1;

  PaintWatch watch(dialog);
  std::vector<double> times;
  for (int i = 0; i < clicks; ++i) times.push_back(clickUntilPainted(*box, watch));
  print(times);
  return 0;
}
