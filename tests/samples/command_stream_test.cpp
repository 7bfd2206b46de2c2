#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "samples/printer/CommandStream.h"
#include "tests/samples/Dots.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::test {
namespace {

using namespace printer;

class CommandStream : public ::testing::Test {
 protected:
  ~CommandStream() override {
    if (mInput >= 0) ::close(mInput);
  }
  std::string file() const { return mFolder / "commands"; }
  int output() const { return ::open(file().c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600); }
  CommandReader reader() {
    mInput = ::open(file().c_str(), O_RDONLY);
    return CommandReader(mInput);
  }
  // The reader of a stream that begins well and goes on with `rest`.
  CommandReader readerOf(const std::string& rest) {
    writeFile(file(), "cutline-printer 1\n" + rest);
    CommandReader begun = reader();
    EXPECT_TRUE(begun.begin());
    return begun;
  }

  TemporaryFolder mFolder;
  int mInput = -1;
};

TEST_F(CommandStream, BringsOverEveryCommand) {
  const int out = output();
  CommandWriter writer(out);
  EXPECT_TRUE(writer.begin());
  for (const Command& command :
       {Command(Setting{"title", "50% off\nnow"}), Command(Resolution{180, 360}), Command(Feed{7}),
        Command(bitmapOf({"#........#", "\n.........", ".........#"})), Command(Cut::None),
        Command(Cut::Half), Command(Cut::Full), Command(End{})}) {
    EXPECT_TRUE(writer.write(command));
  }
  ::close(out);
  CommandReader in = reader();
  ASSERT_TRUE(in.begin());
  EXPECT_EQ(std::get<Setting>(*in.next()).value, "50% off\nnow");
  EXPECT_EQ(std::get<Resolution>(*in.next()).along, 360U);
  EXPECT_EQ(std::get<Feed>(*in.next()).dots, 7U);
  EXPECT_EQ(rowsOf(std::get<Bitmap>(*in.next())).back(), ".........#");
  EXPECT_EQ(std::get<Cut>(*in.next()), Cut::Half);
  EXPECT_EQ(std::get<Cut>(*in.next()), Cut::Full);
  EXPECT_TRUE(std::holds_alternative<End>(*in.next()));
  EXPECT_FALSE(in.next());
}

TEST_F(CommandStream, RefusesAnotherBeginning) {
  for (const char* text : {"", "cutline-printer 2\n", "cutline-printer 1", "%PDF-1.4\n"}) {
    writeFile(file(), text);
    CommandReader in = reader();
    EXPECT_FALSE(in.begin()) << text;
    ::close(mInput);
    mInput = -1;
  }
}

TEST_F(CommandStream, EndsAtWhatIsNoCommand) {
  for (const char* text :
       {"", "end", "jump\n", "feed\n", "feed -1\n", "feed 1x\n", "feed 4294967296\n",
        "feed 2000000\n", "resolution 180\n", "resolution 0 180\n", "cut\n", "cut deep\n",
        "end 1\n", "label 8\n", "label 8 2\n", "label 8 2\nx", "label 1000000 1000000\n",
        "label 2000000 1\n", "label 4294967295 4294967295\n"}) {
    EXPECT_FALSE(readerOf(text).next()) << text;
    ::close(mInput);
    mInput = -1;
  }
}

TEST_F(CommandStream, EndsAtALineWithoutEnd) {
  EXPECT_FALSE(readerOf("set name " + std::string(300'000, 'x')).next());
}

TEST_F(CommandStream, SaysWhenThereIsNoRoom) {
  const int full = ::open("/dev/full", O_WRONLY);
  CommandWriter writer(full);
  EXPECT_FALSE(writer.begin());
  EXPECT_FALSE(writer.write(Bitmap(8, 8)));
  ::close(full);
}

}  // namespace
}  // namespace cutline::test
