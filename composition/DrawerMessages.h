// What a page drawer and its client write to each other: these structures, as they are in memory,
// because both are of one build and on one machine.
#pragma once

#include <cstdint>

namespace cutline {

enum class DrawnState : std::int32_t {
  fine,
  noPage,    // there is no such page
  tooLarge,  // more pixels than one picture may have
  failed,    // the page cannot be drawn
};

// As many pixels as a picture may have: a quarter of a gigabyte.
inline constexpr double kMostPixels = 64e6;

// The drawer's first words, when it has read the PDF; no pages where it cannot.
struct DrawerGreeting {
  std::int32_t pages = 0;
};

struct DrawRequest {
  double scale = 1;       // pixels a point
  std::int32_t page = 0;  // counted from 0
  std::int32_t padding = 0;
};

// Followed by width * height pixels as PageImage has them, where the state is fine.
struct DrawAnswer {
  DrawnState state = DrawnState::failed;
  std::int32_t width = 0;
  std::int32_t height = 0;
};

}  // namespace cutline
