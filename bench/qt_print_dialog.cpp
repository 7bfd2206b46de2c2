// qt_print_dialog QUEUE
// The toolkit's own print dialog with its page of printer options opened, as something to compare
// with. Prints the moment when the dialog, and when the options, have been painted; then ends.
#include <unistd.h>

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>
#include <functional>

#include "bench/Marks.h"

namespace {

// Calls back once, after the first paint of a dialog other than `except`.
class FirstPaint : public QObject {
 public:
  FirstPaint(const QWidget* except, std::function<void(QWidget*)> painted)
      : mExcept(except), mPainted(std::move(painted)) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (mDone || event->type() != QEvent::Paint || !object->isWidgetType()) return false;
    QWidget* window = static_cast<QWidget*>(object)->window();
    if (window == mExcept || qobject_cast<QDialog*>(window) == nullptr) return false;
    mDone = true;
    QTimer::singleShot(0, this, [this, window] { mPainted(window); });
    return false;
  }

 private:
  const QWidget* mExcept;
  std::function<void(QWidget*)> mPainted;
  bool mDone = false;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) return 2;
  QPrinter printer;
  printer.setPrinterName(QString::fromLocal8Bit(argv[1]));
  if (printer.printerName() != QString::fromLocal8Bit(argv[1])) return 1;
  QPrintDialog dialog(&printer);
  FirstPaint options(&dialog, [](QWidget* window) {
    if (auto* tabs = window->findChild<QTabWidget*>()) tabs->setCurrentIndex(tabs->count() - 1);
    QTimer::singleShot(0, [] {
      cutline::mark("options_painted");
      std::fflush(stdout);
      _exit(0);
    });
  });
  FirstPaint opened(nullptr, [&dialog](QWidget*) {
    cutline::mark("painted");
    auto* properties = dialog.findChild<QPushButton*>("properties");
    if (properties == nullptr) _exit(1);
    properties->click();
  });
  return dialog.exec();
}
