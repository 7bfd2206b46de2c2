// Turns the labels of one job into commands to the printer.
#pragma once

#include <cstdint>

#include "samples/printer/CommandStream.h"
#include "samples/printer/CutPlan.h"

namespace cutline::printer {

class LabelJob {
 public:
  LabelJob(const CutPlan& plan, CommandWriter& writer) : mPlan(plan), mWriter(writer) {}

  // One more label, as the page was laid out. No when the printer takes nothing more.
  bool add(const Bitmap& page, const Resolution& dots);
  // After the last one.
  bool end();
  unsigned labels() const { return mLabels; }

 private:
  bool begin(const Resolution& dots);
  Bitmap finished(const Bitmap& page) const;

  const CutPlan& mPlan;
  CommandWriter& mWriter;
  Resolution mDots;
  unsigned mLabels = 0;
};

}  // namespace cutline::printer
