#include "MaterialReport.h"
#include "ModelReport.h"
#include "Numbers.h"
#include "RandomCompany.h"
#include "ReportSql.h"
#include "TestRegistry.h"
#include "TurkishText.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

const ReportPeriod period{QDate(2024, 1, 10), QDate(2024, 2, 28)};
constexpr unsigned companies = 4;

/// Figures by row and column; a figure that is there and empty is a null.
using Figures = QMap<QString, QMap<QString, RandomCompany::Number>>;

bool goOn(int, int)
{
    return true;
}

QString key(const QString &code)
{
    return code.isNull() ? u"(null)"_s : foldedText(code);
}

void add(RandomCompany::Number &sum, RandomCompany::Number value)
{
    if (value)
        sum = sum.value_or(0) + *value;
}

RandomCompany::Number times(RandomCompany::Number a, RandomCompany::Number b)
{
    return a && b ? RandomCompany::Number(*a * *b) : RandomCompany::Number();
}

QString adet(RandomCompany::Number karat)
{
    return u"Adet(%1)"_s.arg(karat ? plainNumber(*karat) : QString());
}

bool isInPeriod(const RandomCompany::Header &header)
{
    return header.SipTrh >= period.bas && header.SipTrh <= period.bit;
}

bool isOf(const RandomCompany::Line &line, const RandomCompany::Part &part)
{
    return !line.SipModel.isNull() && !part.Model.isNull() && sameText(line.SipModel, part.Model) &&
           line.SipUruntip && part.M_Uruntip && *line.SipUruntip == *part.M_Uruntip;
}

/// Every line of the period with every part of its model and type.
template <typename Visit>
void forEachPart(const RandomCompany &company, int kind, Visit visit)
{
    for (const auto &header : company.headers) {
        for (const auto &line : company.lines) {
            if (!isInPeriod(header) || line.SipnumD != header.Sipnum)
                continue;
            for (const auto &part : company.parts) {
                if (part.M_Tip == kind && isOf(line, part))
                    visit(header, part.M_Kod, times(line.SipAdet, part.M_Adet));
            }
        }
    }
}

/// The figures of a report's lines, by what stands in its first columns.
Figures shown(const ReportTable &table, qsizetype texts)
{
    Figures figures;
    for (const ReportRow &row : table.rows) {
        if (row.kind != ReportRowKind::Line)
            continue;
        QStringList name;
        for (qsizetype column = 0; column < texts; ++column)
            name.append(key(row.values[column].toString()));
        auto &cells = figures[name.join(u'|')];
        QString above;
        for (qsizetype column = texts; column < table.columns.size(); ++column) {
            QString heading = table.columns[column].heading;
            if (heading == "GR"_L1)
                heading = above + u" GR"_s;
            above = heading;
            if (row.values[column].isValid())
                cells[heading] = row.values[column].toDouble();
        }
    }
    return figures;
}

/// Rounds, adds the rows' totals, and leaves out what is shown empty.
Figures finished(Figures figures, int decimals)
{
    for (auto &row : figures) {
        double pieces = 0;
        double grams = 0;
        bool hasGrams = false;
        for (auto cell = row.begin(); cell != row.end();) {
            const bool isGrams = cell.key().endsWith(" GR"_L1);
            hasGrams = hasGrams || isGrams;
            if (!*cell) {
                cell = row.erase(cell);
                continue;
            }
            *cell = roundDecimal(**cell, isGrams ? 2 : decimals);
            (isGrams ? grams : pieces) += **cell;
            ++cell;
        }
        row[u"TOPLAM ADET"_s] = roundDecimal(pieces, 6);
        if (hasGrams)
            row[u"TOPLAM GR"_s] = roundDecimal(grams, 2);
    }
    return figures;
}

Figures stones(const RandomCompany &company)
{
    Figures figures;
    forEachPart(company, 0, [&](const auto &header, int code, RandomCompany::Number pieces) {
        for (const auto &stone : company.stones) {
            if (stone.TasID == code)
                add(figures[key(stone.Taskodu)][adet(header.Ayar)], pieces);
        }
    });
    for (const auto &stone : company.stones) {
        if (!figures.contains(key(stone.Taskodu)))
            continue;
        auto &row = figures[key(stone.Taskodu)];
        const auto counts = row;
        for (auto count = counts.begin(); count != counts.end(); ++count)
            row[count.key() + u" GR"_s] = times(*count, stone.TasKatsayi);
    }
    return finished(figures, 6);
}

