// What an application asks of a print dialog, in the words that portals have for it, and what a
// command line of ours says for the same. Nothing of it is trusted: only what the printer has gets
// through.
#pragma once

#include <QVariantMap>
#include <string>

#include "host/core/PrintValues.h"

namespace cutline::portal {

// The printer that the settings name, by queue or PRINTER/PRESET; empty where they name none.
std::string printerNamed(const QVariantMap& settings);

// The document, where the settings name it.
QString documentNamed(const QVariantMap& settings);

// Copies, pages and their order, the options "cups-NAME" of which the PPD has the choice, and the
// paper of the page setup where the printer has one of that name or size.
AskedSettings askedOf(const QVariantMap& settings, const QVariantMap& pageSetup,
                      const PpdFile& ppd);

// Whether the page is as narrow as labels are and sheets are not.
bool isLabelPage(const QVariantMap& pageSetup);

}  // namespace cutline::portal
