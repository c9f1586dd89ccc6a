#include "SaveKinds.h"

#include "AyarStore.h"
#include "FirmaStore.h"
#include "KalipStore.h"
#include "KatalogStore.h"
#include "KurStore.h"
#include "ModelStore.h"
#include "ParametreStore.h"
#include "RenkStore.h"
#include "Schema.h"
#include "SiparisStore.h"
#include "SiparisTakip.h"
#include "SqliteEngine.h"
#include "TasStore.h"
#include "UrunTipiStore.h"
#include "UsersStore.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int rowCount = 60;

template <typename Store, typename Key, typename Record>
void saveDefinition(Oturum &oturum, const Key &key, const Record &record)
{
    LoadedRows loaded(*oturum.Veritabani, Store(oturum).kayit(key));
    Store(oturum).save(record, loaded);
}

void saveOrder(Oturum &oturum, int number)
{
    const SiparisStore store(oturum);
    LoadedRows loaded = store.oku(1);
    Siparis siparis = store.SiparisBul(1).value();
    siparis.Aciklama = QString::number(number);
    SiparisSatiri row = siparis.satirlar.first();
    row.aciklama = siparis.Aciklama;
    siparis.satirlar.fill(row, rowCount);
    store.save(siparis, loaded);
}

void saveTracking(Oturum &oturum, int number)
{
    const SiparisTakip takip(oturum);
    const QList<TakipSatiri> opened = takip.SiparisBul(2).value().satirlar;
    LoadedRows loaded = takip.oku(2);
    QList<TakipSatiri> set = opened;
    set.first().state.durum1 = QString::number(number);
    set.first().state.durum2 = QString::number(number);
    QString failure;
    takip.kaydet(
        {2, opened, set}, loaded, [&](const QString &text) { failure = text; },
        [](int, int) { return true; });
    if (!failure.isEmpty())
        throw DatabaseError(failure);
}

void saveRates(Oturum &oturum, int number)
{
    const KurStore store(oturum);
    const QDate date(2012, 3, 1);
    LoadedRows loaded = store.oku(date);
    QList<KurSatiri> rates = store.paraBirimleri();
    for (KurSatiri &rate : rates)
        rate.Kur = rate.aliskur = number;
    store.save(date, rates, AlisKurlari::Tutulur, loaded);
}

/// Its first row stands in a catalogue; now and then the model goes away.
void saveModel(Oturum &oturum, int number)
{
    const ModelStore store(oturum);
    LoadedRows loaded(*oturum.Veritabani, store.kayit(u"A75"_s, 1));
    const ModelSatiri material{MalzemeTipi::Tas, u"ZRK 2"_s, 1, double(number)};
    Model model{u"A75"_s, 1, double(number), QList<ModelSatiri>(rowCount, material)};
    if (number % 5 == 0)
        store.remove(model.ad, model.M_Uruntip, loaded);
    else
        store.save(model, loaded);
}

void saveCatalogue(Oturum &oturum, int number)
{
    const KatalogStore store(oturum);
    LoadedRows loaded = store.oku(u"Bahar"_s);
    Katalog katalog = store.KatalogBul(u"Bahar"_s);
    KatalogSatiri row = store.ModelBul(u"İnci-1"_s, 3).value();
    row.kataciklama = QString::number(number);
    katalog.satirlar.fill(row, rowCount);
    katalog.elleSirali = number % 2 != 0;
    store.save(katalog, loaded);
}

void saveUser(Oturum &oturum, int number)
{
    UsersStore store(oturum);
    LoadedRows loaded(*oturum.Veritabani, store.kayit(u"2"_s));
    Kullanici user = store.KullaniciBul(u"2"_s).value();
    user.user_pass = QString::number(number);
    store.save(user, QList<qint32>(rowCount, number), loaded);
}

void saveSettings(Oturum &oturum, int number)
{
    ParametreStore store(oturum);
    LoadedRows loaded = store.ayarlariOku();
    store.kaydet({double(number % 100), 1, u"9600"_s, QString::number(number)}, loaded);
}

void savePaths(Oturum &oturum, int number)
{
    ParametreStore store(oturum);
    LoadedRows loaded = store.sirketiOku();
    Sirket paths = store.sirket().value();
    paths.ResimYolu = paths.Transferyolu = u"resim%1"_s.arg(number);
    std::unique_ptr<Database> none;
    store.yollariDegistir(paths, none, loaded);
}

void loseCounter(Database &company)
{
    TableDef plain = company.tableDef(u"SiparisD"_s);
    plain.name = u"sayacsiz"_s;
    plain.indexes.clear();
    for (FieldDef &field : plain.fields)
        field.counter = false;
    company.createTable(plain);
    for (const QString &sql :
         {u"INSERT INTO sayacsiz SELECT * FROM SiparisD"_s,
          u"UPDATE sayacsiz SET Dotosayi = 5 WHERE SipnumD = 1"_s, u"DROP TABLE SiparisD"_s,
          u"ALTER TABLE sayacsiz RENAME TO SiparisD"_s})
        company.engine().run(sql);
}

} // namespace

const QMap<QString, SaveKind> &saveKinds()
{
    static const QMap<QString, SaveKind> kinds = {
        {u"order"_s, {saveOrder, u"SiparisB"_s}},
        {u"tracking"_s, {saveTracking}},
        {u"rates"_s, {saveRates}},
        {u"model"_s, {saveModel}},
        {u"catalogue"_s, {saveCatalogue}},
        {u"user"_s, {saveUser}},
        {u"settings"_s, {saveSettings}},
        {u"paths"_s, {savePaths}},
        {u"customer"_s, {[](Oturum &oturum, int number) {
             const QString text = QString::number(number);
             saveDefinition<FirmaStore>(oturum, 10,
                                        Firma{10, text, text, text, text, text, 1, text});
         }}},
        {u"stone"_s, {[](Oturum &oturum, int number) {
             const QString code = QString::number(number); // each a new one
             saveDefinition<TasStore>(oturum, code, Tas{code, 1, u"USD"_s, 1});
         }}},
        {u"mold"_s, {[](Oturum &oturum, int number) {
             saveDefinition<KalipStore>(oturum, u"K-1"_s,
                                        Kalip{u"K-1"_s, QString::number(number), u"Icerde"_s});
         }}},
        {u"colour"_s, {[](Oturum &oturum, int number) {
             saveDefinition<RenkStore>(oturum, u"SR"_s, Renk{u"SR"_s, double(number % 100)});
         }}},
        {u"type"_s, {[](Oturum &oturum, int number) {
             saveDefinition<UrunTipiStore>(oturum, 0,
                                           UrunTipiKaydi{0, QString::number(number), {}});
         }}},
        {u"karat"_s, {[](Oturum &oturum, int number) {
             saveDefinition<AyarStore>(oturum, 585, Ayar{585, double(number)});
         }}},
        {u"opening"_s,
         {[](Oturum &oturum, int) { oturum.Veritabani = openCompany(oturum.Veritabani->path()); },
          {},
          loseCounter}},
    };
    return kinds;
}

Oturum sessionIn(const QString &folder)
{
    Oturum oturum;
    oturum.kayitYolu = folder + u"/sirket.kuyum"_s;
    oturum.SirketKodu = 1;
    oturum.CalismaTarihi = QDate(2012, 6, 1);
    // Not openCompany(): that mends, which is a save of its own.
    oturum.Veritabani = Database::open(folder + u"/atolye.kuyum"_s);
    return oturum;
}

} // namespace kuyum
