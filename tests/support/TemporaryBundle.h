// A bundle's directory for one test, and the environment that chooses its languages.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/ports/Bundle.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

class TemporaryBundle {
 public:
  TemporaryBundle();

  const std::string& path() const noexcept { return mFolder.path(); }
  std::filesystem::path resources() const { return mFolder / "Contents/Resources"; }

  // `name` is relative to Contents; folders on the way are made.
  void write(const std::string& name, const std::string& bytes) const;
  // A property list with this value.
  void writePropertyList(const std::string& name, const std::string& value) const;
  // Resources/<language>.lproj/<table>.strings
  void writeStrings(const std::string& language, const std::map<std::string, std::string>& strings,
                    const std::string& table = "Localizable") const;

  std::shared_ptr<Bundle> open() const;

 private:
  TemporaryFolder mFolder;
};

// Sets environment variables for one scope; an absent value unsets the variable.
class ScopedEnvironment {
 public:
  using Variables = std::map<std::string, std::optional<std::string>>;

  explicit ScopedEnvironment(const Variables& variables);
  ~ScopedEnvironment();
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

 private:
  Variables mBefore;
};

// The four variables that choose the language of messages; what is not given is unset.
ScopedEnvironment::Variables languageEnvironment(const ScopedEnvironment::Variables& given);

}  // namespace cutline::test
