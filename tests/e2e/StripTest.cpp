// The strip on the screen is the strip that comes out of the printer: the picture of the one, read
// back, against the stored picture of the other.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QSpinBox>
#include <algorithm>
#include <random>

#include "host/core/CutRules.h"
#include "tests/dialog/StripReading.h"
#include "tests/e2e/DialogOnServer.h"
#include "tests/e2e/SampleOptions.h"
#include "tests/support/EndToEndTest.h"
#include "tests/support/PngPicture.h"
#include "tests/support/qt/waiting.h"

namespace cutline::test {
namespace {

// Colours of the stored picture.
constexpr std::uint32_t kEdge = 0x8d99a6;
constexpr std::uint32_t kKnife = 0xd63f1b;
constexpr std::uint32_t kTape = 0xffffff;

// The stored strip, in the letters of tests/strip/Outline.h, but for marks, which are part of the
// labels there.
class StoredStrip {
 public:
  explicit StoredStrip(const PrintedJob& job) : mPicture(job.picturePath()) {
    for (int label = 1; label <= job.number("labels"); ++label)
      mLabels.push_back(placeOf(job.fact("label." + std::to_string(label))));
    mIsRoll = mLabels.size() > 1 && mLabels[1].y != mLabels[0].y;
    mIsRoll = mIsRoll || mPicture.height() > mPicture.width();
  }

  std::string outline() const {
    std::string outline;
    bool isOnTape = false;
    const unsigned length = mIsRoll ? mPicture.height() : mPicture.width();
    for (unsigned along = 0; along < length; ++along) {
      if (const printer::Place* label = labelAt(along)) {
        outline += 'L';
        along += static_cast<unsigned>(mIsRoll ? label->height : label->width) - 1;
        continue;
      }
      const char letter = letterAt(along, isOnTape);
      // A stretch of blank tape and a line of several dots are one.
      const bool goesOn = (letter == '~' || letter == ':') && outline.ends_with(letter);
      if (letter != 0 && !goesOn) outline += letter;
    }
    return outline;
  }

 private:
  const printer::Place* labelAt(unsigned along) const {
    const auto found = std::find_if(mLabels.begin(), mLabels.end(), [&](const auto& place) {
      return (mIsRoll ? place.y : place.x) == along;
    });
    return found == mLabels.end() ? nullptr : &*found;
  }

  // Whether all of the tape's breadth there has the colour, or some of it.
  bool isAll(unsigned along, std::uint32_t colour) const {
    return countOf(along, colour) == breadth();
  }
  std::uint64_t breadth() const { return mIsRoll ? mLabels[0].width : mLabels[0].height; }
  std::uint64_t countOf(unsigned along, std::uint32_t colour) const {
    const std::uint64_t from = mIsRoll ? mLabels[0].x : mLabels[0].y;
    std::uint64_t count = 0;
    for (std::uint64_t across = from; across < from + breadth(); ++across)
      count +=
          (mIsRoll ? mPicture.colourAt(across, along) : mPicture.colourAt(along, across)) == colour;
    return count;
  }

  // A piece has an edge at its beginning, and one where it was cut off.
  char letterAt(unsigned along, bool& isOnTape) const {
    if (isAll(along, kEdge)) {
      isOnTape = !isOnTape;
      return isOnTape ? '\0' : '|';
    }
    if (countOf(along, kKnife) > 0) return ':';
    return isAll(along, kTape) ? '~' : '\0';
  }

  PngPicture mPicture;
  std::vector<printer::Place> mLabels;
  bool mIsRoll;
};

std::string withoutMarks(std::string outline) {
  std::erase(outline, '+');
  return outline;
}

class Strip : public EndToEndTest, public testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(EachPrinter, Strip, testing::ValuesIn(kPrinters),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(Strip, OnTheScreenIsTheOneThatComesOut) {
  const int rounds = std::getenv("CUTLINE_LONG_TESTS") != nullptr ? 40 : 3;
  for (int round = 0; round < rounds && !HasFailure(); ++round) {
    std::mt19937 dice(static_cast<unsigned>(round));
    DialogOnServer dialog(GetParam());
    auto* strip = dialog.dialog().findChild<StripView*>();
    ASSERT_TRUE(waitUntil([&] { return strip->labelCount() == kLabels; }));
    std::string clicked;
    for (const std::string& keyword : cutSwitches(*samplePpd(GetParam()))) {
      // Blank space is removed where the driver finds some, and the length is not known before.
      QWidget* box = dialog.box(keyword);
      if (keyword == "LxRemoveBlkSpace" || box == nullptr || !box->isEnabled()) continue;
      const bool isRare = keyword == "LxSpecialTape";
      if (dice() % (isRare ? 5 : 2) != 0) continue;
      click(box);
      clicked += keyword + " ";
    }
    SCOPED_TRACE(clicked);
    const std::string shown = StripReading(*strip).outline();
    dialog.print();
    const PrintedJob job = newJob();
    EXPECT_EQ(withoutMarks(shown), StoredStrip(job).outline());
    EXPECT_EQ(std::count(shown.begin(), shown.end(), '+'), job.number("cut-marks"));
    EXPECT_EQ(std::count(shown.begin(), shown.end(), 'L'), kLabels);
  }
}

}  // namespace
}  // namespace cutline::test