Figures molds(const RandomCompany &company)
{
    Figures figures;
    forEachPart(company, 1, [&](const auto &header, int code, RandomCompany::Number pieces) {
        for (const auto &mold : company.molds) {
            if (mold.KalipID == code)
                add(figures[key(mold.KalipKodu) + u'|' + key(mold.KalipAck)][adet(header.Ayar)],
                    pieces);
        }
    });
    return finished(figures, 0);
}

bool passes(const RandomCompany &company, const ModelReportRequest &request, int firkod)
{
    for (const auto &customer : company.customers) {
        if (customer.Firkod == firkod)
            return firkod == request.Firkod.value_or(firkod) &&
                   customer.UlkeID == request.UlkeID.value_or(customer.UlkeID);
    }
    return false;
}

bool passes(const RandomCompany &company, const ModelReportRequest &request,
            const RandomCompany::Line &line)
{
    for (const auto &part : company.parts) {
        if (isOf(line, part) && part.M_Uruntip == request.TipID.value_or(int(*part.M_Uruntip)) &&
            sameText(line.SipModel.left(request.modelPrefix.size()), request.modelPrefix))
            return true;
    }
    return false;
}

QString column(const RandomCompany &company, const ModelReportRequest &request,
               const RandomCompany::Header &header, const RandomCompany::Line &line)
{
    if (request.split == ReportSplit::Ayar)
        return header.Ayar ? adet(header.Ayar) : QString();
    for (const auto &type : company.types) {
        if (line.SipUruntip && *line.SipUruntip == type.TipID)
            return u"Adet(%1)"_s.arg(type.UrunTipi);
    }
    return {};
}

Figures models(const RandomCompany &company, const ModelReportRequest &request)
{
    Figures figures;
    for (const auto &header : company.headers) {
        if (!isInPeriod(header) || !passes(company, request, header.SipFirkod))
            continue;
        QStringList wanted;
        for (const auto &line : company.lines) {
            if (line.SipnumD == header.Sipnum && passes(company, request, line))
                wanted.append(key(line.SipModel));
        }
        for (const auto &line : company.lines) {
            if (line.SipnumD != header.Sipnum || !wanted.contains(key(line.SipModel)))
                continue;
            auto &row = figures[key(line.SipModel)];
            const QString place = column(company, request, header, line);
            if (!place.isEmpty())
                add(row[place], line.SipAdet);
        }
    }
    return finished(figures, 6);
}

/// Every combination of filters, both splits.
QList<ModelReportRequest> requests()
{
    using Code = std::optional<qint32>;
    QList<ModelReportRequest> all;
    for (const ReportSplit split : {ReportSplit::Ayar, ReportSplit::UrunTipi}) {
        for (const Code customer : {Code(), Code(10)}) {
            for (const Code country : {Code(), Code(1)}) {
                for (const QString &prefix : {QString(), u"a7"_s, u"O'"_s}) {
                    for (const Code type : {Code(), Code(2)})
                        all.append({period, split, customer, country, prefix, type});
                }
            }
        }
    }
    return all;
}

} // namespace

class OrderReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reckonsAsPlainLoopsDo();
    void givesWhatTheShownSqlGives();
    void sumsTheLinesBehindEveryFigure();
    void refusesTypesThatAreNoFieldNames();
    void stopsWhenTold();
};

void OrderReportTest::reckonsAsPlainLoopsDo()
{
    for (unsigned seed = 1; seed <= companies; ++seed) {
        RandomCompany company(seed);
        StoneReport stoneReport(company.oturum, period);
        QVERIFY(stoneReport.read(goOn) == OrderReport::Outcome::Ready);
        QCOMPARE(shown(stoneReport.table(), 1), stones(company));
        MoldReport moldReport(company.oturum, period);
        QVERIFY(moldReport.read(goOn) == OrderReport::Outcome::Ready);
        QCOMPARE(shown(moldReport.table(), 2), molds(company));
        for (const ModelReportRequest &request : requests()) {
            ModelReport modelReport(company.oturum, request);
            QVERIFY(modelReport.read(goOn) == OrderReport::Outcome::Ready);
            QCOMPARE(shown(modelReport.table(), 1), models(company, request));
        }
    }
}

