// The options that are saved for destinations and instances in the files of lpoptions: the
// administrator's and the user's own.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Result.h"
#include "cups/Destination.h"

namespace cutline {

struct SavedEntry {
  DestinationName name;
  bool isDefault = false;
  OptionList options;
};

// An absent file has no entries.
std::vector<SavedEntry> readSavedEntries(const std::string& path);

// The file that this user's options are saved in. Without a home it is the administrator's.
std::string userOptionsPath();

// What this user's prints to the destination begin with: the administrator's entry, and over it the
// user's. Nothing when neither file knows the name.
std::optional<OptionList> savedOptionsFor(const DestinationName& name);

// The default printer by these files; the user's counts before the administrator's.
std::optional<DestinationName> savedDefault();

// Whether libcups takes the two names for one: capitals do not count, of two instances that differ
// in them alone it makes one with the options of both.
bool isSame(const DestinationName& one, const DestinationName& other);

// The name as it is saved first, in whichever letters it was typed; as it stands when it is not.
DestinationName spelledAsSaved(const DestinationName& name);

// The instances of a printer that either file knows, each in the spelling of the first.
std::vector<std::string> savedInstances(const std::string& printer);

// Why the file cannot hold these options under this name; nothing when it can.
std::optional<Error> whyNotSaved(const DestinationName& name, const OptionList& options);

// Puts the options in place of those that the user's file has under the name; a default stays it.
// Every other byte of the file stays, and what other programs save at the same time.
Result<Done> saveEntry(const DestinationName& name, const OptionList& options);
// Takes the entry out of the user's file, with the same care.
Result<Done> removeEntry(const DestinationName& name);

}  // namespace cutline
