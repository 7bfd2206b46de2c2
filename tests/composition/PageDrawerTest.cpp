#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

#include "base/FileDescriptor.h"
#include "composition/DrawerMessages.h"
#include "composition/PageDrawer.h"
#include "tests/composition/Children.h"
#include "tests/composition/DrawnPdf.h"
#include "tests/composition/RefusedCall.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline {
namespace {

using test::childrenOfThisProcess;
using test::drawnPdf;

constexpr char kDrawerFolder[] = CUTLINE_BUILD_DIR "/lib/cutline";
constexpr std::uint32_t kWhite = 0xffffffff;
constexpr std::uint32_t kInk = 0xff000000;

std::shared_ptr<const TemporaryFile> fileWith(const std::string& bytes) {
  Result<TemporaryFile> file = TemporaryFile::make();
  EXPECT_TRUE(file);
  EXPECT_TRUE(writeAll(file->descriptor(), bytes.data(), bytes.size()));
  return std::make_shared<const TemporaryFile>(std::move(*file));
}

std::shared_ptr<PageDrawer> drawerOf(const std::string& pdf,
                                     std::chrono::milliseconds patience = PageDrawer::kPatience) {
  const auto drawer = PageDrawer::open(kDrawerFolder, fileWith(pdf), patience);
  EXPECT_TRUE(drawer) << drawer.error().message;
  return drawer ? *drawer : nullptr;
}

std::uint32_t at(const PageImage& image, int x, int y) {
  return image.pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                         static_cast<std::size_t>(x));
}

std::string errorOf(const Result<PageImage>& image) { return image ? "" : image.error().message; }

// The left half of the lower half, and then a red page.
const std::string kTwoPages =
    drawnPdf({{100, 50, "0 0 50 25 re f"}, {20, 40, "1 0 0 rg 0 0 20 40 re f"}});

TEST(PageDrawer, DrawsPagesOnWhite) {
  const auto drawer = drawerOf(kTwoPages);
  ASSERT_TRUE(drawer);
  EXPECT_EQ(drawer->pageCount(), 2);
  const Result<PageImage> first = drawer->draw(0, 2);
  ASSERT_TRUE(first) << first.error().message;
  EXPECT_EQ(first->width, 200);
  EXPECT_EQ(first->height, 100);
  EXPECT_EQ(at(*first, 10, 10), kWhite);
  EXPECT_EQ(at(*first, 150, 90), kWhite);
  EXPECT_EQ(at(*first, 10, 90), kInk);
  const Result<PageImage> second = drawer->draw(1, 0.5);
  ASSERT_TRUE(second) << second.error().message;
  EXPECT_EQ(second->width, 10);
  EXPECT_EQ(second->height, 20);
  EXPECT_EQ(at(*second, 5, 10), 0xffff0000);
}

TEST(PageDrawer, SmoothsEdges) {
  const auto drawer = drawerOf(drawnPdf({{10, 10, "0 0 m 10 10 l 10 0 l f"}}));
  const Result<PageImage> image = drawer->draw(0, 4);
  ASSERT_TRUE(image) << image.error().message;
  int grey = 0;
  for (const std::uint32_t pixel : image->pixels) grey += pixel != kWhite && pixel != kInk;
  EXPECT_GT(grey, 20);
}

TEST(PageDrawer, DrawsText) {
  const auto drawer = drawerOf(drawnPdf({{100, 50, "BT /F 20 Tf 5 10 Td (Shelf) Tj ET"}}));
  const Result<PageImage> image = drawer->draw(0, 3);
  ASSERT_TRUE(image) << image.error().message;
  EXPECT_GT(std::ranges::count(image->pixels, kInk), 100);
}

TEST(PageDrawer, NamesThePageThatItCannotDraw) {
  const auto drawer = drawerOf(kTwoPages);
  EXPECT_EQ(errorOf(drawer->draw(2, 1)), "page 3 cannot be drawn: there is no such page");
  EXPECT_EQ(errorOf(drawer->draw(-1, 1)), "page 0 cannot be drawn: there is no such page");
  const std::string tooLarge = "page 1 cannot be drawn: its picture would be too large";
  for (const double scale : {200.0, 1e9, 0.0, -1.0})
    EXPECT_EQ(errorOf(drawer->draw(0, scale)), tooLarge) << scale;
  EXPECT_TRUE(drawer->draw(0, 1));
}

TEST(PageDrawer, RefusesWhatIsNoPdf) {
  for (const char* bytes : {"", "nothing of a PDF", "%PDF-1.4\n"}) {
    const auto drawer = PageDrawer::open(kDrawerFolder, fileWith(bytes));
    ASSERT_FALSE(drawer) << bytes;
    EXPECT_EQ(drawer.error().message, "the pages cannot be drawn: its reader failed");
  }
}

TEST(PageDrawer, SaysThatItsProgramIsMissing) {
  const auto drawer = PageDrawer::open("/nonexistent", fileWith(kTwoPages));
  ASSERT_FALSE(drawer);
  EXPECT_EQ(drawer.error().message,
            "cannot start the program \"/nonexistent/cutline-draw\": No such file or directory");
}

