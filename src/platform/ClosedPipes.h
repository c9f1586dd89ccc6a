#pragma once

namespace kuyum {

/// From now on writing into a pipe whose reader has gone fails, as on a full
/// disk, and does not end the process.
void surviveClosedPipes();

} // namespace kuyum
