// Names of options as the printer or the print system spells them. Capitals do not count when
// libcups reads options, so what was typed or saved gets one spelling before anything compares it.
#pragma once

#include <span>
#include <string>

#include "base/OptionList.h"

namespace cutline {

class PpdFile;

// The job attributes that the print system knows beside a PPD's options.
std::span<const char* const> jobAttributes();

// A job attribute's own spelling; any other name as it stands.
std::string spelledJobAttribute(const std::string& name);

// Options and choices of the PPD, and job attributes, in their own spelling; the rest as it stands.
// An option that is there several times is there once, with the last value, as libcups reads it.
OptionList spelledFor(const PpdFile& ppd, const OptionList& options);

}  // namespace cutline
