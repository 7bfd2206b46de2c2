#include "host/core/OptionSpelling.h"

#include <strings.h>

#include <algorithm>

#include "cups/PpdFile.h"

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
    "fill",
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
    "label-length",
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
    "text-font",
    "text-labels",
    "text-size",
    "wrap",
    "ipp-attribute-fidelity",
};

}  // namespace

std::span<const char* const> jobAttributes() { return kJobAttributes; }

std::string spelledJobAttribute(const std::string& name) {
  for (const char* known : kJobAttributes)
    if (strcasecmp(known, name.c_str()) == 0) return known;
  return name;
}

OptionList spelledFor(const PpdFile& ppd, const OptionList& options) {
  OptionList spelled;
  for (const auto& typed : options) {
    const auto option =
        ppd.hasOption(typed.first)
            ? ppd.spelled(typed)
            : OptionList::value_type(spelledJobAttribute(typed.first), typed.second);
    std::erase_if(spelled, [&](const auto& earlier) { return earlier.first == option.first; });
    spelled.push_back(option);
  }
  return spelled;
}

}  // namespace cutline
