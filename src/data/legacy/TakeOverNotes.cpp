#include "Database.h"
#include "Dialect.h"
#include "LegacyFile.h"
#include "OpeningNotes.h"
#include "References.h"
#include "Schema.h"
#include "SqliteEngine.h"
#include "TakeOverSteps.h"
#include "TurkishText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The tables that every legacy company has.
const QStringList &usualTables()
{
    static const QStringList names = {u"XXX"_s,          u"Firma"_s,     u"Ulkeler"_s,
                                      u"UrunTipi"_s,     u"Tas"_s,       u"Kalip"_s,
                                      u"Model"_s,        u"Renkler"_s,   u"Ayar"_s,
                                      u"SiparisB"_s,     u"SiparisD"_s,  u"Durum1"_s,
                                      u"Durum2"_s,       u"DovizB"_s,    u"DovizD"_s,
                                      u"Users"_s,        u"Menuler"_s,   u"MenuKisit"_s,
                                      u"Katalog"_s,      u"Barkodtip"_s, u"BarkodtipAlanlar"_s,
                                      u"Barkodtipozel"_s};
    return names;
}

/// The fields by which rows are found and by which they refer to each other.
/// A counter that is missing is told where it is made.
QStringList keyFields(const TableDef &known)
{
    QStringList names;
    const auto add = [&](const QStringList &fields) {
        for (const QString &field : fields) {
            const FieldDef *definition = known.field(field);
            if (!names.contains(field) && (definition == nullptr || !definition->counter))
                names.append(field);
        }
    };
    for (const IndexDef &index : known.indexes) {
        if (index.primary)
            add(index.fields);
    }
    for (const Reference &reference : companyReferences()) {
        if (sameText(reference.table, known.name))
            add(reference.fields);
        if (sameText(reference.target, known.name))
            add(reference.keys);
    }
    return names;
}

bool hasFields(const TableDef &table, const QStringList &fields)
{
    return std::all_of(fields.begin(), fields.end(),
                       [&table](const QString &field) { return table.field(field) != nullptr; });
}

void noteEmptyTarget(Database &db, const Reference &reference)
{
    if (!db.hasTable(reference.table) || !db.hasTable(reference.target) ||
        db.rowCount(reference.target) > 0 ||
        !hasFields(db.tableDef(reference.table), reference.fields))
        return;
    QSqlQuery row = db.engine().run(u"SELECT count(*) FROM %1 a WHERE %2"_s.arg(
        quotedName(reference.table), reference.bearsCode()));
    db.engine().next(row);
    if (row.value(0).toLongLong() > 0)
        addNote(db, u"%1 tablosu boş, ama %2 tablosunun %3 kaydı ona başvuruyor (%4)."_s.arg(
                        reference.target, reference.table, row.value(0).toString(),
                        reference.fields.join(u", "_s)));
}

} // namespace

void TakeOverSteps::noteWhatIsMissing(Database &db)
{
    for (const TableDef &known : companyTables()) {
        if (!usualTables().contains(known.name))
            continue;
        if (!db.hasTable(known.name)) {
            addNote(db, u"%1 tablosu eski dosyada yok; boş olarak açıldı."_s.arg(known.name));
            continue;
        }
        const TableDef present = db.tableDef(known.name);
        for (const QString &field : keyFields(known)) {
            if (present.field(field) == nullptr)
                addNote(db, u"%1 tablosunda %2 alanı eski dosyada yok; boş olarak eklendi."_s.arg(
                                known.name, field));
        }
    }
    for (const Reference &reference : companyReferences())
        noteEmptyTarget(db, reference);
}

} // namespace kuyum
