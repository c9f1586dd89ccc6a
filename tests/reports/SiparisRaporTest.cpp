#include "Dates.h"
#include "Exchange.h"
#include "Numbers.h"
#include "OrderReportPages.h"
#include "PageReading.h"
#include "RandomCompany.h"
#include "SiparisTaslari.h"
#include "SiparisYariMamul.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"
#include "TurkishText.h"

#include <map>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

using Row = QMap<QString, QVariant>;

/// A whole table as rows, without any condition.
QList<Row> rowsOf(Database &db, const QString &table)
{
    QList<Row> rows;
    Recordset set = db.query(u"Select * From "_s + table);
    while (set.next()) {
        Row row;
        for (int i = 0; i < set.fieldCount(); ++i)
            row[set.fieldName(i).toLower()] = set.value(i);
        rows.append(row);
    }
    return rows;
}

bool sameNumber(const QVariant &a, const QVariant &b)
{
    return a.isValid() && b.isValid() && a.toDouble() == b.toDouble();
}

bool sameCode(const QVariant &a, const QVariant &b)
{
    return a.isValid() && b.isValid() && sameText(a.toString(), b.toString());
}

double cents(double value)
{
    return roundDecimal(value, 2);
}

/// What the order reports ask for beyond the other reports, by chance as well.
struct Company : RandomCompany
{
    explicit Company(unsigned seed) : RandomCompany(seed), dice(seed)
    {
        oturum.CalismaTarihi = QDate(2024, 3, 1);
        const auto run = [this](const QString &sql, const QVariantList &values) {
            oturum.Veritabani->engine().run(sql, values);
        };
        const auto below = [this](int limit) { return int(dice() % unsigned(limit)); };
        run(u"UPDATE UrunTipi SET KisaAD = 'T' || TipID WHERE TipID <> 4"_s, {});
        const QStringList units{u"USD"_s, u"EUR"_s, u"TL"_s, u"HAS"_s, u"GBP"_s};
        for (const Stone &stone : stones) {
            run(u"UPDATE Tas SET TasFiyati = ?, TasBirimi = ? WHERE TasID = ?"_s,
                {below(4000) / 100.0, units[below(5)], stone.TasID});
        }
        const QStringList places{u"Icerde"_s, u"Disarda"_s};
        for (const Mold &mold : molds) {
            run(u"UPDATE Kalip SET KalipDur = ? WHERE KalipID = ?"_s,
                {places[below(2)], mold.KalipID});
        }
        run(u"UPDATE Model SET M_Miktar = (Model_ID * 37 % 900) / 100.0"_s, {});
        // Lines alike, and karats of which one is undefined.
        run(u"UPDATE SiparisD SET SipAdet = 3 WHERE Dotosayi % 3 = 0"_s, {});
        for (const double Milyem : {585.0, 750.0, 333.0})
            run(u"INSERT INTO Ayar (Milyem, Yogunluk) VALUES (?, ?)"_s, {Milyem, Milyem / 50});
        const QStringList currencies{u"TL"_s, u"USD"_s, u"EUR"_s, u"GBP"_s, u"HAS"_s};
        for (int i = 0; i < currencies.size(); ++i) {
            run(u"INSERT INTO DovizB (Dovcinsi, DovUlke, Sbak, Esira) VALUES (?, ?, 1, ?)"_s,
                {currencies[i], i == 0 ? 1 : 0, 9 - i});
            // Now and then one has no rate on the day.
            rates[currencies[i]] = i == 0 ? 1 : below(4) == 0 ? 0 : 1 + below(5000) / 100.0;
            for (const QDate &day : {QDate(2024, 2, 29), QDate(2024, 3, 1)}) {
                const double rate = day.day() == 29 ? 77 : rates[currencies[i]];
                if (i > 0 && rate > 0) {
                    run(u"INSERT INTO DovizD (Tarih, Dovcinsi, Kur) VALUES (?, ?, ?)"_s,
                        {isoText(day), currencies[i], rate});
                }
            }
        }
        Database &db = *oturum.Veritabani;
        header = rowsOf(db, u"SiparisB"_s);
        line = rowsOf(db, u"SiparisD"_s);
        model = rowsOf(db, u"Model"_s);
        tas = rowsOf(db, u"Tas"_s);
        kalip = rowsOf(db, u"Kalip"_s);
        tip = rowsOf(db, u"UrunTipi"_s);
        ayar = rowsOf(db, u"Ayar"_s);
    }

