#include "cups/Destination.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace cutline {

namespace {

struct ReasonText {
  std::string_view keyword;
  std::string_view text;
  bool stopsPrinting;  // an idle printer with this reason is not ready
};

constexpr std::array kReasonTexts = std::to_array<ReasonText>({
    {"media-empty", "label roll or tape is empty", true},
    {"media-needed", "labels or tape needed", true},
    {"media-jam", "label or tape is jammed", true},
    {"media-low", "labels or tape nearly used up", false},
    {"cover-open", "cover is open", true},
    {"door-open", "door is open", true},
    {"interlock-open", "cover is not locked", true},
    {"input-tray-missing", "cassette is missing", true},
    {"offline", "printer is switched off or not connected", true},
    {"shutdown", "printer is switched off", true},
    {"timed-out", "printer does not answer", true},
    {"connecting-to-device", "connecting to the printer", false},
    {"moving-to-paused", "pausing after the current label", false},
    {"stopping", "stopping", false},
    {"stopped-partly", "partly stopped", false},
    {"cutter", "cutter needs attention", true},
    {"cutter-error", "cutter failed", true},
    {"cutter-jam", "cutter is jammed", true},
    {"trimmer-jam", "cutter is jammed", true},
    {"trimmer-failure", "cutter failed", true},
    {"trimmer-near-end-of-life", "cutter is nearly worn out", false},
    {"trimmer-end-of-life", "cutter is worn out", true},
    {"marker-supply-empty", "ink ribbon is used up", true},
    {"marker-supply-low", "ink ribbon is nearly used up", false},
    {"toner-empty", "ink ribbon is used up", true},
    {"toner-low", "ink ribbon is nearly used up", false},
    {"fuser-over-temp", "print head is too hot", true},
    {"spool-area-full", "print server has no room for more jobs", true},
    {"hold-new-jobs", "new jobs are held", false},
    {"other", "printer needs attention", true},
    {"cups-missing-filter", "printer's driver is missing on the print server", true},
    {"cups-insecure-filter", "printer's driver is not safely installed on the print server", true},
    {"cups-remote-stopped", "remote printer is paused", true},
    {"cups-remote-pending", "waiting for the remote printer", false},
    {"cups-waiting-for-job-completed", "waiting for the printer to finish", false},
});

constexpr std::array<std::string_view, 3> kSeverities{"-report", "-warning", "-error"};

std::string_view withoutSeverity(std::string_view reason) {
  for (const std::string_view severity : kSeverities) {
    if (reason.ends_with(severity)) return reason.substr(0, reason.size() - severity.size());
  }
  return reason;
}

// A printer may call a reason "cutter-error" itself, so the whole word is looked up first.
const ReasonText* findReason(std::string_view reason) {
  for (const std::string_view keyword : {reason, withoutSeverity(reason)}) {
    const auto* row = std::ranges::find(kReasonTexts, keyword, &ReasonText::keyword);
    if (row != kReasonTexts.end()) return row;
  }
  return nullptr;
}

std::string textOfReason(const std::string& reason) {
  if (const ReasonText* row = findReason(reason)) return std::string(row->text);
  std::string words(withoutSeverity(reason));
  std::ranges::replace(words, '-', ' ');
  return words;
}

std::string headText(PrinterState state) {
  switch (state) {
    case PrinterState::idle:
      return "Ready";
    case PrinterState::processing:
      return "Printing";
    case PrinterState::stopped:
      return "Paused";
    case PrinterState::unknown:
      break;
  }
  return "State unknown";
}

bool stopsPrinting(const std::string& reason) {
  const ReasonText* row = findReason(reason);
  return row && row->stopsPrinting;
}

}  // namespace

DestinationName DestinationName::parse(const std::string& text) {
  const auto slash = text.find('/');
  if (slash == std::string::npos) return {text, std::nullopt};
  return {text.substr(0, slash), text.substr(slash + 1)};
}

std::string DestinationName::text() const { return instance ? printer + '/' + *instance : printer; }

std::string Destination::stateText() const {
  const bool isUnready =
      state == PrinterState::idle && std::ranges::any_of(stateReasons, stopsPrinting);
  std::string text = isUnready ? "Not ready" : headText(state);
  const char* separator = " - ";
  const auto add = [&](const std::string& words) {
    text += separator + words;
    separator = ", ";
  };
  for (const std::string& reason : stateReasons) {
    if (withoutSeverity(reason) != "paused") add(textOfReason(reason));
  }
  if (!acceptsJobs) add("not accepting jobs");
  return text;
}

}  // namespace cutline
