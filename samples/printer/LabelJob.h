// Turns the labels of one job into commands to the printer.
#pragma once

#include <cstdint>
#include <optional>

#include "samples/printer/CommandStream.h"
#include "strip/KnifeRules.h"

namespace cutline::printer {

class LabelJob {
 public:
  LabelJob(const CutSettings& asked, CommandWriter& writer) : mRules(asked), mWriter(writer) {}

  // One more label, as the page was laid out. No when the printer takes nothing more.
  bool add(const Bitmap& page, const Resolution& dots);
  // After the last one.
  bool end();
  unsigned labels() const { return mLabels; }

 private:
  bool begin(const Resolution& dots);
  bool feed(std::optional<double> millimetres);
  Bitmap finished(const Bitmap& page) const;

  KnifeRules mRules;
  CommandWriter& mWriter;
  Resolution mDots;
  unsigned mLabels = 0;
};

}  // namespace cutline::printer
