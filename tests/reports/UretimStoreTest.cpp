#include "UretimStore.h"
#include "Dates.h"
#include "OrderFixture.h"
#include "SiparisStore.h"
#include "SiparisTakip.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"
#include "TurkishText.h"

#include <map>
#include <QtTest>
#include <random>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// A stored line, read without any condition.
struct Line
{
    int order;
    int type;
    QStringList texts; ///< model, colour, note, order status, production status
    double count;
    QDateTime begin;
};

/// Orders of chance: names in several spellings, types that are gone or share a
/// short name, statuses and dates set or not, nulls.
struct RandomOrders : OrderFixture
{
    RandomOrders()
    {
        Transaction all(*oturum.Veritabani);
        Recordset types = oturum.Veritabani->table(u"UrunTipi"_s);
        types.addNew();
        types.set(u"UrunTipi", u"Alyans"_s);
        types.set(u"KisaAD", u"yzk"_s);
        types.update();
        Recordset set = oturum.Veritabani->table(u"SiparisD"_s);
        for (int i = 0; i < 600; ++i)
            addLine(set);
        all.commit();
    }

    QList<Line> lines() const
    {
        Recordset set = oturum.Veritabani->table(u"SiparisD"_s);
        QList<Line> result;
        while (set.next()) {
            result.append({int(set.integer(u"SipnumD")),
                           int(set.integer(u"SipUruntip")),
                           {set.text(u"SipModel"), set.text(u"Siprenk"), set.text(u"SipAck"),
                            set.text(u"Drm1"), set.text(u"Drm2")},
                           set.number(u"SipAdet"),
                           set.value(u"Trhbas").toDateTime()});
        }
        return result;
    }
    /// By number; a type that is gone has none.
    std::map<int, QString> shortNames() const
    {
        std::map<int, QString> names;
        Recordset set = oturum.Veritabani->table(u"UrunTipi"_s);
        while (set.next())
            names[int(set.integer(u"TipID"))] = set.text(u"KisaAD");
        return names;
    }
    template <typename Value>
    Value oneOf(const QList<Value> &values)
    {
        return values[qsizetype(random() % unsigned(values.size()))];
    }

    std::mt19937 random{12};

private:
    void addLine(Recordset &set)
    {
        set.addNew();
        set.set(u"SipnumD", oneOf<int>({1, 2, 3, 7}));
        set.set(u"SipModel", oneOf<QString>({u"A75"_s, u"a75"_s, u"İnci-1"_s, u"yok"_s}));
        set.set(u"SipUruntip", oneOf<int>({1, 2, 3, 4, 9}));
        set.set(u"Siprenk", oneOf<QString>({u"SR"_s, u"BY"_s, u"yok"_s}));
        set.set(u"SipAck", oneOf<QString>({u""_s, u"O'Hara"_s, QString()}));
        set.set(u"Drm1", oneOf<QString>({u""_s, u"HAZIR"_s, u"O'X"_s}));
        set.set(u"Drm2", oneOf<QString>({u""_s, u"DÖKÜM"_s, u"döküm"_s}));
        set.set(u"SipAdet", int(random() % 9));
        if (random() % 8 != 0)
            set.set(u"Trhbas",
                    QDateTime(oneOf<QDate>({noDate(), QDate(2012, 3, 1), QDate(2012, 3, 9)}),
                              oneOf<QTime>({QTime(0, 0), QTime(14, 5)}), Qt::UTC));
        set.update();
    }
};

QList<UretimFiltre> allFilters()
{
    QList<UretimFiltre> filters;
    const QList<std::optional<QString>> orderStatuses = {std::nullopt, u"HAZIR"_s, u"O'X"_s};
    const QList<std::optional<QString>> productionStatuses = {std::nullopt, u"DÖKÜM"_s, u"yok"_s};
    for (const auto &[begin, end] :
         {std::pair{noDate(), QDate(2012, 3, 9)}, std::pair{QDate(2012, 3, 1), QDate(2012, 3, 8)},
          std::pair{QDate(2012, 3, 9), QDate(2012, 3, 1)}}) {
        for (const auto &orderStatus : orderStatuses) {
            for (const auto &productionStatus : productionStatuses)
                filters.append({begin, end, orderStatus, productionStatus});
        }
    }
    return filters;
}

QDateTime midnight(QDate date)
{
    return {date, QTime(0, 0), Qt::UTC};
}

bool hasStatus(const Line &line, const UretimFiltre &filter)
{
    return (!filter.sipDur || sameText(line.texts[3], *filter.sipDur)) &&
           (!filter.uretDur || sameText(line.texts[4], *filter.uretDur));
}

bool passes(const Line &line, const UretimFiltre &filter)
{
    return line.begin.isValid() && line.begin >= midnight(filter.bas) &&
           line.begin <= midnight(filter.bit) && hasStatus(line, filter);
}

QString key(QStringList words)
{
    for (QString &word : words)
        word = foldedText(word);
    return words.join(u'|');
}

using Sums = std::map<QString, double>;

} // namespace

class UretimStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsUpWhatEveryFilterLeaves();
    void givesMaterialsOfAllTypes();
    void tellsWhoMayEdit_data();
    void tellsWhoMayEdit();
    void opensAnOrder();
    void savesLinesOneByOne();
    void findsLinesAgainThatWereWrittenAnew();
};

void UretimStoreTest::addsUpWhatEveryFilterLeaves()
{
    RandomOrders company;
    const UretimStore store(company.oturum);
    const std::map<int, QString> names = company.shortNames();
    const QList<qint32> orders = {7, 1, 3};
    for (const UretimFiltre &filter : allFilters()) {
        Sums byModel;
        Sums byLine;
        int hidden = 0;
        for (const Line &line : company.lines()) {
            if (!names.contains(line.type) || !passes(line, filter)) {
                hidden += hasStatus(line, filter) && orders.contains(line.order) ? 1 : 0;
                continue;
            }
            const QString name = names.at(line.type);
            if (line.order == 1)
                byModel[key({line.texts[0], name})] += line.count;
            if (orders.contains(line.order))
                byLine[key(QStringList{QString::number(line.order), name} + line.texts)] +=
                    line.count;
        }
        Sums shown;
        const ReportTable table = store.adetler(1, filter);
        for (const ReportRow &row : table.rows) {
            const QString model = row.values[0].toString();
            const QString name = row.values[2].toString();
            shown[key({model, name})] += row.values[1].toDouble();
            // The lines behind the figure sum to it.
            const ReportTable behind = store.adetSatirlari(1, filter, model, name);
            QCOMPARE(behind.rows.last().values.last(), row.values[1]);
        }
        QCOMPARE(shown, byModel);
        QCOMPARE(std::size_t(table.rows.size()), byModel.size());
        Sums printed;
        for (const UretimSatiri &row : store.satirlar(orders, filter))
            printed[key({QString::number(row.SipnumD), row.KisaAD, row.model, row.renk,
                         row.aciklama, row.durum1, row.durum2})] += row.topadet;
        QCOMPARE(printed, byLine);
        // What the dates and missing types keep out is counted to the last line.
        QCOMPARE(store.gizliSatirlar(orders, filter).toplam(), hidden);
    }
}

void UretimStoreTest::givesMaterialsOfAllTypes()
{
    OrderFixture company;
    const UretimStore store(company.oturum);
    const auto texts = [](const QList<UretimMalzemesi> &materials) {
        QStringList result;
        for (const UretimMalzemesi &material : materials)
            result.append(material.kod + u' ' + malzemeAdedi(material.adet));
        return result;
    };
    QCOMPARE(texts(store.kaliplar(u"a75"_s)), QStringList({u"K-1 1.00"_s, u"K-2 2.00"_s}));
    QCOMPARE(texts(store.taslar(u"a75"_s)), QStringList{u"ZRK 2 4.00"_s});
    QCOMPARE(store.modelTipleri(u"A75"_s), QStringList({u"YZK"_s, u"KLY"_s}));
    QVERIFY(store.taslar(u"O'yok"_s).isEmpty());
}

void UretimStoreTest::tellsWhoMayEdit_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("may");
    QTest::newRow("administrator in small letters") << u"admin"_s << 0 << true;
    QTest::newRow("no capital of this name") << u"admın"_s << 0 << false;
    QTest::newRow("extra right") << u"şifresiz"_s << 4 << true;
    QTest::newRow("none") << u"eski"_s << 3 << false;
    QTest::newRow("no such user") << u"yok"_s << 77 << false;
}

void UretimStoreTest::tellsWhoMayEdit()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    OrderFixture company;
    company.oturum.Veritabani->execute(u"Update Users Set user_yetki1 = 1 Where User_ID = 4"_s);
    company.oturum.KullaniciAdi = name;
    company.oturum.KullaniciNo = number;
    QTEST(SiparisTakip(company.oturum).duzenlemeYetkisi(), "may");
}

void UretimStoreTest::opensAnOrder()
{
    OrderFixture company;
    company.addLine(1, 3, u"A75"_s, 1, u"BY"_s, 4);
    company.addLine(1, 4, u"A75"_s, 1, u"silik"_s, 8);
    const SiparisTakip takip(company.oturum);
    const std::optional<TakipSiparisi> found = takip.SiparisBul(1);
    QVERIFY(found);
    QCOMPARE(found->baslik.FirAdi, u"Işık Kuyumculuk"_s);
    QStringList lines;
    for (const TakipSatiri &line : found->satirlar)
        lines.append(u"%1 %2 %3"_s.arg(line.model, line.renk).arg(line.adet));
    QCOMPARE(lines, QStringList({u"A75 SR 3"_s, u"A75 SR 1"_s, u"A75 BY 4"_s, u"İnci-1 BY 2"_s}));
    QVERIFY(!found->satirlar.first().state.basTrh.isValid());
    QCOMPARE(found->gizliSatirlar.size(), 1);
    QCOMPARE(found->gizliSatirlar.first().renk, u"silik"_s);
    QVERIFY(!takip.SiparisBul(99));
}

