// One object of a program as assistive technology has it from the accessibility bus. Every question
// goes to the program anew; one that fails, because the object has gone or the program does not
// answer in time, is answered with nothing.
#pragma once

#include <atspi/atspi.h>

#include <memory>
#include <string>
#include <vector>

namespace cutline::test {

class Accessible {
 public:
  // No object: it has neither name nor children.
  Accessible() = default;
  // Takes the reference over; null is no object.
  explicit Accessible(AtspiAccessible* object);

  explicit operator bool() const noexcept { return mObject != nullptr; }

  std::string name() const;
  std::string description() const;
  AtspiRole role() const;
  std::string roleName() const;
  bool is(AtspiStateType state) const;
  // As a user counts it: it can be used now.
  bool isUsable() const { return is(ATSPI_STATE_ENABLED) && is(ATSPI_STATE_SENSITIVE); }
  int processId() const;
  std::vector<Accessible> children() const;
  // The names of the objects that label this one.
  std::vector<std::string> labels() const;

  // What can be done with it, the most usual first.
  std::vector<std::string> actions() const;
  // Does one of them; false when there is none of the name, or it was refused.
  bool perform(const std::string& action) const;
  // Does the first of them.
  bool press() const;

  bool hasText() const;
  std::string text() const;
  // Puts the text in the place of the whole that is there.
  bool setText(const std::string& text) const;

  bool hasValue() const;
  double value() const;
  double minimum() const;
  double maximum() const;
  bool setValue(double value) const;

  bool grabFocus() const;

 private:
  AtspiAction* action() const { return ATSPI_ACTION(mObject.get()); }
  AtspiText* textual() const { return ATSPI_TEXT(mObject.get()); }
  AtspiValue* numeric() const { return ATSPI_VALUE(mObject.get()); }
  bool has(const char* interface) const;

  std::shared_ptr<AtspiAccessible> mObject;
};

// All programs on the bus.
Accessible desktop();
// The object itself and all below it, from the top.
std::vector<Accessible> allOf(const Accessible& object);
// The first of this role and name that is on the screen; no object when there is none.
Accessible find(const Accessible& within, AtspiRole role, const std::string& name);
// The first of this role on the screen, whatever its name.
Accessible find(const Accessible& within, AtspiRole role);
// One line an object, indented: role, name, description, states, actions, text, value.
std::string describeTree(const Accessible& object, int depth = 0);

}  // namespace cutline::test
