// Which printer an application's request is for, and whether our dialog is for that printer.
#pragma once

#include <QVariantMap>
#include <functional>
#include <optional>

#include "cups/ServerOptions.h"
#include "host/core/PrintValues.h"

namespace cutline::portal {

// Whether the driver lets the cutter be set: it has our cut options, or words for cutting that we
// know. Marks the defaults of a driver that has none of our options.
bool isLabelPrinter(const PpdFile& ppd);

struct MeantPrinter {
  bool isForLabels = false;
  // What to open the dialog with; no name where it chooses by itself.
  std::optional<DestinationName> name;
  AskedSettings asked;
};

// The printer that the settings name; else, for a page as small as a label, the first label
// printer; else the user's default printer. May block on the print server, and may run on any
// thread.
MeantPrinter findMeantPrinter(const ServerOptions& server, const QVariantMap& settings,
                              const QVariantMap& pageSetup);

}  // namespace cutline::portal
