// Which languages the user reads, by the environment's rules for messages.
#pragma once

#include <string>
#include <vector>

namespace cutline {

// The names under which a bundle may keep a language's folder (without ".lproj"), best first, "en"
// last. Reads LANGUAGE, LC_ALL, LC_MESSAGES and LANG as gettext does.
std::vector<std::string> preferredLocalizations() noexcept;

// The folder names for one locale name, best first: "de_AT.UTF-8" gives "de_AT", "de-AT", "de";
// "zh_TW" and "zh_Hant_HK" also "zh-Hant". None for "C", "POSIX" and what is no locale's name.
std::vector<std::string> localizationsForLocale(const std::string& locale) noexcept;

}  // namespace cutline
