#include "tests/fuzz/Mutator.h"

#include <algorithm>
#include <iterator>

namespace cutline::fuzz {

namespace {

constexpr std::size_t kMostChanges = 6;
constexpr std::size_t kLongestPart = 64;
constexpr std::size_t kMostRepeats = 40;
constexpr std::size_t kLongestMutant = 65536;  // lines that repeat lines would have no end
constexpr unsigned kByte = 256;
constexpr const char* kNumbers[] = {"0",
                                    "-1",
                                    "1e308",
                                    "nan",
                                    "65536",
                                    "2147483647",
                                    "1e-30",
                                    "-0",
                                    "-2147483648",
                                    "4294967296",
                                    "99999999999999999999"};
constexpr char kDigits[] = "0123456789";

}  // namespace

std::string Mutator::mutant(const std::vector<std::string>& inputs, unsigned seed) {
  mRandom.seed(seed);
  std::string text = inputs[below(inputs.size())];
  for (std::size_t left = 1 + below(kMostChanges); left > 0; --left) {
    change(text, inputs);
    text.resize(std::min(text.size(), kLongestMutant));
  }
  return text;
}

// What lies behind a cut is taken of another input, now and then.
void Mutator::change(std::string& text, const std::vector<std::string>& inputs) {
  static constexpr void (Mutator::*kChanges[])(std::string&) = {
      &Mutator::flipBit,  &Mutator::setByte,       &Mutator::setByte,    &Mutator::insertBytes,
      &Mutator::erase,    &Mutator::repeat,        &Mutator::eraseLine,  &Mutator::repeatLine,
      &Mutator::moveLine, &Mutator::replaceNumber, &Mutator::insertWord, &Mutator::insertWord,
      &Mutator::truncate};
  const std::size_t kind = below(std::size(kChanges) + 1);
  if (kind < std::size(kChanges)) return (this->*kChanges[kind])(text);
  const std::string& other = inputs[below(inputs.size())];
  text.resize(below(text.size() + 1));
  text += other.substr(below(other.size() + 1));
}

Mutator::Part Mutator::somePart(const std::string& text) {
  const std::size_t at = below(text.size() + 1);
  return {at, std::min(below(kLongestPart) + 1, text.size() - at)};
}

Mutator::Part Mutator::someLine(const std::string& text) {
  const std::size_t within = below(text.size());
  const std::size_t before = text.rfind('\n', within == 0 ? 0 : within - 1);
  const std::size_t at = within == 0 || before == std::string::npos ? 0 : before + 1;
  const std::size_t end = text.find('\n', within);
  return {at, (end == std::string::npos ? text.size() : end + 1) - at};
}

void Mutator::flipBit(std::string& text) {
  if (text.empty()) return;
  char& byte = text[below(text.size())];
  byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << below(8)));
}

void Mutator::setByte(std::string& text) {
  if (!text.empty()) text[below(text.size())] = static_cast<char>(below(kByte));
}

void Mutator::insertBytes(std::string& text) {
  text.insert(below(text.size() + 1), 1 + below(kMostRepeats), static_cast<char>(below(kByte)));
}

void Mutator::erase(std::string& text) {
  const Part part = somePart(text);
  text.erase(part.at, part.size);
}

void Mutator::repeat(std::string& text) {
  const Part part = somePart(text);
  text.insert(below(text.size() + 1), text.substr(part.at, part.size));
}

void Mutator::eraseLine(std::string& text) {
  const Part line = someLine(text);
  text.erase(line.at, line.size);
}

void Mutator::repeatLine(std::string& text) {
  const Part part = someLine(text);
  const std::string line = text.substr(part.at, part.size);
  const std::size_t at = someLine(text).at;
  for (std::size_t left = below(kMostRepeats); left > 0; --left) text.insert(at, line);
}

void Mutator::moveLine(std::string& text) {
  const Part part = someLine(text);
  const std::string line = text.substr(part.at, part.size);
  text.erase(part.at, part.size);
  text.insert(someLine(text).at, line);
}

void Mutator::replaceNumber(std::string& text) {
  const std::size_t at = text.find_first_of(kDigits, below(text.size()));
  if (at == std::string::npos) return;
  const std::size_t end = std::min(text.find_first_not_of(kDigits, at), text.size());
  text.replace(at, end - at, kNumbers[below(std::size(kNumbers))]);
}

void Mutator::insertWord(std::string& text) {
  if (mWords.empty()) return insertBytes(text);
  text.insert(below(text.size() + 1), mWords[below(mWords.size())]);
}

void Mutator::truncate(std::string& text) {
  if (below(4) == 0) text.resize(below(text.size() + 1));
}

}  // namespace cutline::fuzz
