#include "cups/CupsOptions.h"

#include <utility>

namespace cutline {

CupsOptions::CupsOptions(const OptionList& options) {
  for (const auto& [name, value] : options) {
    mSize = cupsAddOption(name.c_str(), value.c_str(), mSize, &mOptions);
  }
}

CupsOptions CupsOptions::parse(const char* text) {
  CupsOptions parsed;
  parsed.mSize = cupsParseOptions(text, 0, &parsed.mOptions);
  return parsed;
}

CupsOptions::~CupsOptions() { cupsFreeOptions(mSize, mOptions); }

CupsOptions::CupsOptions(CupsOptions&& other) noexcept
    : mSize(std::exchange(other.mSize, 0)), mOptions(std::exchange(other.mOptions, nullptr)) {}

OptionList CupsOptions::list() const {
  OptionList list;
  for (int i = 0; i < mSize; ++i) list.emplace_back(mOptions[i].name, mOptions[i].value);
  return list;
}

}  // namespace cutline
