#include "LookupCompany.h"

#include "Schema.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static void insertRows(Database &db, const QString &table, const QStringList &rows)
{
    for (const QString &row : rows)
        db.execute(u"Insert into %1 values (%2)"_s.arg(table, row));
}

static void addMasterData(Database &db)
{
    insertRows(
        db, u"UrunTipi (TipID, UrunTipi, KisaAD, Sirano)"_s,
        {u"1, 'Yüzük', 'YZK', 2"_s, u"2, 'Kolye', 'KLY', 1"_s, u"40000, 'Küpe', 'KPE', 3"_s});
    insertRows(db, u"Tas (TasID, Taskodu, TasFiyati, TasBirimi)"_s,
               {u"1, 'zümrüt', 12.5, 'USD'"_s, u"2, 'CIRA', 1, 'USD'"_s, u"3, 'Işık', 3, 'EUR'"_s,
                u"4, 'İnci', 110, 'USD'"_s, u"5, 'O''Hara', 4, 'USD'"_s,
                u"6, 'ÇATAL', null, 'USD'"_s});
    insertRows(db, u"Kalip (KalipID, KalipKodu, KalipAck)"_s,
               {u"7, 'K-2', 'geniş'"_s, u"9, 'K-1', 'dar'"_s});
    insertRows(db, u"Model (Model, M_Uruntip, M_Miktar)"_s,
               {u"'B7', 1, 2"_s, u"'A1', 2, 3"_s, u"'A1', 1, 3"_s, u"'a1', 1, 3"_s,
                u"'Z9', 99, 1"_s, u"'Z8', 40000, 1"_s});
    insertRows(db, u"Firma (Firkod, FirAdi, Yetkili)"_s,
               {u"3, 'Altın Saray', 'Işıl'"_s, u"1, 'çınar', 'Ali'"_s, u"2, 'O''Hara', null"_s});
    insertRows(db, u"Renkler (RenkNo, Renksira)"_s, {u"'S', 1"_s, u"'B', 2"_s});
    insertRows(db, u"Ayar (Milyem, Yogunluk)"_s, {u"750, 15.5"_s, u"585, 13.6"_s});
    insertRows(db, u"Katalog (KatAdi, katno1)"_s, {u"'Yaz', 1"_s, u"'yaz ', 2"_s, u"'Kış', 2"_s});
    insertRows(db, u"Users (User_ID, User_Name)"_s, {u"1, 'Şule'"_s, u"2, 'Saim'"_s});
}

static void addOrdersAndRates(Database &db)
{
    insertRows(
        db, u"SiparisB (Sipnum, SipTrh, SipFirkod, Ayar, Patent, Aciklama)"_s,
        {u"10, '2025-03-01', 1, 585, 'ÇNR', 'acele'"_s, u"11, '2025-03-02', 2, 750, null, null"_s,
         u"12, '2025-03-02', 3, 585, 'AS', 'uzun not'"_s,
         u"13, '2024-12-31', 1, 750, 'ÇNR', null"_s, u"14, '2025-01-01', 77, 585, 'YOK', null"_s});
    insertRows(db, u"DovizB (Dovcinsi, DovUlke, Sbak, Esira)"_s,
               {u"'TL', 1, 1, 1"_s, u"'USD', 0, 1, 3"_s, u"'EUR', 0, 1, 2"_s, u"'GBP', 0, 0, 4"_s});
    insertRows(db, u"DovizD (Tarih, Dovcinsi, Kur)"_s,
               {u"'2025-03-01', 'USD', 36500.4"_s, u"'2025-03-01', 'eur ', 38499.5"_s,
                u"'2025-03-03', 'USD', 0"_s, u"'2025-03-02', 'GBP', 46000"_s});
}

LookupCompany::LookupCompany()
{
    oturum.kayitYolu = folder.filePath(u"sirket.kuyum"_s);
    oturum.ResimYolu = folder.filePath(u"resim"_s);
    oturum.Veritabani = createCompany(folder.filePath(u"atolye.kuyum"_s));
    Transaction transaction(*oturum.Veritabani);
    addMasterData(*oturum.Veritabani);
    addOrdersAndRates(*oturum.Veritabani);
    transaction.commit();
}

QStringList LookupCompany::rows(const QString &list, const QString &filter)
{
    return remainingRows(*openLookup(oturum, lookupList(list), filter));
}

QStringList remainingRows(LookupRows &rows)
{
    QStringList result;
    for (QVariantList row; rows.next(row);) {
        QStringList texts;
        for (int i = 0; i < row.size(); ++i)
            texts.append(lookupText(row[i], rows.columns()[i].picture));
        result.append(texts.join(u'|'));
    }
    return result;
}

} // namespace kuyum
