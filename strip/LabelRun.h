// The labels of a job in the order in which they are printed.
#pragma once

#include <cstdint>
#include <optional>

#include "strip/PageList.h"

namespace cutline {

struct LabelRun {
  // The document's pages that are printed.
  PageList pages = {};
  unsigned copies = 1;
  // The whole document once a copy, or else each page as often as there are copies.
  bool isCollated = false;
  // The printer makes the copies of what it is sent once, unless they are collated.
  bool printerRepeats = false;
  // Of each label along the tape, in millimetres; nothing: not known.
  std::optional<double> labelLength = std::nullopt;

  std::uint64_t labels() const { return std::uint64_t{copies} * pages.size(); }
  // The page of the label `number`, which counts from 1 to labels().
  unsigned pageOf(std::uint64_t number) const {
    return pages[isCollated ? (number - 1) % pages.size() : (number - 1) / copies];
  }
  // Which copy of its page the label is, from 1 to `copies`.
  unsigned copyOf(std::uint64_t number) const {
    return static_cast<unsigned>(
        1 + (isCollated ? (number - 1) / pages.size() : (number - 1) % copies));
  }
  friend bool operator==(const LabelRun&, const LabelRun&) = default;
};

}  // namespace cutline
