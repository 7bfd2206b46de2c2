#include "qt/QtText.h"

namespace cutline {

QString toQString(const std::string& utf8) noexcept {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string toUtf8(const QString& text) noexcept { return text.toStdString(); }

QString withoutMnemonics(QString text) noexcept {
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString withoutMark(const QString& text) noexcept {
  QString plain;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at] == QLatin1Char('&') && ++at == text.size()) break;
    plain += text[at];
  }
  return plain;
}

}  // namespace cutline
