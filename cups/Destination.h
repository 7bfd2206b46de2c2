// A print queue, or a saved instance of one, as the server and the user's saved options know it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/OptionList.h"
#include "base/Sentence.h"
#include "cups/DeviceFacts.h"

namespace cutline {

struct DestinationName {
  std::string printer;
  std::optional<std::string> instance;

  // PRINTER[/INSTANCE]
  static DestinationName parse(const std::string& text);
  std::string text() const;
  friend bool operator==(const DestinationName&, const DestinationName&) = default;
};

enum class PrinterState { idle, processing, stopped, unknown };

struct Destination {
  DestinationName name;
  bool isDefault = false;
  std::string info;       // the administrator's description; may be empty
  std::string deviceURI;  // empty when the server does not tell
  PrinterState state = PrinterState::unknown;
  bool acceptsJobs = true;
  std::vector<std::string> stateReasons;  // IPP printer-state-reasons without "none"
  std::string stateMessage;  // the printer's own words or those of whoever paused it; may be empty
  long stateSince = 0;       // seconds since 1970 that it is in this state; 0 when not told
  long setUpSince = 0;       // the same for its driver and the administrator's settings
  OptionList savedOptions;   // the user's saved options for this destination or instance only
  DeviceFacts device;        // what the printer itself says; only where it was asked

  // Whether one of the reasons keeps it from printing until somebody does something.
  bool needsAttention() const;
  // The state in plain words, such as "Ready" or "Paused - label roll is empty".
  Sentence stateText() const;
};

}  // namespace cutline
