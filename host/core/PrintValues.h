// What goes in and out of a print dialog's model: the printer that it opens, what was asked for,
// and what it answers of panels, options and notices.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/OptionList.h"
#include "base/Sentence.h"
#include "cups/Destination.h"
#include "cups/PpdFile.h"

namespace cutline {

class PrintDialogPanel;
class View;

// What was asked for beside the printer, on the command line.
struct AskedSettings {
  OptionList options;                     // -o; PPD options and others; laid over the saved options
  std::optional<int> copies;              // 1 or more; the saved ones, or 1, when absent
  std::optional<std::string> pageRanges;  // "1-4,7", as in IPP; the saved ones, or all, when absent

  // The document goes to the printer as it is, without being laid out or looked at.
  bool isRaw() const;
};

// A printer as the model opens it. `destination.savedOptions` are those of the instance when the
// name has one. Without a queue (a PPD file alone) the destination's name is empty.
struct PrinterChoice {
  Destination destination;
  std::shared_ptr<PpdFile> ppd;
};

// A panel of a plug-in. The view is in no window: the dialog puts it into one, and takes it out
// before the printer is switched or the model closes.
struct PanelEntry {
  std::string name;
  std::shared_ptr<View> view;  // null when the panel could not load it
  std::shared_ptr<PrintDialogPanel> panel;
};

struct SummaryLine {
  std::string title;
  std::string value;
};

// One thing that a user would not expect of what is sent: a rule changes what was asked for, or
// speaks against it, or nothing on the panel shows it.
struct Deviation {
  std::string keyword;
  std::string asked;  // the choice that was asked for
  std::string sent;   // the choice that will be sent; the same when nothing was changed
  Sentence sentence;  // for people
};

}  // namespace cutline
