// Standard input, kept in a private file for as long as this object lives.
#pragma once

#include <memory>
#include <string>

#include "base/Result.h"

namespace cutline {

class SpooledDocument {
 public:
  // Reads the descriptor to its end. An empty document is an error.
  static Result<std::shared_ptr<SpooledDocument>> read(int descriptor);
  ~SpooledDocument();
  SpooledDocument(const SpooledDocument&) = delete;
  SpooledDocument& operator=(const SpooledDocument&) = delete;

  const std::string& path() const noexcept { return mPath; }

 private:
  explicit SpooledDocument(std::string path) : mPath(std::move(path)) {}
  std::string mPath;
};

}  // namespace cutline
