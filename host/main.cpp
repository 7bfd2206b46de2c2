#include "host/core/Program.h"

int main(int argc, char** argv) { return cutline::runProgram(argc, argv); }
