#include "tests/languages/PaintedTexts.h"

#include <QBuffer>
#include <QSvgGenerator>
#include <QWidget>
#include <QXmlStreamReader>

#include "qt/QtText.h"

namespace cutline {

std::string paintedTexts(QWidget& widget) {
  QByteArray drawing;
  QBuffer buffer(&drawing);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  widget.render(&generator);
  std::string texts;
  QXmlStreamReader xml(drawing);
  while (!xml.atEnd()) {
    if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("text")) {
      texts += toUtf8(xml.readElementText());
    }
  }
  return texts;
}

}  // namespace cutline
