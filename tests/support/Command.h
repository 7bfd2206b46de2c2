// Runs programs as a shell does.
#pragma once

#include <string>

namespace cutline::test {

struct CommandResult {
  int status = -1;  // of the program; 128 and the signal's number when one ended it
  std::string output;
  std::string errors;
};

// `text` quoted for the shell.
std::string quoted(const std::string& text);

// The command line runs in a shell; after `seconds` it is ended, and its status is 124.
CommandResult run(const std::string& commandLine, int seconds = 60);

// What a command line wrote on both its streams. Throws when its status is not 0.
std::string outputOf(const std::string& commandLine);

// Where the build put what it made, as in an installation, and where its sources are.
std::string built(const std::string& path);
std::string source(const std::string& path);

}  // namespace cutline::test