    double cevir(double amount, const QString &from, const QString &to)
    {
        return rates[to] <= 0 ? 0 : cents(amount * rates[from] / rates[to]);
    }
    /// Every material of one kind that an order's lines need.
    void needs(int Sipnum, int kind, const std::function<void(const Row &, const Row &)> &take)
    {
        for (const Row &l : line) {
            for (const Row &m : model) {
                if (l[u"sipnumd"_s].toInt() == Sipnum && m[u"m_tip"_s].toInt() == kind &&
                    sameCode(l[u"sipmodel"_s], m[u"model"_s]) &&
                    sameNumber(l[u"sipuruntip"_s], m[u"m_uruntip"_s]))
                    take(l, m);
            }
        }
    }

    std::mt19937 dice;
    std::map<QString, double> rates;
    QList<Row> header, line, model, tas, kalip, tip, ayar;
};

/// What a table's lines say, without captions and totals, in no order.
QStringList shown(const ReportTable &table)
{
    QStringList result;
    for (qsizetype row = 0; row < table.rows.size(); ++row) {
        if (table.rows[row].kind != ReportRowKind::Line)
            continue;
        QStringList cells;
        for (qsizetype column = 0; column < table.columns.size(); ++column) {
            if (!table.columns[column].hidden)
                cells.append(table.cellText(row, column));
        }
        result.append(cells.join(u'|'));
    }
    result.sort();
    return result;
}

QString figure(double value)
{
    return formatNumber(value, u"##0.00");
}

} // namespace

class SiparisRaporTest : public QObject
{
    Q_OBJECT

private:
    /// Behind every figure stand lines that sum to it.
    template <typename Lines>
    static void checkLines(const ReportTable &table, const Lines &lines)
    {
        for (qsizetype row = 0; row < table.rows.size(); ++row) {
            for (qsizetype column = 0; column < table.columns.size(); ++column) {
                const bool isFigure = table.columns[column].kind == ReportColumnKind::Number &&
                                      !table.columns[column].hidden &&
                                      table.rows[row].kind != ReportRowKind::Caption;
                if (!isFigure)
                    continue;
                const ReportTable behind = lines(row, column);
                const double sum = behind.rows.last().values.last().toDouble();
                const double figure = table.rows[row].values[column].toDouble();
                QVERIFY2(qAbs(sum - figure) < 1e-6, qPrintable(behind.title));
            }
        }
    }

