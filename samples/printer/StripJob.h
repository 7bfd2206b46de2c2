// One job at the virtual printer: reads its commands and stores what came out.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "samples/printer/CommandStream.h"
#include "samples/printer/Strip.h"

namespace cutline::printer {

class StripJob {
 public:
  using Facts = std::vector<std::pair<std::string, std::string>>;

  // `facts` lead the list that is stored beside the picture. A label takes `pace` milliseconds.
  StripJob(Facts facts, unsigned pace) : mFacts(std::move(facts)), mPace(pace) {}

  // Takes in all commands up to the end. No, and problem() says why, when they break off, are none,
  // or `cancelled` turns true.
  bool read(CommandReader& reader, const volatile int& cancelled);
  // Writes STEM.png and then STEM.txt; both or, where one fails, none.
  bool store(const std::string& stem, const volatile int& cancelled);
  const std::string& problem() const { return mProblem; }
  // The data ended early: the filter that made it has failed, and has told why.
  bool brokeOff() const { return mBrokeOff; }

 private:
  bool refuse(std::string problem);
  void take(Setting setting);
  void take(const Resolution& dots) { mStrip.setResolution(dots); }
  void take(const Feed& feed);
  void take(Bitmap label);
  void take(Cut cut);
  void take(End) { mEnded = true; }
  void countMarks(const Bitmap& label);
  std::string text() const;

  Facts mFacts;
  unsigned mPace;
  Strip mStrip;
  unsigned mLabels = 0;
  unsigned mPieces = 0;  // with labels on them
  unsigned mCutMarks = 0;
  bool mPieceHasLabel = false;
  bool mEndsInMark = false;  // what came last
  bool mEnded = false;
  bool mBrokeOff = false;
  std::string mProblem;
};

}  // namespace cutline::printer
