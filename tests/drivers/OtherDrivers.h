// Queues of drivers that none of us wrote, on a print server of their own.
#pragma once

#include <gtest/gtest.h>

#include <QJsonObject>
#include <memory>
#include <string>
#include <vector>

#include "host/core/CutMeanings.h"
#include "tests/support/Command.h"
#include "tests/support/PrivateServer.h"

namespace cutline::test {

class OtherDriversTest : public testing::Test {
 protected:
  static void SetUpTestSuite();
  static void TearDownTestSuite();
  static PrivateServer& labelServer();

  // `words` are those of lpadmin behind the queue's name.
  static void addQueue(const std::string& name, const std::string& words);
  // The program's own, on this server.
  static CommandResult program(const std::string& words);
  // The object of `cutline --plan --json WORDS` for the sample's labels; empty where it fails.
  static QJsonObject planFor(const std::string& words);
  // What the queue's driver can be asked to cut, with the installed words. `marks` are chosen
  // first.
  static std::vector<CutOffer> offersOf(const std::string& queue, const OptionList& marks = {});
  // The assignment as words of the command line.
  static std::string wordsOf(const OptionList& assignment);
  // Prints the sample's labels with these words and waits until they are out.
  static void print(const std::string& words);
};

}  // namespace cutline::test
