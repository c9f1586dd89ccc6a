#pragma once

#include <optional>

namespace kuyum {

/// Runs a step of a take-over when that is what this process was started for
/// (see TakeOver); the exit code then. Every program that takes over legacy
/// files asks this first in main(), before it makes its application object.
std::optional<int> runTakeOverStep(int &argc, char **argv);

} // namespace kuyum
