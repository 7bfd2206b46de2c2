// A program like any other that prints through CUPS: draws labels with Qt on the printer that it is
// told, and knows nothing of this project.
//
// Usage: printing_program PRINTER TITLE COPIES PAPER [PAGE]...
// PAPER is "own" for the printer's default one, or "A4".
#include <QGuiApplication>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <iostream>

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  const QStringList words = QGuiApplication::arguments();
  if (words.size() < 5) return 2;
  QPrinter printer(QPrinter::HighResolution);
  printer.setPrinterName(words[1]);
  if (!printer.isValid()) {
    std::cerr << "no printer " << words[1].toStdString() << std::endl;
    return 1;
  }
  printer.setDocName(words[2]);
  printer.setCopyCount(words[3].toInt());
  printer.setPageSize(words[4] == QLatin1String("A4")
                          ? QPageSize(QPageSize::A4)
                          : QPrinterInfo::printerInfo(words[1]).defaultPageSize());
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) return 1;
  const QStringList pages = words.mid(5);
  for (int page = 0; page < pages.size(); ++page) {
    if (page > 0) printer.newPage();
    const QRect all = printer.pageLayout().fullRectPixels(printer.resolution());
    painter.fillRect(
        all.adjusted(all.width() / 4, all.height() / 4, -all.width() / 4, -all.height() / 2),
        Qt::black);
    painter.drawText(all, Qt::AlignHCenter | Qt::AlignBottom, pages[page]);
  }
  return painter.end() ? 0 : 1;
}
