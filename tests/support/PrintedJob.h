// What a sample printer has stored of one job.
#pragma once

#include <map>
#include <string>

#include "tests/support/Facts.h"
#include "tests/support/PrivateServer.h"

namespace cutline::test {

using Choices = std::map<std::string, std::string>;  // by keyword

class PrintedJob {
 public:
  PrintedJob(const PrivateServer& server, int jobId);

  // The options that the printer's driver was started with, without those that the server adds to
  // tell one job from the next.
  const Choices& options() const noexcept { return mOptions; }
  // One line of the printer's list; empty when it has none of the name.
  std::string fact(const std::string& name) const;
  int number(const std::string& name) const;
  // How many labels of the stored picture have something printed on them.
  int printedLabels() const;
  // The picture's file.
  const std::string& picturePath() const noexcept { return mPicturePath; }
  // The first label's place in the picture, in dots.
  printer::Place firstLabel() const;

 private:
  std::string mPicturePath;
  Facts mFacts;
  Choices mOptions;
};

}  // namespace cutline::test
