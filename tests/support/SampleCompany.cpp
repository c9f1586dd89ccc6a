#include "SampleCompany.h"

#include "Schema.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Rows of one table; a row may leave out its last fields.
void fill(Database &db, const QString &table, const QStringList &fields,
          const QList<QVariantList> &rows)
{
    Recordset set = db.table(table);
    for (const QVariantList &row : rows) {
        set.addNew();
        for (qsizetype i = 0; i < row.size(); ++i)
            set.set(fields[i], row[i]);
        set.update();
    }
}

QVariantList line(int order, int row, const QString &model, int type, const QString &colour,
                  const QString &note, int count)
{
    return {order, row,   model,           type,           colour, note, count,
            u""_s, u""_s, u"01.01.2000"_s, u"01.01.2000"_s};
}

void fillMasterData(Database &db)
{
    fill(db, u"UrunTipi"_s, {u"UrunTipi"_s, u"KisaAD"_s, u"Sirano"_s},
         {{u"Yüzük"_s, u"YZK"_s, 2}, {u"Kolye"_s, u"KLY"_s, 1}, {u"Küpe"_s, u"KPE"_s, 3}});
    fill(db, u"Ulkeler"_s, {u"ulke_ADI"_s}, {{u"Türkiye"_s}, {u"Ürdün"_s}});
    fill(db, u"Firma"_s, {u"Firkod"_s, u"FirAdi"_s, u"KisaAD"_s, u"Aciklama"_s, u"UlkeID"_s},
         {{10, u"Işık Kuyumculuk"_s, u"IŞIK"_s, u"Vadeli"_s, 1},
          {20, u"O'Hara Gold"_s, u"OHARA"_s, u""_s, 2}});
    fill(db, u"Tas"_s, {u"Taskodu"_s, u"TasFiyati"_s, u"TasBirimi"_s, u"TasKatsayi"_s},
         {{u"ZRK 2"_s, 1.5, u"USD"_s, 0.02}, {u"PRL 1"_s, 80.0, u"EUR"_s, 0.005}});
    fill(db, u"Kalip"_s, {u"KalipKodu"_s, u"KalipAck"_s, u"KalipDur"_s},
         {{u"K-1"_s, u"Yüzük kolu"_s, u"Icerde"_s}, {u"K-2"_s, u"Kolye ucu"_s, u"Disarda"_s}});
    fill(db, u"Model"_s,
         {u"Model"_s, u"M_Uruntip"_s, u"M_Miktar"_s, u"M_Tip"_s, u"M_Kod"_s, u"M_Adet"_s},
         {{u"A75"_s, 1, 2.0, 0, 1, 4.0},    // ring: 4 zircons
          {u"A75"_s, 1, 2.0, 1, 1, 1.0},    // ring: a mold piece
          {u"A75"_s, 2, 5.0, 1, 2, 2.0},    // necklace of the same name: 2 mold pieces
          {u"İnci-1"_s, 3, 1.0, 0, 2, 2.0}, // earring: 2 brilliants
          {u"boş"_s, 1, 3.5, 0, 0, 0.0}});  // without materials
    fill(db, u"Renkler"_s, {u"RenkNo"_s, u"Renksira"_s}, {{u"SR"_s, 1}, {u"BY"_s, 2}});
    fill(db, u"Ayar"_s, {u"Milyem"_s, u"Yogunluk"_s}, {{585, 13.075}, {750, 15.5}});
    fill(db, u"Katalog"_s, {u"KatAdi"_s, u"katno1"_s, u"katgram"_s, u"kataciklama"_s},
         {{u"Bahar"_s, 1, 2.1, u"yeni"_s}, {u"Bahar"_s, 4, 1.1, u""_s}, {u"bahar"_s, 99, 1.0}});
}

void fillOrders(Database &db)
{
    fill(db, u"SiparisB"_s,
         {u"SipTrh"_s, u"TesTrh"_s, u"SipFirkod"_s, u"Ayar"_s, u"Patent"_s, u"Aciklama"_s},
         {{u"01.03.2012"_s, u"15.03.2012"_s, 10, 585, u"585"_s, u"Acele"_s},
          {u"05.03.2012"_s, u"20.03.2012"_s, 20, 750, u"750"_s, u"Kutulu"_s},
          {u"05.03.2012"_s, u"20.03.2012"_s, 10, 585, u"TR585"_s, u"Acele"_s},
          {u"01.05.2012"_s, u"20.05.2012"_s, 10, 585, u"585"_s, u"Sonra"_s}});
    fill(db, u"SiparisD"_s,
         {u"SipnumD"_s, u"SipSatir"_s, u"SipModel"_s, u"SipUruntip"_s, u"Siprenk"_s, u"SipAck"_s,
          u"SipAdet"_s, u"Drm1"_s, u"Drm2"_s, u"Trhbas"_s, u"Trhbit"_s},
         {line(1, 1, u"A75"_s, 1, u"SR"_s, u"ölçü 14"_s, 3),
          line(1, 1, u"A75"_s, 2, u"SR"_s, u"ölçü 14"_s, 1),
          line(1, 2, u"İnci-1"_s, 3, u"BY"_s, u""_s, 2),
          line(2, 1, u"a75"_s, 1, u"SR"_s, u""_s, 5), // the model in small letters
          line(3, 1, u"A75"_s, 1, u"BY"_s, u""_s, 1),
          line(4, 1, u"A75"_s, 1, u"BY"_s, u""_s, 100)});
    fill(db, u"Durum1"_s, {u"d1_tanim"_s}, {{u"ONAYLANDI"_s}, {u"HAZIR"_s}});
    fill(db, u"Durum2"_s, {u"d2_tanim"_s}, {{u"DÖKÜM"_s}});
}

void fillSession(Database &db)
{
    fill(db, u"DovizB"_s, {u"Dovcinsi"_s, u"DovUlke"_s, u"Sbak"_s, u"Esira"_s},
         {{u"TL"_s, 1, 1, 3}, {u"EUR"_s, 0, 1, 2}, {u"USD"_s, 0, 1, 1}, {u"GBP"_s, 0, 0, 4}});
    fill(db, u"DovizD"_s, {u"Tarih"_s, u"Dovcinsi"_s, u"Kur"_s, u"aliskur"_s},
         {{u"01.03.2012"_s, u"USD"_s, 1.8, 1.7},
          {u"01.03.2012"_s, u"EUR"_s, 2.4, 2.3},
          {u"02.03.2012"_s, u"USD"_s, 1.9, 1.8}});
    fill(db, u"Users"_s, {u"User_ID"_s, u"User_Name"_s, u"user_pass"_s, u"User_Sil"_s},
         {{1, u"Admin"_s, u"2468"_s, 0},
          {2, u"admin"_s, u"bd"_s, 0},
          {3, u"eski"_s, u"bd"_s, 1},
          {4, u"şifresiz"_s, QVariant(), 0}});
    fill(db, u"Menuler"_s, {u"m_ID"_s, u"m_Adi"_s},
         {{7, u"Sipariş Girişi"_s}, {0, u"Taş Tanımları"_s}});
    fill(db, u"MenuKisit"_s, {u"MK_userid"_s, u"MK_menuid"_s}, {{2, 7}, {2, 14}});
}

} // namespace

std::unique_ptr<Database> makeSampleCompany(const QString &path)
{
    std::unique_ptr<Database> db = createCompany(path);
    Transaction transaction(*db);
    fillMasterData(*db);
    fillOrders(*db);
    fillSession(*db);
    transaction.commit();
    return db;
}

} // namespace kuyum
