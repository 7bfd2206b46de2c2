#include "samples/printer/StripJob.h"

#include <time.h>
#include <unistd.h>

#include <cstdio>
#include <optional>
#include <sstream>
#include <variant>

#include "samples/printer/Choices.h"
#include "samples/printer/StripFolder.h"

namespace cutline::printer {
namespace {

// One line for each fact: whatever else a value holds, it holds no line breaks.
std::string oneLine(const std::string& value) {
  std::string line;
  for (const char letter : value) {
    if (letter == '\n') {
      line += "\\n";
    } else {
      line += letter;
    }
  }
  return line;
}

// The margins keep a document's ink out of a label's corners: what is there marks where to cut.
bool isMarkedAt(const Bitmap& label, std::int64_t y) {
  return label.inkAt(0, y) && label.inkAt(std::int64_t{label.width()} - 1, y);
}

// Ends early on a signal, as a job that is cancelled has to.
void wait(unsigned milliseconds) {
  const timespec time = {milliseconds / 1000, static_cast<long>(milliseconds % 1000) * 1'000'000};
  ::nanosleep(&time, nullptr);
}

}  // namespace

bool StripJob::refuse(std::string problem) {
  mProblem = std::move(problem);
  return false;
}

bool StripJob::read(CommandReader& reader, const volatile int& cancelled) {
  if (!reader.begin()) return refuse("The data was not made by the printer's driver.");
  while (!mEnded) {
    std::optional<Command> command = reader.next();
    if (cancelled != 0) return refuse("The job was cancelled.");
    mBrokeOff = !command;
    if (mBrokeOff) return refuse("The job's data broke off.");
    std::visit([this](auto& what) { take(std::move(what)); }, *command);
  }
  mStrip.finish();
  return mLabels > 0 || refuse("The job has no labels.");
}

void StripJob::take(Setting setting) {
  if (setting.name == kFamilyKey && setting.value == kRollFamily)
    mStrip.setDirection(Strip::Direction::Down);
  mFacts.emplace_back(std::move(setting.name), std::move(setting.value));
}

void StripJob::take(const Feed& feed) {
  mEndsInMark = false;
  mStrip.addBlank(feed.dots);
}

void StripJob::take(Cut cut) {
  if (cut == Cut::Full) mPieceHasLabel = false;
  mStrip.addCut(cut);
}

// Where two labels meet, the end of one and the beginning of the next are one mark.
void StripJob::countMarks(const Bitmap& label) {
  const bool beginsInMark = isMarkedAt(label, 0) && !mEndsInMark;
  mEndsInMark = isMarkedAt(label, std::int64_t{label.height()} - 1);
  mCutMarks += (beginsInMark ? 1U : 0U) + (mEndsInMark ? 1U : 0U);
}

void StripJob::take(Bitmap label) {
  ++mLabels;
  if (!std::exchange(mPieceHasLabel, true)) ++mPieces;
  countMarks(label);
  mStrip.addLabel(std::move(label));
  if (mPace > 0) wait(mPace);
}

std::string StripJob::text() const {
  std::ostringstream out;
  for (const auto& [name, value] : mFacts) out << name << '=' << oneLine(value) << '\n';
  const std::vector<Place> places = mStrip.labelPlaces();
  const Place whole = mStrip.bounds();
  // A strip that is longer than a picture can be is drawn up to there.
  out << "labels=" << mLabels << "\nlabels-drawn=" << places.size()
      << "\nfull-cuts=" << mStrip.cuts(Cut::Full) << "\nhalf-cuts=" << mStrip.cuts(Cut::Half)
      << "\ncut-marks=" << mCutMarks << "\npieces=" << mPieces << "\npicture=" << whole.width << ','
      << whole.height << '\n';
  for (std::size_t at = 0; at < places.size(); ++at) {
    const Place& place = places[at];
    out << "label." << at + 1 << '=' << place.x << ',' << place.y << ',' << place.width << ','
        << place.height << '\n';
  }
  return out.str();
}

bool StripJob::store(const std::string& stem, const volatile int& cancelled) {
  AtomicFile picture(stem + ".png");
  AtomicFile list(stem + ".txt");
  if (picture.stream() == nullptr || list.stream() == nullptr)
    return refuse("Cannot write to " + stem.substr(0, stem.rfind('/')) + ".");
  const std::string facts = text();
  const bool written = mStrip.write(picture.stream()) &&
                       std::fwrite(facts.data(), 1, facts.size(), list.stream()) == facts.size() &&
                       std::fflush(list.stream()) == 0;
  if (!written) return refuse("Cannot write " + stem + ".png: no space, or a quota.");
  if (cancelled != 0) return refuse("The job was cancelled.");
  if (picture.commit() && list.commit()) return true;
  ::unlink((stem + ".png").c_str());
  return refuse("Cannot write " + stem + ".txt.");
}

}  // namespace cutline::printer
