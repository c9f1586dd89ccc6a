#include "MenuStore.h"

#include "Numbers.h"
#include "Windows1254.h"

#include <limits>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

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

QList<MenuOgesi> MenuStore::itemsOfUser()
{
    // Only these two spellings are the administrator; "admin" is a user like
    // any other.
    const bool administrator =
        m_oturum.KullaniciAdi == "ADMIN"_L1 || m_oturum.KullaniciAdi == "Admin"_L1;
    const QString sql = administrator
                            ? u"SELECT * FROM Menuler Order by M_ID;"_s
                            : u"SELECT * FROM MenuKisit INNER JOIN Menuler "
                              "ON MenuKisit.MK_menuid = Menuler.M_ID Where MK_userid = "_s +
                                  sqlNumber(m_oturum.KullaniciNo);
    QList<MenuOgesi> items;
    Recordset rows = m_oturum.sorgula(sql);
    while (rows.next())
        items.append({qint32(rows.integer(u"m_ID")), rows.text(u"m_Adi")});
    return items;
}
