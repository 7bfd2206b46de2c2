#include "tests/support/PdfFile.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace cutline::test {

void writePdf(const std::string& path, int pages, const PdfLock& lock) {
  QPDF pdf;
  pdf.emptyPDF();
  const std::string label = "<</Type/Page/MediaBox[0 0 142 68]/Resources<<>>>>";
  for (int page = 0; page < pages; ++page)
    QPDFPageDocumentHelper(pdf).addPage(pdf.makeIndirectObject(QPDFObjectHandle::parse(label)),
                                        /*first=*/false);
  QPDFWriter writer(pdf, path.c_str());
  if (lock.isLocked)
    writer.setR6EncryptionParameters(lock.password.c_str(), "owner", true, true, true, true, true,
                                     true, lock.mayPrint ? qpdf_r3p_full : qpdf_r3p_none, true);
  writer.write();
}

}  // namespace cutline::test
