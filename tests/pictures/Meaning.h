// What is cut in each picture. The pictures of a tape show three labels behind their leader, or of
// a chain four without one, the last of them in the printer; those of a roll show three labels.
#pragma once

#include <string_view>

namespace cutline::pictures {

struct Meaning {
  std::string_view stem;  // the name without the mirror flag
  int fullCuts;           // gaps that part the whole tape
  int halfCuts;           // gaps in the face only
  int scissors;           // where one cuts by hand
};

inline constexpr Meaning kTapeRows[] = {
    {"AHCMOffOffOff", 0, 0, 0}, {"AHCMOffOffOn", 0, 0, 0}, {"AHCMOffOnOff", 0, 4, 0},
    {"AHCMOffOnOn", 0, 3, 0},   {"AHCMOnOffOff", 4, 0, 0}, {"AHCMOnOffOn", 3, 0, 0},
    {"AHCMOnOnOff", 1, 3, 0},   {"AHCMOnOnOn", 1, 2, 0},   {"SPMROn", 0, 0, 1},
};
inline constexpr Meaning kMarkedRows[] = {
    {"CTMROnOff", 0, 0, 4}, {"CTMROffOff", 0, 0, 1}, {"CTMROnOn", 0, 0, 3}, {"CTMROffOn", 0, 0, 1}};
inline constexpr Meaning kRollRows[] = {{"EveryEndMirrorOffOff", 0, 0, 0},
                                        {"EveryEndMirrorOffOn", 1, 0, 0},
                                        {"EveryEndMirrorOnOff", 3, 0, 0}};

}  // namespace cutline::pictures
