#include "tests/languages/StagedBundle.h"

#include <gtest/gtest.h>

#include "platform/lib/DirectoryBundle.h"
#include "platform/lib/PropertyList.h"
#include "platform/lib/ResourceFile.h"

namespace cutline {

std::string stagedBundlePath() { return std::string(kPlugInDirectory) + "/CutOptions.plugin"; }

std::shared_ptr<Bundle> openStagedBundle(const test::ScopedEnvironment::Variables& variables) {
  const test::ScopedEnvironment environment(test::languageEnvironment(variables));
  return DirectoryBundle::open(stagedBundlePath());
}

StringTable stringTable(const std::string& folder) {
  StringTable table;
  const auto bytes = readResource(stagedBundlePath() + "/Contents/Resources/" + folder +
                                  ".lproj/Localizable.strings");
  const auto file = bytes ? PropertyList::parseXML(*bytes) : std::nullopt;
  if (!file || !file->dictionary()) {
    ADD_FAILURE() << "no string table for " << folder;
    return table;
  }
  for (const auto& [key, value] : *file->dictionary()) {
    if (!value.string()) ADD_FAILURE() << key << " is no text in " << folder;
    table[key] = value.string() ? *value.string() : std::string();
  }
  return table;
}

}  // namespace cutline
