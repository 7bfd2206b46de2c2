// What a PPD says of the way from a job to the printer.
#pragma once

#include <string>
#include <vector>

#include "base/OptionList.h"

namespace cutline {

class PpdFile;

// The programs that make the printer's language, each once, by file name: "rastertolabel". Empty
// for a printer that takes what the print server has.
std::vector<std::string> filterPrograms(const PpdFile& ppd);

// Whether the printer makes copies of what it is sent once. Otherwise the print system sends each
// copy.
bool printerMakesCopies(const PpdFile& ppd);

// The options that an IPP printer's finishing is in this PPD, such as CutMedia=EndOfPage for 60.
OptionList optionsForFinishing(const PpdFile& ppd, int finishing);

}  // namespace cutline
