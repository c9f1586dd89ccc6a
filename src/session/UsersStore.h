#pragma once

#include "Oturum.h"

#include <optional>
#include <QStringList>

/// A row of Users as the login needs it.
struct Kullanici
{
    qint32 User_ID = 0;
    QString User_Name;
    std::optional<QString> user_pass; ///< as stored, scrambled; nothing for a null
};

enum class PasswordCheck { Right, Wrong, CannotLogIn };

/// The users of the open company. Throws DatabaseError.
class UsersStore
{
public:
    explicit UsersStore(Oturum &oturum) : m_oturum(oturum) {}

    /// The names of those who are not deleted, as the rows come.
    QStringList activeNames();
    /// Deleted users are found too. Where names differ only in case, the row
    /// with exactly this name counts.
    std::optional<Kullanici> find(const QString &name);

private:
    Oturum &m_oturum;
};

/// Compares exactly, with case. A user without a stored password cannot log in.
PasswordCheck checkPassword(const Kullanici &user, const QString &typed);
