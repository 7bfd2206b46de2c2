// What the boxes say as far as the preview shows it: the base of the picture and of its words.
#pragma once

namespace cutline {

struct ShownOptions {
  bool isWN = false;  // the continuous-roll label family
  // On as the user sees it. Special tape has turned `cut`, `halfCut` and `chainPrint` off already.
  bool specialTape = false;
  bool cut = false;  // either of the two boxes that drive the automatic cutter
  bool cutAtEnd = false;
  bool mirror = false;
  bool halfCut = false;
  bool chainPrint = false;
  // The box is there to be ticked.
  bool offersHalfCut = false;
  bool offersMirror = false;
};

}  // namespace cutline
