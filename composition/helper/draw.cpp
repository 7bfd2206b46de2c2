// Draws pages of the PDF that is descriptor 3, confined: requests come on standard input, pictures
// go to standard output, until there is no more to read. Started by PageDrawer.
#include <malloc.h>
#include <poppler-document.h>
#include <poppler-global.h>
#include <poppler-image.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cmath>
#include <memory>
#include <new>

#include "base/FileDescriptor.h"
#include "base/Uninterrupted.h"
#include "composition/DrawerMessages.h"
#include "composition/helper/Confinement.h"

namespace {

using namespace cutline;

constexpr int kDocument = STDERR_FILENO + 1;
constexpr double kPointsPerInch = 72;
// A little more than the client waits for an answer.
constexpr unsigned kAnswerSeconds = 25;
// The client's thread may end before the client does. Standard input's end is what ends this.
constexpr ProcessLimits kLimits = {.memory = 1U << 30U,
                                   .fileSize = 0,
                                   .cpuSeconds = 0,
                                   .files = 64,
                                   .wallSeconds = kAnswerSeconds,
                                   .endsWithParent = false};

bool readRequest(DrawRequest& request) {
  auto* to = reinterpret_cast<char*>(&request);
  for (std::size_t got = 0; got < sizeof request;) {
    const ssize_t count =
        uninterrupted([&] { return ::read(STDIN_FILENO, to + got, sizeof request - got); });
    if (count <= 0) return false;
    got += static_cast<std::size_t>(count);
  }
  return true;
}

bool answer(const void* bytes, std::size_t size) { return writeAll(STDOUT_FILENO, bytes, size); }
bool answer(DrawnState state) {
  const DrawAnswer words{state};
  return answer(&words, sizeof words);
}

// Mapped, not read: most of a long document's pages are never looked at.
std::unique_ptr<poppler::document> openedDocument() {
  struct stat file {};
  if (::fstat(kDocument, &file) != 0 || file.st_size <= 0 || file.st_size > INT_MAX) return nullptr;
  const auto size = static_cast<std::size_t>(file.st_size);
  void* bytes = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, kDocument, 0);
  if (bytes == MAP_FAILED) return nullptr;
  return std::unique_ptr<poppler::document>(poppler::document::load_from_raw_data(
      static_cast<const char*>(bytes), static_cast<int>(file.st_size)));
}

bool isTooLarge(const poppler::page& page, double scale) {
  const poppler::rectf box = page.page_rect(poppler::crop_box);
  const double pixels = std::ceil(box.width() * scale) * std::ceil(box.height() * scale);
  return !(pixels <= kMostPixels) || !(scale > 0);
}

// All rows at once, which lie one behind the other: at each word, two processes wake each other.
bool answerWith(const poppler::image& image) {
  const auto row = static_cast<std::size_t>(image.width()) * sizeof(std::uint32_t);
  if (static_cast<std::size_t>(image.bytes_per_row()) != row) return answer(DrawnState::failed);
  const DrawAnswer words{DrawnState::fine, image.width(), image.height()};
  return answer(&words, sizeof words) &&
         answer(image.const_data(), row * static_cast<std::size_t>(image.height()));
}

bool draw(const poppler::document& document, const DrawRequest& request) {
  if (request.page < 0 || request.page >= document.pages()) return answer(DrawnState::noPage);
  const std::unique_ptr<poppler::page> page(document.create_page(request.page));
  if (!page) return answer(DrawnState::failed);
  if (isTooLarge(*page, request.scale)) return answer(DrawnState::tooLarge);
  poppler::page_renderer renderer;
  renderer.set_render_hint(poppler::page_renderer::antialiasing);
  renderer.set_render_hint(poppler::page_renderer::text_antialiasing);
  renderer.set_image_format(poppler::image::format_argb32);
  const double resolution = kPointsPerInch * request.scale;
  const poppler::image image = renderer.render_page(page.get(), resolution, resolution);
  return image.is_valid() ? answerWith(image) : answer(DrawnState::failed);
}

// False where there is nobody to answer any more.
bool drawOrSay(const poppler::document& document, const DrawRequest& request) {
  try {
    return draw(document, request);
  } catch (const std::bad_alloc&) {
    return answer(DrawnState::failed);
  }
}

int run() {
  if (!confine(kLimits)) return EXIT_FAILURE;
  const std::unique_ptr<poppler::document> document = openedDocument();
  const DrawerGreeting greeting{document && !document->is_locked() ? document->pages() : 0};
  if (!answer(&greeting, sizeof greeting) || greeting.pages < 1) return EXIT_FAILURE;
  ::alarm(0);
  for (DrawRequest request; readRequest(request); ::alarm(0)) {
    ::alarm(kAnswerSeconds);
    if (!drawOrSay(*document, request)) return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}

}  // namespace

int main() {
  // A thread's own arena would take more address space than a page does.
  ::mallopt(M_ARENA_MAX, 1);
  poppler::set_debug_error_function([](const std::string&, void*) {}, nullptr);
  // Without what a program does at its end: a sanitizer's search for leaks needs calls that are
  // refused here.
  ::_exit(run());
}
