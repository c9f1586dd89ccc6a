#include "ParametreStore.h"

#include "LegacyPath.h"
#include "Numbers.h"
#include "RegistryPaths.h"
#include "Schema.h"
#include "UsersStore.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

/// The login took a legacy registry over; what it took it into is the registry.
static std::unique_ptr<Database> openRegistryOf(const Oturum &oturum)
{
    return openRegistry(takenOverPath(oturum.kayitYolu));
}

std::optional<Sirket> ParametreStore::sirket() const
{
    const std::unique_ptr<Database> registry = openRegistryOf(m_oturum);
    return RegistryStore(*registry).find(m_oturum.SirketKodu);
}

std::optional<Ayarlar> ParametreStore::ayarlar() const
{
    Recordset XXX = m_oturum.Veritabani->table(u"XXX"_s);
    if (!XXX.next())
        return std::nullopt;
    return Ayarlar{XXX.number(u"TeraziTip"), XXX.number(u"ComportID"), XXX.text(u"comportST"),
                   XXX.text(u"YaziciAdi"), XXX.number(u"sabitayar")};
}

LoadedRows ParametreStore::ayarlariOku() const
{
    return {*m_oturum.Veritabani,
            {{.table = u"XXX"_s,
              .where = u"1 = 1"_s,
              .label = u"Ayarlar"_s,
              .fields = {{u"TeraziTip"_s, u"Terazi tipi"_s},
                         {u"ComportID"_s, u"Port"_s},
                         {u"comportST"_s, u"Port ayarı"_s},
                         {u"YaziciAdi"_s, u"Etiket yazıcısı"_s},
                         {u"sabitayar"_s, u"Sabit ayar"_s}}}}};
}

LoadedRows ParametreStore::sirketiOku() const
{
    const std::unique_ptr<Database> registry = openRegistryOf(m_oturum);
    return {*registry,
            {{.table = u"SirketKayit"_s,
              .where = u"Srkkod = "_s + sqlNumber(m_oturum.SirketKodu),
              .label = u"Şirket"_s,
              .fields = {{u"DataYolu"_s, u"Veri tabanı"_s},
                         {u"ResimYolu"_s, u"Resim klasörü"_s},
                         {u"Transferyolu"_s, u"Transfer klasörü"_s}}}}};
}

void ParametreStore::kaydet(const Ayarlar &ayarlar, LoadedRows &okunan)
{
    const auto write = [&] {
        Recordset XXX = m_oturum.Veritabani->table(u"XXX"_s);
        if (!XXX.next())
            return;
        XXX.edit();
        XXX.set(u"TeraziTip", ayarlar.TeraziTip);
        XXX.set(u"ComportID", ayarlar.ComportID);
        XXX.set(u"comportST", ayarlar.comportST);
        XXX.set(u"YaziciAdi", ayarlar.YaziciAdi);
        XXX.set(u"sabitayar", ayarlar.sabitayar);
        XXX.update();
    };
    okunan.write(*m_oturum.Veritabani, {write, {}, {u"XXX"_s}});
}

QString ParametreStore::veriDosyasi(const QString &DataYolu) const
{
    return RegistryPaths(m_oturum.kayitYolu).resolveDatabase(DataYolu);
}

bool ParametreStore::acikOlan(const QString &DataYolu) const
{
    return QFileInfo(takenOverPath(veriDosyasi(DataYolu))) ==
           QFileInfo(m_oturum.Veritabani->path());
}

bool ParametreStore::girisYapilabilir(Database &db)
{
    Recordset users =
        db.query(u"Select user_pass From Users Where User_Sil = 0 and user_pass Is Not Null"_s);
    while (users.next()) {
        if (clearPassword({.user_pass = users.text(u"user_pass")}))
            return true;
    }
    return false;
}

void ParametreStore::yollariDegistir(const Sirket &yollar, std::unique_ptr<Database> &yeni,
                                     LoadedRows &okunan)
{
    const RegistryPaths paths(m_oturum.kayitYolu);
    QString ResimYolu = paths.resolve(yollar.ResimYolu);
    QString Transferyolu = paths.resolve(yollar.Transferyolu);
    Sirket kayit = yollar;
    kayit.Srkkod = m_oturum.SirketKodu;
    const std::unique_ptr<Database> registry = openRegistryOf(m_oturum);
    okunan.write(*registry,
                 {[&] { RegistryStore(*registry).savePaths(kayit); }, {}, {u"SirketKayit"_s}});

    if (yeni != nullptr)
        m_oturum.Veritabani = std::move(yeni);
    m_oturum.DataYolu = std::move(kayit.DataYolu);
    m_oturum.ResimYolu = std::move(ResimYolu);
    m_oturum.Transferyolu = std::move(Transferyolu);
}

} // namespace kuyum
