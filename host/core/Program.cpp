#include "host/core/Program.h"

#include <sys/auxv.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <new>
#include <string_view>

#include "base/Visible.h"
#include "composition/Composer.h"
#include "host/core/CommandLine.h"
#include "host/core/DialogModule.h"
#include "host/core/HeadlessCommands.h"
#include "host/core/HeadlessSession.h"
#include "host/core/HeldJobInHand.h"
#include "host/core/Installation.h"
#include "host/core/Module.h"
#include "host/core/PluginLoader.h"
#include "host/core/SpooledDocument.h"
#include "lean/StandIns.h"

namespace cutline {

namespace {

using DialogFunction = int (*)(const DialogRequest&) noexcept;

int fail(const Error& error, int status = kExitError) {
  std::cerr << "cutline: " << visible(error.message) << std::endl;
  return status;
}

// What was asked for has to have come out: a full disk, or a reader who went, is an error.
int endOutput() {
  errno = 0;
  if (std::cout.flush()) return kExitDone;
  const std::string reason = errno != 0 ? std::strerror(errno) : "a part of it was not taken";
  return fail({"standard output cannot be written: " + reason});
}

int showDialog(const CommandLine& line, PluginLoader& plugIns) {
  const Installation installation = Installation::ofThisProgram();
  loadStandIns(installation.helperDirectory().c_str());
  const Result<void*> function =
      loadModule(installation.modulePath(kDialogModuleName), kDialogRunSymbol);
  if (!function) return fail(function.error());
  return reinterpret_cast<DialogFunction>(*function)({&line, &plugIns, &installation});
}

int runWithoutWindow(const CommandLine& line, PluginLoader& plugIns) {
  std::ostream nowhere(nullptr);
  std::ostream& notes = line.isQuiet ? nowhere : std::cerr;
  const Result<Done> done = runHeadlessCommand(line, plugIns, {std::cout, notes, std::cerr});
  return done ? endOutput() : fail(done.error());
}

bool needsWindow(Command command) {
  return command == Command::dialog || command == Command::snapshot;
}

// The place of standard input among the documents; commands that print read it where none is named.
std::string* standardInput(CommandLine& line) {
  const bool prints = line.command == Command::print || line.command == Command::dryRun;
  if (line.files.empty() && prints) line.files = {"-"};
  const auto found = std::find(line.files.begin(), line.files.end(), "-");
  return found != line.files.end() ? &*found : nullptr;
}

// Keeps standard input for as long as the answer lives; null when no document is read from there.
Result<std::shared_ptr<SpooledDocument>> spool(CommandLine& line) {
  std::string* const place = standardInput(line);
  if (place == nullptr) return std::shared_ptr<SpooledDocument>();
  Result<std::shared_ptr<SpooledDocument>> document = SpooledDocument::read(STDIN_FILENO);
  if (!document) return document;
  if (!line.title && place == line.files.data()) line.title = "(stdin)";
  *place = (*document)->path();
  return document;
}

std::vector<std::string> plugInDirectories(const CommandLine& line) {
  std::vector<std::string> directories;
  if (line.pluginDirectory) directories.push_back(*line.pluginDirectory);
  directories.push_back(Installation::ofThisProgram().plugInDirectory());
  return directories;
}

// The job's document lives as long as the dialog.
int askAboutHeldJob(CommandLine& line) {
  const auto inHand = HeldJobInHand::take(line);
  if (!inHand) return fail(inHand.error());
  if (*inHand == nullptr) return kExitDone;
  PluginLoader plugIns(plugInDirectories(line));
  return showDialog(line, plugIns);
}

int run(CommandLine line) {
  const bool elevated = getauxval(AT_SECURE) != 0;
  if (line.pluginDirectory && elevated)
    return fail({"--plugin-dir is refused while the program runs with more rights than its user"});
  const Result<std::shared_ptr<SpooledDocument>> spooled = spool(line);
  if (!spooled) return fail(spooled.error());
  if (line.heldJobId) return askAboutHeldJob(line);
  PluginLoader plugIns(plugInDirectories(line));
  return needsWindow(line.command) ? showDialog(line, plugIns) : runWithoutWindow(line, plugIns);
}

// Nothing that could be done about it works without memory, but to say so.
[[noreturn]] void endWithoutMemory() {
  constexpr std::string_view kWords = "cutline: there is no memory left\n";
  static_cast<void>(!::write(STDERR_FILENO, kWords.data(), kWords.size()));
  ::_exit(kExitError);
}

int runProgram(int argc, const char* const* argv) {
  const Result<CommandLine> line = parseCommandLine(argc, argv);
  if (!line) return fail({line.error().message + " (see cutline --help)"}, kExitUsage);
  if (line->command == Command::help) return std::cout << helpText(), endOutput();
  if (line->command == Command::version)
    return std::cout << "cutline " CUTLINE_VERSION "\n", endOutput();
  return run(*line);
}

}  // namespace

}  // namespace cutline

int CutlineRunProgram(int argc, const char* const* argv,
                      const cutline::WaitingHelper* composer) noexcept {
  std::set_new_handler(cutline::endWithoutMemory);
  if (composer != nullptr) cutline::keepEarlyComposer(*composer);
  return cutline::runProgram(argc, argv);
}
