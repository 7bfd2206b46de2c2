#include "host/dialog/DialogFonts.h"

#include <QtGlobal>

namespace cutline {

namespace {

constexpr char kFontLanguage[] = "FC_LANG";
constexpr char kFontMessages[] = "FC_DEBUG";

bool hasCaches(FcConfig* configuration) {
  FcStrList* const folders = FcConfigGetCacheDirs(configuration);
  if (folders == nullptr) return false;
  const bool isAny = FcStrListNext(folders) != nullptr;
  FcStrListDone(folders);
  return isAny;
}

// What is no configuration fontconfig makes up; and it alone begins to tell what it does.
void readFonts() {
  const FontConfiguration configuration =
      qEnvironmentVariableIsSet(kFontMessages) ? nullptr : readFontConfiguration();
  if (!configuration || !FcConfigSetCurrent(configuration.get())) FcInit();
}

}  // namespace

void preferFontsFor(const DialogLanguage& language) {
  // Which Han characters a user of Latin letters wants to see, the locale says as before.
  if (language.locale.script() == QLocale::LatinScript) return;
  if (!qEnvironmentVariableIsEmpty(kFontLanguage)) return;
  qputenv(kFontLanguage, language.locale.name().toLatin1());
}

FontConfiguration readFontConfiguration() {
  FontConfiguration configuration(FcConfigCreate());
  if (!configuration) return nullptr;
  if (!FcConfigParseAndLoad(configuration.get(), nullptr, FcTrue)) return nullptr;
  if (!hasCaches(configuration.get())) return nullptr;
  return FcConfigBuildFonts(configuration.get()) ? std::move(configuration) : nullptr;
}

std::future<void> startReadingFonts() { return std::async(std::launch::async, readFonts); }

}  // namespace cutline
