// A bundle in memory. Its interface file is a panel with every control, built in code, so that
// tests of the panel's rules don't hang on the real file.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/ports/Bundle.h"
#include "platform/ports/Geometry.h"
#include "platform/ports/Interface.h"

namespace cutline::test {

// The titles of the sixteen presets; element i has tag i + 1.
const std::array<std::string, 16>& presetTitles();

class TestBundle : public Bundle {
 public:
  std::string bundlePath() const noexcept override { return "/bundle"; }
  std::string bundleIdentifier() const noexcept override { return "org.cutline.Test"; }
  std::string principalClassName() const noexcept override { return "Test"; }
  std::string localizedStringForKey(
      const std::string& key, const std::optional<std::string>& value,
      const std::optional<std::string>& table) const noexcept override;
  std::optional<std::string> pathForImageResource(const std::string& name) const noexcept override;
  bool loadNibNamed(const std::string& name, InterfaceOwner& owner) noexcept override;

  std::map<std::string, std::string> strings;
  std::set<std::string> missingPictures;
  std::set<std::string> missingOutlets;  // controls that the interface file lacks
  bool interfaceIsMissing = false;
  Size panelSize{560, 284};
  std::shared_ptr<View> lastRoot;  // kept, as a host keeps a view
  std::vector<std::string> loadedInterfaces;
  mutable std::vector<std::string> askedPictures;
};

}  // namespace cutline::test
