#include "host/document/file_error.h"

#include <QString>
#include <utility>

namespace cutline {

Error aboutFile(const QString& path, Sentence reason) {
  return Sentence(Phrase("document", "%1: %2"), {path.toStdString(), std::move(reason)});
}

}  // namespace cutline
