// How many pages a PDF has, before they are looked at.
#pragma once

#include <qpdf/QPDF.hh>

namespace cutline {

// Throws a Refusal where the PDF states more pages than a job may have, or has more than it states.
void refuseTooManyPages(QPDF& pdf);

}  // namespace cutline
