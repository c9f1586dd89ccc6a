#include "OrderLinesBehind.h"

#include "Database.h"
#include "Dates.h"
#include "Numbers.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr qsizetype mostLines = 200'000;

QHash<qint64, QString> names(Database &db, const QString &sql)
{
    QHash<qint64, QString> names;
    Recordset rows = db.query(sql);
    while (rows.next()) {
        const qint64 number = rows.value(0).toLongLong();
        if (!names.contains(number))
            names.insert(number, rows.value(1).toString());
    }
    return names;
}

[[noreturn]] void refuse()
{
    throw std::runtime_error(
        u"Bu rakamın arkasında %1'den fazla sipariş satırı var; tarih aralığını daraltın."_s
            .arg(mostLines)
            .toStdString());
}

} // namespace

OrderLinesBehind::OrderLinesBehind(Database &db, int decimals)
    : m_decimals(decimals),
      m_firmalar(names(db, u"Select Firkod, FirAdi From Firma"_s)),
      m_tipler(names(db, u"Select TipID, KisaAD From UrunTipi"_s))
{
}

void OrderLinesBehind::count(const Contribution &contribution)
{
    if (contribution.line.place == m_counted || !contribution.pieces())
        return;
    m_counted = contribution.line.place;
    if (++m_count > mostLines)
        refuse();
}

void OrderLinesBehind::add(const Contribution &contribution, double unit)
{
    const std::optional<double> pieces = contribution.pieces();
    if (!pieces)
        return;
    const quint64 place = quint64(quint32(contribution.item)) << 32 | quint32(contribution.group);
    Running &figure = m_figures[place];
    figure.pieces += *pieces;
    const double shown = roundDecimal(figure.pieces * unit, m_decimals);
    const double grown = shown - figure.shown;
    figure.shown = shown;

    if (contribution.line.place != m_walked) {
        m_walked = contribution.line.place;
        m_shares.append(newShare(contribution.line));
    }
    OrderShare &share = m_shares.last();
    share.birim += *contribution.perPiece * unit;
    share.miktar = roundDecimal(share.miktar + grown, m_decimals);
}

OrderShare OrderLinesBehind::newShare(const PeriodLine &line) const
{
    OrderShare share;
    share.tarih = parseIso(QString::fromStdString(line.SipTrh)).date();
    share.sipnum = line.Sipnum;
    share.firma = m_firmalar.value(line.SipFirkod.value_or(0));
    share.model = QString::fromStdString(line.SipModel);
    share.tip = m_tipler.value(line.SipUruntip.value_or(0));
    share.renk = QString::fromStdString(line.Siprenk);
    share.adet = line.SipAdet.value_or(0);
    share.birim = 0;
    return share;
}

ReportTable OrderLinesBehind::table(const QString &title, const QString &picture) const
{
    return orderSharesTable(title, m_shares, picture);
}

} // namespace kuyum
