// What "%@" prints besides text: an object that describes itself in a line.
#pragma once

#include <cstdio>
#include <string>

namespace cutline {

class Describable {
 public:
  // Defined here, as nothing of the bundle but its exported functions can be linked to.
  virtual ~Describable() = default;
  // UTF-8.
  virtual std::string description() const noexcept = 0;
};

// Class and address, as in "PDEFormatter 0x55d0c1a2b3c4".
inline std::string nameOfObject(const char* className, const void* object) noexcept {
  char address[2 + 2 * sizeof(void*) + 1];
  std::snprintf(address, sizeof address, "%p", object);
  return className + std::string(" ") + address;
}

// The description of an object that has nothing else to say, as in "<PDEFormatter 0x55d0c1a2b3c4>".
inline std::string describedAs(const char* className, const void* object) noexcept {
  return "<" + nameOfObject(className, object) + ">";
}

}  // namespace cutline
