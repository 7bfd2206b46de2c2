// The dialog's fonts: for which language they are chosen, and when what chooses them is read.
#pragma once

#include <fontconfig/fontconfig.h>

#include <future>
#include <memory>

#include "host/dialog/DialogLanguage.h"

namespace cutline {

// Has fontconfig choose fonts for this language: Han characters are drawn differently in Chinese,
// Japanese and Korean, and Qt 6.4.2 leaves the language to fontconfig, which knows the
// environment's locale only. Before the application is made, and before any thread is started,
// because it changes the environment. A choice of the user's own (FC_LANG) is left alone.
void preferFontsFor(const DialogLanguage& language);

struct FontConfigurationEnd {
  void operator()(FcConfig* configuration) const noexcept { FcConfigDestroy(configuration); }
};
using FontConfiguration = std::unique_ptr<FcConfig, FontConfigurationEnd>;

// The user's rules and fonts as fontconfig reads them, without the descriptions of rules that are
// not in force: fontconfig reads all of those for a list of them, and takes as long for it. Null
// where there is no configuration, or one that leaves to fontconfig where caches are.
FontConfiguration readFontConfiguration();

// Reads fontconfig's configuration while the application is made; Qt finds it read then. After
// preferFontsFor, whose environment it reads.
std::future<void> startReadingFonts();

}  // namespace cutline
