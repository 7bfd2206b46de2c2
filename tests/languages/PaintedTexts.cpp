#include "tests/languages/PaintedTexts.h"

#include <QBuffer>
#include <QSvgGenerator>
#include <QWidget>
#include <QXmlStreamReader>

namespace cutline {

QString paintedTexts(QWidget& widget) {
  QByteArray drawing;
  QBuffer buffer(&drawing);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  widget.render(&generator);
  QString texts;
  QXmlStreamReader xml(drawing);
  while (!xml.atEnd()) {
    if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("text")) {
      texts += xml.readElementText() + QLatin1Char('\n');
    }
  }
  return texts;
}

}  // namespace cutline
