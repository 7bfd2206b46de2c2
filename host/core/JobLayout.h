// How a job's documents are laid onto labels, and the options that say so: those of lp where lp has
// them, with what they mean there.
#pragma once

#include <string>
#include <string_view>

#include "base/OptionList.h"
#include "base/Result.h"
#include "composition/Composition.h"

namespace cutline {

struct JobLayout {
  LayoutSettings placing;
  TextSettings text;
  bool followsContent = false;  // the label is as long as its content
  bool isMirrored = false;      // every page, whatever the printer mirrors on its own
  PageSet pageSet = PageSet::all;
  bool isReversed = false;  // the last page first
  friend bool operator==(const JobLayout&, const JobLayout&) = default;
};

// True for an option that says how documents are laid out. It is not sent: the document that is
// sent is laid out already.
bool isLayoutOption(std::string_view name) noexcept;

// Applies the layout options of a list in their order, so that the last one counts; other options,
// and values that are none, change nothing.
void applyLayoutOptions(const OptionList& options, JobLayout& layout);

// An error, which lists the values, for a layout option whose value is none.
Result<Done> checkLayoutOption(const std::string& name, const std::string& value);

// The options that say the same as the layout, without those at their beginning state.
OptionList layoutOptions(const JobLayout& layout);

// True for an option that has the print system's filters lay a document out, which a document that
// is laid out already has no use for, and nothing here does instead.
bool isForeignLayoutOption(std::string_view name) noexcept;

// What is sent with a document that is laid out already: these options without any of those above,
// and with those that keep every filter from scaling or turning it again, whatever is saved for the
// queue or the user.
OptionList withoutLayout(const OptionList& options);
OptionList forLaidOutDocument(const OptionList& options);

}  // namespace cutline
