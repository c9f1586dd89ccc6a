#pragma once

#include "ChangedMeanwhile.h"

#include <functional>
#include <QStringList>
#include <QVariant>

namespace kuyum {

class Database;

/// How users know a field.
struct FieldLabel
{
    QString field;
    QString label;
    std::function<QString(const QVariant &)> shown = {}; ///< a value; as it is by default
};

/// Shows a number by the text that another table has for it.
std::function<QString(const QVariant &)> lookedUp(Database &db, const QString &table,
                                                  const QString &number, const QString &text);

/// Rows of one table that make up a record, or a part of it.
struct RecordRows
{
    QString table;
    QString where; ///< the condition of their SELECT
    QString label; ///< of a row: "Sipariş 12", "Satır"
    QList<FieldLabel> fields;
    /// By what one of several rows is known again, the most telling field
    /// first; empty where the record has one row.
    QStringList identity = {};
    /// Numbers that every save gives anew: they differ without a change.
    QStringList renumbered = {};
    /// Told only when nothing else differs.
    QStringList quiet = {};
    /// The place of a row among the others counts, as its quiet field "#".
    bool ordered = false;
    /// The row has a number that other tables refer to: a save after another
    /// removed it brings it back under that number.
    bool comesBack = false;
};

/// A record as a user loaded it. Whatever screen saves or removes a record
/// reads it through here before it shows it, and writes it through write().
class LoadedRows
{
public:
    /// A record that nobody loaded: nothing is compared.
    LoadedRows() = default;
    LoadedRows(Database &db, const QList<RecordRows> &record);

    struct Writing
    {
        std::function<void()> write;
        /// What `write` is the first step of, where a record is written in
        /// several: the user is told what all of them would come to.
        std::function<void()> rest = {};
        /// Tables whose rows count as loaded anew once they are written, since
        /// the user may go on with the record.
        QStringList goesOn = {};
    };
    /// Writes in one transaction. Where that would undo what another stored
    /// since the record was loaded, nothing is written, and ChangedMeanwhile
    /// is thrown.
    void write(Database &db, const Writing &writing);
    void write(Database &db, const std::function<void()> &write)
    {
        this->write(db, Writing{write});
    }

    /// Throws as write() would, and writes nothing: for what is then written in
    /// many transactions of their own.
    void check(Database &db, const std::function<void()> &write);

    /// The user has seen what the last ChangedMeanwhile told: that counts as
    /// loaded.
    void acceptStanding();
    /// Adds rows of the table, as they were first loaded, that are missing now.
    /// `field` is a number of the table's own, `numbers` those that must be there.
    void bringBack(Database &db, const QString &table, const QString &field,
                   const QList<qint32> &numbers) const;

    /// One row of a table, as it was loaded under one of these numbers, the first
    /// that there is; it stands where `where` tells now.
    LoadedRows row(const QString &table, const QString &where, const QString &field,
                   const QList<qint32> &numbers) const;

    /// The rows of one table, every field as the database gives it.
    struct Rows
    {
        QStringList fields;
        QList<QVariantList> rows;
    };

private:
    struct Part
    {
        RecordRows of;
        Rows first;    ///< as they were first loaded
        Rows loaded;   ///< as the user knows them
        Rows standing; ///< as the last ChangedMeanwhile told
    };

    const Part *part(const QString &table) const;
    void bringBack(Database &db, const QList<Rows> &standing) const;
    QList<Rows> readAll(Database &db) const;
    void requireNothingUndone(Database &db, const QList<Rows> &standing,
                              const std::function<void()> &rest);

    QList<Part> m_parts;
};

} // namespace kuyum
