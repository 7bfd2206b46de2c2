#include "host/document/FileRenderer.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <exception>

#include "host/document/ImageDocument.h"
#include "host/document/PdfDocument.h"
#include "host/document/PlaceholderDocument.h"
#include "host/document/file_error.h"

namespace cutline {
namespace {

// Programs may put other bytes before a PDF's header, within the first 1024.
constexpr qint64 kHeadLength = 1024;

bool isPdf(const QByteArray& head) { return head.contains("%PDF-"); }
bool isPostScript(const QByteArray& head) { return head.startsWith("%!"); }

Result<QByteArray> readHead(const QString& path) {
  if (QFileInfo(path).isDir()) {
    return aboutFile(path, Phrase("document", "is a directory; name a document"));
  }
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return aboutFile(path, file.errorString().toStdString());
  }
  QByteArray head = file.read(kHeadLength);
  if (head.isEmpty()) return aboutFile(path, Phrase("document", "the file is empty"));
  return head;
}

Result<std::shared_ptr<Document>> openFile(const QString& path) {
  const Result<QByteArray> head = readHead(path);
  if (!head) return head.error();
  if (isPdf(*head)) return PdfDocument::open(path);
  if (!isPostScript(*head) && ImageDocument::canRead(path)) return ImageDocument::open(path);
  return std::shared_ptr<Document>(std::make_shared<PlaceholderDocument>());
}

}  // namespace

Result<std::shared_ptr<Document>> FileRenderer::open(const std::string& path) noexcept {
  try {
    return openFile(QString::fromStdString(path));
  } catch (const std::exception& reason) {
    return aboutFile(QString::fromStdString(path), std::string(reason.what()));
  }
}

}  // namespace cutline
