// Printers that leave it to the panel, or don't, what their options are called.
#pragma once

#include <string>

namespace cutline {

// The path of a PPD file: a sample for users, or one that only tests use.
std::string samplePpdPath(const std::string& name);
std::string testPpdPath(const std::string& name);

// The PPD in this file without the texts of its cut options.
std::string withoutCutTexts(const std::string& path);

// The PPD in this file with texts of its cut options in a language: "<text> <keyword>" each.
std::string withCutTexts(const std::string& path, const std::string& language,
                         const std::string& text);

}  // namespace cutline
