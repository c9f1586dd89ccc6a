#pragma once

class QLockFile;

namespace kuyum {

/// Takes the lock, at once or not at all, until its holder's process ends or
/// lets go of it. A lock that an ended process left counts for nothing, however
/// young; one that a living process holds counts, however old.
///
/// A process that ends between making the file and writing its own name into it
/// leaves an empty one, which no process can ever be found dead for. Only such
/// a file is waited for, a second or two, and then counts for nothing too.
bool takeProcessLock(QLockFile &lock);

} // namespace kuyum
