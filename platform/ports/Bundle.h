// A loadable bundle's directory: its identity, localized strings, pictures and interface files.
// DirectoryBundle implements it.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace cutline {

class InterfaceOwner;

class Bundle : public std::enable_shared_from_this<Bundle> {
 public:
  Bundle() = default;
  Bundle(const Bundle&) = delete;
  Bundle& operator=(const Bundle&) = delete;
  virtual ~Bundle();

  virtual std::string bundlePath() const noexcept = 0;
  virtual std::string bundleIdentifier() const noexcept = 0;
  virtual std::string principalClassName() const noexcept = 0;

  // localizedStringForKey:value:table:  No table means "Localizable". When the table lacks the
  // key: `value` if it is given and not empty, else the key itself.
  virtual std::string localizedStringForKey(
      const std::string& key, const std::optional<std::string>& value,
      const std::optional<std::string>& table) const noexcept = 0;

  // pathForImageResource:  By name, with its extension or without that of any file type that the
  // current toolkit reads, the toolkit's first one before the others; nothing when there is none.
  virtual std::optional<std::string> pathForImageResource(
      const std::string& name) const noexcept = 0;

  // Loads the interface file with this owner through the current toolkit; false when the file is
  // missing or damaged, and then nothing was connected.
  virtual bool loadNibNamed(const std::string& name, InterfaceOwner& owner) noexcept = 0;
};

}  // namespace cutline
