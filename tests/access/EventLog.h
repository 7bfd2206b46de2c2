// The events of one kind that programs have sent to the accessibility bus.
#pragma once

#include <atspi/atspi.h>

#include <string>
#include <vector>

#include "tests/access/Accessible.h"

namespace cutline::test {

class EventLog {
 public:
  // `type` is libatspi's name of the kind, such as "object:property-change:accessible-name".
  explicit EventLog(const char* type);
  ~EventLog();
  EventLog(const EventLog&) = delete;
  EventLog& operator=(const EventLog&) = delete;

  // The names, as they are now, of the objects with this role that the events came from.
  std::vector<std::string> sourcesWith(AtspiRole role) const;

 private:
  static void take(AtspiEvent* event, void* log);

  std::string mType;
  AtspiEventListener* mListener;
  std::vector<Accessible> mSources;
};

}  // namespace cutline::test
