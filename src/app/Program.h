#pragma once

namespace kuyum {

/// The program with its windows: kuyum [--sirket FILE]. Returns the exit code.
int runProgram(int &argc, char **argv);

} // namespace kuyum
