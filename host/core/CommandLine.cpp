#include "host/core/CommandLine.h"

#include <getopt.h>

#include <algorithm>
#include <vector>

#include "base/Numbers.h"
#include "base/Visible.h"
#include "composition/PageRanges.h"
#include "cups/CupsOptions.h"
#include "host/core/OptionSpelling.h"

namespace cutline {

namespace {

// Long options without a letter of their own.
enum LongOption {
  kPpd = 256,
  kPrint,
  kDryRun,
  kWait,
  kEach,
  kSummary,
  kOptions,
  kPlan,
  kJson,
  kChoices,
  kSnapshot,
  kScale,
  kDark,
  kList,
  kAskQueue,
  kHeldJob,
  kPluginDirectory,
  kMarks,
  kOnce,
  kChoose,
  kParent,
  kWindowTitle,
  kHelp,
  kVersion
};

constexpr char kShortOptions[] = ":d:n:P:t:o:h:EU:q";
constexpr option kLongOptions[] = {{"ppd", required_argument, nullptr, kPpd},
                                   {"print", no_argument, nullptr, kPrint},
                                   {"dry-run", required_argument, nullptr, kDryRun},
                                   {"wait", no_argument, nullptr, kWait},
                                   {"each", no_argument, nullptr, kEach},
                                   {"summary", no_argument, nullptr, kSummary},
                                   {"options", no_argument, nullptr, kOptions},
                                   {"plan", no_argument, nullptr, kPlan},
                                   {"json", no_argument, nullptr, kJson},
                                   {"choices", no_argument, nullptr, kChoices},
                                   {"snapshot", required_argument, nullptr, kSnapshot},
                                   {"scale", required_argument, nullptr, kScale},
                                   {"dark", no_argument, nullptr, kDark},
                                   {"list", no_argument, nullptr, kList},
                                   {"ask-queue", required_argument, nullptr, kAskQueue},
                                   {"held-job", required_argument, nullptr, kHeldJob},
                                   {"plugin-dir", required_argument, nullptr, kPluginDirectory},
                                   {"marks", no_argument, nullptr, kMarks},
                                   {"once", no_argument, nullptr, kOnce},
                                   {"choose", no_argument, nullptr, kChoose},
                                   {"parent", required_argument, nullptr, kParent},
                                   {"window-title", required_argument, nullptr, kWindowTitle},
                                   {"help", no_argument, nullptr, kHelp},
                                   {"version", no_argument, nullptr, kVersion},
                                   {nullptr, 0, nullptr, 0}};

constexpr char kHelpText[] =
    R"(Usage: cutline [OPTION]... [FILE]...
Print labels and tapes: shows a print dialog with the printer's cut options.

  -d PRINTER[/INSTANCE]  the printer, or a saved preset of it; your default printer when absent
  -n COPIES              number of copies
  -P PAGES               pages to print, such as 1-3,5
  -t TITLE               the job's title; the file's name when absent
  -o NAME=VALUE          an option of the printer or the job; may be given again
  -h HOST[:PORT]         the print server
  -E                     insist on an encrypted connection
  -U USER                the user that the job is sent as
  -q                     say nothing but errors

