// Where things lie along a strip: labels end to end, with a gap where a full cut parts them. In
// closed form, whatever the number of labels. In the view's pixels; labels count from 1.
#pragma once

#include <cstdint>

#include "host/dialog/StripContent.h"

namespace cutline {

class StripLine {
 public:
  // `scale`: pixels a point of the tape.
  StripLine(const StripContent& content, double scale);

  double labelLength() const noexcept { return mLabel; }
  static double gap() noexcept;
  // Of the stretches of blank tape; 0 where there is none, and a stub where its length is not
  // known.
  double leader() const noexcept { return mLeader; }
  double feed() const noexcept { return mFeed; }
  // Of what follows the feed: a gap, or what tells where the tape goes on.
  double endLength() const noexcept { return mEnd; }
  // Of the tape that is shown to go on in another lane.
  static double goesOn() noexcept;
  // Before the first label, and behind the last: blank tape, cuts, and what tells how the tape goes
  // on.
  double lead() const noexcept { return mLead; }
  double tail() const noexcept { return mTail; }

  // The label's beginning, from that of the label `first` before it.
  double begin(std::uint64_t first, std::uint64_t label) const noexcept;
  // The end of the labels from `first` to `last`, with the gap of a full cut behind them.
  double end(std::uint64_t first, std::uint64_t last) const noexcept;
  // The label that lies at a place, or else before it, counted from the beginning of `first`, which
  // comes for every place before it.
  std::uint64_t labelBefore(std::uint64_t first, double place) const noexcept;

  // How many labels lie in so much room, wherever they begin; whole pieces where one has room. At
  // least one, at most all.
  std::uint64_t labelsIn(double room) const noexcept;
  // How much room so many labels, as labelsIn answers them, take wherever they begin.
  double roomFor(std::uint64_t labels) const noexcept;

 private:
  KnifeRules mRules;
  std::uint64_t mLabels;
  double mLabel;
  double mLeader;
  double mFeed;
  double mEnd;
  double mLead;
  double mTail;
};

}  // namespace cutline
