// Owns an option array of libcups.
#pragma once

#include <cups/cups.h>

#include "base/OptionList.h"

namespace cutline {

class CupsOptions {
 public:
  explicit CupsOptions(const OptionList& options);
  // Reads `NAME=VALUE NAME ...` as a saved-options file and an option argument have it.
  static CupsOptions parse(const char* text);
  ~CupsOptions();
  CupsOptions(CupsOptions&& other) noexcept;
  CupsOptions(const CupsOptions&) = delete;
  CupsOptions& operator=(const CupsOptions&) = delete;
  CupsOptions& operator=(CupsOptions&&) = delete;

  int size() const noexcept { return mSize; }
  cups_option_t* data() const noexcept { return mOptions; }
  OptionList list() const;

 private:
  CupsOptions() = default;
  int mSize = 0;
  cups_option_t* mOptions = nullptr;
};

}  // namespace cutline
