#include "RegistryPaths.h"

#include "LegacyPath.h"
#include "TurkishText.h"

#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The entry of the folder that has this name, in whichever case; the name
/// itself when there is none.
QString nameOnDisk(const QDir &folder, const QString &name)
{
    if (folder.exists(name))
        return name;
    const QStringList entries =
        folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &entry : entries) {
        if (sameText(entry, name))
            return entry;
    }
    return name;
}

/// Walks down from a folder, never above it.
QString descend(const QString &root, const QStringList &parts)
{
    QStringList names;
    for (const QString &part : parts) {
        if (part == ".."_L1) {
            if (!names.isEmpty())
                names.removeLast();
        } else if (part != "."_L1) {
            const QDir folder(names.isEmpty() ? root : root + u'/' + names.join(u'/'));
            names.append(nameOnDisk(folder, part));
        }
    }
    return QDir::cleanPath(root + u'/' + names.join(u'/'));
}

bool startsWithDrive(const QString &path)
{
    return path.size() >= 2 && path[1] == u':' && path[0].isLetter();
}

} // namespace

RegistryPaths::RegistryPaths(const QString &registryFile)
    : m_folder(QFileInfo(registryFile).absolutePath())
{
}

QString RegistryPaths::resolve(const QString &path) const
{
    const QString forward = QString(path).replace(u'\\', u'/').trimmed();
    if (forward.isEmpty())
        return {};
    QStringList parts = forward.split(u'/', Qt::SkipEmptyParts);
    if (startsWithDrive(forward)) {
        if (!sameText(forward.left(1), u"c"))
            return forward;
        parts.first().remove(0, 2);
        parts.removeAll(QString());
        if (!parts.isEmpty() && sameText(parts.first(), u"database"))
            return descend(m_folder.path(), parts.mid(1));
        QDir parent = m_folder;
        // The root folder has no parent and stands for both.
        parent.cdUp();
        return descend(parent.path(), parts);
    }
    if (forward.startsWith("//"_L1))
        return forward;
    if (forward.startsWith(u'/'))
        return descend(u"/"_s, parts);
    return descend(m_folder.path(), parts);
}

QString RegistryPaths::resolveDatabase(const QString &path) const
{
    const QString named = resolve(path);
    const QString taken = resolve(takenOverPath(path));
    return QFileInfo::exists(taken) && taken != takenOverPath(named) ? taken : named;
}

QString RegistryPaths::defaultRegistryFile()
{
#ifdef Q_OS_WIN
    return u"c:/database/sirket.mdb"_s;
#else
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           "/database/sirket.mdb"_L1;
#endif
}

} // namespace kuyum
