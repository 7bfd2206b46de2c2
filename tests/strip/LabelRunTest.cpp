// In which order labels are printed, which is the print system's.
#include <gtest/gtest.h>

#include "strip/LabelRun.h"

namespace cutline::test {
namespace {

std::vector<unsigned> pagesOf(const LabelRun& run) {
  std::vector<unsigned> pages;
  for (std::uint64_t label = 1; label <= run.labels(); ++label) pages.push_back(run.pageOf(label));
  return pages;
}

using Pages = std::vector<unsigned>;

TEST(LabelRun, IsTheDocumentForOneCopy) {
  EXPECT_EQ(pagesOf({.pages = {2, 3, 5}}), (Pages{2, 3, 5}));
  EXPECT_EQ(pagesOf({.pages = {2, 3, 5}, .isCollated = true}), (Pages{2, 3, 5}));
}

TEST(LabelRun, RepeatsEachPageUnlessCopiesAreCollated) {
  EXPECT_EQ(pagesOf({.pages = {1, 2, 3}, .copies = 2}), (Pages{1, 1, 2, 2, 3, 3}));
  EXPECT_EQ(pagesOf({.pages = {1, 2, 3}, .copies = 2, .isCollated = true}),
            (Pages{1, 2, 3, 1, 2, 3}));
}

TEST(LabelRun, KeepsTheOrderOfTheChosenPages) {
  EXPECT_EQ(pagesOf({.pages = {7, 4}, .copies = 2, .isCollated = true}), (Pages{7, 4, 7, 4}));
}

TEST(LabelRun, SaysWhichCopyOfItsPageALabelIs) {
  const auto copiesOf = [](const LabelRun& run) {
    std::vector<unsigned> copies;
    for (std::uint64_t label = 1; label <= run.labels(); ++label)
      copies.push_back(run.copyOf(label));
    return copies;
  };
  EXPECT_EQ(copiesOf({.pages = {4, 5, 6}, .copies = 2}), (Pages{1, 2, 1, 2, 1, 2}));
  EXPECT_EQ(copiesOf({.pages = {4, 5, 6}, .copies = 2, .isCollated = true}),
            (Pages{1, 1, 1, 2, 2, 2}));
}

TEST(LabelRun, CountsMoreLabelsThanFitInto32Bits) {
  LabelRun run{.pages = Pages(1'000'000, 1), .copies = 9999};
  EXPECT_EQ(run.labels(), 9'999'000'000U);
}

}  // namespace
}  // namespace cutline::test
