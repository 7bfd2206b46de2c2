#include "composition/reader/ReadAhead.h"

#include <utility>

#include "composition/reader/DocumentBytes.h"
#include "composition/reader/DocumentKind.h"

namespace cutline {

std::vector<QPDFObjectHandle> ReadAhead::read(const std::vector<int>& documents,
                                              LabelWriter& labels) noexcept {
  std::size_t bytes = 0;
  for (const int descriptor : documents) {
    bytes += sizeOf(descriptor);
    if (bytes > kSoonRead) break;
    try {
      readOne(descriptor, labels);
    } catch (...) {
      // Whatever it is, it happens again to who asks for the document, and is told then.
      continue;
    }
  }
  return std::move(mForms);
}

void ReadAhead::readOne(int descriptor, LabelWriter& labels) {
  if (documentKind(startOf(descriptor, kDocumentStart)) != DocumentKind::pdf) return;
  auto source = std::make_unique<PdfSource>(descriptor, 0);
  if (source->pageCount() > kFewLabels) return;
  // Where it cannot be drawn, it stays there.
  PdfSource& drawn = *mSpoiled.emplace_back(std::move(source));
  std::vector<QPDFObjectHandle> forms;
  for (int page = 0; page < drawn.pageCount(); ++page)
    forms.push_back(drawn.drawAhead(page, labels));
  mForms.insert(mForms.end(), forms.begin(), forms.end());
  mSources[descriptor] = std::move(mSpoiled.back());
  mSpoiled.pop_back();
}

std::unique_ptr<PdfSource> ReadAhead::take(int descriptor) {
  const auto found = mSources.find(descriptor);
  if (found == mSources.end()) return nullptr;
  std::unique_ptr<PdfSource> source = std::move(found->second);
  mSources.erase(found);
  return source;
}

}  // namespace cutline
