#include "PeriodLines.h"

#include "Database.h"
#include "RowReader.h"
#include "SqlText.h"
#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString fold(std::string_view utf8)
{
    return foldedText(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())));
}

QString inPeriod(const ReportPeriod &period)
{
    return u" SipTrh >= %1 and SipTrh <= %2"_s.arg(sqlDate(period.bas), sqlDate(period.bit));
}

int countOrders(const Database &db, const ReportPeriod &period)
{
    RowReader count(db, u"Select Count(*) From SiparisB Where"_s + inPeriod(period));
    count.next();
    return int(count.integer(0).value_or(0));
}

} // namespace

int TextNumbers::number(std::string_view utf8)
{
    const int known = find(utf8);
    if (known >= 0)
        return known;
    const int number = int(m_texts.size());
    m_texts.append(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())));
    m_byFolded.insert(fold(utf8), number);
    m_byBytes.emplace(utf8, number);
    return number;
}

int TextNumbers::find(std::string_view utf8)
{
    const auto known = m_byBytes.find(utf8);
    if (known != m_byBytes.end())
        return known->second;
    const int number = m_byFolded.value(fold(utf8), -1);
    if (number >= 0)
        m_byBytes.emplace(utf8, number);
    return number;
}

// In this order the index of the order dates gives them, without sorting.
PeriodLines::PeriodLines(const Database &db, const ReportPeriod &period, TextNumbers &models)
    : m_models(models),
      m_rows(std::make_unique<RowReader>(
          db, u"Select Sipnum, Ayar, SipTrh, SipFirkod, SipModel, SipUruntip, Siprenk, SipAdet "
              "From SiparisB, SiparisD Where Sipnum = SipnumD and"_s +
                  inPeriod(period) + u" Order by SipTrh, Sipnum"_s)),
      m_orderCount(countOrders(db, period))
{
}

PeriodLines::~PeriodLines() = default;

bool PeriodLines::next(PeriodLine &line)
{
    RowReader &rows = *m_rows;
    if (!rows.next())
        return false;
    ++line.place;
    const qint64 Sipnum = rows.integer(0).value_or(0);
    if (m_ordersBegun == 0 || Sipnum != line.Sipnum) {
        ++m_ordersBegun;
        line.Sipnum = Sipnum;
        line.Ayar = rows.number(1);
        line.SipTrh = rows.utf8(2).value_or(std::string_view());
        line.SipFirkod = rows.integer(3);
    }
    const std::optional<std::string_view> model = rows.utf8(4);
    line.SipModel = model.value_or(std::string_view());
    line.model = model ? m_models.find(*model) : -1;
    line.SipUruntip = rows.integer(5);
    line.Siprenk = rows.utf8(6).value_or(std::string_view());
    line.SipAdet = rows.number(7);
    return true;
}

bool PeriodLines::goesOn(const PeriodLine &line, const ReportProgress &progress) const
{
    constexpr int between = 4096; // lines: a few milliseconds
    return line.place % between != 0 || progress(m_ordersBegun, m_orderCount);
}

} // namespace kuyum
