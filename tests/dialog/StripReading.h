// Reads the strip back from its picture, as a person does who looks along the tape: knives by the
// colour of their handles, marks by theirs, blank tape by its hatching.
#pragma once

#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "host/dialog/StripColours.h"
#include "host/dialog/StripView.h"

namespace cutline::test {

class StripReading {
 public:
  explicit StripReading(StripView& view)
      : mView(view), mColours(StripColours::of(view.palette())) {}

  // In the letters of tests/strip/Outline.h, lane after lane.
  std::string outline() {
    std::string outline;
    const std::uint64_t lanes = mView.stripLayout()->laneCount();
    for (std::uint64_t lane = 0; lane < lanes; ++lane) outline += outlineOfLane(lane);
    return outline;
  }

 private:
  static constexpr double kHandles = -8;  // across, from the tape's near edge
  static constexpr double kMarks = 3;
  static constexpr double kMiddle = 0.5;  // of the tape
  static constexpr int kNear = 40;

  struct Sign {
    double along;
    char letter;
  };

  std::string outlineOfLane(std::uint64_t index) {
    mView.setCurrentLabel(mView.stripLayout()->lane(index).first);
    mPicture = mView.viewport()->grab().toImage();
    const StripLayout& layout = *mView.stripLayout();
    const StripLayout::Lane lane = layout.lane(index);
    const double begin = lane.along - layout.line().lead();
    const double lastEnd = layout.along(lane, lane.last) + layout.line().labelLength();
    const double end = lastEnd + layout.line().tail();
    std::vector<Sign> signs;
    for (const auto& [across, colour, letter] : {std::tuple{kHandles, mColours.fullCut, '|'},
                                                 {kHandles, mColours.halfCut, ':'},
                                                 {kMarks, mColours.cutMark, '+'}})
      addRuns(signs, begin, end, lane.across + across, colour, letter);
    for (std::uint64_t label = lane.first; label <= lane.last; ++label) {
      const double middle = layout.along(lane, label) + layout.line().labelLength() / 2;
      if (isTape(middle, lane.across + layout.breadth() - kMarks)) signs.push_back({middle, 'L'});
    }
    const double hatched = lane.across + layout.breadth() * kMiddle;
    if (index == 0) addBlank(signs, begin, lane.along, hatched);
    if (index + 1 == layout.laneCount())
      addBlank(signs, lastEnd, lastEnd + layout.line().feed(), hatched);
    return lettersOf(std::move(signs));
  }

  static std::string lettersOf(std::vector<Sign> signs) {
    std::stable_sort(signs.begin(), signs.end(),
                     [](const Sign& a, const Sign& b) { return a.along < b.along; });
    std::string letters;
    for (const Sign& sign : signs) letters += sign.letter;
    return letters;
  }

  QColor at(double along, double across) const {
    const QPointF place =
        (mView.stripLayout()->placed(along, across, 0, 0).topLeft() - mView.offset()) *
        mPicture.devicePixelRatio();
    const QPoint pixel = place.toPoint();
    return mPicture.rect().contains(pixel) ? mPicture.pixelColor(pixel) : mColours.desk;
  }

  static bool isSame(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
               std::abs(a.blue() - b.blue()) <
           kNear;
  }

  bool isTape(double along, double across) const {
    return at(along, across).lightness() > 150 && !isSame(at(along, across), mColours.backing);
  }

  // Each run of the colour is one sign, which stands in its middle.
  void addRuns(std::vector<Sign>& signs, double begin, double end, double across,
               const QColor& colour, char letter) const {
    constexpr double kStep = 0.5;
    double length = 0;
    for (double along = begin; along <= end + kStep; along += kStep) {
      if (along <= end && isSame(at(along, across), colour)) {
        length += kStep;
        continue;
      }
      if (length > 0) signs.push_back({along - length / 2, letter});
      length = 0;
    }
  }

  // Hatching is darker than the tape, and grey.
  void addBlank(std::vector<Sign>& signs, double begin, double end, double across) const {
    int hatches = 0;
    for (double along = begin; along < end; along += 0.5) {
      const QColor colour = at(along, across);
      const bool isGrey = std::abs(colour.red() - colour.blue()) < 25;
      if (isGrey && colour.lightness() > 140 && colour.lightness() < 205) ++hatches;
    }
    if (hatches >= 2) signs.push_back({(begin + end) / 2, '~'});
  }

  StripView& mView;
  StripColours mColours;
  QImage mPicture;
};

}  // namespace cutline::test
