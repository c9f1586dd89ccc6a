#pragma once

class QLockFile;

/// Takes the lock, at once or not at all, until its holder's process ends or
/// lets go of it. A lock that an ended process left counts for nothing, however
/// young; one that a living process holds counts, however old.
bool takeProcessLock(QLockFile &lock);
