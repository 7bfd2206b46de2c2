#include "strip/PlanJson.h"

#include <array>
#include <charconv>
#include <cmath>
#include <ostream>
#include <string>
#include <string_view>

#include "strip/PlanWords.h"

namespace cutline {

namespace {

// In the order of StripEventKind.
constexpr std::array<std::string_view, 6> kKinds = {"leader",   "label",    "feed",
                                                    "half_cut", "full_cut", "cut_mark"};

// To the hundredth of a millimetre, in every locale the same.
std::string number(double millimetres) {
  std::array<char, 64> text{};
  const double rounded = std::round(millimetres * 100) / 100;
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), rounded, std::chars_format::fixed);
  return {text.data(), end.ptr};
}

std::string numberOrNull(std::optional<double> millimetres) {
  return millimetres ? number(*millimetres) : "null";
}

// Of cuts, pieces or marks.
std::string countOrNull(const CutPlan& plan, std::uint64_t count) {
  return plan.knowsCuts() ? std::to_string(count) : "null";
}

// In the order of CutAuthority.
constexpr std::array<std::string_view, 3> kAuthorities = {"settings", "printer", "nobody"};

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char letter : text) {
    if (letter == '"' || letter == '\\') result += '\\';
    result += letter;
  }
  return result + '"';
}

std::string_view boolean(bool value) { return value ? "true" : "false"; }

bool isStretch(StripEventKind kind) {
  return kind == StripEventKind::Leader || kind == StripEventKind::Label ||
         kind == StripEventKind::Feed;
}

void write(const StripEvent& event, const LabelRun& run, std::ostream& out) {
  const auto known = [](bool is, double value) {
    return is ? std::optional<double>(value) : std::nullopt;
  };
  out << "\n    {\"kind\": \"" << kKinds.at(static_cast<std::size_t>(event.kind))
      << "\", \"position_mm\": " << numberOrNull(known(event.isExact, event.position));
  if (isStretch(event.kind))
    out << ", \"length_mm\": " << numberOrNull(known(event.isLengthExact, event.length));
  out << ", \"label\": " << event.label;
  if (event.kind == StripEventKind::Label) out << ", \"page\": " << run.pageOf(event.label);
  out << '}';
}

}  // namespace

void writePlanJson(const CutPlan& plan, bool hasDocument, std::ostream& out) {
  const CutSettings& settings = plan.rules().settings();
  out << "{\n  \"version\": " << kPlanJsonVersion
      << ",\n  \"sentence\": " << quoted(planSentence(plan).english())
      << ",\n  \"document\": " << boolean(hasDocument) << ",\n  \"labels\": " << plan.labels()
      << ",\n  \"pieces\": " << countOrNull(plan, plan.pieces())
      << ",\n  \"full_cuts\": " << countOrNull(plan, plan.fullCuts())
      << ",\n  \"half_cuts\": " << countOrNull(plan, plan.halfCuts())
      << ",\n  \"cut_marks\": " << countOrNull(plan, plan.cutMarks())
      << ",\n  \"tape_mm\": " << numberOrNull(plan.tape())
      << ",\n  \"waste_mm\": " << numberOrNull(plan.waste())
      << ",\n  \"mirrored\": " << boolean(settings.mirrors) << ",\n  \"cuts_said_by\": \""
      << kAuthorities.at(static_cast<std::size_t>(settings.authority)) << "\",\n  \"events\": [";
  bool isFirst = true;
  plan.forEachEvent([&](const StripEvent& event) {
    if (!isFirst) out << ',';
    isFirst = false;
    write(event, plan.run(), out);
  });
  out << (isFirst ? "]\n}\n" : "\n  ]\n}\n");
}

}  // namespace cutline
