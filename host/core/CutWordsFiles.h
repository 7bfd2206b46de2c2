// The files of cut words: the installation's, the administrator's and the user's own.
#pragma once

#include <string>
#include <vector>

#include "host/core/CutWordsText.h"

namespace cutline {

class PpdFile;

// In the order in which they are read. The later ones need not be there.
std::vector<std::string> cutWordsPaths();

// The words of all files, one behind the other, and what is wrong with them. A file that there is
// not has none; one that is no plain text of a sensible size is left out as a whole.
CutWordsText readCutWords(const std::vector<std::string>& paths);

// Those of this program's paths that count for a printer: none where its PPD has the cut panel's
// options. Read once, for the first printer that needs them.
const CutWordsText& cutWordsFor(const PpdFile& ppd);

}  // namespace cutline
