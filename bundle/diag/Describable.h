// What "%@" prints besides text: an object that describes itself in a line.
#pragma once

#include <string>

namespace cutline {

class Describable {
 public:
  // Defined here, as nothing of the bundle but its exported functions can be linked to.
  virtual ~Describable() = default;
  // UTF-8.
  virtual std::string description() const noexcept = 0;
};

// Lets an object that has a description() stand as an argument, such as a PDEChoice. Borrows it.
template <typename Object>
class Described final : public Describable {
 public:
  explicit Described(Object& object) noexcept : mObject(object) {}
  std::string description() const noexcept override { return mObject.description(); }

 private:
  Object& mObject;
};

}  // namespace cutline
