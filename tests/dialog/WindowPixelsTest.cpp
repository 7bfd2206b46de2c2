#include <gtest/gtest.h>
#include <sys/mman.h>

#include <QBackingStore>
#include <QImage>
#include <QWidget>
#include <algorithm>
#include <cstdint>
#include <vector>

#include "host/dialog/WindowPixels.h"

namespace cutline {
namespace {

constexpr std::uintptr_t kPage = 4096;

class WindowPixelsTest : public testing::Test {
 protected:
  WindowPixelsTest() {
    // More than the C library keeps for the next who asks: this has never been written to.
    mWindow.resize(3600, 2400);
    mWindow.winId();
    mWindow.backingStore()->resize(mWindow.size());
  }
  QBackingStore& store() const { return *mWindow.backingStore(); }
  QImage& image() const { return dynamic_cast<QImage&>(*store().paintDevice()); }
  // Of the image's whole pages, those that are in memory.
  std::ptrdiff_t pagesThere() const {
    std::vector<unsigned char> isThere(wholePages());
    EXPECT_EQ(::mincore(reinterpret_cast<void*>(firstPage()), wholePages() * kPage, isThere.data()),
              0);
    return std::ranges::count_if(isThere, [](unsigned char page) { return (page & 1) != 0; });
  }
  std::size_t wholePages() const {
    return (pixels() + static_cast<std::size_t>(image().sizeInBytes()) - firstPage()) / kPage;
  }

 private:
  std::uintptr_t pixels() const { return reinterpret_cast<std::uintptr_t>(image().constBits()); }
  std::uintptr_t firstPage() const { return (pixels() + kPage - 1) / kPage * kPage; }

  QWidget mWindow;
};

TEST_F(WindowPixelsTest, AreThereBeforeTheyArePainted) {
  ASSERT_GT(wholePages(), 8000U);
  ASSERT_LT(pagesThere(), 10);
  startPreparingPixels(store()).wait();
  EXPECT_EQ(pagesThere(), static_cast<std::ptrdiff_t>(wholePages()));
}

TEST_F(WindowPixelsTest, KeepWhatIsPainted) {
  image().setPixelColor(500, 400, Qt::red);
  startPreparingPixels(store()).wait();
  EXPECT_EQ(image().pixelColor(500, 400), QColor(Qt::red));
}

TEST_F(WindowPixelsTest, NeedNotBeThere) {
  store().resize({});
  startPreparingPixels(store()).wait();
}

}  // namespace
}  // namespace cutline
