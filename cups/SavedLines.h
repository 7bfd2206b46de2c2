// The text of a file of saved options, as lpoptions writes it, changed in one entry alone.
#pragma once

#include <string>

#include "base/OptionList.h"
#include "cups/Destination.h"

namespace cutline {

// The line of an entry, without its end: "Dest NAME[/INSTANCE] OPTIONS".
std::string savedLine(const DestinationName& name, bool isDefault, const OptionList& options);

// The text with this entry in place of the one of that name, or behind the others; what was the
// default stays it. Every other byte is as it was.
std::string withEntry(const std::string& text, const DestinationName& name,
                      const OptionList& options);
// The text without the entry.
std::string withoutEntry(const std::string& text, const DestinationName& name);

}  // namespace cutline
