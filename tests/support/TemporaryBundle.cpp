#include "tests/support/TemporaryBundle.h"

#include <stdlib.h>

#include "platform/lib/DirectoryBundle.h"

namespace cutline::test {
namespace {

void setVariable(const std::string& name, const std::optional<std::string>& value) {
  if (value) {
    setenv(name.c_str(), value->c_str(), 1);
  } else {
    unsetenv(name.c_str());
  }
}

std::optional<std::string> variable(const std::string& name) {
  const char* value = getenv(name.c_str());
  return value ? std::optional<std::string>(value) : std::nullopt;
}

}  // namespace

TemporaryBundle::TemporaryBundle() {
  writePropertyList("Info.plist",
                    "<dict><key>CFBundleIdentifier</key><string>org.cutline.Test</string>"
                    "<key>NSPrincipalClass</key><string>TestPlugIn</string></dict>");
}

void TemporaryBundle::write(const std::string& name, const std::string& bytes) const {
  mFolder.write("Contents/" + name, bytes);
}

void TemporaryBundle::writePropertyList(const std::string& name, const std::string& value) const {
  write(name, "<plist version=\"1.0\">" + value + "</plist>");
}

void TemporaryBundle::writeStrings(const std::string& language,
                                   const std::map<std::string, std::string>& strings,
                                   const std::string& table) const {
  std::string entries;
  for (const auto& [key, text] : strings) {
    entries += "<key>" + key + "</key><string>" + text + "</string>";
  }
  writePropertyList("Resources/" + language + ".lproj/" + table + ".strings",
                    "<dict>" + entries + "</dict>");
}

std::shared_ptr<Bundle> TemporaryBundle::open() const { return DirectoryBundle::open(path()); }

ScopedEnvironment::ScopedEnvironment(const Variables& variables) {
  for (const auto& [name, value] : variables) {
    mBefore[name] = variable(name);
    setVariable(name, value);
  }
}

ScopedEnvironment::~ScopedEnvironment() {
  for (const auto& [name, value] : mBefore) setVariable(name, value);
}

ScopedEnvironment::Variables languageEnvironment(const ScopedEnvironment::Variables& given) {
  ScopedEnvironment::Variables all = {{"LANGUAGE", std::nullopt},
                                      {"LC_ALL", std::nullopt},
                                      {"LC_MESSAGES", std::nullopt},
                                      {"LANG", std::nullopt}};
  for (const auto& [name, value] : given) all[name] = value;
  return all;
}

}  // namespace cutline::test
