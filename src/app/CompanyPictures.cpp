#include "CompanyPictures.h"

#include "LegacyPath.h"
#include "OutputPlace.h"
#include "ReadableDatabase.h"
#include "RegistryPaths.h"
#include "RegistryStore.h"

#include <QDir>
#include <QFileInfo>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

void requirePictureFolder(const QString &folder)
{
    if (!QFileInfo(folder).isDir())
        throw std::runtime_error((u"Resim klasörü bulunamadı: "_s + folder).toStdString());
}

QString pictureFolderOf(const QString &database)
{
    const QFileInfo wanted(writtenPath(database));
    for (const QString &name : {u"sirket.kuyum"_s, u"sirket.mdb"_s}) {
        const QString registry = wanted.absoluteDir().filePath(name);
        if (!QFileInfo::exists(registry))
            continue;
        const ReadableDatabase source = openForReading(registry);
        const RegistryPaths paths(registry);
        for (const Sirket &sirket : RegistryStore(*source).companies()) {
            for (const QString &path : {sirket.DataYolu, takenOverPath(sirket.DataYolu)}) {
                if (QFileInfo(paths.resolve(path)) == wanted)
                    return paths.resolve(sirket.ResimYolu);
            }
        }
    }
    return {};
}

} // namespace kuyum
