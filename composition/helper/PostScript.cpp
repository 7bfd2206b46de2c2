#include "composition/helper/PostScript.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/Uninterrupted.h"
#include "composition/CompositionErrors.h"
#include "composition/helper/ScratchFolder.h"

namespace cutline {
namespace {

constexpr char kInterpreter[] = "gs";
constexpr int kMade = STDERR_FILENO + 1;
constexpr int kTie = kMade + 1;
constexpr int kNotFound = 127;
constexpr int kNotConfined = 126;
// What the interpreter says when its memory does not suffice.
constexpr std::string_view kNoMemory = "VMerror";

// What the interpreter looks at of its surroundings.
constexpr std::array kVariables =
    std::to_array<const char*>({"PATH", "HOME", "LANG", "FONTCONFIG_FILE"});

struct Command {
  std::vector<std::string> arguments;
  std::vector<std::string> environment;

  static std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (std::string& text : texts) result.push_back(text.data());
    result.push_back(nullptr);
    return result;
  }
};

Command commandFor(int most, const std::string& folder) {
  Command command{{kInterpreter, "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pdfwrite",
                   "-sOutputFile=/proc/self/fd/" + std::to_string(kMade)},
                  {"TMPDIR=" + folder}};
  if (most > 0) command.arguments.push_back("-dLastPage=" + std::to_string(most));
  command.arguments.emplace_back("-");
  for (const char* name : kVariables)
    if (const char* value = std::getenv(name))
      command.environment.push_back(std::string(name) + '=' + value);
  return command;
}

// What the interpreter is given, as descriptors that stay open when it starts.
struct Files {
  int document;
  int made;
  int log;
};

// In the child. Every other descriptor is closed when the interpreter starts.
[[noreturn]] void become(Command& command, const Files& files, const ScratchFolder& scratch,
                         const ProcessLimits& limits) {
  std::vector<char*> arguments = Command::pointers(command.arguments);
  std::vector<char*> environment = Command::pointers(command.environment);
  const FileDescriptor made(::fcntl(files.made, F_DUPFD, kTie + 1));
  const FileDescriptor tie(::fcntl(scratch.tie(), F_DUPFD, kTie + 1));
  const bool isSet = ::dup2(files.document, STDIN_FILENO) >= 0 &&
                     ::dup2(files.log, STDOUT_FILENO) >= 0 &&
                     ::dup2(files.log, STDERR_FILENO) >= 0 && ::dup2(made.get(), kMade) >= 0 &&
                     ::dup2(tie.get(), kTie) >= 0 && ::close_range(kTie + 1, ~0U, 0) == 0;
  if (!isSet || !confineInterpreter(limits, scratch.path().c_str())) ::_exit(kNotConfined);
  ::execvpe(kInterpreter, arguments.data(), environment.data());
  ::_exit(kNotFound);
}

int ended(pid_t process) {
  int status = -1;
  uninterrupted([&] { return ::waitpid(process, &status, 0); });
  return status;
}

bool isInLog(int log, std::string_view words) {
  std::string text(65536, '\0');
  const ssize_t count = ::pread(log, text.data(), text.size(), 0);
  text.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return text.find(words) != std::string::npos;
}

std::optional<PostScriptProblem> problemIn(int status, int log) {
  if (status == 0) return std::nullopt;
  if (!WIFEXITED(status)) return PostScriptProblem{problemOfEnd(status), {}};
  if (WEXITSTATUS(status) == kNotFound)
    return PostScriptProblem{DocumentProblem::missingModule, kInterpreter};
  if (WEXITSTATUS(status) == kNotConfined)
    return PostScriptProblem{DocumentProblem::broken, "it cannot be confined"};
  if (isInLog(log, kNoMemory)) return PostScriptProblem{DocumentProblem::tooLarge, {}};
  return PostScriptProblem{DocumentProblem::damaged, {}};
}

}  // namespace

PostScriptResult pdfOfPostScript(int document, int most, const ProcessLimits& limits) {
  FileDescriptor made(::memfd_create("cutline-postscript", MFD_CLOEXEC));
  const FileDescriptor log(::memfd_create("cutline-log", MFD_CLOEXEC));
  const Result<ScratchFolder> scratch = ScratchFolder::make();
  if (!scratch)
    return {FileDescriptor(), PostScriptProblem{DocumentProblem::broken, scratch.error().message}};
  Command command = commandFor(most, scratch->path());
  const pid_t process = made && log ? ::fork() : -1;
  if (process < 0) return {FileDescriptor(), PostScriptProblem{}};
  if (process == 0) become(command, {document, made.get(), log.get()}, *scratch, limits);
  const int status = ended(process);
  return {std::move(made), problemIn(status, log.get())};
}

}  // namespace cutline
