// The memory of a window's pixels. A system gives a page of it when it is first written to, which
// for a whole window takes milliseconds of its first painting; a thread can ask for it before.
#pragma once

#include <future>

class QBackingStore;

namespace cutline {

// Asks for the memory of this store as large as it is, on a thread; what is in it stays. Does
// nothing where the store has no memory of this process. Until the answer is there the store lives
// and keeps its size.
std::future<void> startPreparingPixels(QBackingStore& store);

}  // namespace cutline
