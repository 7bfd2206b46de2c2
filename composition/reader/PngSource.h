// A PNG as a page.
#pragma once

#include <string>

#include "composition/reader/Picture.h"

namespace cutline {

class PngSource : public DocumentSource {
 public:
  // From an open file, which stays the caller's.
  explicit PngSource(int descriptor);

  int pageCount() override { return 1; }
  PageSize pageSize(int) override { return picturePage(mFacts); }
  DrawnPage draw(int page, LabelWriter& labels) override;

 private:
  std::string mBytes;
  PictureFacts mFacts;
};

}  // namespace cutline
