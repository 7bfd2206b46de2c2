#include "tests/support/Facts.h"

#include <sstream>

#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

Facts factsOf(const std::string& path) {
  Facts facts;
  std::istringstream lines(contentsOf(path));
  for (std::string line; std::getline(lines, line);) {
    const std::size_t mark = line.find('=');
    facts[line.substr(0, mark)] = mark == std::string::npos ? "" : line.substr(mark + 1);
  }
  return facts;
}

printer::Place placeOf(const std::string& value) {
  printer::Place place;
  char comma = 0;
  std::istringstream(value) >> place.x >> comma >> place.y >> comma >> place.width >> comma >>
      place.height;
  return place;
}

}  // namespace cutline::test
