// The options that are saved for destinations and instances in the files of lpoptions: the
// administrator's and the user's own.
#pragma once

#include <optional>
#include <string>
#include <vector>

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

// The instances of a printer that either file knows.
std::vector<std::string> savedInstances(const std::string& printer);

}  // namespace cutline
