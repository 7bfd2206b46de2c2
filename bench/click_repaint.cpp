// click_repaint PPD CLICKS LABELS...
// How long a click on the half-cut box takes until the dialog has painted the answer: the box, the
// preview's picture, the strip, its sentence and the summary. Milliseconds over CLICKS clicks for a
// document of each number of LABELS, in the real dialog on the platform that QT_QPA_PLATFORM names;
// and before that until a window with nothing but a box and a line of text has painted both. Then
// how long it takes from another paper until the first label is composed for it, drawn and painted,
// and from a digit typed for the copies until that is painted.
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryFile>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bench/LabelsPdf.h"
#include "host/core/HostPlatform.h"
#include "host/core/Installation.h"
#include "host/core/PluginLoader.h"
#include "host/core/PrintModel.h"
#include "host/dialog/Appearance.h"
#include "host/dialog/DocumentPages.h"
#include "host/dialog/JobForm.h"
#include "host/dialog/PrintDialog.h"
#include "platform/ports/Controls.h"
#include "qt/QtToolkit.h"

namespace {

using namespace cutline;

constexpr int kPatience = 60'000;
// Whoever counts instructions of a few clicks wants nothing else.
constexpr int kFewClicks = 1000;
constexpr int kMany = 10'000;  // labels, which take a second to compose

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

template <typename Act>
double untilPainted(PaintWatch& watch, const Act& act) {
  watch.reset();
  QElapsedTimer timer;
  timer.start();
  act();
  while (!watch.hasPainted()) QCoreApplication::processEvents();
  // What has become stale beyond the control.
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void print(const std::string& words, const char* name, std::vector<double> times) {
  std::sort(times.begin(), times.end());
  std::printf("%-28s %-16s median %9.2f  99.9 %% %8.2f  max %9.2f  n=%zu\n", words.c_str(), name,
              times[times.size() / 2], times[times.size() * 999 / 1000], times.back(),
              times.size());
}

std::vector<double> timesOf(QCheckBox& box, int clicks) {
  PaintWatch watch(*box.window());
  const auto click = [&box] {
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
  };
  std::vector<double> times;
  for (int i = 0; i < clicks; ++i) times.push_back(untilPainted(watch, click));
  return times;
}

// What the toolkit takes for the least that a click can change.
bool measureToolkit(int clicks) {
  QWidget window;
  QVBoxLayout column(&window);
  QCheckBox box(QStringLiteral("Half cut between labels"));
  QLabel line;
  column.addWidget(&box);
  column.addWidget(&line);
  QObject::connect(&box, &QCheckBox::toggled, &line, [&line](bool isOn) {
    line.setText(isOn ? QStringLiteral("12 labels, half cut") : QStringLiteral("12 labels, cut"));
  });
  window.show();
  if (!QTest::qWaitForWindowExposed(&window)) return false;
  print("click, a box and a line", "click_ms", timesOf(box, clicks));
  return true;
}

// A document in a file of its own, gone with this.
class LabelsFile {
 public:
  explicit LabelsFile(int labels) {
    if (!mFile.open()) return;
    const std::string pdf = labelsPdf(labels);
    mFile.write(pdf.data(), static_cast<qint64>(pdf.size()));
    mFile.flush();
  }
  std::string path() const { return mFile.fileName().toStdString(); }

 private:
  QTemporaryFile mFile;
};

// Until the first label of that paper is painted; nothing when it never is.
std::optional<double> changePaper(PrintDialog& dialog, PrintModel& model, const std::string& paper,
                                  PaintWatch& watch) {
  QSignalSpy drawn(dialog.findChild<DocumentLoader*>(), &DocumentLoader::pageDrawn);
  QSignalSpy settled(&dialog, &PrintDialog::becameSettled);
  QElapsedTimer timer;
  timer.start();
  if (!model.setPaper(paper) || !drawn.wait(kPatience)) return std::nullopt;
  watch.reset();
  while (!watch.hasPainted()) QCoreApplication::processEvents();
  const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  return settled.wait(kPatience) ? std::optional(time) : std::nullopt;
}

// False when a paper's labels do not come.
bool measureChanges(PrintDialog& dialog, PrintModel& model, const std::string& of, int changes) {
  PaintWatch watch(dialog);
  auto* const copies = dialog.findChild<JobForm*>()->findChild<QSpinBox*>();
  std::vector<double> typed;
  std::vector<double> changed;
  for (int i = 0; i < changes; ++i) {
    const Qt::Key digit = i % 2 == 0 ? Qt::Key_2 : Qt::Key_1;
    copies->selectAll();
    typed.push_back(untilPainted(watch, [&] { QTest::keyClick(copies, digit); }));
    const auto time = changePaper(dialog, model, i % 2 == 0 ? "W24H100" : "W24H50", watch);
    if (!time) return false;
    changed.push_back(*time);
  }
  print("copies typed" + of, "typed_ms", typed);
  print("another paper" + of, "paper_ms", changed);
  return true;
}

// False when the dialog has no such box, or does not come to show the document.
bool measureClicks(const std::shared_ptr<PpdFile>& ppd, int clicks, int labels) {
  const Installation installation = Installation::ofThisProgram();
  const LabelsFile file(labels);
  QtToolkit toolkit;
  HostPlatform platform(toolkit);
  PluginLoader plugIns({installation.plugInDirectory()});
  PrintModel model(plugIns, {});
  PrintDialog dialog(
      model, std::make_shared<CupsPrintServer>(ServerOptions{}),
      PrintSource{{file.path()}, "labels", documentToolsIn(installation.helperDirectory())});
  dialog.openPrinter(PrinterChoice{{}, ppd});
  dialog.show();
  QSignalSpy settled(&dialog, &PrintDialog::becameSettled);
  if (!QTest::qWaitForWindowExposed(&dialog)) return false;
  dialog.loadDocument();
  if (!settled.wait(kPatience)) return false;
  QCheckBox* box = boxOf(model, "LxHalfCut");
  if (box == nullptr) return false;

  const std::string of = ", " + std::to_string(labels) + " labels";
  print("click" + of, "click_ms", timesOf(*box, clicks));
  return clicks < kFewClicks || measureChanges(dialog, model, of, labels < kMany ? 101 : 15);
}

}  // namespace

int main(int argc, char** argv) {
  applyStyle();
  QApplication application(argc, argv);
  if (argc < 4) return 2;
  const int clicks = std::atoi(argv[2]);
  applyAppearance(false);
  const Result<std::shared_ptr<PpdFile>> ppd = PpdFile::open(argv[1]);
  if (!ppd || clicks < 1) return 1;
  if (!measureToolkit(clicks)) return 1;
  for (int i = 3; i < argc; ++i)
    if (!measureClicks(*ppd, clicks, std::atoi(argv[i]))) return 1;
  return 0;
}
