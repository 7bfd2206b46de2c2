// Text between the ports (UTF-8) and Qt.
#pragma once

#include <QString>
#include <string>

namespace cutline {

QString toQString(const std::string& utf8) noexcept;
std::string toUtf8(const QString& text) noexcept;

// For texts that Qt reads mnemonics from: '&' stands for itself.
QString withoutMnemonics(QString text) noexcept;

// The other way: such a text as it is read, without the sign of its mnemonic.
QString withoutMark(const QString& text) noexcept;

}  // namespace cutline
