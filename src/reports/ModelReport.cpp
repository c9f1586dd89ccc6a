#include "ModelReport.h"

#include "Numbers.h"
#include "Oturum.h"
#include "ReportFilters.h"
#include "ReportSql.h"
#include "RowReader.h"
#include "SqlText.h"
#include "TurkishText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int firstFigure = 1; ///< column

QString customersSql(const ModelReportRequest &request)
{
    QString sql = u"Select Firkod From Firma Where Firkod Is Not Null"_s;
    if (request.Firkod)
        sql += u" and Firkod = "_s + sqlNumber(*request.Firkod);
    if (request.UlkeID)
        sql += u" and UlkeID = "_s + sqlNumber(*request.UlkeID);
    return sql;
}

} // namespace

ModelReport::ModelReport(Oturum &oturum, const ModelReportRequest &request)
    : OrderReport(oturum, request.period), m_request(request)
{
}

QStringList ModelReport::header() const
{
    QStringList lines = OrderReport::header();
    const auto add = [&](const QString &caption, const QList<FilterChoice> &choices,
                         std::optional<qint32> number) {
        if (!number)
            return;
        const auto chosen = std::ranges::find(choices, *number, &FilterChoice::number);
        lines.append(caption + (chosen == choices.end() ? QString::number(*number) : chosen->text));
    };
    add(u"MÜŞTERİ : "_s, customerChoices(m_oturum), m_request.Firkod);
    add(u"ÜLKE : "_s, countryChoices(m_oturum), m_request.UlkeID);
    if (!m_request.modelPrefix.isEmpty())
        lines.append(u"MODEL ÖNEKİ : "_s + m_request.modelPrefix);
    add(u"ÜRÜN TİPİ : "_s, productTypeChoices(m_oturum), m_request.TipID);
    return lines;
}

QList<ReportColumnGroup> ModelReport::findGroups()
{
    QList<ReportColumnGroup> groups;
    if (m_request.split == ReportSplit::UrunTipi) {
        groups = productTypes();
    } else {
        groups = karats(false);
        // An order without a karat falls into no column.
        groups.removeIf([](const ReportColumnGroup &group) { return !group.Ayar; });
    }
    QList<SplitColumn> columns;
    for (const ReportColumnGroup &group : std::as_const(groups))
        columns.append({group.TipID ? QString::number(*group.TipID) : group.name, group.name});
    if (!columns.isEmpty())
        show(modelReportSql(m_request, columns));
    return groups;
}

QList<ReportColumnGroup> ModelReport::productTypes() const
{
    Recordset rows = m_oturum.sorgula(productTypesSql(m_period));
    QList<ReportColumnGroup> groups;
    while (rows.next())
        groups.append({.TipID = rows.integer(u"tipID"), .name = rows.text(u"uruntipi")});
    return groups;
}

void ModelReport::readItems()
{
    m_customers.clear();
    RowReader customers(*m_oturum.Veritabani, customersSql(m_request));
    while (customers.next())
        m_customers.insert(customers.integer(0).value_or(0));

    m_defined.clear();
    RowReader models(*m_oturum.Veritabani, u"Select Model, M_Uruntip From Model"_s);
    while (models.next()) {
        const std::optional<std::string_view> model = models.utf8(0);
        const std::optional<qint64> type = models.integer(1);
        if (!model || !type)
            continue;
        const int number = m_models.number(*model);
        if (type == m_request.TipID.value_or(qint32(*type)))
            m_defined.insert(modelAndType(number, *type));
    }
}

bool ModelReport::isWanted(const PeriodLine &line) const
{
    const QString &prefix = m_request.modelPrefix;
    return line.model >= 0 && line.SipUruntip &&
           m_defined.contains(modelAndType(line.model, *line.SipUruntip)) &&
           (prefix.isEmpty() || sameText(m_models.text(line.model).left(prefix.size()), prefix));
}

bool ModelReport::walk(const Sink &sink, const ReportProgress &progress) const
{
    PeriodLines lines(*m_oturum.Veritabani, m_period, m_models);
    std::vector<PeriodLine> order;
    PeriodLine line;
    while (lines.next(line)) {
        if (!lines.goesOn(line, progress))
            return false;
        if (!order.empty() && order.front().Sipnum != line.Sipnum) {
            endOrder(order, sink);
            order.clear();
        }
        if (line.SipFirkod && m_customers.contains(*line.SipFirkod))
            order.push_back(line);
    }
    endOrder(order, sink);
    return true;
}

void ModelReport::endOrder(const std::vector<PeriodLine> &order, const Sink &sink) const
{
    QVarLengthArray<int, 64> models;
    for (const PeriodLine &line : order) {
        if (!models.contains(line.model) && isWanted(line))
            models.append(line.model);
    }
    for (const PeriodLine &line : order) {
        if (!models.contains(line.model))
            continue;
        const int group =
            m_request.split == ReportSplit::Ayar ? groupOf(line.Ayar) : groupOf(line.SipUruntip);
        sink({line, line.model, group});
    }
}

int ModelReport::decimals(const ColumnMeaning &) const
{
    return pieceDecimals;
}

std::optional<OrderReport::ColumnMeaning> ModelReport::meaning(qsizetype column) const
{
    return pieceColumn(column - firstFigure);
}

void ModelReport::layOut(const QList<QList<Figure>> &figures)
{
    m_table.title = titled(u"MODEL RAPORU : "_s);
    m_table.columns = {{u"KOD"_s, ReportColumnKind::Model}};
    addPieceColumns();
    QList<double> totals(figures.size());
    for (int number = 0; number < figures.size(); ++number) {
        if (figures[number].isEmpty())
            continue;
        m_items.append(number);
        for (const Figure &figure : figures[number])
            totals[number] += figure.sum.value_or(0);
    }
    std::ranges::sort(m_items, [&](int a, int b) {
        return totals[a] != totals[b] ? totals[a] > totals[b]
                                      : compareText(m_models.text(a), m_models.text(b)) < 0;
    });
    for (const int number : std::as_const(m_items)) {
        QVariantList cells{m_models.text(number)};
        for (const Figure &figure : figures[number])
            cells.append(cell(figure, pieceDecimals));
        addLine(cells);
    }
    addTotals();
}

} // namespace kuyum
