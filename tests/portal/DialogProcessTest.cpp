// The dialog as a child process; scripts stand in its place.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <filesystem>
#include <functional>
#include <optional>

#include "portal/DialogProcess.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::portal {
namespace {

struct End {
  int status = 0;
  std::string output;
  friend bool operator==(const End&, const End&) = default;
  friend std::ostream& operator<<(std::ostream& out, const End& end) {
    return out << end.status << " \"" << end.output << '"';
  }
};

class DialogProcessTest : public testing::Test {
 protected:
  static constexpr qint64 kMostMilliseconds = 20000;

  // Processes events until there is an end.
  void await() {
    QElapsedTimer time;
    time.start();
    while (!mEnd && time.elapsed() < kMostMilliseconds)
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
  }
  // How a dialog ends that is this script.
  End endOf(const std::string& script, FileDescriptor document = FileDescriptor(),
            const std::function<void(DialogProcess&)>& act = {}) {
    const std::string path = mFolder.write("dialog", "#!/bin/bash\n" + script + '\n');
    ::chmod(path.c_str(), 0755);
    return endOfProgram(path, std::move(document), act);
  }
  End endOfProgram(const std::string& path, FileDescriptor document = FileDescriptor(),
                   const std::function<void(DialogProcess&)>& act = {}) {
    mEnd.reset();
    DialogProcess dialog(QString::fromStdString(path), nullptr);
    QObject::connect(&dialog, &DialogProcess::ended, [this](int status, const QByteArray& output) {
      mEnd = End{status, output.toStdString()};
    });
    dialog.start({QStringLiteral("--choose"), QStringLiteral("two words")}, std::move(document));
    if (act) act(dialog);
    await();
    return mEnd.value_or(End{99, "no end"});
  }
  // Until the script has made its file.
  void awaitFile(const std::string& name) const {
    QElapsedTimer time;
    time.start();
    while (!std::filesystem::exists(mFolder / name) && time.elapsed() < kMostMilliseconds)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  }

  int mCount = 1;
  char mName[5] = "test";
  char* mWords[2] = {mName, nullptr};
  const QCoreApplication mApplication{mCount, mWords};
  test::TemporaryFolder mFolder;
  std::optional<End> mEnd;
};

TEST_F(DialogProcessTest, TellsHowItEndedAndWhatItSaid) {
  EXPECT_EQ(endOf("echo \"$1,$2\"; exit 3"), (End{3, "--choose,two words\n"}));
}

TEST_F(DialogProcessTest, TellsOfNoStatusWhereItCannotBeStartedOrIsKilled) {
  EXPECT_EQ(endOfProgram("/nonexistent/cutline"), (End{-1, ""}));
  EXPECT_EQ(endOf("kill -KILL $$"), (End{-1, ""}));
}

TEST_F(DialogProcessTest, ReadsItsDocumentFromStandardInput) {
  const std::string path = mFolder.write("document", "Shelf 12");
  EXPECT_EQ(endOf("cat", FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC))),
            (End{0, "Shelf 12"}));
  EXPECT_EQ(endOf("cat"), (End{0, ""}));
}

TEST_F(DialogProcessTest, KeepsNoMoreThanAGigabyte) {
  const std::string blocks = std::to_string((std::size_t{1} << 30U) / 1024);
  EXPECT_EQ(endOf("ulimit -f"), (End{0, blocks + '\n'}));
}

TEST_F(DialogProcessTest, EndsWhenItIsClosed) {
  EXPECT_EQ(
      endOf("trap 'exit 3' TERM; touch " + mFolder / "ready" + "; while sleep 0.05; do :; done",
            FileDescriptor(),
            [this](DialogProcess& dialog) {
              awaitFile("ready");
              dialog.close();
            }),
      (End{3, ""}));
}

// It may hang, or have more to say than anybody hears.
TEST_F(DialogProcessTest, IsKilledWhereItDoesNotEndWhenItIsClosed) {
  EXPECT_EQ(endOf("trap '' TERM; touch " + mFolder / "ready" + "; while sleep 0.05; do :; done",
                  FileDescriptor(),
                  [this](DialogProcess& dialog) {
                    awaitFile("ready");
                    dialog.close();
                  }),
            (End{-1, ""}));
}

TEST_F(DialogProcessTest, MayBeClosedOnceItHasEnded) {
  EXPECT_EQ(endOf("echo closed; exit 3", FileDescriptor(),
                  [this](DialogProcess& dialog) {
                    await();
                    dialog.close();
                  }),
            (End{3, "closed\n"}));
}

}  // namespace
}  // namespace cutline::portal
