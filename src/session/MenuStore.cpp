#include "MenuStore.h"

#include "Numbers.h"
#include "Windows1254.h"

#include <limits>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kuyum {

QList<MenuOgesi> parseMenuFile(const QByteArray &content)
{
    static const QRegularExpression lineEnd(u"\r\n|\r|\n"_s);
    QList<MenuOgesi> items;
    const QStringList lines = decodedText(content).split(lineEnd);
    for (const QString &line : lines) {
        const qsizetype blank = line.indexOf(u' ');
        if (blank < 0)
            continue;
        const double number = leadingNumber(QStringView(line).left(blank));
        if (number < 0 || number > std::numeric_limits<qint32>::max())
            continue;
        items.append({qint32(number), line.mid(blank + 1)});
    }
    return items;
}

void MenuStore::addFrom(const QList<MenuOgesi> &items)
{
    Database &db = *m_oturum.Veritabani;
    const TableDef menuTable = db.tableDef(u"Menuler"_s);
    const FieldDef *caption = menuTable.field(u"m_Adi");
    const int longest = caption != nullptr ? caption->size : 0;

    Transaction transaction(db);
    for (const MenuOgesi &item : items) {
        Recordset rows =
            m_oturum.sorgula(u"Select * From Menuler Where M_Id = "_s + sqlNumber(item.m_ID));
        if (rows.next())
            continue;
        rows.addNew();
        rows.set(u"m_ID", item.m_ID);
        rows.set(u"m_Adi", longest > 0 ? item.m_Adi.left(longest) : item.m_Adi);
        rows.update();
    }
    transaction.commit();
}

bool seesWholeMenu(QStringView User_Name)
{
    // In the menu "admin" is a user like any other.
    return User_Name == "ADMIN"_L1 || User_Name == "Admin"_L1;
}

static constexpr auto wholeMenu = "SELECT * FROM Menuler Order by M_ID;"_L1;

static QList<MenuOgesi> itemsOf(Recordset rows)
{
    QList<MenuOgesi> items;
    while (rows.next())
        items.append({qint32(rows.integer(u"m_ID")), rows.text(u"m_Adi")});
    return items;
}

QList<MenuOgesi> MenuStore::items()
{
    return itemsOf(m_oturum.sorgula(wholeMenu));
}

QList<MenuOgesi> MenuStore::itemsOfUser()
{
    const QString sql = seesWholeMenu(m_oturum.KullaniciAdi)
                            ? wholeMenu
                            : u"SELECT * FROM MenuKisit INNER JOIN Menuler "
                              "ON MenuKisit.MK_menuid = Menuler.M_ID Where MK_userid = "_s +
                                  sqlNumber(m_oturum.KullaniciNo);
    return itemsOf(m_oturum.sorgula(sql));
}

} // namespace kuyum
