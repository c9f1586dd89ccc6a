#include "TestCompanies.h"

#include "Passwords.h"
#include "SampleCompany.h"
#include "Schema.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace kuyum {

void addRow(Database &db, const QString &table, const QMap<QString, QVariant> &fields)
{
    Recordset rows = db.table(table);
    rows.addNew();
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        rows.set(field.key(), field.value());
    rows.update();
}

static void addUser(Database &db, int number, const QString &name, const QString &stored)
{
    addRow(db, u"Users"_s,
           {{u"User_ID"_s, number},
            {u"User_Name"_s, name},
            {u"user_pass"_s, stored},
            {u"User_Sil"_s, 0}});
}

static void addCompany(Database &registry, const QString &kind, int code, const QString &name,
                       const QString &file)
{
    addRow(registry, u"SirketKayit"_s,
           {{u"turkod"_s, kind},
            {u"Srkkod"_s, code},
            {u"Srkadi"_s, name},
            {u"DataYolu"_s, file},
            {u"ResimYolu"_s, u"C:\\DATABASE\\resimler"_s},
            {u"Transferyolu"_s, u"c:\\gelen"_s}});
}

TestCompanies::TestCompanies()
{
    QDir(m_folder.path()).mkpath(u"Database/Resimler"_s);
    const std::unique_ptr<Database> db = createRegistry(registry());
    addCompany(*db, u"048"_s, 3, u"Kayıp"_s, u"c:\\database\\yok.mdb"_s);
    addCompany(*db, u"011"_s, 2, u"Depo"_s, u"c:\\database\\depo.mdb"_s);
    addCompany(*db, u"048"_s, 4, u"İkinci"_s, u"c:\\database\\ikinci.kuyum"_s);
    addCompany(*db, u"048"_s, 1, u"Işıl Atölye"_s, u"c:\\database\\BIR.kuyum"_s);

    const std::unique_ptr<Database> first = makeSampleCompany(path(u"Database/bir.kuyum"_s));
    addUser(*first, 5, u"O'Hara"_s, Sifrele(u"ABC"_s));
    addUser(*first, 6, u"uzun"_s, Sifrele(u"12345678"_s));
    addUser(*first, 7, u"bozuk"_s, u"\x01\x01\x01"_s);
    const std::unique_ptr<Database> second = createCompany(path(u"Database/ikinci.kuyum"_s));
    addUser(*second, 1, u"tek"_s, Sifrele(u"x"_s));
}

Oturum TestCompanies::loggedIn(const QString &name, qint32 number, QDate date) const
{
    Oturum oturum;
    oturum.kayitYolu = registry();
    oturum.Veritabani = openCompany(path(u"Database/bir.kuyum"_s));
    oturum.SirketAdi = u"Işıl Atölye"_s;
    oturum.KullaniciAdi = name;
    oturum.KullaniciNo = number;
    oturum.CalismaTarihi = date;
    return oturum;
}

} // namespace kuyum
