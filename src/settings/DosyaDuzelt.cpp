#include "DosyaDuzelt.h"

#include "Backup.h"
#include "Dialect.h"
#include "FieldTypes.h"
#include "Oturum.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace kuyum {

QList<AlanSatiri> alanlar(const TableDef &table)
{
    QList<AlanSatiri> rows;
    for (const FieldDef &field : table.fields)
        rows.append({field.name, shownSize(field), typeName(field.type)});
    return rows;
}

qint64 RepairResult::filled() const
{
    return filledNulls(tables);
}

QString RepairResult::text() const
{
    QStringList lines = {u"%1 tabloda %2 boş alan dolduruldu."_s.arg(tables.size()).arg(filled())};
    for (const FilledTable &table : tables) {
        for (const FilledField &field : table.fields) {
            if (field.left > 0) {
                lines.append(u"%1.%2: %3 kayıtta boş bırakıldı; anahtarı aynı olan iki kayıt "
                             "olamaz."_s.arg(table.name, field.name)
                                 .arg(field.left));
            }
        }
    }
    if (counterMissing) {
        lines.append(u"SiparisD.Dotosayi bu dosyada sayaç değil (aynı numarayı taşıyan satırlar "
                     "var); sayaç ilerletilmedi."_s);
    }
    lines.append(u"Düzenlemeden önceki dosyanın kopyası:\n"_s + QDir::toNativeSeparators(backup));
    return lines.join(u'\n');
}

FilledTable DosyaDuzelt1(Database &db, const QString &table, const RepairProgress &progress,
                         int done, int total)
{
    tellProgress(progress, table, done, total);
    try {
        return fillNulls(db, table, [&](qint64 rows) {
            tellProgress(progress, table, done + int(rows), total);
        });
    } catch (const DatabaseError &error) {
        throw DatabaseError(u"\"%1\" tablosu düzenlenemedi: %2"_s.arg(table, error.text()));
    }
}

/// A new line's number is greater than every one in use, also after lines with
/// higher numbers were brought in from elsewhere.
static void moveCounter(Oturum &oturum, RepairResult &result)
{
    if (!oturum.Veritabani->hasTable(u"SiparisD"_s))
        return;
    Recordset Kayit =
        oturum.sorgula(u"Select Top 1 Dotosayi From SiparisD Order by Dotosayi desc;"_s);
    if (!Kayit.next())
        return;
    const qint64 highest = Kayit.integer(u"Dotosayi");
    const FieldDef *counter = oturum.Veritabani->tableDef(u"SiparisD"_s).counter();
    result.counterMissing = counter == nullptr;
    if (result.counterMissing)
        return;
    oturum.Veritabani->raiseCounter(u"SiparisD"_s, highest);
    result.counterMoved = true;
}

RepairResult TumDosyalariDuzenle(Oturum &oturum, const RepairProgress &progress)
{
    Database &db = *oturum.Veritabani;
    RepairResult result;
    result.backup = copyBefore(db, BackupKind::BeforeRepair, progress);

    Transaction repair(db);
    const QStringList tables = db.tableNames();
    int total = 0;
    for (const QString &table : tables)
        total += int(db.rowCount(table));
    int done = 0;
    for (const QString &table : tables) {
        result.tables.append(DosyaDuzelt1(db, table, progress, done, total));
        done += int(result.tables.last().rows);
    }
    moveCounter(oturum, result);
    repair.commit();
    return result;
}

} // namespace kuyum
