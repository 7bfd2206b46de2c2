// Pages of a job.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

namespace cutline {

// Pages in the order in which they are printed, counted from 1. Copies share them: a plan of ten
// thousand pages is handed on with each click, and compared with the one before.
class PageList {
 public:
  using const_iterator = std::vector<unsigned>::const_iterator;

  PageList() : PageList(std::vector<unsigned>()) {}
  PageList(std::initializer_list<unsigned> pages) : PageList(std::vector<unsigned>(pages)) {}
  PageList(std::vector<unsigned> pages)
      : mPages(std::make_shared<const std::vector<unsigned>>(std::move(pages))) {}

  std::size_t size() const noexcept { return mPages->size(); }
  bool empty() const noexcept { return mPages->empty(); }
  unsigned operator[](std::size_t place) const { return (*mPages)[place]; }
  const_iterator begin() const noexcept { return mPages->begin(); }
  const_iterator end() const noexcept { return mPages->end(); }

  friend bool operator==(const PageList& one, const PageList& other) {
    return one.mPages == other.mPages || *one.mPages == *other.mPages;
  }

 private:
  std::shared_ptr<const std::vector<unsigned>> mPages;  // null only where they were moved away
};

}  // namespace cutline
