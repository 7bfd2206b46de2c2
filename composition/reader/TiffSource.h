// The pictures of a TIFF as pages.
#pragma once

#include <memory>
#include <vector>

#include "composition/reader/Picture.h"

struct tiff;

namespace cutline {

class TiffSource : public DocumentSource {
 public:
  // From an open file, which stays the caller's.
  explicit TiffSource(int descriptor);

  int pageCount() override { return static_cast<int>(mPages.size()); }
  PageSize pageSize(int page) override { return picturePage(factsOf(page)); }
  DrawnPage draw(int page, LabelWriter& labels) override;

 private:
  const PictureFacts& factsOf(int page) const { return mPages.at(static_cast<std::size_t>(page)); }
  void readPages();

  struct Close {
    void operator()(tiff* file) const;
  };
  std::unique_ptr<tiff, Close> mFile;
  std::vector<PictureFacts> mPages;
};

}  // namespace cutline
