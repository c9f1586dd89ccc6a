#include "Yenileme.h"

#include "Database.h"
#include "Dialect.h"
#include "Savepoint.h"
#include "Schema.h"
#include "TableRebuild.h"
#include "TurkishText.h"

#include <algorithm>
#include <QDir>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

bool overSameFields(const IndexDef &a, const IndexDef &b)
{
    return std::equal(a.fields.begin(), a.fields.end(), b.fields.begin(), b.fields.end(),
                      [](const QString &x, const QString &y) { return sameText(x, y); });
}

bool hasKeyOver(const TableDef &table, const IndexDef &wanted)
{
    return std::any_of(table.indexes.begin(), table.indexes.end(), [&](const IndexDef &index) {
        return index.unique && overSameFields(index, wanted);
    });
}

bool hasPrimary(const TableDef &table)
{
    return std::any_of(table.indexes.begin(), table.indexes.end(),
                       [](const IndexDef &index) { return index.primary; });
}

/// What this program itself knows of a table; without a name when it does not.
TableDef ownDescription(const QString &table)
{
    for (const TableDef &known : companyTables()) {
        if (sameText(known.name, table))
            return known;
    }
    return {};
}

} // namespace

QString RefreshResult::text() const
{
    QStringList lines = {
        u"%1 tablo güncellendi; %2 yeni tablo, %3 yeni alan, %4 genişletilen alan."_s.arg(tables)
            .arg(newTables)
            .arg(newFields)
            .arg(widenedFields),
        u"%1 boş alan dolduruldu."_s.arg(filledNulls(filled))};
    for (const QString &table : failed)
        lines.append(u"%1: güncellenemedi, olduğu gibi duruyor."_s.arg(table));
    for (const FieldDifference &difference : left) {
        lines.append(u"%1.%2: %3 olarak kaldı (seçilen dosyada %4)."_s.arg(
            difference.table, difference.ours.name, typeText(difference.ours),
            typeText(difference.theirs)));
    }
    for (const QString &index : looseIndexes)
        lines.append(u"%1: tekrarlayan kayıtlar olduğu için tekil dizin kurulamadı."_s.arg(index));
    for (const FilledTable &table : filled) {
        for (const FilledField &field : table.fields) {
            if (field.left > 0) {
                lines.append(u"%1.%2: %3 kayıtta boş bırakıldı."_s.arg(table.name, field.name)
                                 .arg(field.left));
            }
        }
    }
    constexpr qsizetype shown = 12; // what fits on a low screen
    if (const qsizetype more = lines.size() - shown; more > 0) {
        lines.resize(shown);
        lines.append(u"... ve %1 satır daha."_s.arg(more));
    }
    lines.append(u"Yenilemeden önceki dosyanın kopyası:\n"_s + QDir::toNativeSeparators(backup));
    return lines.join(u'\n');
}

Yenileme::Yenileme(Database &db, MaintenanceProgress progress, RefreshFailure failure)
    : m_db(db), m_progress(std::move(progress)), m_failure(std::move(failure))
{
}

RefreshResult Yenileme::yenile(const QList<TableDef> &chosen)
{
    m_result = {};
    m_result.backup = copyBefore(m_db, BackupKind::BeforeRefresh, m_progress);

    Transaction transaction(m_db);
    const QList<TableComparison> tables = Kontrol_Et(m_db, chosen);
    m_done = 0;
    m_total = 0;
    for (const TableComparison &comparison : tables)
        m_total += comparison.isNew ? 0 : 2 * int(m_db.rowCount(comparison.name));
    for (const TableComparison &comparison : tables)
        refreshTable(comparison);
    transaction.commit();
    return m_result;
}

/// One table, wholly or not at all.
void Yenileme::refreshTable(const TableComparison &comparison)
{
    const RefreshResult before = m_result;
    m_rows = comparison.isNew ? 0 : int(m_db.rowCount(comparison.name));
    Savepoint savepoint(m_db);
    try {
        tell(comparison.name, 0);
        if (comparison.isNew)
            Islem_Yap_Yeni(comparison);
        else
            Islem_Yap(comparison);
        savepoint.keep();
        ++m_result.tables;
    } catch (const DatabaseError &error) {
        try {
            savepoint.undo();
        } catch (const DatabaseError &) {
            throw DatabaseError(u"%1: %2"_s.arg(comparison.name, error.text()), error.cause(),
                                error.number());
        }
        m_result = before;
        m_result.failed.append(comparison.name);
        if (!m_failure(comparison.name, error.text()))
            throw stoppedUnchanged();
    }
    m_done += 2 * m_rows;
}

