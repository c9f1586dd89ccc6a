#include "RefreshSource.h"

#include "Database.h"
#include "LegacyFile.h"
#include "Schema.h"
#include "TakeOver.h"
#include "TurkishText.h"

#include <algorithm>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Whether the file is one of this program's engine, by its first bytes.
bool isOwnFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        throw DatabaseError(
            u"Dosya okunamıyor: %1 (%2)"_s.arg(QDir::toNativeSeparators(path), file.errorString()),
            DatabaseError::Cause::FileMissing, DatabaseError::cannotOpen);
    }
    return file.read(16) == QByteArray("SQLite format 3\0", 16);
}

QList<TableDef> ownTables(const QString &path)
{
    const std::unique_ptr<Database> db = Database::open(path, Database::Access::ReadOnly);
    if (db->schemaVersion() > currentSchemaVersion) {
        throw DatabaseError(u"Bu dosya programın daha yeni bir sürümü ile yazılmış, yenilemede "
                            "kullanılamaz: "_s +
                            QDir::toNativeSeparators(path));
    }
    QList<TableDef> tables;
    for (const QString &name : db->tableNames())
        tables.append(db->tableDef(name));
    return tables;
}

/// The take-over completes a file with this program's own tables, so only the
/// legacy file itself tells what it has. Its definitions are read in this
/// process after two others have read all of it.
QList<TableDef> legacyTables(const QString &path, const std::function<void(TakeOver &)> &watch)
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw DatabaseError(u"Geçici klasör açılamıyor: "_s + folder.errorString());
    TakeOver takeOver(path, folder.filePath(u"kaynak.kuyum"_s));
    if (watch)
        watch(takeOver);
    takeOver.run();
    QList<TableDef> tables;
    const QList<LegacyTable> own = LegacyFile(path).tables();
    for (const LegacyTable &table : own)
        tables.append(table.definition);
    return tables;
}

} // namespace

RefreshSource readRefreshSource(const QString &path, const Database &working,
                                const std::function<void(TakeOver &)> &watch)
{
    const QFileInfo file(path);
    if (!file.isFile()) {
        throw DatabaseError(u"Dosya bulunamadı: "_s + QDir::toNativeSeparators(path),
                            DatabaseError::Cause::FileMissing, DatabaseError::cannotOpen);
    }
    if (file.canonicalFilePath() == QFileInfo(working.path()).canonicalFilePath())
        throw DatabaseError(
            u"Bu dosya, çalışılan veri tabanının kendisi; başka bir dosya seçin."_s);
    RefreshSource source{path, isOwnFile(path) ? ownTables(path) : legacyTables(path, watch)};
    const bool isRegistry =
        std::any_of(source.tables.begin(), source.tables.end(),
                    [](const TableDef &table) { return sameText(table.name, u"SirketKayit"); });
    if (isRegistry)
        throw DatabaseError(
            u"Bu dosya şirketlerin kayıt dosyası, bir şirketin veri tabanı değil."_s);
    if (source.tables.isEmpty())
        throw DatabaseError(u"Bu dosyada hiç tablo yok."_s);
    return source;
}

} // namespace kuyum
