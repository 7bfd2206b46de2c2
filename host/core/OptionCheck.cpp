#include <strings.h>

#include <algorithm>
#include <numeric>
#include <sstream>

#include "host/core/OptionTable.h"
#include "host/core/PrintModel.h"

namespace cutline {

namespace {

// Job attributes that the print system knows beside the PPD's options.
constexpr const char* kJobAttributes[] = {
    "blackplot",
    "brightness",
    "collate",
    "columns",
    "copies",
    "cpi",
    "document-format",
    "finishings",
    "fit-to-page",
    "fitplot",
    "gamma",
    "hue",
    "job-billing",
    "job-cancel-after",
    "job-hold-until",
    "job-password",
    "job-priority",
    "job-sheets",
    "landscape",
    "lpi",
    "media",
    "media-col",
    "media-source",
    "media-type",
    "mirror",
    "multiple-document-handling",
    "natural-scaling",
    "number-up",
    "number-up-layout",
    "orientation-requested",
    "output-bin",
    "output-mode",
    "outputorder",
    "page-border",
    "page-bottom",
    "page-left",
    "page-ranges",
    "page-right",
    "page-set",
    "page-top",
    "penwidth",
    "position",
    "ppi",
    "prettyprint",
    "print-color-mode",
    "print-content-optimize",
    "print-quality",
    "print-rendering-intent",
    "print-scaling",
    "printer-resolution",
    "raw",
    "saturation",
    "scaling",
    "sides",
    "wrap",
    "ipp-attribute-fidelity",
};

// What one value of `media` may name.
constexpr const char* kMediaOptions[] = {"PageSize", "MediaType", "InputSlot"};

bool isJobAttribute(const std::string& name) {
  return std::any_of(std::begin(kJobAttributes), std::end(kJobAttributes),
                     [&](const char* known) { return strcasecmp(known, name.c_str()) == 0; });
}

// How many single letters have to be changed, put in or taken out.
std::size_t distance(const std::string& from, const std::string& to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < to.size(); ++j) {
      const bool same = tolower(from[i]) == tolower(to[j]);
      const std::size_t change = diagonal + (same ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({change, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

std::vector<std::string> knownNames(const OptionTable& table) {
  std::vector<std::string> names(std::begin(kJobAttributes), std::end(kJobAttributes));
  for (const OptionGroup& group : table.groups())
    for (const PpdOption& option : group.options) names.push_back(option.keyword);
  return names;
}

Error unknownOption(const OptionTable& table, const std::string& name) {
  const std::size_t near = std::max<std::size_t>(2, name.size() / 3);
  std::string names;
  for (const std::string& known : knownNames(table))
    if (distance(name, known) <= near) names += (names.empty() ? "" : ", ") + known;
  if (names.empty()) {
    return Sentence(Phrase("host", "unknown option \"%1\"; this printer has no such option"),
                    {name});
  }
  return Sentence(Phrase("host", "unknown option \"%1\"; is it %2?"), {name, names});
}

// A list such as "24mm,Roll": each part names a size, a kind or a source of paper.
Result<Done> checkMedia(const PpdFile& ppd, const std::string& value) {
  std::istringstream parts(value);
  for (std::string part; std::getline(parts, part, ',');) {
    const bool known =
        std::any_of(std::begin(kMediaOptions), std::end(kMediaOptions), [&](const char* keyword) {
          return ppd.hasOption(keyword) && static_cast<bool>(ppd.checkChoice(keyword, part));
        });
    if (!known) return ppd.checkChoice("PageSize", part);
  }
  return Done{};
}

Result<Done> checkOption(const PpdFile& ppd, const OptionTable& table, const std::string& name,
                         const std::string& value) {
  if (name == "media") return checkMedia(ppd, value);
  if (ppd.hasOption(name)) return ppd.checkChoice(name, value);
  if (isJobAttribute(name)) return Done{};
  return unknownOption(table, name);
}

}  // namespace

Result<Done> checkOptions(const PpdFile& ppd, const OptionList& options) {
  const OptionTable table(ppd);
  for (const auto& [name, value] : options)
    if (Result<Done> checked = checkOption(ppd, table, name, value); !checked) return checked;
  return Done{};
}

}  // namespace cutline
