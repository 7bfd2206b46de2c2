#include "tests/support/PrintedJob.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "cups/CupsOptions.h"
#include "tests/support/PngPicture.h"

namespace cutline::test {

namespace {

// Enough for a few letters; a label's frame alone has more.
constexpr unsigned kInkOfALabel = 1000;
constexpr std::array<std::string_view, 6> kOfTheServer = {
    "job-uuid",           "job-originating-host-name", "date-time-at-creation",
    "time-at-processing", "date-time-at-processing",   "time-at-creation"};

bool isOfTheServer(const std::string& name) {
  return std::find(kOfTheServer.begin(), kOfTheServer.end(), name) != kOfTheServer.end();
}

}  // namespace

PrintedJob::PrintedJob(const PrivateServer& server, int jobId)
    : mPicturePath(server.printedFile(jobId, ".png")),
      mFacts(factsOf(server.printedFile(jobId, ".txt"))) {
  for (const auto& [name, value] : CupsOptions::parse(fact("filter.argv5").c_str()).list())
    if (!isOfTheServer(name)) mOptions[name] = value;
}

std::string PrintedJob::fact(const std::string& name) const {
  const auto found = mFacts.find(name);
  return found == mFacts.end() ? std::string() : found->second;
}

int PrintedJob::number(const std::string& name) const {
  const std::string text = fact(name);
  return text.empty() ? 0 : std::stoi(text);
}

int PrintedJob::printedLabels() const {
  const PngPicture picture(mPicturePath);
  int count = 0;
  for (int label = 1; label <= number("labels"); ++label) {
    const printer::Place place = placeOf(fact("label." + std::to_string(label)));
    if (picture.inkIn(place) > kInkOfALabel) ++count;
  }
  return count;
}

printer::Place PrintedJob::firstLabel() const { return placeOf(fact("label.1")); }

}  // namespace cutline::test
