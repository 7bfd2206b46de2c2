// Writes the sample documents.
#include <QFile>
#include <QGuiApplication>
#include <cstdio>

#include "samples/documents/generator/Labels.h"
#include "samples/documents/generator/Pdf.h"
#include "samples/documents/generator/Picture.h"

namespace {

using namespace cutline::documents;

constexpr double kDotsPerInch = 360;

bool write(const QString& path, const std::string& bytes) {
  QFile file(path);
  const auto size = static_cast<qint64>(bytes.size());
  return file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.flush();
}

int fail(const QString& what) {
  std::fprintf(stderr, "cutline-sample-documents: %s\n", qUtf8Printable(what));
  return 1;
}

}  // namespace

int main(int count, char* arguments[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(count, arguments);
  const QStringList given = QGuiApplication::arguments();
  if (given.size() != 3) return fail("give the folder with the DejaVu fonts and one to write to");
  const Faces faces{Face(given[1] + "/DejaVuSans.ttf"), Face(given[1] + "/DejaVuSans-Bold.ttf")};
  if (!faces.regular.isValid() || !faces.bold.isValid()) return fail("no fonts in " + given[1]);
  const QString& folder = given[2];
  const std::string pdf = pdfOf(assetLabels(faces), faces, "Asset labels");
  if (!write(folder + "/labels.pdf", pdf) ||
      !pictureOf(parcelLabel(faces), faces, kDotsPerInch).save(folder + "/label.png"))
    return fail("cannot write to " + folder);
  return 0;
}
