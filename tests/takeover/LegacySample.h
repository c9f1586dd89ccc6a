#pragma once

#include "Database.h"

#include <memory>
#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace kuyum {

/// A copy of an example legacy file that a test may damage or change, byte by
/// byte, and take over.
class LegacySample
{
public:
    /// "atolye.mdb"; isPresent() is false where the examples are missing.
    explicit LegacySample(const QString &name);

    bool isPresent() const { return !bytes.isEmpty(); }
    QString source() const { return m_folder.filePath(QStringLiteral("kaynak.mdb")); }
    QString target() const { return m_folder.filePath(QStringLiteral("hedef.kuyum")); }
    /// What lies in the folder beside the source.
    QStringList leftBehind() const;

    /// Writes the bytes and takes them over; the refusal, or an empty text.
    QString refusal() const;
    /// Writes the bytes, takes them over and opens the result. Throws.
    std::unique_ptr<Database> takenOver() const;

    QByteArray bytes;

    static constexpr qsizetype pageSize = 4096;

    /// Where the definition of the table stands that has fields of these names.
    qsizetype definitionOf(const QStringList &fields) const;
    /// Where a column is described within it.
    qsizetype columnOf(qsizetype definition, const QString &field) const;
    /// Gives a column another type that holds the same bytes.
    void retype(qsizetype definition, const QString &field, int type, int size = -1);

    struct Row
    {
        qsizetype mark;  ///< where its marks and its place on the page are kept
        qsizetype start; ///< where its bytes begin
    };
    /// Every place for a row on the table's pages, the deleted ones too.
    QList<Row> places(qsizetype definition) const;
    qsizetype endOf(const Row &row) const; ///< behind its last byte
    quint16 marksOf(const Row &row) const;
    void setMarks(const Row &row, quint16 marks);
    /// Where a field of fixed size stands in a row.
    qsizetype fixedField(const Row &row, qsizetype definition, const QString &field) const;

    quint32 number(qsizetype at, int size) const;
    void setNumber(qsizetype at, int size, quint32 value);

private:
    QTemporaryDir m_folder;
};

} // namespace kuyum
