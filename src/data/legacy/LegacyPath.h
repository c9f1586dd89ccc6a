#pragma once

#include <functional>
#include <QString>

namespace kuyum {

class TakeOver;

/// Which file is opened for a path that may name a legacy database. A legacy
/// .mdb is taken over once into a .kuyum beside it; from then on that is the
/// database, and the .mdb is only looked at to tell whether it has changed.

/// Whether the path names a legacy database (by its ending).
bool isLegacyPath(const QString &path);

/// The .kuyum beside it: "c/atolye.mdb" gives "c/atolye.kuyum"; a path that
/// names no legacy database is given back as it is.
QString takenOverPath(const QString &path);

struct OpenablePath
{
    QString path; ///< the file to open
    /// The legacy file was changed after it was taken over: what was entered
    /// there since is not in this database. The user is to be told.
    bool legacyChanged = false;
};

/// Gives the file to open, taking the legacy one over when that was not done
/// yet. watch is called with the take-over before it runs: connect a progress
/// bar and a cancel button there. Throws DatabaseError; Cancelled when
/// the user stopped it.
OpenablePath ensureTakenOver(const QString &path,
                             const std::function<void(TakeOver &)> &watch = {});

} // namespace kuyum
