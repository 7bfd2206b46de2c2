// An IPP printer that none of us wrote, ippeveprinter of CUPS, at a free port of this machine: with
// a cutter, two sizes of labels, and a folder in which it keeps what it is sent.
#pragma once

#include <QProcess>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"

namespace cutline::test {

// A job as the printer got it.
struct IppJob {
  std::string finishings;  // IPP's keyword, as "trim-after-pages"
  std::string copies;      // empty where the job has none
  std::string mediaCol;
  unsigned pages = 0;
};

class IppPrinter {
 public:
  // `finishing` is what the printer does with a job that does not say, by IPP's numbers. It cuts by
  // itself in the ways 11 and 60 to 63. Labels of 62 x 29 mm are loaded, 24 x 50 mm are its
  // default. Throws where it does not start.
  explicit IppPrinter(int finishing);
  ~IppPrinter();
  IppPrinter(const IppPrinter&) = delete;
  IppPrinter& operator=(const IppPrinter&) = delete;

  std::string uri() const;
  // Those that came since it was last asked, in their order.
  std::vector<IppJob> newJobs();

 private:
  bool start();

  TemporaryFolder mFolder;
  QProcess mBus;
  QProcess mPrinter;
  int mPort = 0;
  std::size_t mSeen = 0;
};

}  // namespace cutline::test
