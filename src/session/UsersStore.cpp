#include "UsersStore.h"

#include "MenuStore.h"
#include "Numbers.h"
#include "Passwords.h"
#include "SqlText.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

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
    Kullanici user{.User_ID = qint32(row.integer(u"User_ID")),
                   .User_Name = row.text(u"User_Name"),
                   .user_pass = std::nullopt,
                   .user_yetki1 = row.integer(u"user_yetki1") != 0,
                   .User_Sil = row.integer(u"User_Sil") != 0};
    if (!row.isNull(u"user_pass"))
        user.user_pass = row.text(u"user_pass");
    return user;
}

/// The row with exactly this name, else the first one.
static std::optional<Kullanici> named(const QString &name, Recordset rows)
{
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

std::optional<Kullanici> UsersStore::find(const QString &name)
{
    return named(name,
                 m_oturum.sorgula(u"select * from Users where user_name = "_s + sqlText(name)));
}

static QString userSql(const QString &number)
{
    return u"Select * From Users Where User_Id = "_s + number;
}

static QString keyCondition(const QString &key)
{
    return isNumeric(key) ? u"User_Id = "_s + sqlNumber(leadingNumber(key))
                          : u"User_name = "_s + sqlText(key);
}

std::optional<Kullanici> UsersStore::KullaniciBul(const QString &key)
{
    return named(key, m_oturum.sorgula(u"Select * From Users Where "_s + keyCondition(key)));
}

QList<RecordRows> UsersStore::kayit(const QString &key)
{
    // Whoever may change a password here sees it on the screen, but not
    // whoever stands behind him when a box comes up.
    const auto hidden = [](const QVariant &) { return u"••••••"_s; };
    const auto yesNo = [](const QVariant &value) {
        return value.toInt() != 0 ? u"var"_s : u"yok"_s;
    };
    return {
        {.table = u"Users"_s,
         .where = keyCondition(key),
         .label = u"Kullanıcı "_s + key,
         .fields = {{u"User_Name"_s, u"Ad"_s},
                    {u"user_pass"_s, u"Şifre"_s, hidden},
                    {u"user_yetki1"_s, u"Sipariş kontrolü yetkisi"_s, yesNo}},
         .comesBack = true},
        {.table = u"MenuKisit"_s,
         .where = u"MK_userid In (Select User_ID From Users Where "_s + keyCondition(key) + u')',
         .label = u"Yetki"_s,
         .fields = {{u"MK_menuid"_s, u"Menü"_s,
                     lookedUp(*m_oturum.Veritabani, u"Menuler"_s, u"m_ID"_s, u"m_Adi"_s)}},
         .identity = {u"MK_menuid"_s}}};
}

QList<qint32> UsersStore::rights(qint32 User_ID)
{
    QList<qint32> items;
    Recordset rows =
        m_oturum.sorgula(u"Select * From Menukisit Where mk_userid = "_s + sqlNumber(User_ID));
    while (rows.next())
        items.append(qint32(rows.integer(u"MK_menuid")));
    return items;
}

QList<qint32> UsersStore::administrators()
{
    QList<Kullanici> active;
    Recordset rows = m_oturum.sorgula(u"Select * From Users Where User_Sil = 0"_s);
    while (rows.next())
        active.append(userOf(rows));
    QList<qint32> numbers;
    for (const Kullanici &user : std::as_const(active)) {
        const std::optional<QString> password = clearPassword(user);
        const bool logsIn = password && password->size() <= longestPassword;
        if (logsIn && (seesWholeMenu(user.User_Name) || rights(user.User_ID).contains(userMenu)))
            numbers.append(user.User_ID);
    }
    return numbers;
}

qint32 UsersStore::nextNumber()
{
    Recordset rows = m_oturum.sorgula(u"Select Top 1 User_Id From Users Order by User_Id desc;"_s);
    return rows.next() ? qint32(rows.integer(u"User_Id")) + 1 : 1;
}

/// Returns the user's number.
qint32 UsersStore::writeUser(const Kullanici &user)
{
    const bool isNew = user.User_ID == 0;
    const qint32 number = isNew ? nextNumber() : user.User_ID;
    Recordset row = m_oturum.sorgula(userSql(sqlNumber(number)));
    if (isNew) {
        row.addNew();
        row.set(u"User_ID", number);
        row.set(u"User_Name", user.User_Name);
        row.set(u"user_level", 0);
        row.set(u"user_lastentry", m_oturum.CalismaTarihi);
        row.set(u"user_lastsistem", m_oturum.CalismaTarihi);
        row.set(u"user_ambkod", 0);
        row.set(u"User_Sil", 0);
    } else if (row.next()) {
        row.edit();
    } else {
        throw DatabaseError(u"Kullanıcı bu arada silinmiş: "_s + user.User_Name);
    }
    row.set(u"user_pass", user.user_pass.value_or(QString()));
    row.set(u"user_yetki1", user.user_yetki1 ? 1 : 0);
    row.update();
    return number;
}

static QString rightsRemoval(qint32 User_ID)
{
    return u"DELETE From Menukisit Where Mk_userid = "_s + sqlNumber(User_ID);
}

void UsersStore::save(const Kullanici &user, const QList<qint32> &rights, LoadedRows &okunan)
{
    okunan.write(*m_oturum.Veritabani, [&] {
        if (user.User_ID == 0 && find(user.User_Name))
            throw DatabaseError(u"BU ADDA BİR KULLANICI VAR, BAŞKA BİR AD VERİN..."_s);
        const qint32 number = writeUser(user);
        m_oturum.calistir(rightsRemoval(number));
        Recordset rows = m_oturum.Veritabani->table(u"MenuKisit"_s);
        for (const qint32 item : rights) {
            rows.addNew();
            rows.set(u"MK_userid", number);
            rows.set(u"MK_menuid", item);
            rows.update();
        }
    });
}

void UsersStore::remove(qint32 User_ID, LoadedRows &okunan)
{
    okunan.write(*m_oturum.Veritabani, [&] {
        m_oturum.calistir(u"DELETE From Users Where User_Id = "_s + sqlNumber(User_ID));
        m_oturum.calistir(rightsRemoval(User_ID));
    });
}

std::optional<QString> clearPassword(const Kullanici &user)
{
    // The repair leaves a blank where there was none; nobody can type what that
    // would stand for.
    if (!user.user_pass.has_value() || *user.user_pass == " "_L1)
        return std::nullopt;
    try {
        return SifreCoz(*user.user_pass);
    } catch (const std::out_of_range &) {
        return std::nullopt;
    }
}

PasswordCheck checkPassword(const Kullanici &user, const QString &typed)
{
    if (!user.user_pass.has_value())
        return PasswordCheck::CannotLogIn;
    // Nothing typed can match a stored text that was never scrambled.
    return clearPassword(user) == typed ? PasswordCheck::Right : PasswordCheck::Wrong;
}

} // namespace kuyum
