#pragma once

#include <QtGlobal>

namespace kuyum {

/// How many kilobytes a process and the ones it started hold, memory that they
/// share counted once. 0 where the system does not tell.
qint64 memoryOfTree(qint64 process);

} // namespace kuyum
