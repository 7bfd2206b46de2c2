// What comes out of the printer for one job, and its picture: the labels in a row on their tape,
// with gaps where the knife went through and dashes where it went half way.
#pragma once

#include <cstdint>
#include <cstdio>
#include <vector>

#include "samples/printer/Bitmap.h"
#include "samples/printer/CommandStream.h"

namespace cutline::printer {

class PngWriter;

// Where something lies in the picture, in pixels, which are the printer's dots.
struct Place {
  std::uint64_t x = 0;
  std::uint64_t y = 0;
  std::uint64_t width = 0;
  std::uint64_t height = 0;
};

class Strip {
 public:
  // A tape runs to the right, so that text along it can be read: its labels are turned by a
  // quarter against the clock. A roll runs down.
  enum class Direction { Right, Down };

  void setDirection(Direction direction) { mDirection = direction; }
  void setResolution(const Resolution& dots) { mDots = dots; }
  void addBlank(std::uint32_t dots);
  // No when the strip is longer than a picture can be; the label is then not in it.
  bool addLabel(Bitmap label);
  void addCut(Cut cut);
  // After the last command: what was not cut off hangs from the printer, which is drawn too.
  void finish();

  // Of the whole picture, at the place 0, 0.
  Place bounds() const;
  // Of each label, in the order of printing.
  std::vector<Place> labelPlaces() const;
  unsigned cuts(Cut kind) const;
  // Writes the picture as PNG. No when it can't be written or there is nothing in it.
  bool write(std::FILE* stream) const;

 private:
  enum class Kind { Desk, TapeStart, Tape, Label, HalfCut, Printer };
  struct Segment {
    Kind kind = Kind::Desk;
    std::uint32_t length = 0;
    Bitmap label;
  };

  std::uint32_t dotsAlong(double millimetres) const;
  std::uint32_t border() const;
  std::uint32_t leftOf(const Segment& segment) const;
  void add(Kind kind, std::uint32_t length);
  void start();
  enum Colour : std::uint8_t;
  Colour colourAt(const Segment& segment, std::int64_t along, std::int64_t across) const;
  Colour labelColourAt(const Segment& segment, std::int64_t along, std::int64_t across) const;
  template <typename Take>
  bool forEachAlong(Take take) const;
  bool writeRight(PngWriter& png) const;
  bool writeDown(PngWriter& png) const;

  Direction mDirection = Direction::Right;
  Resolution mDots{180, 180};
  std::vector<Segment> mSegments;
  std::uint32_t mWidth = 0;   // of the tape, which is that of its widest label
  std::uint64_t mLength = 0;  // of all segments
  std::uint64_t mBytes = 0;   // of all labels
  bool mOnDesk = true;        // nothing lies behind the last cut
};

}  // namespace cutline::printer
