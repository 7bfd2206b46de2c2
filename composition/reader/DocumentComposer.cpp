#include "composition/reader/DocumentComposer.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <functional>
#include <new>
#include <qpdf/QPDFExc.hh>
#include <stdexcept>
#include <utility>

#include "composition/EdgeLoss.h"
#include "composition/reader/DocumentBytes.h"
#include "composition/reader/InkBounds.h"
#include "composition/reader/OpenedDocument.h"
#include "composition/reader/PageChoice.h"
#include "composition/reader/ReadAhead.h"
#include "composition/reader/Refusal.h"

namespace cutline {
namespace {

// What is shorter, such as a text, has few labels.
constexpr std::size_t kFewBytes = 512;

// A page that becomes a label.
struct Page {
  OpenedDocument* document;
  int documentIndex;
  int number;  // within its document
  PageSize size;
};

bool isLabel(const LabelPage& label) {
  return std::isfinite(label.width) && std::isfinite(label.length) && label.width > 0 &&
         label.length > 0 && label.printableWidth() > 0 && label.printableLength() > 0;
}

bool needsPassword(const QPDFExc& problem) {
  // An encryption that is unknown here needs another key than the empty password, too.
  return problem.getErrorCode() == qpdf_e_password || problem.getErrorCode() == qpdf_e_unsupported;
}

// What the exception that is being handled means for a document.
Refusal refusal() {
  try {
    throw;
  } catch (const Refusal& known) {
    return known;
  } catch (const QPDFExc& problem) {
    return {needsPassword(problem) ? DocumentProblem::locked : DocumentProblem::damaged,
            problem.getMessageDetail()};
  } catch (const std::bad_alloc&) {
    return {DocumentProblem::tooLarge, {}};
  } catch (const std::length_error&) {
    return {DocumentProblem::tooLarge, {}};
  } catch (const std::exception& problem) {
    return {DocumentProblem::damaged, problem.what()};
  }
}

}  // namespace

class DocumentComposer::Composing {
 public:
  void readAhead(const std::vector<int>& documents, const std::function<bool()>& isAsked) noexcept {
    for (QPDFObjectHandle& form : mAhead.read(documents, mLabels)) {
      if (isAsked()) return;
      mInk.read(form);
    }
  }

  CompositionReport compose(const CompositionRequest& request, const std::vector<int>& documents,
                            int output, const ReaderModules& modules) noexcept {
    mRequest = request;
    mReport.label = request.label;
    try {
      if (!isLabel(mRequest.label)) throw Refusal{DocumentProblem::broken, "label"};
      for (const int descriptor : documents) mBytes += sizeOf(descriptor);
      if (mRequest.takesAllWhereFew && mBytes <= kFewBytes) mRequest.pages.most = 0;
      openAll(documents, modules);
      choosePages();
      chooseLength();
      writeLabels(output);
    } catch (...) {
      const Refusal why = refusal();
      mReport.failure = {why.problem, mCurrent, why.detail};
    }
    return std::move(mReport);
  }

 private:
  void openAll(const std::vector<int>& documents, const ReaderModules& modules) {
    for (const int descriptor : documents) {
      mCurrent = static_cast<int>(mDocuments.size());
      std::unique_ptr<PdfSource> before = mAhead.take(descriptor);
      mDocuments.push_back(before ? openedBefore(std::move(before), mRequest)
                                  : openDocument(descriptor, mRequest, modules));
      mReport.documentPages += mDocuments.back().source->pageCount();
      mReport.isPartial |= mDocuments.back().isPartial;
    }
  }

  bool hasFew() const {
    return !mReport.isPartial && mReport.documentPages <= kFewLabels && mBytes <= kSoonRead;
  }

  void choosePages() {
    if (mRequest.takesAllWhereFew && hasFew()) mRequest.pages.most = 0;
    int document = 0;
    std::vector<Page> all;
    for (OpenedDocument& opened : mDocuments) {
      for (int page = 0; page < opened.source->pageCount(); ++page)
        all.push_back({&opened, document, page, {}});
      ++document;
    }
    mCurrent = 0;
    for (const int page : chosenPages(mRequest.pages, mReport.documentPages))
      mPages.push_back(all.at(static_cast<std::size_t>(page)));
    for (Page& page : mPages) {
      mCurrent = page.documentIndex;
      page.size = page.document->source->pageSize(page.number);
    }
  }

  // The margins stay as they are.
  void chooseLength() {
    if (!mRequest.lengthBounds) return;
    double length = 0;
    for (const Page& page : mPages)
      length = std::max(length, lengthFor(page.size, mRequest.label, page.document->layout,
                                          *mRequest.lengthBounds));
    LabelPage& label = mReport.label;
    label.top = length - (label.length - label.top);
    label.length = length;
  }

  void writeLabels(int output) {
    mLabels.setLabel(mReport.label, mRequest.isMirrored);
    for (const Page& page : mPages) {
      mCurrent = page.documentIndex;
      const LayoutSettings& layout = page.document->layout;
      const Placement placement = placed(page.size, mReport.label, layout);
      const DrawnPage drawn = page.document->source->draw(page.number, mLabels);
      mLabels.addPage(drawn, placement);
      ComposedPage& composed =
          mReport.pages.emplace_back(ComposedPage{page.size, placement.scale, placement.turn});
      if (isInkSought() && mayLoseEdges(composed, mReport.label, layout))
        composed.hasPrintableInk =
            mInk.arePrintable(drawn.form, mLabels.placing(drawn, placement), mReport.label);
    }
    mLabels.write(output);
  }

  bool isInkSought() const { return mRequest.seeksInk && mReport.pages.size() <= kMostInks; }

  CompositionRequest mRequest;
  std::size_t mBytes = 0;  // of all documents
  ReadAhead mAhead;
  std::vector<OpenedDocument> mDocuments;
  InkBounds mInk;
  LabelWriter mLabels;  // reads from the documents as long as it lives
  std::vector<Page> mPages;
  int mCurrent = 0;  // the document that is being read
  CompositionReport mReport;
};

DocumentComposer::DocumentComposer() : mComposing(std::make_unique<Composing>()) {}
DocumentComposer::~DocumentComposer() = default;

void DocumentComposer::readAhead(const std::vector<int>& documents,
                                 const std::function<bool()>& isAsked) noexcept {
  mComposing->readAhead(documents, isAsked);
}

CompositionReport DocumentComposer::compose(const CompositionRequest& request,
                                            const std::vector<int>& documents, int output,
                                            const ReaderModules& modules) {
  return mComposing->compose(request, documents, output, modules);
}

}  // namespace cutline
