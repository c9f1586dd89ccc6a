#include "RandomCompany.h"

#include "Dates.h"
#include "Schema.h"
#include "SqliteEngine.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QVariant stored(const RandomCompany::Number &number)
{
    return number ? QVariant(*number) : QVariant();
}

QVariant stored(const QString &text)
{
    return text.isNull() ? QVariant() : QVariant(text);
}

/// Past the record sets, which would refuse some of it.
void insert(Database &db, const QString &table, const QString &fields, const QVariantList &values)
{
    const QString marks = QStringList(values.size(), u"?"_s).join(u',');
    db.engine().run(u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(table, fields, marks), values);
}

const QStringList modelCodes{u"A75"_s,  u"a75"_s,  u"A75 "_s,  u"A7"_s,  u"İnci-1"_s, u"inci-1"_s,
                             u"IŞIK"_s, u"ışık"_s, u"O'H 1"_s, u"Boş"_s, u"B 12"_s};

} // namespace

RandomCompany::RandomCompany(unsigned seed) : m_random(seed)
{
    addMaterials();
    addParts();
    addOrders();
    store();
}

void RandomCompany::addMaterials()
{
    types = {{1, u"Yüzük"_s}, {2, u"Kolye"_s}, {3, u"Küpe"_s}, {4, u"Bilezik"_s}};
    customers = {{10, 1}, {20, 2}, {30, 1}, {40, 77}};
    stones = {{1, u"ZRK 2"_s, 0.0215},
              {2, u"PRL"_s, 0.005},
              {3, u"zrk 3"_s, Number()},
              {4, u"Ametist"_s, 1.5},
              {5, QString(), 0.3}};
    molds = {{1, u"K-1"_s, u"Yüzük kolu"_s},
             {2, u"K-2"_s, u""_s},
             {3, u"k-10"_s, QString()},
             {4, QString(), u"Kolye ucu"_s}};
}

void RandomCompany::addParts()
{
    for (int i = 0; i < 45; ++i) {
        const int kind = below(8) == 0 ? 2 : below(2);
        const Number pieces = chance(5)    ? Number()
                              : chance(30) ? Number(below(40) / 10.0)
                                           : Number(below(12));
        parts.append({chance(3) ? QString() : oneOf(modelCodes.mid(0, 9)),
                      chance(4) ? Number() : Number(1 + below(5)), kind, below(7), pieces});
    }
}

void RandomCompany::addOrders()
{
    const QList<Number> karats = {585.0, 750.0, 333.0, 14.5, 916.6};
    for (int Sipnum = 1; Sipnum <= 40; ++Sipnum) {
        headers.append({Sipnum, QDate(2024, 1, 1).addDays(below(90)),
                        oneOf<int>({10, 20, 30, 40, 99}),
                        chance(3) ? Number() : karats[below(1 + below(5))]});
        for (int count = below(9); count > 0; --count) {
            lines.append({chance(2) ? 500 : Sipnum, chance(3) ? QString() : oneOf(modelCodes),
                          chance(3) ? Number() : Number(1 + below(6)),
                          chance(4) ? Number() : Number(below(30) - 2)});
        }
    }
}

void RandomCompany::store()
{
    oturum.Veritabani = createCompany(dir.filePath(u"atolye.kuyum"_s));
    Database &db = *oturum.Veritabani;
    Transaction transaction(db);
    for (const Type &type : types)
        insert(db, u"UrunTipi"_s, u"TipID, UrunTipi"_s, {type.TipID, type.UrunTipi});
    for (const Customer &customer : customers)
        insert(db, u"Firma"_s, u"Firkod, UlkeID"_s, {customer.Firkod, customer.UlkeID});
    for (const Stone &stone : stones) {
        insert(db, u"Tas"_s, u"TasID, Taskodu, TasKatsayi"_s,
               {stone.TasID, stored(stone.Taskodu), stored(stone.TasKatsayi)});
    }
    for (const Mold &mold : molds) {
        insert(db, u"Kalip"_s, u"KalipID, KalipKodu, KalipAck"_s,
               {mold.KalipID, stored(mold.KalipKodu), stored(mold.KalipAck)});
    }
    for (const Part &part : parts) {
        insert(db, u"Model"_s, u"Model, M_Uruntip, M_Tip, M_Kod, M_Adet"_s,
               {stored(part.Model), stored(part.M_Uruntip), part.M_Tip, part.M_Kod,
                stored(part.M_Adet)});
    }
    for (const Header &header : headers) {
        insert(db, u"SiparisB"_s, u"Sipnum, SipTrh, SipFirkod, Ayar"_s,
               {header.Sipnum, isoText(header.SipTrh), header.SipFirkod, stored(header.Ayar)});
    }
    for (const Line &line : lines) {
        insert(
            db, u"SiparisD"_s, u"SipnumD, SipModel, SipUruntip, SipAdet"_s,
            {line.SipnumD, stored(line.SipModel), stored(line.SipUruntip), stored(line.SipAdet)});
    }
    transaction.commit();
}

} // namespace kuyum
