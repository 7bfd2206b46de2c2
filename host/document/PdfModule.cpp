#include <exception>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>

#include "host/core/BuildId.h"
#include "host/core/PdfInspection.h"

namespace cutline {

namespace {

// The filters of the print server stand on the same library, so it refuses here what they would
// refuse there, when nobody looks any more.
PdfFacts inspect(const std::string& path) {
  QPDF pdf;
  pdf.setSuppressWarnings(true);
  pdf.processFile(path.c_str());
  const bool mayPrint = pdf.allowPrintLowRes() || pdf.allowPrintHighRes();
  return {mayPrint ? PdfState::printable : PdfState::unprintable,
          static_cast<int>(pdf.getAllPages().size())};
}

}  // namespace

const char* CutlinePdfBuild() noexcept { return buildId(); }

void CutlineInspectPdf(const std::string& path, PdfFacts& facts) noexcept {
  try {
    facts = inspect(path);
  } catch (const QPDFExc& reason) {
    const bool isLocked = reason.getErrorCode() == qpdf_e_password;
    facts = {isLocked ? PdfState::locked : PdfState::damaged, 0};
  } catch (const std::exception&) {
    facts = {};
  }
}

}  // namespace cutline