  --ppd FILE             work on this PPD file instead of a printer; cannot print
  --print                print at once, without a window; FILE absent or - reads standard input
  --dry-run PDF          write what would be sent into this file, show with which options, and end
  --wait                 with --print: end when the job has ended
  --each                 with --print: every FILE is a job of its own, instead of all one job
  --summary              show the plan in a sentence and the panel's summary, and end
  --options              show what would be sent with the job and end
  --plan                 show where the tape would be cut and end
  --json                 with --plan: for other programs
  --choices              show the printer's options with their choices and end
  --snapshot PNG         save a picture of the dialog as it opens and end
  --scale 1|2            pixels per point of the dialog (with --snapshot)
  --dark                 light text on dark ground
  --list                 list the printers, their kind and their panels, and end
  --ask-queue VERB       add or remove the ask queue of the printer named behind it, or list
                         them all: on that queue every program's jobs wait for the dialog
  --held-job JOB         the dialog for a job of yours that waits there
  --plugin-dir DIR       look for panels in this directory first
  --marks                print times of the start on standard output and end (for measuring)
  --help, --version      show this text, or the version, and end

Documents are PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or UTF-8 text. How they are laid onto
labels is said with -o:
  print-scaling=auto|none|fit|fill, natural-scaling=PERCENT, orientation-requested=3|4|5|6,
  position=center|top|bottom|left|right|top-left|..., label-length=content,
  text-labels=paragraph|line, text-font=FAMILY, text-size=POINTS; raw sends a document as it is

Exit status: 0 done, 1 error, 2 wrong usage, 3 cancelled with nothing printed. --print is
done when the print server has taken the whole document; with --wait, when the job has ended
and something came out: it is an error when the job was cancelled or given up, or ended
without a page. With --each a document that cannot be read keeps no other from being printed,
and is an error.
)";

using Problem = std::optional<std::string>;

Problem setCommand(CommandLine& line, Command command) {
  if (line.command != Command::dialog && line.command != command)
    return "--print, --dry-run, --summary, --options, --plan, --choices, --snapshot, --list and "
           "--ask-queue exclude each other";
  line.command = command;
  return std::nullopt;
}

Problem setCopies(CommandLine& line, const std::string& text) {
  const std::optional<int> copies = numberIn<int>(text);
  if (!copies || *copies < 1 || *copies > kMostCopies)
    return "copies: \"" + text + "\" is no number from 1 to " + std::to_string(kMostCopies);
  line.asked.copies = copies;
  return std::nullopt;
}

Problem setPages(CommandLine& line, const std::string& text) {
  const Result<PageRanges> ranges = PageRanges::parse(text);
  if (!ranges) return ranges.error().message;
  line.asked.pageRanges = ranges->text();
  return std::nullopt;
}

Problem setScale(CommandLine& line, const std::string& text) {
  if (text != "1" && text != "2") return "--scale takes 1 or 2";
  line.scale = text == "2" ? 2 : 1;
  return std::nullopt;
}

// One option of -o. Copies and pages have their own places; a plain `media` names the page size.
Problem setOption(CommandLine& line, const std::string& typed, const std::string& value) {
  const std::string name = spelledJobAttribute(typed);
  if (name == "copies") return setCopies(line, value);
  if (name == "page-ranges") return setPages(line, value);
  const bool isPageSize = name == "media" && value.find(',') == std::string::npos;
  line.asked.options.emplace_back(isPageSize ? "PageSize" : name, value);
  return std::nullopt;
}

Problem addOptions(CommandLine& line, const std::string& text) {
  const OptionList options = CupsOptions::parse(text.c_str()).list();
  if (options.empty()) return "-o needs NAME=VALUE, not \"" + text + "\"";
  for (const auto& [name, value] : options)
    if (Problem problem = setOption(line, name, value)) return problem;
  return std::nullopt;
}

Problem setDestination(CommandLine& line, const std::string& text) {
  if (text.empty() || text.front() == '/') return "-d needs the name of a printer";
  line.destination = DestinationName::parse(text);
  return std::nullopt;
}

Problem setDryRun(CommandLine& line, const std::string& path) {
  line.dryRunPath = path;
  return setCommand(line, Command::dryRun);
}

Problem setSnapshot(CommandLine& line, const std::string& path) {
  line.snapshotPath = path;
  return setCommand(line, Command::snapshot);
}

Problem setAskQueue(CommandLine& line, const std::string& verb) {
  if (verb != "add" && verb != "remove" && verb != "list")
    return "--ask-queue takes add, remove or list";
  line.askQueueVerb = verb;
  return setCommand(line, Command::askQueue);
}

Problem setHeldJob(CommandLine& line, const std::string& text) {
  line.heldJobId = numberIn<int>(text);
  if (!line.heldJobId || *line.heldJobId < 1)
    return "--held-job: \"" + text + "\" is no number of a job";
  return std::nullopt;
}

template <typename Field>
Problem store(Field& field, const std::string& text) {
  field = text;
  return std::nullopt;
}

Problem turnOn(bool& flag) {
  flag = true;
  return std::nullopt;
}

// What goes to a server or into its logs.
Problem checkPlain(int option, const std::string& text) {
  constexpr std::string_view kSent = "dtohU";
  if (option >= kPpd || kSent.find(static_cast<char>(option)) == kSent.npos) return std::nullopt;
  if (isPlainLine(text)) return std::nullopt;
  return std::string("-") + static_cast<char>(option) + " \"" + text +
         "\" has control characters or is no UTF-8";
}

Problem apply(CommandLine& line, int option, const std::string& text) {
  if (Problem problem = checkPlain(option, text)) return problem;
  switch (option) {
    case 'd':
      return setDestination(line, text);
    case 'n':
      return setCopies(line, text);
    case 'P':
      return setPages(line, text);
    case 't':
      return store(line.title, text);
    case 'o':
      return addOptions(line, text);
    case 'h':
      return store(line.server.server, text);
    case 'E':
      return turnOn(line.server.encrypt);
    case 'U':
      return store(line.server.user, text);
    case 'q':
      return turnOn(line.isQuiet);
    case kPpd:
      return store(line.ppdPath, text);
    case kPrint:
      return setCommand(line, Command::print);
    case kDryRun:
      return setDryRun(line, text);
    case kWait:
      return turnOn(line.waits);
    case kEach:
      return turnOn(line.isEach);
    case kSummary:
      return setCommand(line, Command::summary);
    case kOptions:
      return setCommand(line, Command::options);
    case kPlan:
      return setCommand(line, Command::plan);
    case kJson:
      return turnOn(line.asJson);
    case kChoices:
      return setCommand(line, Command::choices);
    case kSnapshot:
      return setSnapshot(line, text);
    case kScale:
      return setScale(line, text);
    case kDark:
      return turnOn(line.dark);
    case kList:
      return setCommand(line, Command::list);
    case kAskQueue:
      return setAskQueue(line, text);
    case kHeldJob:
      return setHeldJob(line, text);
    case kPluginDirectory:
      return store(line.pluginDirectory, text);
    case kMarks:
      return turnOn(line.marks);
    case kOnce:
      return turnOn(line.isOnce);
    case kChoose:
      return turnOn(line.isChoosing);
    case kParent:
      return store(line.parentWindow, text);
    case kWindowTitle:
      return store(line.windowTitle, text);
    default:
      return "unknown option";
  }
}

// What programs say that open the dialog on somebody's behalf.
Problem checkForPrograms(const CommandLine& line) {
  const bool isDialog = line.command == Command::dialog;
  if (line.isOnce && !isDialog) return "--once goes with the dialog only";
  if (line.isChoosing && !isDialog) return "--choose goes with the dialog only";
  if (line.parentWindow && !isDialog) return "--parent goes with the dialog only";
  if (line.windowTitle && !isDialog) return "--window-title goes with the dialog only";
  if (line.isChoosing && (line.isOnce || !line.files.empty()))
    return "--choose takes no document and prints none";
  return std::nullopt;
}

// The printer stands where documents do.
Problem checkAskQueue(const CommandLine& line) {
  if (line.command != Command::askQueue) return std::nullopt;
  if (line.askQueueVerb == "list")
    return line.files.empty() ? Problem() : "--ask-queue list takes nothing behind it";
  if (line.files.size() == 1) return std::nullopt;
  return "--ask-queue " + line.askQueueVerb + " takes the name of one printer";
}

Problem checkHeldJob(const CommandLine& line) {
  if (!line.heldJobId) return std::nullopt;
  const bool isOther = line.command != Command::dialog || line.ppdPath || line.destination;
  if (isOther || !line.files.empty())
    return "--held-job goes with no other command, printer or document";
  return std::nullopt;
}

Problem checkEach(const CommandLine& line) {
  if (!line.isEach) return std::nullopt;
  if (line.command != Command::print) return "--each goes with --print only";
  const bool hasInput = std::find(line.files.begin(), line.files.end(), "-") != line.files.end();
  if (line.files.empty() || hasInput) return "--each takes documents by their names";
  return std::nullopt;
}

Problem checkTogether(const CommandLine& line) {
  if (Problem problem = checkAskQueue(line)) return problem;
  if (Problem problem = checkHeldJob(line)) return problem;
  if (line.waits && line.command != Command::print) return "--wait goes with --print only";
  if (Problem problem = checkEach(line)) return problem;
  if (Problem problem = checkForPrograms(line)) return problem;
  if (line.asJson && line.command != Command::plan) return "--json goes with --plan only";
  const bool isUnseen = line.command == Command::print || line.command == Command::options;
  if (line.asked.isRaw() && !isUnseen) return "-o raw goes with --print only";
  if (!line.ppdPath) return std::nullopt;
  if (line.destination) return "--ppd and -d exclude each other";
  if (line.command == Command::list) return "--ppd and --list exclude each other";
  if (line.command == Command::print)
    return "--ppd cannot print: a PPD file is no printer; name one with -d";
  return std::nullopt;
}

Problem setFiles(CommandLine& line, const std::vector<std::string>& words) {
  line.files = words;
  if (std::count(words.begin(), words.end(), "-") <= 1) return std::nullopt;
  return "standard input can be one document only";
}

// getopt could not read an option; a letter of its own is in optopt, a long one in the word.
std::string complaint(int answer, const char* word) {
  const bool isLetter = optopt > 0 && optopt < kPpd;
  const std::string option = isLetter ? std::string("-") + static_cast<char>(optopt) : word;
  return (answer == ':' ? "no value for " : "unknown option ") + option;
}

CommandLine only(Command command) {
  CommandLine line;
  line.command = command;
  return line;
}

}  // namespace

Result<CommandLine> parseCommandLine(int argc, const char* const* argv) {
  CommandLine line;
  auto* const words = const_cast<char**>(argv);
  opterr = 0;
  optind = 0;  // getopt starts afresh
  for (;;) {
    const int option = getopt_long(argc, words, kShortOptions, kLongOptions, nullptr);
    if (option == -1) break;
    if (option == '?' || option == ':') return Error{complaint(option, words[optind - 1])};
    if (option == kHelp) return only(Command::help);
    if (option == kVersion) return only(Command::version);
    if (Problem problem = apply(line, option, optarg != nullptr ? optarg : ""))
      return Error{*problem};
  }
  if (Problem problem = setFiles(line, {words + optind, words + argc})) return Error{*problem};
  if (Problem problem = checkTogether(line)) return Error{*problem};
  return line;
}

std::string helpText() { return kHelpText; }

}  // namespace cutline
