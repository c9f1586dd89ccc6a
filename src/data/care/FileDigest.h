#pragma once

#include "WorkStage.h"

#include <QByteArray>
#include <QString>

namespace kuyum {

/// The SHA-256 of a file, kept beside it as "FILE.sha256" in the form that
/// `sha256sum -c` reads. Everything throws DatabaseError, and Cancelled
/// when the stage is stopped.

QString digestPath(const QString &file);
QString digestedPath(const QString &digest); ///< the file that a digest belongs to

/// The digest in hexadecimal.
QByteArray fileDigest(const QString &file, const WorkStage &stage);

/// Writes the digest of a file that will bear that name.
void writeDigest(const QByteArray &digest, const QString &file);

/// The digest that lies beside the file; one that cannot be read is refused.
QByteArray readDigest(const QString &file);

} // namespace kuyum
