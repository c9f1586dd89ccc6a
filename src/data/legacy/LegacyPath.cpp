#include "LegacyPath.h"

#include "Database.h"
#include "LegacyStamp.h"
#include "TakeOver.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

bool isLegacyPath(const QString &path)
{
    return path.endsWith(u".mdb"_s, Qt::CaseInsensitive);
}

QString takenOverPath(const QString &path)
{
    return isLegacyPath(path) ? path.chopped(4) + u".kuyum"_s : path;
}

OpenablePath ensureTakenOver(const QString &path, const std::function<void(TakeOver &)> &watch)
{
    const QString target = takenOverPath(path);
    if (target == path)
        return {path};
    if (!QFileInfo::exists(target)) {
        TakeOver takeOver(path, target);
        if (watch)
            watch(takeOver);
        takeOver.run();
        return {target};
    }
    OpenablePath result{target};
    if (QFileInfo(path).isFile()) {
        const std::unique_ptr<Database> db = Database::open(target, Database::Access::ReadOnly);
        const std::optional<LegacyStamp> stamp = readStamp(*db);
        result.legacyChanged = stamp.has_value() && !matchesStamp(path, *stamp);
    }
    return result;
}

} // namespace kuyum
