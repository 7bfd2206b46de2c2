// An edit of a text as a formatter judges it: what was there, what will be, and at which selection
// it is made.
#pragma once

#include <QString>

#include "platform/ports/TextField.h"
#include "qt/EditedText.h"

namespace cutline {

struct EditProposal {
  QString before;
  TextRange madeAt;
  QString after;
  TextRange selection;  // after the edit

  friend bool operator==(const EditProposal&, const EditProposal&) = default;
};

// The edit of one who works at the caret: keys, an input method, the clipboard.
EditProposal editAtSelection(const EditedText& before, const EditedText& after) noexcept;

// The edit of one who need not heed the caret, as a drop or assistive technology: when it has not
// put something in the place of the selection, it counts as made with the part selected that it
// replaces, and with the caret behind the new part.
EditProposal editAnywhere(const EditedText& before, const EditedText& after) noexcept;

}  // namespace cutline