/// A table that both have.
void Yenileme::Islem_Yap(const TableComparison &comparison)
{
    const TableDef present = m_db.tableDef(comparison.name);
    TableDef wanted = present;
    bool rebuilds = false;
    for (FieldDef &field : wanted.fields) {
        for (const FieldDifference &difference : comparison.widened) {
            if (sameText(difference.ours.name, field.name)) {
                field = *widenedField(field, difference.theirs);
                rebuilds = true;
            }
        }
    }
    for (const FieldDef &field : comparison.newFields) {
        if (field.counter && wanted.counter() == nullptr) {
            wanted.fields.append(field);
            rebuilds = true;
        }
    }
    Index_Sil(comparison.name);
    if (rebuilds)
        rebuildTable(m_db, wanted, [&](qint64 rows) { tell(comparison.name, rows); });
    for (FieldDef field : comparison.newFields) {
        if (wanted.field(field.name) != nullptr)
            continue;
        field.counter = false;
        m_db.addField(comparison.name, field);
        // A default is for rows to come; those that are there get the neutral value.
        if (field.defaultValue.isValid())
            m_db.execute(u"UPDATE %1 SET %2 = Null"_s.arg(quotedName(comparison.name),
                                                          quotedName(field.name)));
    }
    Index_Yarat(comparison.name, comparison.theirs.indexes, present.indexes);
    Atama_Yap(comparison.name);
    m_result.newFields += int(comparison.newFields.size());
    m_result.widenedFields += int(comparison.widened.size());
    m_result.left += comparison.left;
}

/// A table that the working database lacks.
void Yenileme::Islem_Yap_Yeni(const TableComparison &comparison)
{
    m_db.createTable(comparison.theirs);
    ++m_result.newTables;
}

void Yenileme::Index_Sil(const QString &table)
{
    m_db.dropIndexes(table);
}

/// The chosen table's indexes, then those that this program's searches stand
/// on, then the keys that the working table had: none of the three is lost.
void Yenileme::Index_Yarat(const QString &table, const QList<IndexDef> &theirs,
                           const QList<IndexDef> &ours)
{
    const TableDef own = ownDescription(table);
    QList<IndexDef> longestFirst = theirs;
    std::stable_sort(
        longestFirst.begin(), longestFirst.end(),
        [](const IndexDef &a, const IndexDef &b) { return a.fields.size() > b.fields.size(); });
    for (const IndexDef &index : std::as_const(longestFirst)) {
        tell(table, m_rows);
        // One that another index serves would only slow every save.
        if (index.unique ||
            !(hasIndexOver(own, index) || hasIndexOver(m_db.tableDef(table), index)))
            copyIndex(table, index);
    }
    if (!own.name.isEmpty())
        completeTables(m_db, {own});
    for (const IndexDef &index : ours) {
        if (index.unique && !hasKeyOver(m_db.tableDef(table), index))
            copyIndex(table, index);
    }
}

void Yenileme::copyIndex(const QString &table, IndexDef index)
{
    const TableDef present = m_db.tableDef(table);
    if (index.unique && hasKeyOver(present, index))
        return;
    index.primary = index.primary && !hasPrimary(present);
    createIndexAsAllowed(m_db, table, freelyNamed(index, present));
    if (index.unique && !hasKeyOver(m_db.tableDef(table), index))
        m_result.looseIndexes.append(u"%1 (%2)"_s.arg(table, index.fields.join(u", "_s)));
}

/// Gives every null of the table's rows its neutral value.
void Yenileme::Atama_Yap(const QString &table)
{
    m_result.filled.append(
        fillNulls(m_db, table, [&](qint64 rows) { tell(table, m_rows + rows); }));
}

void Yenileme::tell(const QString &table, qint64 rows)
{
    tellProgress(m_progress, table, m_done + int(rows), m_total);
}

} // namespace kuyum
