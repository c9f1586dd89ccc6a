#include "OutputPlace.h"

#include <algorithm>
#include <array>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr std::array databaseEndings = {".kuyum"_L1, ".mdb"_L1, ".mde"_L1, ".accdb"_L1};

/// What is kept beside a database while it is open, and read as part of it.
constexpr std::array companionEndings = {"-journal"_L1, "-wal"_L1, "-shm"_L1, ".acik"_L1};

/// What database files begin with: two engines' files, then two kinds of
/// journals.
constexpr std::array databaseBeginnings = {
    QByteArrayView("SQLite format 3\0", 16),
    QByteArrayView("\0\1\0\0Standard ", 13),
    QByteArrayView("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8),
    QByteArrayView("\x37\x7f\x06", 3),
};

bool isDatabaseName(const QString &name)
{
    return std::any_of(
        databaseEndings.begin(), databaseEndings.end(),
        [&name](QLatin1StringView ending) { return name.endsWith(ending, Qt::CaseInsensitive); });
}

bool belongsToDatabase(const QString &path)
{
    for (const QLatin1StringView ending : companionEndings) {
        if (!path.endsWith(ending, Qt::CaseInsensitive))
            continue;
        const QString database = path.chopped(ending.size());
        return isDatabaseName(database) || holdsDatabase(database);
    }
    return false;
}

} // namespace

QString writtenPath(const QString &path)
{
    return path.startsWith(u':') ? QDir::currentPath() + u'/' + path : path;
}

QString inFolder(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString resolvedPlace(const QString &path)
{
    constexpr int mostLinks = 40; // links that lead in a circle have no end
    QFileInfo place(writtenPath(path));
    for (int i = 0; i < mostLinks && place.isSymLink(); ++i)
        place.setFile(place.symLinkTarget());
    const QString folder = QFileInfo(place.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? place.absoluteFilePath() : inFolder(folder, place.fileName());
}

bool holdsDatabase(const QString &path)
{
    QFile file(path);
    // Asked first: opening a pipe would wait for its other end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    constexpr qint64 longest = 16;
    const QByteArray bytes = file.read(longest);
    return std::any_of(databaseBeginnings.begin(), databaseBeginnings.end(),
                       [&bytes](QByteArrayView beginning) { return bytes.startsWith(beginning); });
}

QString placeRefusal(const QString &path)
{
    const QFileInfo place(resolvedPlace(path));
    if (place.isDir())
        return u"Bu bir klasör."_s;
    if (place.exists() && !place.isFile())
        return u"Bu bir aygıt ya da özel bir dosya; üzerine yazılmaz."_s;
    if (place.isSymLink())
        return u"Bu kısayol hiçbir dosyaya varmıyor."_s;
    return place.dir().exists() ? QString() : u"Klasör bulunamadı."_s;
}

QString outputRefusal(const QString &path)
{
    const QString refusal = placeRefusal(path);
    if (!refusal.isEmpty())
        return refusal;
    const QString place = resolvedPlace(path);
    // Names first: a company that is open loses its locks when it is read here.
    if (isDatabaseName(place) || belongsToDatabase(place))
        return u"Bu ad veri tabanlarınındır; başka bir ad verin."_s;
    if (holdsDatabase(place))
        return u"Bu dosya bir veri tabanı; üzerine yazılmaz. Başka bir ad verin."_s;
    return {};
}

} // namespace kuyum
