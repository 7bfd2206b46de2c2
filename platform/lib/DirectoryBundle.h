// A bundle in a directory: Contents/Info.plist, and under Contents/Resources the pictures, the
// interface files and, in a folder for each language, the string tables.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/lib/PropertyList.h"
#include "platform/ports/Bundle.h"

namespace cutline {

class DirectoryBundle final : public Bundle {
 public:
  // Null when the directory has no readable Contents/Info.plist. The user's languages are read from
  // the environment now.
  static std::shared_ptr<Bundle> open(const std::string& path) noexcept;
  // The same with the bytes of Contents/Info.plist, where these were read before.
  static std::shared_ptr<Bundle> open(const std::string& path, const std::string& info) noexcept;

  std::string bundlePath() const noexcept override { return mPath.string(); }
  std::string bundleIdentifier() const noexcept override;
  std::string principalClassName() const noexcept override;
  std::string localizedStringForKey(
      const std::string& key, const std::optional<std::string>& value,
      const std::optional<std::string>& table) const noexcept override;
  std::optional<std::string> pathForImageResource(const std::string& name) const noexcept override;
  bool loadNibNamed(const std::string& name, InterfaceOwner& owner) noexcept override;

 private:
  // One string table in the user's languages, best first.
  using Table = std::vector<PropertyList>;

  DirectoryBundle(std::filesystem::path path, PropertyList info);
  std::string infoString(const std::string& key) const;
  const Table& tableNamed(const std::string& name) const;
  Table readTable(const std::string& name) const;

  std::filesystem::path mPath;
  std::filesystem::path mResources;
  PropertyList mInfo;
  std::vector<std::string> mLocalizations;
  // Read at the first question for each.
  mutable std::map<std::string, Table> mTables;
  mutable std::optional<std::set<std::string>> mFiles;
};

}  // namespace cutline
