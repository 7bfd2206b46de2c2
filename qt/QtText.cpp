#include "qt/QtText.h"

namespace cutline {

QString toQString(const std::string& utf8) noexcept {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string toUtf8(const QString& text) noexcept { return text.toStdString(); }

QString withoutMnemonics(QString text) noexcept {
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace cutline
