#include "host/dialog/FirstPrinter.h"

#include <filesystem>
#include <optional>
#include <thread>

#include "cups/Destinations.h"
#include "host/core/PrinterSelection.h"

namespace cutline {
namespace {

std::optional<Error> problemOfDocument(const std::optional<std::string>& path) {
  std::error_code problem;
  if (!path || std::filesystem::is_regular_file(*path, problem)) return std::nullopt;
  return Error{Sentence(Phrase("host", "%1: there is no such document"), {*path})};
}

bool namesPrinter(const CommandLine& line) { return line.ppdPath || line.destination; }

}  // namespace

Result<PrinterChoice> findFirstPrinter(const CommandLine& line) {
  if (const std::optional<Error> problem = problemOfDocument(line.file)) return *problem;
  Result<PrinterChoice> choice = selectPrinter(line);
  if (choice || namesPrinter(line)) return choice;
  const Result<std::vector<Destination>> all = listDestinations(line.server);
  if (!all || all->empty()) return choice;
  CommandLine named = line;
  named.destination = all->front().name;
  return selectPrinter(named);
}

FirstPrinter startFindingFirstPrinter(const CommandLine& line) {
  std::packaged_task<Result<PrinterChoice>()> task([line] { return findFirstPrinter(line); });
  FirstPrinter printer = task.get_future().share();
  std::thread(std::move(task)).detach();
  return printer;
}

}  // namespace cutline
