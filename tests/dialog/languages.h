// The languages that the dialog speaks.
#pragma once

#include <QString>
#include <array>

namespace cutline {

// As LANGUAGE names them, and as their tables are called; English has none.
inline constexpr std::array kDialogLanguages = {"en", "de", "fr", "es",    "it",   "nl",
                                                "pt", "ja", "ko", "zh_CN", "zh_TW"};

inline QString tableDirectory() {
  return QStringLiteral(CUTLINE_BUILD_DIR "/share/cutline/translations");
}

}  // namespace cutline
