// A typesetter that notes what it is asked for.
#pragma once

#include "composition/typeset/Typesetter.h"
#include "tests/composition/PdfDocument.h"

namespace cutline::test {

// Each line of a text is a page of exactly the room, with a mark in its lower left corner.
class FakeTypesetter : public Typesetter {
 public:
  bool setText(std::string_view text, const TextRoom& room, const TextSettings& settings, int most,
               TypesetPages& pages, TypesetProblem& problem) noexcept override {
    mRoom = room;
    mSettings = settings;
    mMost = most;
    if (mProblem) {
      problem = *mProblem;
      return false;
    }
    PdfDocument document;
    for (const char c : text) {
      if (c == '\n')
        addMarkedPage(document, room.isEndless ? mEndlessWidth : room.width, room.height);
    }
    pages.pdf = document.bytes();
    return true;
  }

  bool setDrawing(std::string_view, TypesetPages& pages,
                  TypesetProblem& problem) noexcept override {
    if (mProblem) {
      problem = *mProblem;
      return false;
    }
    pages.pdf = markedPdf(40, 80);
    pages.isStated = mIsStated;
    return true;
  }

  TextRoom mRoom;
  TextSettings mSettings;
  int mMost = -1;
  std::optional<TypesetProblem> mProblem;  // what every call fails for
  double mEndlessWidth = 150;
  bool mIsStated = true;

 private:
  static void addMarkedPage(PdfDocument& document, double width, double height) {
    document.addPage("/MediaBox[0 0 " + std::to_string(width) + ' ' + std::to_string(height) + "]",
                     kCornerMark);
  }
};

}  // namespace cutline::test
