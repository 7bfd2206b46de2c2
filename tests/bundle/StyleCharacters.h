// What each text style takes, spelled out character by character.
#pragma once

#include <optional>
#include <string>

namespace cutline::test {

// The ASCII characters that the style takes; nothing for a style that takes all of them.
inline std::optional<std::string> charactersOfStyle(int style) {
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  switch (style) {
    case 2:
      return "0123456789";
    case 4:
      return "0123456789.";
    case 6:
      return letters + "0123456789 ";
    case 7:
      return letters + "0123456789 $%+-./";
    case 8:
      return "0123456789$+-./:";
    case 9:
      return "0123456789$+-./:ABCDabcd";
    case 10:
      return letters + "0123456789 !\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";
    case 11:
      return letters + "0123456789 !\"%'()*+,-./:;<=>?_";
    default:
      return std::nullopt;
  }
}

}  // namespace cutline::test
