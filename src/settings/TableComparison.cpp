#include "TableComparison.h"

#include "Database.h"
#include "FieldTypes.h"
#include "TurkishText.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace kuyum {

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

void compareFields(const TableDef &present, TableComparison &comparison)
{
    for (const FieldDef &theirs : comparison.theirs.fields) {
        const FieldDef *ours = present.field(theirs.name);
        if (ours == nullptr)
            comparison.newFields.append(theirs);
        else if (sameType(*ours, theirs))
            continue;
        else if (widenedField(*ours, theirs))
            comparison.widened.append({present.name, *ours, theirs});
        else
            comparison.left.append({present.name, *ours, theirs});
    }
}

/// The chosen table's indexes over the working table's fields. The engine knows
/// only the Latin letters' cases: to it ÖLÇÜ is no name of the field Ölçü.
void nameFieldsAsPresent(const TableDef &present, QList<IndexDef> &indexes)
{
    for (IndexDef &index : indexes) {
        for (QString &name : index.fields) {
            if (const FieldDef *field = present.field(name))
                name = field->name;
        }
    }
}

} // namespace

QString TableComparison::text() const
{
    return name + (isNew ? u"-(YENI)"_s : u"-(ESKI)"_s);
}

QList<TableComparison> Kontrol_Et(const Database &db, const QList<TableDef> &chosen)
{
    const QStringList present = db.tableNames();
    QList<TableComparison> tables;
    for (const TableDef &table : chosen) {
        TableComparison comparison{.theirs = table};
        const QString same = nameOfSame(present, table.name);
        comparison.isNew = same.isEmpty();
        comparison.name = comparison.isNew ? table.name : same;
        if (!comparison.isNew) {
            const TableDef present = db.tableDef(same);
            compareFields(present, comparison);
            nameFieldsAsPresent(present, comparison.theirs.indexes);
        }
        tables.append(comparison);
    }
    return tables;
}

std::optional<FieldDef> widenedField(const FieldDef &ours, const FieldDef &theirs)
{
    const bool roomier = ours.type == theirs.type && room(theirs) > room(ours);
    // A counter is the table's key and can be nothing else.
    if (ours.counter || (!roomier && !holdsAllOf(theirs.type, ours.type)))
        return std::nullopt;
    FieldDef field = ours;
    field.type = theirs.type;
    field.size = theirs.size;
    return field;
}

QString typeText(const FieldDef &field)
{
    return field.size > 0 ? u"%1(%2)"_s.arg(typeName(field.type)).arg(field.size)
                          : typeName(field.type);
}

} // namespace kuyum
