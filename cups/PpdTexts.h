// The texts of a PPD in the user's language. Works around libcups 2.4.2: ppdOpenFd keeps those of
// the process's locale only and does not know LANGUAGE, so the lines of the chosen languages are
// renamed before it reads them, and their texts put in place afterwards.
#pragma once

#include <string>
#include <vector>

struct ppd_file_s;

namespace cutline {

// Looks in a PPD's contents for the first of the languages (best first, named as by
// preferredLocalizations) that the PPD speaks. Renames the lines that say its texts, so that
// libcups keeps them, and empties those of other languages, which libcups would read in vain; every
// line keeps its number. Answers the names under which putTexts finds the texts, best first: none
// when the PPD's own texts are in that language, or when it speaks none of them.
std::vector<std::string> keepTexts(std::string& contents,
                                   const std::vector<std::string>& languages);

// Replaces the texts of groups, options and choices by those kept. What was not translated keeps
// the text that it has.
void putTexts(ppd_file_s& ppd, const std::vector<std::string>& kept);

}  // namespace cutline
