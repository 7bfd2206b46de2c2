// An open PPD file. Panels borrow its records, so it is shared and outlives each panel that was
// made for it.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/Result.h"
#include "cups/Destination.h"
#include "cups/ServerOptions.h"

struct ppd_file_s;

namespace cutline {

class PpdMarks;
class ServerConnection;

// A page size of the PPD. Sizes in points.
struct PaperSize {
  std::string name;  // the PageSize choice
  std::string text;  // for people
  double width = 0;
  double length = 0;
  double left = 0, bottom = 0, right = 0, top = 0;  // the printable area's edges, from lower left
  bool isLoaded = false;  // the printer has it in; only where it was asked (PrintModel::papers)
};

// The sizes that a PPD takes beside its named ones, in points.
struct CustomSizes {
  double leastWidth = 0, mostWidth = 0;
  double leastLength = 0, mostLength = 0;
  double left = 0, bottom = 0, right = 0, top = 0;  // margins
};

struct OptionChoice {
  std::string name;  // the choice's keyword
  std::string text;  // for people; the keyword where the PPD gives no text
};

struct PpdOption {
  std::string keyword;
  std::string text;           // for people; the keyword where the PPD gives no text
  std::string defaultChoice;  // as the PPD says; may be empty or a choice that it does not have
  std::vector<OptionChoice> choices;
};

struct OptionGroup {
  std::string name;
  std::string text;
  std::vector<PpdOption> options;
};

// Two marked choices that one of the PPD's constraints forbids together.
struct Conflict {
  std::string keyword, choice;
  std::string otherKeyword, otherChoice;
  friend bool operator==(const Conflict&, const Conflict&) = default;
};

class PpdFile {
 public:
  ~PpdFile();
  PpdFile(const PpdFile&) = delete;
  PpdFile& operator=(const PpdFile&) = delete;

  // Reads a file, and marks its defaults. The error names file, line and reason.
  static Result<std::shared_ptr<PpdFile>> open(const std::string& path);
  // Fetches the queue's PPD from the server, into memory: no file is left behind. May block.
  static Result<std::shared_ptr<PpdFile>> fetch(const ServerOptions& server,
                                                const std::string& printer);
  // The same over a connection that is there already.
  static Result<std::shared_ptr<PpdFile>> fetchOn(const ServerConnection& connection,
                                                  const std::string& printer);

  ppd_file_s* get() const noexcept { return mPpd; }
  // Of the file's contents: another one for another file, as good as ever.
  std::size_t fingerprint() const noexcept { return mFingerprint; }

  // Marks the PPD's defaults, then each list in order. Unknown names, and sizes with measures that
  // no paper has, are left alone: callers check options that a user typed with checkChoice first.
  void mark(const std::vector<OptionList>& layers) const;

  // Marks one choice over what is marked; an unknown option or choice is left alone.
  void markChoice(const std::string& keyword, const std::string& choice) const;

  // The marked choice's keyword; empty when nothing is marked. "Custom" for any custom value.
  std::string markedChoice(const std::string& keyword) const;
  bool hasOption(const std::string& keyword) const;
  // An option and its choice as the PPD spells them, in whichever letters they were written; what
  // the PPD does not have stays as it is.
  OptionList::value_type spelled(const OptionList::value_type& option) const;
  // An error when the PPD has the option and not the choice: it lists the choices. An option that
  // the PPD does not have is no error here.
  Result<Done> checkChoice(const std::string& keyword, const std::string& choice) const;
  // Every option with a marked choice, in the PPD's order, installable options left out. Custom
  // choices with their values, as the server takes them.
  OptionList markedOptions() const;
  // Those of them that are not at the PPD's default, and of the others those with these keywords.
  OptionList markedBesideDefaults(const std::set<std::string, std::less<>>& evenAtDefault) const;
  // One option as optionGroups() has it, whatever letters it is asked for in; nothing for one that
  // they leave out.
  std::optional<PpdOption> option(const std::string& keyword) const;
  // Whether the function says so of one of them; it is called until then.
  bool anyOption(const std::function<bool(const PpdOption&)>& isMeant) const;
  // The groups that have options, in the PPD's order, subgroups after their group. Left out are the
  // installable options, the page region (it mirrors the page size) and choices that need a value.
  std::vector<OptionGroup> optionGroups() const;
  // The constraints that the marks break now, in the PPD's order, each pair once; also where an
  // installable option is one of the two.
  std::vector<Conflict> conflicts() const;
  // How many constraints conflicts() looks through.
  std::size_t constraintCount() const;

  // The named sizes, without custom ones and without measures that no paper has.
  std::vector<PaperSize> paperSizes() const;
  // The size that is marked now; no name when none is. A custom size is named by its measures, as
  // markedOptions has it ("Custom.68x283.5").
  PaperSize markedPaper() const;
  // Nothing where the PPD takes its named sizes only.
  std::optional<CustomSizes> customSizes() const;
  // An attribute's value; empty when it is absent.
  std::string attribute(const std::string& name) const;

 private:
  // `name` is what errors call the PPD.
  static Result<std::shared_ptr<PpdFile>> read(std::string contents, const Sentence& name);
  PpdFile(ppd_file_s* ppd, std::size_t fingerprint);
  ppd_file_s* mPpd;
  std::size_t mFingerprint;
  std::unique_ptr<PpdMarks> mMarks;
};

}  // namespace cutline
