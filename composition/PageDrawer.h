// Asks the drawer, a confined program of its own, for pictures of a composed PDF's pages.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/Result.h"
#include "base/TemporaryFile.h"

namespace cutline {

inline constexpr char kDrawerName[] = "cutline-draw";

// Rows from top to bottom, `width` pixels each, 0xAARRGGBB, colours premultiplied by alpha.
struct PageImage {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

// Holds one drawer as long as it lives. Calls may take seconds: never on the thread that draws.
// They may come from any thread; one waits for the other.
class PageDrawer {
 public:
  // For one picture.
  static constexpr std::chrono::seconds kPatience{20};

  // Keeps the file. The error says why there is no drawer, or that it cannot read the PDF.
  static Result<std::shared_ptr<PageDrawer>> open(const std::string& helperDirectory,
                                                  std::shared_ptr<const TemporaryFile> pdf,
                                                  std::chrono::milliseconds patience = kPatience);
  ~PageDrawer();
  PageDrawer(const PageDrawer&) = delete;
  PageDrawer& operator=(const PageDrawer&) = delete;

  int pageCount() const noexcept { return mPageCount; }
  // The page, counted from 0, on white paper, at `scale` pixels a point. An error names the page,
  // counted from 1; a drawer that died is followed by a new one for the next page.
  Result<PageImage> draw(int page, double scale);

 private:
  struct State;
  explicit PageDrawer(std::unique_ptr<State> state);

  std::unique_ptr<State> mState;
  int mPageCount = 0;
};

}  // namespace cutline
