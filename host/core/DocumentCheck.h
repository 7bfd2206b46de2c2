// What can be known of a document before it is sent, so that what cannot be printed is refused
// here, and not by a filter when nobody looks any more.
#pragma once

#include <optional>
#include <string>

#include "base/OptionList.h"
#include "base/Result.h"
#include "cups/DocumentFile.h"

namespace cutline {

struct DocumentFacts {
  std::string format;        // as documentFormat says
  std::optional<int> pages;  // nothing where only printing tells, as with text
};

// An error, which names the file, for what cannot be read, is damaged, is locked with a password,
// has no pages, or may not be printed. What is of a kind that is not known here passes: the print
// server may know it.
Result<DocumentFacts> checkDocument(const std::string& path);

// The error of a PDF that passes the check and that another library cannot read all the same.
Error damagedPdf(const std::string& path);

// An error where the job's options ask for pages (page-ranges) that the document does not have.
Result<Done> checkPages(const DocumentFacts& document, const OptionList& options);

}  // namespace cutline
