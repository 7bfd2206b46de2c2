// Pages as tests need them.
#pragma once

#include <numeric>
#include <vector>

#include "strip/PageList.h"

namespace cutline::test {

// 1, 2, 3 and so on.
inline PageList pagesUpTo(unsigned count) {
  std::vector<unsigned> pages(count);
  std::iota(pages.begin(), pages.end(), 1U);
  return pages;
}

}  // namespace cutline::test
