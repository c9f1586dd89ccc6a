#include "LegacyStamp.h"

#include "Database.h"
#include "SqliteEngine.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

qint64 modifiedAt(const QFileInfo &file)
{
    return file.lastModified().toMSecsSinceEpoch();
}

} // namespace

LegacyStamp stampOf(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    if (!file.open(QFile::ReadOnly) || !hash.addData(&file))
        throw DatabaseError(u"Dosya okunamıyor: %1 (%2)"_s.arg(path, file.errorString()));
    return {file.size(), modifiedAt(QFileInfo(path)), hash.result().toHex()};
}

bool matchesStamp(const QString &path, const LegacyStamp &stamp)
{
    const QFileInfo file(path);
    if (file.size() != stamp.size)
        return false;
    if (modifiedAt(file) == stamp.modified)
        return true;
    try {
        return stampOf(path).hash == stamp.hash;
    } catch (const DatabaseError &) {
        return false; // better to mention a change that is none than to miss one
    }
}

void writeStamp(Database &db, const LegacyStamp &stamp)
{
    const SqliteEngine &engine = db.engine();
    engine.run(u"CREATE TABLE IF NOT EXISTS kuyum_legacy (size, modified, hash)"_s);
    engine.run(u"DELETE FROM kuyum_legacy"_s);
    engine.run(u"INSERT INTO kuyum_legacy VALUES (?, ?, ?)"_s,
               {stamp.size, stamp.modified, QString::fromLatin1(stamp.hash)});
}

std::optional<LegacyStamp> readStamp(Database &db)
{
    const SqliteEngine &engine = db.engine();
    QSqlQuery present =
        engine.run(u"SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = 'kuyum_legacy'"_s);
    if (!engine.next(present))
        return {};
    QSqlQuery row = engine.run(u"SELECT size, modified, hash FROM kuyum_legacy"_s);
    if (!engine.next(row))
        return {};
    return LegacyStamp{row.value(0).toLongLong(), row.value(1).toLongLong(),
                       row.value(2).toString().toLatin1()};
}

} // namespace kuyum
