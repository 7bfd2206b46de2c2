// What the dialog remembers from one time to the next: its size, the printer and preset that were
// used last, and the documents that were opened.
#pragma once

#include <QSize>
#include <optional>
#include <string>
#include <vector>

#include "cups/Destination.h"

namespace cutline {

// A small file that nobody depends on: what cannot be read counts as empty, and what cannot be
// written is forgotten. Each change is written at once, in the place of the file before.
class Remembered {
 public:
  // $XDG_STATE_HOME/cutline/window, or the same below ~/.local/state.
  static std::string usualPath();

  explicit Remembered(std::string path = usualPath()) : mPath(std::move(path)) {}

  // With its preset as the instance; nothing before the first job.
  std::optional<DestinationName> lastPrinter() const;
  void setLastPrinter(const DestinationName& name);

  // An empty size when there is none.
  QSize windowSize() const;
  void setWindowSize(const QSize& size);

  // Newest first, ten at most; those that are gone are left out.
  std::vector<std::string> recentDocuments() const;
  // A path from the working directory is kept as one from the root.
  void addRecent(const std::string& path);

 private:
  // Lines "key value" in their order.
  using Lines = std::vector<std::pair<std::string, std::string>>;
  Lines read() const;
  void write(const Lines& lines) const;
  std::vector<std::string> valuesOf(const char* key) const;
  void replace(const char* key, const std::vector<std::string>& values);

  std::string mPath;
};

}  // namespace cutline
