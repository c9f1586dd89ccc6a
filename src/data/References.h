#pragma once

#include <QList>
#include <QStringList>

namespace kuyum {

/// Codes of one company table that stand for rows of another. 0 and the empty
/// text stand for no code in every field here.
struct Reference
{
    QString table;
    QStringList fields;
    QString target;
    QStringList keys;
    QString condition = {}; ///< which rows "a" of the table refer to this target

    /// Which rows "a" of the table bear a code in all the fields: the engine's
    /// own SQL.
    QString bearsCode() const;
};

const QList<Reference> &companyReferences();

} // namespace kuyum
