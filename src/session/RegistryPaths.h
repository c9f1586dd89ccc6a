#pragma once

#include <QDir>
#include <QString>

namespace kuyum {

/// Where the Windows paths of the registry lie on this system. The registry's
/// own folder stands for c:\database and that folder's parent for c:\, wherever
/// the registry was put; names count without regard to case on every system.
class RegistryPaths
{
public:
    explicit RegistryPaths(const QString &registryFile);

    /// The place of a path, in this system's spelling. Parts that exist are
    /// spelled as they are on disk; the rest stays as written. A path of
    /// another drive or a share only has its slashes turned.
    QString resolve(const QString &path) const;
    /// The same for a database file; a file that it was taken over into is found
    /// when its name differs from the legacy one's in case.
    QString resolveDatabase(const QString &path) const;

    /// Where the registry lies when nothing else is named: c:\database on
    /// Windows, elsewhere under the user's data folder.
    static QString defaultRegistryFile();

private:
    QDir m_folder;
};

} // namespace kuyum