/// Row by row, in its order; the texts may differ in their spelling.
void OrderReportTest::givesWhatTheShownSqlGives()
{
    for (unsigned seed = 1; seed <= companies; ++seed) {
        RandomCompany company(seed);
        StoneReport stoneReport(company.oturum, period);
        stoneReport.read(goOn);
        QCOMPARE(company.oturum.SonSQL, stoneReportSql(period));
        Recordset stoneRows = company.oturum.sorgula(stoneReportSql(period));
        const ReportTable &stoneTable = stoneReport.table();
        QStringList bySql;
        while (stoneRows.next()) {
            bySql.append(key(stoneRows.value(u"taskodu").toString()) + u' ' +
                         adet(stoneRows.isNull(u"ayar")
                                  ? RandomCompany::Number()
                                  : RandomCompany::Number(stoneRows.number(u"ayar"))) +
                         u' ' + stoneRows.text(u"t2"));
        }
        QStringList ours;
        for (qsizetype row = 0; row + 1 < stoneTable.rows.size(); ++row) {
            for (qsizetype at = 1; at + 2 < stoneTable.columns.size(); at += 2) {
                const QString line = key(stoneTable.rows[row].values[0].toString()) + u' ' +
                                     stoneTable.columns[at].heading + u' ' +
                                     stoneTable.cellText(row, at + 1);
                if (stoneTable.rows[row].values[at].isValid() || bySql.contains(line))
                    ours.append(line);
            }
        }
        QCOMPARE(ours, bySql);

        for (const ModelReportRequest &request : requests()) {
            ModelReport report(company.oturum, request);
            report.read(goOn);
            const QString sql = company.oturum.SonSQL;
            QVERIFY(sql.startsWith("select * from (select sipmodel ,"_L1));
            const ReportTable &table = report.table();
            Recordset rows = company.oturum.sorgula(sql);
            qsizetype row = 0;
            for (; rows.next(); ++row) {
                QCOMPARE(key(table.rows[row].values[0].toString()), key(rows.text(u"sipmodel")));
                for (int at = 1; at < rows.fieldCount(); ++at)
                    QCOMPARE(table.rows[row].values[at].toString(), rows.value(at).toString());
            }
            QVERIFY(table.rows[row].kind == ReportRowKind::Total);
        }
    }
}

void OrderReportTest::sumsTheLinesBehindEveryFigure()
{
    for (unsigned seed = 1; seed <= 3; ++seed) {
        RandomCompany company(seed);
        std::vector<std::unique_ptr<OrderReport>> reports;
        reports.push_back(std::make_unique<StoneReport>(company.oturum, period));
        reports.push_back(std::make_unique<MoldReport>(company.oturum, period));
        for (const ModelReportRequest &request : requests())
            reports.push_back(std::make_unique<ModelReport>(company.oturum, request));
        for (const auto &report : reports) {
            report->read(goOn);
            const ReportTable &table = report->table();
            for (qsizetype row = 0; row < table.rows.size(); ++row) {
                for (qsizetype at = 0; at < table.columns.size(); ++at) {
                    if (!report->isFigure(row, at))
                        continue;
                    const ReportTable lines = report->linesBehind(row, at, goOn).value();
                    QCOMPARE(roundDecimal(lines.rows.last().values.last().toDouble(), 6),
                             table.rows[row].values[at].toDouble());
                    double sum = 0;
                    for (const ReportRow &line : lines.rows.first(lines.rows.size() - 1))
                        sum += line.values.last().toDouble();
                    QCOMPARE(roundDecimal(sum, 6), table.rows[row].values[at].toDouble());
                }
            }
        }
    }
}

void OrderReportTest::refusesTypesThatAreNoFieldNames()
{
    RandomCompany company(1);
    company.oturum.calistir(u"Update UrunTipi Set UrunTipi = 'Taşlı Yüzük' Where TipID = 1"_s);
    ModelReport report(company.oturum, {period, ReportSplit::UrunTipi});
    QVERIFY_THROWS_EXCEPTION(DatabaseError, report.read(goOn));
    ModelReport byKarat(company.oturum, {period, ReportSplit::Ayar});
    QVERIFY(byKarat.read(goOn) == OrderReport::Outcome::Ready);
}

void OrderReportTest::stopsWhenTold()
{
    RandomCompany company(1);
    StoneReport report(company.oturum, period);
    QVERIFY(report.read([](int, int) { return false; }) == OrderReport::Outcome::Stopped);
    StoneReport early(company.oturum, {QDate(2001, 1, 1), QDate(2001, 12, 31)});
    QVERIFY(early.read(goOn) == OrderReport::Outcome::NothingFound);
}

KUYUM_TEST(OrderReportTest)

} // namespace kuyum

#include "OrderReportTest.moc"