    static void checkStones(Company &company, const SiparisBasligi &siparis, const QString &doviz)
    {
        std::map<QString, double> counts;
        std::map<QString, Row> stones;
        company.needs(siparis.Sipnum, 0, [&](const Row &l, const Row &m) {
            for (const Row &t : company.tas) {
                if (!sameNumber(t[u"tasid"_s], m[u"m_kod"_s]))
                    continue;
                const QString code = t[u"taskodu"_s].toString();
                counts[code] += l[u"sipadet"_s].toDouble() * m[u"m_adet"_s].toDouble();
                stones[code] = t;
            }
        });
        QStringList expected;
        double sums[5] = {};
        QSet<QString> missing;
        for (const auto &[code, count] : counts) {
            const Row &t = stones[code];
            const QString unit = t[u"tasbirimi"_s].toString();
            const double weight = cents(count * t[u"taskatsayi"_s].toDouble());
            const double cost = weight * t[u"tasfiyati"_s].toDouble();
            const double has = cents(weight * siparis.Ayar / 1000);
            const double shownCost = unit == doviz ? cost : company.cevir(cost, unit, doviz);
            const double gold = company.cevir(cost, unit, u"HAS"_s);
            const double figures[] = {count, weight, shownCost, has, gold - has};
            expected.append(QStringList{code, plainNumber(roundDecimal(count, 9)), figure(weight),
                                        figure(shownCost), figure(has), figure(gold - has)}
                                .join(u'|'));
            for (int i = 0; i < 5; ++i)
                sums[i] += figures[i];
            for (const QString &currency : {unit, u"HAS"_s, doviz}) {
                if (cost != 0 && company.rates[currency] <= 0)
                    missing.insert(currency);
            }
        }
        expected.sort();
        const SiparisTaslari report(company.oturum, siparis, doviz);
        QCOMPARE(shown(report.table()), expected);
        const QVariantList &total = report.table().rows.last().values;
        QCOMPARE(total[0].toString(), u"Toplam"_s);
        for (int i = 0; i < 5; ++i)
            QVERIFY(qAbs(total[i + 1].toDouble() - sums[i]) < 1e-6);
        const QStringList &told = report.eksikKurlar();
        QCOMPARE(QSet<QString>(told.begin(), told.end()), missing);
        // On paper and in every file as well.
        QCOMPARE(report.table().notes.size(), missing.isEmpty() ? 1 : 2);
        const PrintDocument pages = stonePages(siparis, report.table());
        QStringList lines;
        for (const PageText &text : PageReading::items<PageText>(pages.pages().last()))
            lines.append(text.text);
        const QString printed = lines.join(u' ');
        for (const QString &note : report.table().notes)
            QVERIFY2(printed.contains(note.left(60)), qPrintable(note));
        checkLines(report.table(),
                   [&](qsizetype row, qsizetype column) { return report.satirlar(row, column); });
    }

    static void checkModels(Company &company, const SiparisBasligi &siparis,
                            const SiparisYariMamul &report)
    {
        QHash<QString, int> seen; // by which line
        bool alike = false;
        bool elsewhere = false;
        QStringList expected;
        double grams = 0;
        double gold = 0;
        for (const Row &l : company.line) {
            for (const Row &m : company.model) {
                for (const Row &t : company.tip) {
                    if (l[u"sipnumd"_s].toInt() != siparis.Sipnum ||
                        !sameCode(l[u"sipmodel"_s], m[u"model"_s]) ||
                        !sameNumber(m[u"m_uruntip"_s], t[u"tipid"_s]))
                        continue;
                    const QString key =
                        foldedText(l[u"sipmodel"_s].toString()) + u'/' + t[u"tipid"_s].toString() +
                        u'/' + (l[u"sipadet"_s].isValid() ? l[u"sipadet"_s].toString() : u"-"_s) +
                        u'/' + m[u"m_miktar"_s].toString();
                    const double adet = l[u"sipadet"_s].toDouble();
                    elsewhere =
                        elsewhere || (adet != 0 && !sameNumber(l[u"sipuruntip"_s], t[u"tipid"_s]));
                    const int number = l[u"dotosayi"_s].toInt();
                    if (seen.contains(key)) {
                        alike = alike || (adet != 0 && seen[key] != number);
                        continue;
                    }
                    seen.insert(key, number);
                    double density = 0;
                    for (const Row &a : company.ayar) {
                        if (a[u"milyem"_s].toDouble() == siparis.Ayar)
                            density = a[u"yogunluk"_s].toDouble();
                    }
                    const double gram = cents(adet * m[u"m_miktar"_s].toDouble() * density);
                    const double has = gram * siparis.Ayar / 1000;
                    grams += gram;
                    gold += cents(has);
                    expected.append(QStringList{foldedText(l[u"sipmodel"_s].toString()),
                                                t[u"kisaad"_s].toString(), plainNumber(adet),
                                                figure(gram), figure(has)}
                                        .join(u'|'));
                }
            }
        }
        expected.sort();
        ReportTable folded = report.modeller();
        for (ReportRow &row : folded.rows)
            row.values[0] = foldedText(row.values[0].toString());
        QCOMPARE(shown(folded), expected);
        const QVariantList &total = report.modeller().rows.last().values;
        QVERIFY(qAbs(total[3].toDouble() - grams) < 1e-6);
        QVERIFY(qAbs(total[4].toDouble() - gold) < 1e-6);
        QCOMPARE(report.modelNotu().contains(u"adedi aynı"_s), alike);
        QCOMPARE(report.modelNotu().contains(u"Birden çok tipi"_s), elsewhere);
    }

