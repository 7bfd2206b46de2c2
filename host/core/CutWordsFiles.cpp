#include "host/core/CutWordsFiles.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <optional>

#include "base/FileDescriptor.h"
#include "host/core/CutRules.h"
#include "host/core/Installation.h"
#include "platform/lib/ResourceFile.h"

namespace cutline {

namespace {

constexpr char kFileName[] = "/cutline/cut-words.txt";
constexpr std::size_t kKilobyte = 1024;
constexpr std::size_t kLargest = 256 * kKilobyte;

// As other programs find a user's settings; empty without a home.
std::string userSettings() {
  const char* chosen = std::getenv("XDG_CONFIG_HOME");
  if (chosen != nullptr && *chosen == '/') return chosen;
  const char* home = std::getenv("HOME");
  return home != nullptr && *home != '\0' ? std::string(home) + "/.config" : std::string();
}

bool isPlain(const std::string& text) {
  const auto isControl = [](unsigned char byte) {
    return (byte < ' ' && byte != '\t' && byte != '\n' && byte != '\r') || byte == 0x7f;
  };
  return std::ranges::none_of(text, isControl);
}

CutWordsText readFile(const std::string& path) {
  // A pipe must not make anybody wait.
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file && (errno == ENOENT || errno == ENOTDIR)) return {};
  if (!file)
    return {{}, {{Phrase("host", "\"%1\" cannot be read: %2"), {path, std::strerror(errno)}}}};
  const std::optional<std::string> text = readResource(file, kLargest);
  if (text && isPlain(*text)) return cutWordsIn(*text, path);
  return {{},
          {{Phrase("host", "\"%1\" is left out: it is no plain text of at most %2 kB"),
            {path, std::to_string(kLargest / kKilobyte)}}}};
}

}  // namespace

std::vector<std::string> cutWordsPaths() {
  std::vector<std::string> paths = {Installation::ofThisProgram().cutWordsPath(),
                                    std::string("/etc") + kFileName};
  if (const std::string user = userSettings(); !user.empty()) paths.push_back(user + kFileName);
  return paths;
}

CutWordsText readCutWords(const std::vector<std::string>& paths) {
  CutWordsText all;
  for (const std::string& path : paths) {
    CutWordsText one = readFile(path);
    std::ranges::move(one.words, std::back_inserter(all.words));
    std::ranges::move(one.problems, std::back_inserter(all.problems));
  }
  return all;
}

const CutWordsText& cutWordsFor(const PpdFile& ppd) {
  static const CutWordsText none;
  if (hasCutOptions(ppd)) return none;
  static const CutWordsText words = readCutWords(cutWordsPaths());
  return words;
}

}  // namespace cutline
