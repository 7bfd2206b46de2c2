#include "host/dialog/WindowPixels.h"

#include <sys/mman.h>

#include <QBackingStore>
#include <QImage>
#include <algorithm>
#include <cstdint>

namespace cutline {

namespace {

// What else this process asks of its memory meanwhile waits for no more than that.
constexpr std::size_t kAtOnce = 256 << 10;
constexpr std::uintptr_t kPage = 4096;

// Linux before 5.14 knows no such advice, and gives each page when it is written to.
void prepare(std::uintptr_t start, std::uintptr_t end) noexcept {
  for (std::uintptr_t at = start; at < end; at += kAtOnce)
    ::madvise(reinterpret_cast<void*>(at), std::min<std::size_t>(kAtOnce, end - at),
              MADV_POPULATE_WRITE);
}

}  // namespace

std::future<void> startPreparingPixels(QBackingStore& store) {
  const auto* const image = dynamic_cast<const QImage*>(store.paintDevice());
  const uchar* const pixels = image != nullptr ? image->constBits() : nullptr;
  const std::size_t size = pixels != nullptr ? static_cast<std::size_t>(image->sizeInBytes()) : 0;
  const auto start = reinterpret_cast<std::uintptr_t>(pixels);
  const std::uintptr_t firstPage = (start + kPage - 1) / kPage * kPage;
  return std::async(std::launch::async, prepare, firstPage, start + size);
}

}  // namespace cutline
