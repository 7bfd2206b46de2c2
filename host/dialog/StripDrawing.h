// Draws a job's strip as its plan has it: the tape, what the knife does to it, a ruler; all but the
// pictures of the labels. Of a lane only what is seen.
#pragma once

#include "host/dialog/StripContent.h"
#include "host/dialog/StripLayout.h"
#include "host/dialog/StripSigns.h"
#include "host/dialog/StripTape.h"
#include "host/dialog/StripTexts.h"

namespace cutline {

class StripDrawing {
 public:
  // `area`: what is seen of the strip. `numbers`: those of the ruler, with its font.
  StripDrawing(const StripCanvas& canvas, const StripColours& colours, const StripContent& content,
               const StripLayout& layout, const QRectF& area, StripTexts& numbers);

  using Lane = StripLayout::Lane;
  void drawTape(const Lane& lane) const;
  // On the tape and its labels.
  void drawSigns(const Lane& lane) const;
  void drawRuler(const Lane& lane) const;

 private:
  Stretch stretch(const Lane& lane, double along, double length) const;
  Stretch labelStretch(const Lane& lane, std::uint64_t label) const;
  bool isLast(std::uint64_t label) const;
  bool beginsPiece(std::uint64_t label) const;
  bool endsPiece(std::uint64_t label) const;
  double endOf(const Lane& lane, std::uint64_t label) const;
  double leaderBegin(const Lane& lane) const;
  void drawFront(const Lane& lane) const;
  void drawBack(const Lane& lane) const;
  void drawLeaderSigns(const Lane& lane) const;
  void drawJoin(const Lane& lane, std::uint64_t label) const;
  void drawEnd(const Lane& lane) const;
  void drawPrinter(const Lane& lane) const;

  const StripCanvas& mCanvas;
  const StripContent& mContent;
  const StripLayout& mLayout;
  const KnifeRules& mRules;
  StripColours mColours;
  QRectF mArea;
  StripTexts& mNumbers;
  StripTape mTape;
  StripSigns mSigns;
};

}  // namespace cutline
