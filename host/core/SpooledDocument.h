// Standard input, kept in a private file for as long as this object lives.
#pragma once

#include <memory>
#include <string>

#include "base/Result.h"
#include "base/TemporaryFile.h"

namespace cutline {

class SpooledDocument {
 public:
  // Reads the descriptor to its end. An empty document is an error.
  static Result<std::shared_ptr<SpooledDocument>> read(int descriptor);
  const std::string& path() const noexcept { return mFile.path(); }

 private:
  explicit SpooledDocument(TemporaryFile file) : mFile(std::move(file)) {}
  TemporaryFile mFile;
};

}  // namespace cutline
