#pragma once

#include "LoadedRows.h"
#include "Oturum.h"

#include <optional>
#include <QStringList>

namespace kuyum {

/// A row of Users, as far as the program reads it.
struct Kullanici
{
    qint32 User_ID = 0; ///< 0 for one that is not stored yet
    QString User_Name = {};
    std::optional<QString> user_pass = {}; ///< as stored, scrambled; nothing for a null
    bool user_yetki1 = false;              ///< may edit the lines of order control
    bool User_Sil = false;
};

/// No login takes more of a password.
constexpr int longestPassword = 8;

enum class PasswordCheck { Right, Wrong, CannotLogIn };

/// The users of the open company and their rights. Throws DatabaseError.
class UsersStore
{
public:
    explicit UsersStore(Oturum &oturum) : m_oturum(oturum) {}

    /// The names of those who are not deleted, as the rows come.
    QStringList activeNames();
    /// Deleted users are found too. Where names differ only in case, the row
    /// with exactly this name counts.
    std::optional<Kullanici> find(const QString &name);
    /// By number when the key is one, else by name.
    std::optional<Kullanici> KullaniciBul(const QString &key);
    /// The menu items that the user may use.
    QList<qint32> rights(qint32 User_ID);
    /// Those who can log in and open the user administration.
    QList<qint32> administrators();

    /// What the user of that key is made of, for those who load and save him.
    QList<RecordRows> kayit(const QString &key);

    /// Writes the user and replaces his rights, all or nothing. Of one that is
    /// stored only the password and the extra right change. A new one whose
    /// name another user has is refused.
    void save(const Kullanici &user, const QList<qint32> &rights, LoadedRows &okunan);
    /// Removes the user and his rights, all or nothing.
    void remove(qint32 User_ID, LoadedRows &okunan);

private:
    qint32 nextNumber();
    qint32 writeUser(const Kullanici &user);

    Oturum &m_oturum;
};

/// The password in clear; nothing where it is null or was never scrambled.
std::optional<QString> clearPassword(const Kullanici &user);
/// Compares exactly, with case. A user without a stored password cannot log in.
PasswordCheck checkPassword(const Kullanici &user, const QString &typed);

} // namespace kuyum
