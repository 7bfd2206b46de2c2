// The preview's picture in words, in the user's language, for those who cannot see it.
#pragma once

#include <string>
#include <vector>

#include "bundle/preview/ShownOptions.h"

namespace cutline {

class Bundle;

class PictureWords {
 public:
  PictureWords() noexcept = default;
  // Reads the words from the bundle's string table; without a bundle there are none.
  explicit PictureWords(const Bundle* bundle);

  // "Auto cut on, half cut between labels, not mirrored". Two pictures of one printer never have
  // the same words. Empty when there are no words.
  std::string describe(const ShownOptions& shown) const;

 private:
  std::vector<std::string> mFragments;  // in the order of the table of fragments
  std::string mSeparator;
};

}  // namespace cutline
