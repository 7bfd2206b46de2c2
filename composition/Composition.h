// What is asked of the composer, and what it answers: documents laid onto pages of exactly a
// label's size, as one PDF. The text forms are what a helper process reads and writes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Result.h"
#include "composition/LabelPage.h"
#include "composition/Layout.h"
#include "composition/PageRanges.h"

namespace cutline {

// What a text becomes a label of.
enum class TextUnit { paragraph, line };

struct TextSettings {
  TextUnit unit = TextUnit::paragraph;
  std::string font;  // a family; empty for the system's sans-serif
  double size = 0;   // points; 0 for as large as fits
  friend bool operator==(const TextSettings&, const TextSettings&) = default;
};

enum class PageSet { all, odd, even };

// Which pages, counted over all documents of the job, and in which order.
struct PageSelection {
  PageRanges ranges;
  PageSet set = PageSet::all;
  bool isReversed = false;
  int most = 0;  // only so many of them, from the beginning; 0 for all

  // How many of a document's first pages are enough; 0 where all are needed, as the first that are
  // chosen may be any.
  int neededFirst() const;
  friend bool operator==(const PageSelection&, const PageSelection&) = default;
};

struct CompositionRequest {
  LabelPage label;
  // The label is as long as its longest page needs, within these; `label.length` says nothing then.
  std::optional<LengthBounds> lengthBounds;
  LayoutSettings layout;
  TextSettings text;
  PageSelection pages;
  // All pages that are chosen instead of the most, where these are few and soon composed.
  bool takesAllWhereFew = false;
  bool isMirrored = false;
  // The report tells of pages that reach beyond what can be printed whether their ink does.
  bool seeksInk = false;
  // Of the documents, in order, for people; the documents come as open files beside the request.
  std::vector<std::string> names;

  std::string asText() const;
  static std::optional<CompositionRequest> parse(std::string_view text);
};

struct ComposedPage {
  PageSize size;     // of the document's page
  double scale = 1;  // as placed
  int turn = 0;      // as placed, clockwise degrees
  // All that it draws can be printed, as its content tells. Where it is false nobody knows, or
  // nobody asked for it.
  bool hasPrintableInk = false;
};

enum class DocumentProblem {
  unknownKind,  // nothing that can be read here
  damaged,
  locked,       // needs a password
  unprintable,  // its owner does not allow printing
  empty,        // no pages
  tooManyPages,
  badSize,        // a page of no size, or of one that no paper has
  tooLarge,       // more memory than a document may take
  tooSlow,        // more time than a document may take
  pageMissing,    // the selection names a page that is not there
  missingModule,  // what reads this kind is not installed
  broken,         // the reader failed for another reason
};

// A document that cannot be composed.
struct CompositionFailure {
  DocumentProblem problem = DocumentProblem::broken;
  int document = 0;    // which of the names
  std::string detail;  // how many pages there are, or a reader's words; may be empty
};

struct CompositionReport {
  std::optional<CompositionFailure> failure;  // nothing else counts then
  LabelPage label;                            // with its length, where the content chose it
  int documentPages = 0;                      // of all documents, before any selection
  bool isPartial = false;           // only their beginnings were read: there may be others
  std::vector<ComposedPage> pages;  // of the PDF

  std::string asText() const;
  static std::optional<CompositionReport> parse(std::string_view text);
};

}  // namespace cutline
