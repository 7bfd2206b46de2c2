// Whoever prints all day: memory, descriptors and threads stay as many as they were.
#include <malloc.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QPixmapCache>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>

#include "tests/dialog/DialogTest.h"

namespace cutline {
namespace {

// What one round may leave behind, on average, and what may be left however many there are: less
// than any window or PPD.
constexpr double kBytesOfARound = 64;
constexpr double kBytesAtAll = 16'384;

// Until pictures that are drawn meanwhile are there.
constexpr int kCalmMilliseconds = 500;

// Whole thirds of it for two papers and three printers.
constexpr int kLongLife = 10'008;

// Kilobytes.
constexpr int kUsualCache = 10240;

bool isLongLife() { return std::getenv("CUTLINE_LONG_TESTS") != nullptr; }

std::ptrdiff_t entriesOf(const char* folder) {
  return std::distance(std::filesystem::directory_iterator(folder), {});
}

// Also what Qt deletes later.
void settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

// What the process holds.
struct Holdings {
  static Holdings now() {
    const auto memory = ::mallinfo2();
    return {static_cast<double>(memory.uordblks + memory.hblkhd), entriesOf("/proc/self/fd"),
            entriesOf("/proc/self/task")};
  }
  double bytes;
  std::ptrdiff_t descriptors;
  std::ptrdiff_t threads;
};

class Lifetime : public DialogTest {
 protected:
  // Qt keeps the pictures of what it draws until they are ten megabytes.
  Lifetime() { QPixmapCache::setCacheLimit(0); }
  ~Lifetime() override { QPixmapCache::setCacheLimit(kUsualCache); }

  // Caches are filled while the rounds go on, each once; so the third of them in which less came to
  // stay says what each round leaves behind. The first third counts not.
  template <typename Round>
  void expectFlat(int rounds, const Round& round) {
    const int third = rounds / 3;
    const Holdings first = afterRounds(0, third, round);
    const Holdings second = afterRounds(third, 2 * third, round);
    const Holdings last = afterRounds(2 * third, 3 * third, round);
    const double grown = std::min(second.bytes - first.bytes, last.bytes - second.bytes);
    EXPECT_LT(grown, kBytesAtAll + third * kBytesOfARound) << "in " << third << " rounds";
    EXPECT_LE(last.descriptors, first.descriptors);
    EXPECT_LE(last.threads, first.threads);
  }

 private:
  template <typename Round>
  Holdings afterRounds(int from, int to, const Round& round) {
    for (int i = from; i < to; ++i) round(i);
    QTest::qWait(kCalmMilliseconds);
    settle();
    composer().forgetRequests();
    return Holdings::now();
  }
};

TEST_F(Lifetime, OfPrintersThatAreSwitched) {
  const char* const names[] = {"roll", "other", "tape"};
  server().addPrinter("roll", samplePpd("roll"));
  server().addPrinter("other", samplePpd("tape-b"));
  openQueue(samplePpd("tape-a"));
  expectFlat(isLongLife() ? kLongLife : 36, [&](int round) {
    const auto choice = server().open(server().destination(names[round % 3]));
    ASSERT_TRUE(choice);
    dialog().openPrinter(*choice);
    settle();
  });
}

// More often than settings are remembered to be undone.
TEST_F(Lifetime, OfPapersThatAreChosen) {
  constexpr int kAtOnce = 10;
  openQueue(samplePpd("tape-a"));
  auto* papers = named<QComboBox>("Paper");
  expectFlat(isLongLife() ? kLongLife : 630, [papers](int round) {
    papers->setCurrentIndex(round % 2);
    emit papers->activated(papers->currentIndex());
    if (round % kAtOnce == 0) settle();
  });
}

TEST_F(Lifetime, OfDialogsThatAreOpenedAndClosed) {
  expectFlat(isLongLife() ? kLongLife : 15, [this](int) {
    openQueue(samplePpd("tape-a"));
    closeDialog();
    settle();
  });
}

}  // namespace
}  // namespace cutline
