// The list that the virtual printer stores beside a picture: NAME=VALUE lines.
#pragma once

#include <map>
#include <string>

#include "samples/printer/Strip.h"

namespace cutline::test {

using Facts = std::map<std::string, std::string>;

Facts factsOf(const std::string& path);

// The place in a value like "79,21,354,170".
printer::Place placeOf(const std::string& value);

}  // namespace cutline::test
