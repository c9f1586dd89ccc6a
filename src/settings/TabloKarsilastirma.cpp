#include "TabloKarsilastirma.h"

#include "Database.h"
#include "FieldTypes.h"
#include "TurkishText.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// What every value of a type can be turned into without losing anything.
bool holdsAllOf(FieldType wide, FieldType narrow)
{
    struct Step
    {
        FieldType from;
        QList<FieldType> to;
    };
    static const QList<Step> steps = {
        {FieldType::Byte,
         {FieldType::Integer, FieldType::Long, FieldType::Single, FieldType::Double}},
        {FieldType::Integer, {FieldType::Long, FieldType::Single, FieldType::Double}},
        {FieldType::Long, {FieldType::Double}},
        {FieldType::Single, {FieldType::Double}},
        {FieldType::Text, {FieldType::Memo}},
        {FieldType::Binary, {FieldType::LongBinary}},
    };
    return std::any_of(steps.begin(), steps.end(), [&](const Step &step) {
        return step.from == narrow && step.to.contains(wide);
    });
}

/// No size is no limit.
int room(const FieldDef &field)
{
    return field.size > 0 ? field.size : std::numeric_limits<int>::max();
}

bool sameType(const FieldDef &a, const FieldDef &b)
{
    return a.type == b.type && a.size == b.size;
}

QString nameOfSame(const QStringList &names, const QString &wanted)
{
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&](const QString &name) { return sameText(name, wanted); });
    return found == names.end() ? QString() : *found;
}

void compareFields(const TableDef &present, TabloDurumu &durum)
{
    for (const FieldDef &secilende : durum.secilen.fields) {
        const FieldDef *burada = present.field(secilende.name);
        if (burada == nullptr)
            durum.yeniAlanlar.append(secilende);
        else if (sameType(*burada, secilende))
            continue;
        else if (widened(*burada, secilende))
            durum.genisleyen.append({present.name, *burada, secilende});
        else
            durum.kalan.append({present.name, *burada, secilende});
    }
}

} // namespace

QString TabloDurumu::text() const
{
    return ad + (yeni ? u"-(YENI)"_s : u"-(ESKI)"_s);
}

QList<TabloDurumu> Kontrol_Et(const Database &db, const QList<TableDef> &secilen)
{
    const QStringList present = db.tableNames();
    QList<TabloDurumu> tables;
    for (const TableDef &table : secilen) {
        TabloDurumu durum{.secilen = table};
        const QString same = nameOfSame(present, table.name);
        durum.yeni = same.isEmpty();
        durum.ad = durum.yeni ? table.name : same;
        if (!durum.yeni)
            compareFields(db.tableDef(same), durum);
        tables.append(durum);
    }
    return tables;
}

std::optional<FieldDef> widened(const FieldDef &burada, const FieldDef &secilende)
{
    const bool roomier = burada.type == secilende.type && room(secilende) > room(burada);
    // A counter is the table's key and can be nothing else.
    if (burada.counter || (!roomier && !holdsAllOf(secilende.type, burada.type)))
        return std::nullopt;
    FieldDef field = burada;
    field.type = secilende.type;
    field.size = secilende.size;
    return field;
}

QString typeText(const FieldDef &field)
{
    return field.size > 0 ? u"%1(%2)"_s.arg(typeName(field.type)).arg(field.size)
                          : typeName(field.type);
}
