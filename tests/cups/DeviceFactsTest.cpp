// What a printer says of itself, and printers that say nothing. tests/e2e asks a real one.
#include <arpa/inet.h>
#include <cups/ipp.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <thread>

#include "base/FileDescriptor.h"
#include "cups/DeviceFacts.h"

namespace cutline {
namespace {

// A printer at a free port of this machine, which gives one client this answer.
class OnePrinter {
 public:
  explicit OnePrinter(std::string answer) : mListener(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* plain = reinterpret_cast<sockaddr*>(&address);
    EXPECT_EQ(bind(mListener.get(), plain, size), 0);
    EXPECT_EQ(listen(mListener.get(), 1), 0);
    EXPECT_EQ(getsockname(mListener.get(), plain, &size), 0);
    mPort = ntohs(address.sin_port);
    mThread = std::jthread([this, answer = std::move(answer)] { serve(answer); });
  }
  ~OnePrinter() { shutdown(mListener.get(), SHUT_RDWR); }
  OnePrinter(const OnePrinter&) = delete;
  OnePrinter& operator=(const OnePrinter&) = delete;

  DeviceFacts ask() const {
    return askDevice("ipp://127.0.0.1:" + std::to_string(mPort) + "/ipp/print");
  }

 private:
  // Until the client hangs up.
  void serve(const std::string& answer) const {
    const FileDescriptor client(accept(mListener.get(), nullptr, nullptr));
    if (!client) return;
    std::array<char, 4096> bytes{};
    bool isFirst = true;
    while (read(client.get(), bytes.data(), bytes.size()) > 0)
      if (std::exchange(isFirst, false)) writeAll(client.get(), answer.data(), answer.size());
  }

  FileDescriptor mListener;
  int mPort = 0;
  std::jthread mThread;
};

ssize_t append(void* text, ipp_uchar_t* bytes, std::size_t size) {
  static_cast<std::string*>(text)->append(reinterpret_cast<const char*>(bytes), size);
  return static_cast<ssize_t>(size);
}

std::string answerWith(const std::function<void(ipp_t*)>& add) {
  ipp_t* answer = ippNew();
  ippSetVersion(answer, 2, 0);
  ippSetRequestId(answer, 1);
  ippAddString(answer, IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr, "utf-8");
  add(answer);
  std::string body;
  ippWriteIO(&body, append, 1, nullptr, answer);
  ippDelete(answer);
  return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
         std::to_string(body.size()) + "\r\n\r\n" + body;
}

ipp_t* mediaOf(int width, int length) {
  ipp_t* size = ippNew();
  ippAddInteger(size, IPP_TAG_PRINTER, IPP_TAG_INTEGER, "x-dimension", width);
  ippAddInteger(size, IPP_TAG_PRINTER, IPP_TAG_INTEGER, "y-dimension", length);
  ipp_t* media = ippNew();
  ippAddCollection(media, IPP_TAG_PRINTER, "media-size", size);
  ippDelete(size);
  return media;
}

void expectNothing(const DeviceFacts& facts) {
  EXPECT_TRUE(facts.finishings.empty());
  EXPECT_TRUE(facts.ready.empty());
}

TEST(DeviceFacts, AreItsDefaultFinishingAndWhatIsLoaded) {
  const OnePrinter printer(answerWith([](ipp_t* answer) {
    ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_ENUM, "finishings-default", 60);
    ipp_t* media = mediaOf(6200, 2900);
    const ipp_t* all[] = {media};
    ippAddCollections(answer, IPP_TAG_PRINTER, "media-col-ready", 1, all);
    ippDelete(media);
  }));
  const DeviceFacts facts = printer.ask();
  EXPECT_EQ(facts.finishings, std::vector<int>{60});
  EXPECT_EQ(facts.ready, (std::vector<MediaMeasures>{{6200, 2900}}));
}

TEST(DeviceFacts, TakeTheNamesOfMediaWhereThereAreNoMeasures) {
  const OnePrinter printer(answerWith([](ipp_t* answer) {
    ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "media-ready", nullptr,
                 "oe_w24-label_24x50mm");
  }));
  EXPECT_EQ(printer.ask().ready, (std::vector<MediaMeasures>{{2400, 5000}}));
}

TEST(DeviceFacts, AreUnknownOfAPrinterThatDoesNotTell) {
  for (const char* answer : {"HTTP/1.1 401 Unauthorized\r\nContent-Length: 0\r\n\r\n",
                             "HTTP/1.1 500 Sorry\r\nContent-Length: 0\r\n\r\n", "nonsense\r\n\r\n",
                             "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n\x02\x00"})
    expectNothing(OnePrinter(answer).ask());
}

TEST(DeviceFacts, AreUnknownOfAPrinterThatKeepsSilent) { expectNothing(OnePrinter("").ask()); }

TEST(DeviceFacts, AreUnknownWhereNobodyIsAsked) {
  for (const char* uri : {"", "file:/dev/null", "usb://X/Y", "socket://127.0.0.1", "ipp:", "ipp://",
                          "ipp://127.0.0.1:1/ipp/print", "http://127.0.0.1:1/"})
    expectNothing(askDevice(uri));
}

TEST(DeviceFacts, LeaveOutMediaWithoutBothMeasures) {
  const OnePrinter printer(answerWith([](ipp_t* answer) {
    // A roll that is cut to any length, one of which nothing is said, and labels.
    ipp_t* roll = ippNew();
    ipp_t* size = ippNew();
    ippAddInteger(size, IPP_TAG_PRINTER, IPP_TAG_INTEGER, "x-dimension", 6200);
    ippAddRange(size, IPP_TAG_PRINTER, "y-dimension", 100, 100000);
    ippAddCollection(roll, IPP_TAG_PRINTER, "media-size", size);
    ippDelete(size);
    ipp_t* nameless = ippNew();
    ippAddString(nameless, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "media-type", nullptr, "labels");
    ipp_t* labels = mediaOf(6200, 2900);
    const ipp_t* all[] = {roll, nameless, labels};
    ippAddCollections(answer, IPP_TAG_PRINTER, "media-col-ready", 3, all);
    for (ipp_t* each : {roll, nameless, labels}) ippDelete(each);
  }));
  const std::vector<MediaMeasures> expected{{6200, 2900}};
  EXPECT_EQ(printer.ask().ready, expected);
}

TEST(DeviceFacts, LeaveOutNamesOfMediaThatSayNoSize) {
  const OnePrinter printer(answerWith([](ipp_t* answer) {
    const char* const names[] = {"roll", "oe_label_62x29mm"};
    ippAddStrings(answer, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "media-ready", 2, nullptr, names);
  }));
  const std::vector<MediaMeasures> expected{{6200, 2900}};
  EXPECT_EQ(printer.ask().ready, expected);
}

}  // namespace
}  // namespace cutline
