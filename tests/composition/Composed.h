// Documents composed, and what came out, drawn by a reader of PDFs.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "composition/Composition.h"
#include "composition/reader/ReaderModules.h"
#include "composition/typeset/Typesetter.h"

namespace poppler {
class document;
}

namespace cutline::test {

// A label of 100 by 200 points, with margins of 10 and 20 points, read upright.
CompositionRequest labelRequest();

class Composed {
 public:
  explicit Composed(const std::vector<std::string>& documents,
                    const CompositionRequest& request = labelRequest(),
                    Typesetter* typesetter = nullptr);
  explicit Composed(const std::string& document, const CompositionRequest& request = labelRequest(),
                    Typesetter* typesetter = nullptr);
  ~Composed();

  const CompositionReport& report() const { return mReport; }
  // What it failed for; nothing where it did not.
  std::optional<DocumentProblem> problem() const;
  const std::string& pdf() const { return mPdf; }

  int pages() const;
  // The colour at a place of a page, in points from the lower left, 0xRRGGBB.
  unsigned colourAt(double x, double y, int page = 0);
  bool isBlackAt(double x, double y, int page = 0) { return colourAt(x, y, page) < 0x303030; }
  bool isWhiteAt(double x, double y, int page = 0) { return colourAt(x, y, page) > 0xf0f0f0; }
  // Whether this rectangle is black, and white around it, seen so near to its edges, in points.
  testing::AssertionResult isMarkedAt(const Area& mark, int page = 0, double near = 0.5);
  // The same of a mark in a picture, whose edges the reader of PDFs draws on the next dot but one.
  testing::AssertionResult isPictureMarkedAt(const Area& mark, int page = 0) {
    return isMarkedAt(mark, page, 1);
  }

 private:
  // Whether there was time to read the documents before the request makes no difference.
  // What is said to be printable is, as drawn.
  void expectPrintableInk();
  void expectTheSameReadAhead(const CompositionRequest& request, const std::vector<int>& documents,
                              const ReaderModules& modules) const;

  CompositionReport mReport;
  std::string mPdf;
  struct Drawn;
  std::unique_ptr<Drawn> mDrawn;
};

}  // namespace cutline::test