    static void checkMolds(Company &company, const SiparisBasligi &siparis,
                           const SiparisYariMamul &report)
    {
        std::map<QString, std::map<QString, double>> places;
        company.needs(siparis.Sipnum, 1, [&](const Row &l, const Row &m) {
            for (const Row &k : company.kalip) {
                if (sameNumber(k[u"kalipid"_s], m[u"m_kod"_s]))
                    places[k[u"kalipdur"_s].toString()][k[u"kalipkodu"_s].toString()] +=
                        cents(l[u"sipadet"_s].toDouble() * m[u"m_adet"_s].toDouble());
            }
        });
        // The report's groups, each closed by its total, then the last total.
        QString place;
        double group = 0;
        double all = 0;
        std::map<QString, std::map<QString, double>> found;
        const QList<ReportRow> &rows = report.kaliplar().rows;
        for (qsizetype i = 0; i < rows.size(); ++i) {
            const QString text = rows[i].values[0].toString();
            const double adet = rows[i].values[2].toDouble();
            if (rows[i].kind == ReportRowKind::Caption) {
                QVERIFY(text == "Icerde ------>"_L1 || text == "Disarda ----->"_L1);
                place = text.section(u' ', 0, 0);
                QVERIFY(!found.contains(place));
                group = 0;
            } else if (rows[i].kind == ReportRowKind::Line) {
                QVERIFY(!found[place].contains(text));
                found[place][text] = adet;
                group += adet;
                all += adet;
            } else {
                QVERIFY(qAbs(adet - (i + 1 == rows.size() ? all : group)) < 1e-6);
            }
        }
        QCOMPARE(found.size(), places.size());
        for (const auto &[name, molds] : places) {
            QCOMPARE(found[name].size(), molds.size());
            for (const auto &[code, adet] : molds)
                QVERIFY(qAbs(found[name][code] - adet) < 1e-6);
        }
    }

private Q_SLOTS:
    void figuresAreThoseOfPlainLoops()
    {
        int reported = 0;
        for (unsigned seed = 1; seed <= 3; ++seed) {
            Company company(seed);
            for (const Row &header : company.header) {
                const auto siparis = siparisBasligi(company.oturum, header[u"sipnum"_s].toInt());
                bool hasCustomer = false;
                for (const Row &firma : rowsOf(*company.oturum.Veritabani, u"Firma"_s)) {
                    if (sameNumber(firma[u"firkod"_s], header[u"sipfirkod"_s]))
                        hasCustomer = true;
                }
                QCOMPARE(siparis.has_value(), hasCustomer);
                if (!siparis)
                    continue;
                ++reported;
                QCOMPARE(siparis->SipTrh, header[u"siptrh"_s].toDate());
                checkStones(company, *siparis, reported % 2 == 0 ? u"USD"_s : u"EUR"_s);
                const SiparisYariMamul report(company.oturum, *siparis);
                checkModels(company, *siparis, report);
                checkMolds(company, *siparis, report);
                checkLines(report.modeller(), [&](qsizetype row, qsizetype column) {
                    return report.modelSatirlari(row, column);
                });
                checkLines(report.kaliplar(), [&](qsizetype row, qsizetype column) {
                    return report.kalipSatirlari(row, column);
                });
                if (QTest::currentTestFailed())
                    return;
            }
        }
        QVERIFY(reported > 50);
    }
};

KUYUM_TEST(SiparisRaporTest)

} // namespace kuyum

#include "SiparisRaporTest.moc"
