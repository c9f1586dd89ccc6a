#pragma once

#include "Oturum.h"

#include <QTemporaryDir>

namespace kuyum {

/// A registry with three companies in a fresh folder: 1 is the sample company
/// with some more users, 2 has a single user, the file of 3 is missing. A row
/// of another kind stands between them.
class TestCompanies
{
public:
    TestCompanies();

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString registry() const { return path(QStringLiteral("Database/sirket.kuyum")); }
    /// A session on company 1, past the login.
    Oturum loggedIn(const QString &name, qint32 number, QDate date) const;

private:
    QTemporaryDir m_folder;
};

/// Adds a row to a table, field by field.
void addRow(Database &db, const QString &table, const QMap<QString, QVariant> &fields);

} // namespace kuyum