void UretimStoreTest::savesLinesOneByOne()
{
    OrderFixture company;
    // Alike but for the counter; an old line with nulls; one whose colour is gone.
    company.addLine(3, 2, u"A75"_s, 1, u"BY"_s, 1);
    company.addLine(3, 3, u"boş"_s, 1, u"SR"_s, 1);
    company.addLine(3, 4, u"A75"_s, 1, u"silik"_s, 8, u"ESKİ"_s);
    Database &db = *company.oturum.Veritabani;
    db.execute(u"Update SiparisD Set Drm2 = Null, Trhbas = Null Where SipModel = 'boş'"_s);
    const SiparisTakip takip(company.oturum);
    QList<TakipSatiri> lines = takip.SiparisBul(3)->satirlar;
    QCOMPARE(lines.size(), 3);
    lines[0].state.durum1 = u"HAZIR"_s;
    lines[0].state.bitTrh = QDateTime(QDate(2012, 5, 4), QTime(0, 0), Qt::UTC);
    lines[1].state.durum1 = u"O'X"_s;
    lines[1].state.durum2 = u"  "_s; // the third is not touched
    TakipKaydi kayit{3, takip.SiparisBul(3)->satirlar, lines};
    LoadedRows loaded = takip.oku(3);
    db.engine().run(u"CREATE TRIGGER t BEFORE UPDATE ON SiparisD WHEN NEW.Drm1 = 'HAZIR' BEGIN "
                    "SELECT RAISE(ABORT, 'satır bozuk'); END"_s);
    QStringList errors;
    const auto tell = [&](const QString &text) { errors.append(text); };
    const auto goOn = [](int, int) { return true; };
    QVERIFY(takip.kaydet(kayit, loaded, tell, goOn).ended);
    QCOMPARE(errors, QStringList{u"Kayıt, tablonun anahtarlarına uymuyor. (satır bozuk)"_s});
    QCOMPARE(company.field(3, u"Drm1"), QStringList({u""_s, u"O'X"_s, u""_s, u"ESKİ"_s}));

    db.engine().run(u"DROP TRIGGER t"_s);
    errors.clear();
    const auto stopAtSecond = [](int done, int) { return done < 1; };
    QVERIFY(!takip.kaydet(kayit, loaded, tell, stopAtSecond).ended);
    QVERIFY(errors.isEmpty());
    QCOMPARE(company.field(3, u"Drm1"), QStringList({u"HAZIR"_s, u"O'X"_s, u""_s, u"ESKİ"_s}));
    // An empty status is stored as an empty text and no date as 01.01.2000.
    Recordset old = db.query(u"Select * From SiparisD Where SipModel = 'boş'"_s);
    QVERIFY(old.next());
    QVERIFY(!old.isNull(u"Drm2"));
    QCOMPARE(old.text(u"Drm2"), QString());
    QCOMPARE(old.date(u"Trhbas"), noDate());
}

/// Order entry gives the lines new numbers while order control shows the old ones.
void UretimStoreTest::findsLinesAgainThatWereWrittenAnew()
{
    OrderFixture company;
    company.addLine(3, 2, u"A75"_s, 1, u"BY"_s, 1); // alike but for its row
    company.addLine(3, 3, u"A75"_s, 2, u"BY"_s, 7);
    const SiparisTakip takip(company.oturum);
    LoadedRows loaded = takip.oku(3);
    TakipKaydi kayit{3, takip.SiparisBul(3)->satirlar, takip.SiparisBul(3)->satirlar};
    for (TakipSatiri &line : kayit.satirlar)
        line.state.durum1 = u"%1/%2"_s.arg(line.tip).arg(line.SipSatir);
    const auto lost = [&] {
        QStringList lines;
        for (const TakipSatiri &line :
             takip
                 .kaydet(
                     kayit, loaded, [](const QString &) { QFAIL("no error"); },
                     [](int, int) { return true; })
                 .kayip)
            lines.append(line.state.durum1);
        return lines;
    };
    const SiparisStore orders(company.oturum);
    LoadedRows order = orders.oku(3);
    Siparis siparis = *orders.SiparisBul(3);
    QVERIFY(orders.save(siparis, order));
    QCOMPARE(lost(), QStringList());
    QCOMPARE(company.field(3, u"Drm1"), QStringList({u"1/1"_s, u"1/2"_s, u"2/3"_s}));

    // One of the two that are alike goes: which of them is left cannot be told.
    company.oturum.Veritabani->execute(
        u"DELETE From SiparisD Where SipnumD = 3 and SipSatir = 1"_s);
    company.oturum.Veritabani->execute(u"UPDATE SiparisD SET Drm1 = '' Where SipnumD = 3"_s);
    loaded = takip.oku(3);
    QCOMPARE(lost(), QStringList({u"1/1"_s, u"1/2"_s}));
    QCOMPARE(company.field(3, u"Drm1"), QStringList({u""_s, u"2/3"_s}));

    // A line that the user did not touch is left to whoever did.
    kayit.satirlar = kayit.opened;
    QCOMPARE(lost(), QStringList());
    QCOMPARE(company.field(3, u"Drm1"), QStringList({u""_s, u"2/3"_s}));
}

KUYUM_TEST(UretimStoreTest)

} // namespace kuyum

#include "UretimStoreTest.moc"
