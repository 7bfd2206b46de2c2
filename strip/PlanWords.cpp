#include "strip/PlanWords.h"

#include <cmath>
#include <optional>
#include <string>

namespace cutline {

namespace {

// A number and what is counted.
struct Count {
  Phrase one;
  Phrase many;
};
constexpr Count kLabels = {Phrase("strip", "1 label"), Phrase("strip", "%1 labels")};
constexpr Count kPieces = {Phrase("strip", "1 piece"), Phrase("strip", "%1 pieces")};

Sentence counted(const Count& what, std::uint64_t number) {
  if (number == 1) return what.one;
  return {what.many, {std::to_string(number)}};
}

Sentence joined(const std::vector<Sentence>& parts) {
  Sentence all = parts.front();
  for (std::size_t at = 1; at < parts.size(); ++at)
    all = {Phrase("strip", "%1, %2"), {all, parts[at]}};
  return all;
}

Sentence millimetres(double length) {
  return {Phrase("strip", "%1 mm"), {std::to_string(std::llround(length))}};
}

Sentence lengthOrUnknown(std::optional<double> length) {
  if (!length) return Phrase("strip", "length not known");
  return millimetres(*length);
}

Sentence tapeUsed(const CutPlan& plan) {
  const std::optional<double> most = plan.mostTape();
  if (!most) return Phrase("strip", "length not known");
  const Sentence used = {plan.rules().settings().isRoll ? Phrase("strip", "%1 of the roll")
                                                        : Phrase("strip", "%1 of tape"),
                         {millimetres(*most)}};
  if (plan.tape()) return used;
  return {Phrase("strip", "at most %1"), {used}};
}

// What the knife does to the whole job, or why it does nothing.
Sentence fullCutsOf(const CutPlan& plan) {
  const CutSettings& settings = plan.rules().settings();
  if (settings.isSpecialTape) return Phrase("strip", "special tape, which is never cut");
  if (plan.fullCutsBetweenLabels() == 0) {
    if (plan.rules().atEnd() == Cut::Full) return Phrase("strip", "cut at the end");
    return settings.isRoll ? Phrase("strip", "roll not cut") : Phrase("strip", "tape not cut");
  }
  if (settings.labelsPerCut == 1) return Phrase("strip", "cut after each label");
  if (settings.unit == CutUnit::Copy) return Phrase("strip", "cut after each copy");
  return {Phrase("strip", "cut every %1"), {std::to_string(settings.labelsPerCut)}};
}

std::vector<Sentence> effectsOf(const CutPlan& plan) {
  const CutSettings& settings = plan.rules().settings();
  std::vector<Sentence> effects = {fullCutsOf(plan)};
  const auto say = [&](bool condition, Phrase words) {
    if (condition) effects.emplace_back(words);
  };
  const bool isHalfCutBetween = plan.halfCutsBetweenLabels() > 0;
  say(isHalfCutBetween, Phrase("strip", "half cut between"));
  say(!isHalfCutBetween && plan.halfCuts() > 0, Phrase("strip", "half cut beside the label"));
  say(settings.chains, Phrase("strip", "the last label stays in the printer"));
  say(settings.printsCutMarks, Phrase("strip", "with cut marks"));
  say(settings.removesBlankSpace, Phrase("strip", "blank space removed"));
  say(settings.mirrors, Phrase("strip", "mirrored"));
  return effects;
}

Sentence leaderLine(const CutPlan& plan) {
  const Sentence length = lengthOrUnknown(plan.rules().settings().leader);
  switch (plan.rules().behindLeader()) {
    case Cut::Full:
      return {Phrase("strip", "leader: %1, cut off"), {length}};
    case Cut::Half:
      return {Phrase("strip", "leader: %1, half cut behind it"), {length}};
    case Cut::None:
      break;
  }
  return {Phrase("strip", "leader: %1, not cut off"), {length}};
}

Sentence endOf(const PieceRun& run, const CutPlan& plan) {
  switch (run.end) {
    case PieceRun::End::Cut:
      return Phrase("strip", "cut off");
    case PieceRun::End::StaysInPrinter:
      return Phrase("strip", "the last label stays in the printer");
    case PieceRun::End::HangsOut:
      break;
  }
  if (plan.rules().atEnd() == Cut::Half) return Phrase("strip", "half cut behind it, not cut off");
  return Phrase("strip", "not cut off");
}

Sentence runLine(const PieceRun& run, const CutPlan& plan) {
  std::vector<Sentence> parts = {
      {Phrase("strip", "%1 of %2"), {counted(kPieces, run.pieces), counted(kLabels, run.labels)}}};
  if (run.labels > 1 && plan.rules().settings().halfCuts)
    parts.emplace_back(Phrase("strip", "half cut between"));
  parts.push_back(endOf(run, plan));
  return joined(parts);
}

// Where the settings do not.
Phrase whoSays(const CutPlan& plan) {
  if (plan.rules().settings().authority == CutAuthority::Nobody)
    return Phrase("strip", "%1; this driver says nothing of cutting");
  return Phrase("strip", "%1; the printer decides where to cut");
}

}  // namespace

Sentence planSentence(const CutPlan& plan) {
  if (plan.labels() == 0) return Phrase("strip", "no labels");
  if (!plan.knowsCuts()) return {whoSays(plan), {counted(kLabels, plan.labels())}};
  std::vector<Sentence> asked = effectsOf(plan);
  asked.insert(asked.begin(), counted(kLabels, plan.labels()));
  return {Phrase("strip", "%1: %2"),
          {joined(asked), joined({counted(kPieces, plan.pieces()), tapeUsed(plan)})}};
}

std::vector<Sentence> planLines(const CutPlan& plan) {
  std::vector<Sentence> lines;
  if (plan.labels() == 0 || !plan.knowsCuts()) return lines;
  const KnifeRules& rules = plan.rules();
  if (rules.hasLeader()) lines.push_back(leaderLine(plan));
  for (const PieceRun& run : plan.pieceRuns()) lines.push_back(runLine(run, plan));
  if (rules.feedsOut())
    lines.emplace_back(Phrase("strip", "feed behind the last label: %1"),
                       std::vector<Sentence>{lengthOrUnknown(rules.settings().feed)});
  if (rules.settings().printsCutMarks)
    lines.emplace_back(Phrase("strip", "cut marks at both ends of each label: %1"),
                       std::vector<Sentence>{std::to_string(plan.cutMarks())});
  return lines;
}

}  // namespace cutline
