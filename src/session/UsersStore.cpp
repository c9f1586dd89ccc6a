#include "UsersStore.h"

#include "Passwords.h"
#include "SqlText.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

QStringList UsersStore::activeNames()
{
    QStringList names;
    Recordset rows = m_oturum.sorgula(u"Select * From Users Where User_Sil = 0"_s);
    while (rows.next())
        names.append(rows.text(u"User_Name"));
    return names;
}

static Kullanici userOf(const Recordset &row)
{
    Kullanici user{qint32(row.integer(u"User_ID")), row.text(u"User_Name"), std::nullopt};
    if (!row.isNull(u"user_pass"))
        user.user_pass = row.text(u"user_pass");
    return user;
}

std::optional<Kullanici> UsersStore::find(const QString &name)
{
    Recordset rows = m_oturum.sorgula(u"select * from Users where user_name = "_s + sqlText(name));
    std::optional<Kullanici> first;
    while (rows.next()) {
        const Kullanici user = userOf(rows);
        if (user.User_Name == name)
            return user;
        if (!first.has_value())
            first = user;
    }
    return first;
}

PasswordCheck checkPassword(const Kullanici &user, const QString &typed)
{
    if (!user.user_pass.has_value())
        return PasswordCheck::CannotLogIn;
    try {
        return SifreCoz(*user.user_pass) == typed ? PasswordCheck::Right : PasswordCheck::Wrong;
    } catch (const std::out_of_range &) {
        // What is stored was never scrambled: nothing typed can match it.
        return PasswordCheck::Wrong;
    }
}