TEST(PageDrawer, GoesOnAfterADrawerThatDied) {
  const auto drawer = drawerOf(kTwoPages);
  ASSERT_EQ(childrenOfThisProcess().size(), 1U);
  ::kill(childrenOfThisProcess().front(), SIGKILL);
  // Whether the page after its death is drawn depends on whether the death was noticed.
  drawer->draw(0, 1);
  const Result<PageImage> image = drawer->draw(0, 1);
  ASSERT_TRUE(image) << image.error().message;
  EXPECT_EQ(at(*image, 5, 45), kInk);
}

TEST(PageDrawer, LeavesNoProcessBehind) {
  {
    const auto drawer = drawerOf(kTwoPages);
    EXPECT_EQ(childrenOfThisProcess().size(), 1U);
  }
  EXPECT_TRUE(childrenOfThisProcess().empty());
}

TEST(PageDrawer, OutlivesTheThreadThatOpenedIt) {
  std::shared_ptr<PageDrawer> drawer;
  std::thread([&] { drawer = drawerOf(kTwoPages); }).join();
  const auto before = childrenOfThisProcess();
  EXPECT_TRUE(drawer->draw(0, 1));
  EXPECT_EQ(childrenOfThisProcess(), before);
}

TEST(PageDrawer, GivesUpAPageThatTakesTooLong) {
  std::string endless;
  for (int row = 0; row < 200'000; ++row)
    endless += "0 0 1000 1000 re 0 0 m 999 7 l 3 999 l h B*\n";
  const auto drawer = drawerOf(drawnPdf({{1000, 1000, endless}, {100, 50, "0 0 50 25 re f"}}),
                               std::chrono::seconds(1));
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(errorOf(drawer->draw(0, 6)), "page 1 cannot be drawn: it takes too long");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
  const Result<PageImage> next = drawer->draw(1, 1);
  ASSERT_TRUE(next) << next.error().message;
  EXPECT_EQ(at(*next, 5, 45), kInk);
}

// A drawer that says these words and then listens.
class SayingDrawer {
 public:
  template <typename... Words>
  explicit SayingDrawer(const Words&... words) {
    std::string bytes;
    (bytes.append(reinterpret_cast<const char*>(&words), sizeof words), ...);
    const std::string said = mFolder.write("said", bytes);
    const std::string program =
        mFolder.write(kDrawerName, "#!/bin/sh\ncat " + said + "\nhead -c 16 >/dev/null\n");
    ::chmod(program.c_str(), 0755);
  }
  std::string errorOfPage() const {
    const auto drawer = PageDrawer::open(mFolder.path(), fileWith(kTwoPages));
    return drawer ? errorOf((*drawer)->draw(0, 1)) : drawer.error().message;
  }

 private:
  test::TemporaryFolder mFolder;
};

TEST(PageDrawer, BelievesNoPictureThatCannotBe) {
  const std::string failed = "page 1 cannot be drawn: its reader failed";
  const DrawerGreeting greeting{1};
  const auto fine = DrawnState::fine;
  for (const DrawAnswer& answer :
       {DrawAnswer{fine, -1, 1}, DrawAnswer{fine, 1, 0}, DrawAnswer{fine, 100'000, 100'000},
        // Of which nothing comes.
        DrawAnswer{fine, 2, 2}, DrawAnswer{static_cast<DrawnState>(9), 1, 1}})
    EXPECT_EQ(SayingDrawer(greeting, answer).errorOfPage(), failed) << answer.width;
  EXPECT_EQ(SayingDrawer(DrawerGreeting{0}).errorOfPage(),
            "the pages cannot be drawn: its reader failed");
}

TEST(PageDrawer, SaysThatItsProgramIsGone) {
  const test::TemporaryFolder folder;
  const std::string program = folder / kDrawerName;
  std::filesystem::create_symlink(std::string(kDrawerFolder) + "/" + kDrawerName, program);
  const auto drawer = PageDrawer::open(folder.path(), fileWith(kTwoPages));
  ASSERT_TRUE(drawer) << drawer.error().message;
  std::filesystem::remove(program);
  ::kill(childrenOfThisProcess().at(0), SIGKILL);
  (*drawer)->draw(0, 1);
  EXPECT_EQ(errorOf((*drawer)->draw(0, 1)), "page 1 cannot be drawn: cannot start the program \"" +
                                                program + "\": No such file or directory");
}

TEST(PageDrawer, DrawsNothingWhereItCannotBeConfined) {
  EXPECT_EQ(test::saidWithout({"landlock_restrict_self"},
                              [] {
                                const auto drawer =
                                    PageDrawer::open(kDrawerFolder, fileWith(kTwoPages));
                                return drawer ? "" : drawer.error().message;
                              }),
            "the pages cannot be drawn: its reader failed");
}

TEST(PageDrawer, SaysThatItCannotBeReached) {
  EXPECT_EQ(test::saidWithout({"socketpair", {}, EMFILE},
                              [] {
                                const auto drawer =
                                    PageDrawer::open(kDrawerFolder, fileWith(kTwoPages));
                                return drawer ? "" : drawer.error().message;
                              }),
            "the pages cannot be drawn: Too many open files");
}

}  // namespace
}  // namespace cutline
