// Runs programs as a shell does.
#pragma once

#include <string>
#include <vector>

namespace cutline::tests {

struct Result {
  int status = -1;  // of the program; 128 and the signal's number when one ended it
  std::string output;
  std::string errors;
};

// `text` quoted for the shell.
std::string quoted(const std::string& text);

// The command line runs in a shell; after `seconds` it is ended, and its status is 124.
Result run(const std::string& commandLine, int seconds = 60);

// Where the build put what it made, and where its sources are.
std::string built(const std::string& path);
std::string source(const std::string& path);

}  // namespace cutline::tests
