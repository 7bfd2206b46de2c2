// The fuzzers' targets in one program. Each source defines LLVMFuzzerTestOneInput, as a fuzzer
// wants it, and is compiled here with that name turned into one of its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/fuzz/Guarded.h"

namespace cutline::fuzz {

struct Target {
  const char* name;  // of the source, and of the folder of its corpus
  int (*run)(const std::uint8_t* data, std::size_t size);
  unsigned quickMutants = 0;
  unsigned longMutants = 0;
  const char* words = "";  // the file of what its format has a meaning for
  Bounds bounds = {};

  void take(const std::string& input) const {
    run(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
  }
};

const std::vector<Target>& targets();

std::vector<std::string> wordsOf(const Target& target);

// The files of its corpus, in the order of their names.
std::vector<std::string> corpusOf(const Target& target);

}  // namespace cutline::fuzz
