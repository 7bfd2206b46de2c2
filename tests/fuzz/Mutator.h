// Inputs changed at random, always alike from the same seed.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace cutline::fuzz {

class Mutator {
 public:
  // `words` are put in now and then: what the format has a meaning for.
  explicit Mutator(std::vector<std::string> words = {}) : mWords(std::move(words)) {}

  // One of the inputs, changed at a few places. Bytes, lines, numbers and words are changed.
  std::string mutant(const std::vector<std::string>& inputs, unsigned seed);

 private:
  std::size_t below(std::size_t end) { return end == 0 ? 0 : mRandom() % end; }
  void change(std::string& text, const std::vector<std::string>& inputs);

  void flipBit(std::string& text);
  void setByte(std::string& text);
  void insertBytes(std::string& text);
  void erase(std::string& text);
  void repeat(std::string& text);
  void eraseLine(std::string& text);
  void repeatLine(std::string& text);
  void moveLine(std::string& text);
  void replaceNumber(std::string& text);
  void insertWord(std::string& text);
  void truncate(std::string& text);

  struct Part {
    std::size_t at, size;
  };
  Part somePart(const std::string& text);
  Part someLine(const std::string& text);

  std::vector<std::string> mWords;
  std::mt19937 mRandom;
};

}  // namespace cutline::fuzz
