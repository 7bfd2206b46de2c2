// What an IPP printer says of itself. A print server does not pass it on: for a queue, nothing is
// the default finishing, and no media are loaded.
#pragma once

#include <string>
#include <vector>

namespace cutline {

// A size of media, in hundredths of a millimetre.
struct MediaMeasures {
  int width = 0;
  int length = 0;
  friend bool operator==(const MediaMeasures&, const MediaMeasures&) = default;
};

struct DeviceFacts {
  std::vector<int> finishings;       // finishings-default, by IPP's numbers
  std::vector<MediaMeasures> ready;  // the media that are loaded
};

// Asks the printer itself. Nothing is known of one with another address than ipp: or ipps:, and of
// one that gives no answer within a few seconds. May block that long.
DeviceFacts askDevice(const std::string& deviceURI);

}  // namespace cutline
