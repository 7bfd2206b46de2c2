#include "cups/Destination.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <string_view>

#include "base/Visible.h"

namespace cutline {

namespace {

struct PrinterReason {
  std::string_view keyword;
  Phrase text;
  bool stopsPrinting;  // an idle printer with this reason is not ready
};

constexpr std::array kPrinterReasons = std::to_array<PrinterReason>({
    {"media-empty", Phrase("cups", "label roll or tape is empty"), true},
    {"media-needed", Phrase("cups", "labels or tape needed"), true},
    {"media-jam", Phrase("cups", "label or tape is jammed"), true},
    {"media-low", Phrase("cups", "labels or tape nearly used up"), false},
    {"media-path-cannot-feed-media-selected", Phrase("cups", "label or tape is not fed"), true},
    {"media-path-jam", Phrase("cups", "label or tape is jammed"), true},
    {"input-tray-empty", Phrase("cups", "label roll or tape is empty"), true},
    {"input-media-supply-empty", Phrase("cups", "label roll or tape is empty"), true},
    {"input-media-supply-low", Phrase("cups", "labels or tape nearly used up"), false},
    {"input-cannot-feed-size-selected", Phrase("cups", "another label or tape is in the printer"),
     true},
    {"input-manual-input-request", Phrase("cups", "labels or tape needed"), true},
    {"output-area-full", Phrase("cups", "labels have to be taken out"), true},
    {"cover-open", Phrase("cups", "cover is open"), true},
    {"door-open", Phrase("cups", "door is open"), true},
    {"output-door-open", Phrase("cups", "door is open"), true},
    {"output-cover-open", Phrase("cups", "cover is open"), true},
    {"input-door-open", Phrase("cups", "door is open"), true},
    {"input-cover-open", Phrase("cups", "cover is open"), true},
    {"interlock-open", Phrase("cups", "cover is not locked"), true},
    {"input-tray-missing", Phrase("cups", "cassette is missing"), true},
    {"offline", Phrase("cups", "printer is switched off or not connected"), true},
    {"power-down", Phrase("cups", "printer is switched off"), true},
    {"power-up", Phrase("cups", "printer is starting"), false},
    {"warming-up", Phrase("cups", "printer is starting"), false},
    {"standby", Phrase("cups", "printer is asleep"), false},
    {"shutdown", Phrase("cups", "printer is switched off"), true},
    {"timed-out", Phrase("cups", "printer does not answer"), true},
    {"connecting-to-device", Phrase("cups", "connecting to the printer"), false},
    {"moving-to-paused", Phrase("cups", "pausing after the current label"), false},
    {"stopping", Phrase("cups", "stopping"), false},
    {"stopped-partly", Phrase("cups", "partly stopped"), false},
    {"cutter-open", Phrase("cups", "cutter's cover is open"), true},
    {"cutter-missing", Phrase("cups", "cutter is missing"), true},
    {"cutter", Phrase("cups", "cutter needs attention"), true},
    {"cutter-error", Phrase("cups", "cutter failed"), true},
    {"cutter-jam", Phrase("cups", "cutter is jammed"), true},
    {"cutter-near-end-of-life", Phrase("cups", "cutter is nearly worn out"), false},
    {"cutter-end-of-life", Phrase("cups", "cutter is worn out"), true},
    {"trimmer-cover-open", Phrase("cups", "cutter's cover is open"), true},
    {"trimmer-missing", Phrase("cups", "cutter is missing"), true},
    {"trimmer-jam", Phrase("cups", "cutter is jammed"), true},
    {"trimmer-failure", Phrase("cups", "cutter failed"), true},
    {"trimmer-near-end-of-life", Phrase("cups", "cutter is nearly worn out"), false},
    {"trimmer-end-of-life", Phrase("cups", "cutter is worn out"), true},
    {"marker-supply-empty", Phrase("cups", "ink ribbon is used up"), true},
    {"marker-supply-low", Phrase("cups", "ink ribbon is nearly used up"), false},
    {"marker-supply-missing", Phrase("cups", "ink ribbon is missing"), true},
    {"marker-waste-full", Phrase("cups", "container for used ink is full"), true},
    {"ribbon-empty", Phrase("cups", "ink ribbon is used up"), true},
    {"ribbon-low", Phrase("cups", "ink ribbon is nearly used up"), false},
    {"ribbon-missing", Phrase("cups", "ink ribbon is missing"), true},
    {"ribbon-out", Phrase("cups", "ink ribbon is used up"), true},
    {"developer-empty", Phrase("cups", "ink ribbon is used up"), true},
    {"developer-low", Phrase("cups", "ink ribbon is nearly used up"), false},
    {"toner-empty", Phrase("cups", "ink ribbon is used up"), true},
    {"toner-low", Phrase("cups", "ink ribbon is nearly used up"), false},
    {"fuser-over-temp", Phrase("cups", "print head is too hot"), true},
    {"spool-area-full", Phrase("cups", "print server has no room for more jobs"), true},
    {"hold-new-jobs", Phrase("cups", "new jobs are held"), false},
    {"other", Phrase("cups", "printer needs attention"), true},
    {"cups-missing-filter", Phrase("cups", "printer's driver is missing on the print server"),
     true},
    {"cups-insecure-filter",
     Phrase("cups", "printer's driver is not safely installed on the print server"), true},
    {"cups-remote-stopped", Phrase("cups", "remote printer is paused"), true},
    {"cups-remote-pending", Phrase("cups", "waiting for the remote printer"), false},
    {"cups-waiting-for-job-completed", Phrase("cups", "waiting for the printer to finish"), false},
});

// What servers say of a paused printer when nobody gave a reason.
constexpr std::array<std::string_view, 5> kEmptyPauses{"", "Paused", "Stopped", "Rejecting Jobs",
                                                       "Now accepting jobs."};

constexpr std::array<std::string_view, 3> kSeverities{"-report", "-warning", "-error"};

std::string_view withoutSeverity(std::string_view reason) {
  for (const std::string_view severity : kSeverities) {
    if (reason.ends_with(severity)) return reason.substr(0, reason.size() - severity.size());
  }
  return reason;
}

// A printer may call a reason "cutter-error" itself, so the whole word is looked up first.
const PrinterReason* findReason(std::string_view reason) {
  for (const std::string_view keyword : {reason, withoutSeverity(reason)}) {
    const auto* row = std::ranges::find(kPrinterReasons, keyword, &PrinterReason::keyword);
    if (row != kPrinterReasons.end()) return row;
  }
  return nullptr;
}

Sentence textOfReason(const std::string& reason) {
  if (const PrinterReason* row = findReason(reason)) return row->text;
  std::string words(withoutSeverity(reason));
  std::ranges::replace_if(
      words, [](char each) { return each == '-' || each == '_'; }, ' ');
  return visible(words);
}

Phrase headText(PrinterState state) {
  switch (state) {
    case PrinterState::idle:
      return Phrase("cups", "Ready");
    case PrinterState::processing:
      return Phrase("cups", "Printing");
    case PrinterState::stopped:
      return Phrase("cups", "Paused");
    case PrinterState::unknown:
      break;
  }
  return Phrase("cups", "State unknown");
}

// Of today the time alone.
std::string timeText(std::time_t time) {
  const std::time_t now = std::time(nullptr);
  std::tm then{};
  std::tm today{};
  if (!localtime_r(&time, &then) || !localtime_r(&now, &today)) return {};
  const bool isToday = then.tm_year == today.tm_year && then.tm_yday == today.tm_yday;
  std::array<char, 32> text{};
  std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &then);
  return isToday ? text.data() + std::string_view("YYYY-MM-DD ").size() : text.data();
}

Sentence headText(const Destination& printer) {
  if (printer.state != PrinterState::stopped || printer.stateSince <= 0)
    return headText(printer.state);
  return {Phrase("cups", "Paused since %1"), {timeText(printer.stateSince)}};
}

bool isReason(const std::string& message) {
  return std::ranges::find(kEmptyPauses, message) == kEmptyPauses.end();
}

bool stopsPrinting(const std::string& reason) {
  const PrinterReason* row = findReason(reason);
  return row && row->stopsPrinting;
}

}  // namespace

DestinationName DestinationName::parse(const std::string& text) {
  const auto slash = text.find('/');
  if (slash == std::string::npos) return {text, std::nullopt};
  return {text.substr(0, slash), text.substr(slash + 1)};
}

std::string DestinationName::text() const { return instance ? printer + '/' + *instance : printer; }

bool Destination::needsAttention() const {
  return std::ranges::any_of(stateReasons, stopsPrinting);
}

Sentence Destination::stateText() const {
  const bool isUnready = state == PrinterState::idle && needsAttention();
  std::vector<Sentence> remarks;
  for (const std::string& reason : stateReasons) {
    if (withoutSeverity(reason) != "paused") remarks.push_back(textOfReason(reason));
  }
  if (state == PrinterState::stopped && isReason(stateMessage))
    remarks.emplace_back(visible(stateMessage));
  if (!acceptsJobs) remarks.push_back(Phrase("cups", "not accepting jobs"));
  return withRemarks(isUnready ? Phrase("cups", "Not ready") : headText(*this), remarks);
}

}  // namespace cutline
