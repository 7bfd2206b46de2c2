// The names of the preview's pictures: what a picture shows is written in its name.
#pragma once

#include <array>
#include <string_view>

namespace cutline::pictures {

inline constexpr std::array<std::string_view, 28> kPictureNames = {"EveryEndMirrorOffOffOff",
                                                                   "EveryEndMirrorOffOnOff",
                                                                   "EveryEndMirrorOnOffOff",
                                                                   "EveryEndMirrorOffOffOn",
                                                                   "EveryEndMirrorOffOnOn",
                                                                   "EveryEndMirrorOnOffOn",
                                                                   "AHCMOffOffOffOff",
                                                                   "AHCMOffOffOffOn",
                                                                   "AHCMOffOffOnOff",
                                                                   "AHCMOffOffOnOn",
                                                                   "AHCMOffOnOffOff",
                                                                   "AHCMOffOnOffOn",
                                                                   "AHCMOffOnOnOff",
                                                                   "AHCMOffOnOnOn",
                                                                   "AHCMOnOffOffOff",
                                                                   "AHCMOnOffOffOn",
                                                                   "AHCMOnOffOnOff",
                                                                   "AHCMOnOffOnOn",
                                                                   "AHCMOnOnOffOff",
                                                                   "AHCMOnOnOffOn",
                                                                   "AHCMOnOnOnOff",
                                                                   "AHCMOnOnOnOn",
                                                                   "SPMROnOff",
                                                                   "SPMROnOn",
                                                                   "CTMROnOffOff",
                                                                   "CTMROffOffOff",
                                                                   "CTMROnOnOff",
                                                                   "CTMROffOnOff"};

}  // namespace cutline::pictures
