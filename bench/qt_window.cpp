// qt_window [TEXT]
// Opens an empty window of the dialog's size, or one with a line of text, and ends when it is
// painted: what the toolkit itself takes.
#include <unistd.h>

#include <QApplication>
#include <QLabel>
#include <QTimer>

#include "bench/Marks.h"

namespace {

constexpr QSize kWindowSize{1120, 780};

// Ends the program after its first paint.
template <typename Widget>
class EndsPainted : public Widget {
 protected:
  void paintEvent(QPaintEvent* event) override {
    Widget::paintEvent(event);
    QTimer::singleShot(0, [] {
      cutline::mark("painted");
      _exit(0);
    });
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  EndsPainted<QWidget> empty;
  EndsPainted<QLabel> text;
  QWidget& window = argc > 1 ? static_cast<QWidget&>(text) : empty;
  if (argc > 1) text.setText(QString::fromLocal8Bit(argv[1]));
  window.resize(kWindowSize);
  window.show();
  return QApplication::exec();
}
