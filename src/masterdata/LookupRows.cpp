#include "LookupRows.h"

#include "HelpFile.h"
#include "Oturum.h"
#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

bool isNumber(FieldType type)
{
    switch (type) {
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
    case FieldType::Currency:
    case FieldType::Single:
    case FieldType::Double:
    case FieldType::Decimal:
        return true;
    default:
        return false;
    }
}

class RecordRows : public LookupRows
{
public:
    RecordRows(Recordset rows, const LookupList &list) : m_rows(std::move(rows))
    {
        for (int i = 0; i < int(list.widths.size()); ++i) {
            const bool right = isNumber(m_rows.fieldType(i));
            m_columns.append({m_rows.fieldName(i), list.widths[i],
                              i == list.centredColumn ? Qt::AlignHCenter
                              : right                 ? Qt::AlignRight
                                                      : Qt::AlignLeft});
        }
    }

    bool next(QVariantList &row) override
    {
        if (!m_rows.next())
            return false;
        row.clear();
        for (int i = 0; i < int(m_columns.size()); ++i)
            row.append(m_rows.value(i));
        return true;
    }

private:
    Recordset m_rows;
};

/// One row per date, with each currency's selling rate in its own column.
class RateRows : public LookupRows
{
public:
    explicit RateRows(Database &db)
        : m_rates(db.query(u"SELECT * FROM Dovizd Order by Tarih desc;"_s))
    {
        m_columns.append({u"TARIH"_s, 1600_tw});
        Recordset currencies =
            db.query(u"SELECT * FROM DovizB Where Sbak = 1 and dovulke = 0 Order by Esira;"_s);
        while (currencies.next()) {
            m_places.insert(foldedText(currencies.text(u"Dovcinsi").trimmed()),
                            int(m_columns.size()));
            m_columns.append({currencies.text(u"Dovcinsi"), 1400_tw, Qt::AlignRight, u"#,###"_s});
        }
        m_onRate = m_rates.next();
    }

    bool next(QVariantList &row) override
    {
        while (m_onRate && !m_rates.date(u"Tarih").isValid())
            m_onRate = m_rates.next();
        if (!m_onRate)
            return false;
        const QDate date = m_rates.date(u"Tarih");
        row = QVariantList(m_columns.size());
        row[0] = QDateTime(date, QTime(0, 0), Qt::UTC);
        for (; m_onRate && m_rates.date(u"Tarih") == date; m_onRate = m_rates.next()) {
            const int place = m_places.value(foldedText(m_rates.text(u"Dovcinsi").trimmed()));
            if (place > 0 && !m_rates.isNull(u"Kur"))
                row[place] = m_rates.number(u"Kur");
        }
        return true;
    }

private:
    Recordset m_rates;
    QHash<QString, int> m_places; ///< of the currencies' columns
    bool m_onRate = false;
};

class HelpRows : public LookupRows
{
public:
    HelpRows(const QStringList &lines, const LookupList &list) : m_lines(lines)
    {
        m_columns.append({u"Bilgiler"_s, list.widths.first()});
    }

    bool next(QVariantList &row) override
    {
        if (m_at == m_lines.size())
            return false;
        row = {m_lines[m_at++]};
        return true;
    }

private:
    QStringList m_lines;
    qsizetype m_at = 0;
};

class NoRows : public LookupRows
{
public:
    bool next(QVariantList &) override { return false; }
};

bool hasUniqueTypes(const Database &db)
{
    const TableDef types = db.tableDef(u"UrunTipi"_s);
    for (const IndexDef &index : types.indexes) {
        if ((index.primary || index.unique) && index.fields.size() == 1 &&
            sameText(index.fields.first(), u"TipID"))
            return true;
    }
    return false;
}

} // namespace

std::unique_ptr<LookupRows> openLookup(Oturum &oturum, const LookupList &list,
                                       const QString &filter)
{
    Database &db = *oturum.Veritabani;
    if (list.source == LookupSource::Rates)
        return std::make_unique<RateRows>(db);
    if (list.source == LookupSource::Help)
        return std::make_unique<HelpRows>(HelpFile(oturum.kayitYolu).lines(), list);
    if (list.sql == nullptr)
        return std::make_unique<NoRows>();
    const QString sql = list.sql(filter);
    if (list.streamedSql == nullptr || !hasUniqueTypes(db))
        return std::make_unique<RecordRows>(oturum.sorgula(sql), list);
    oturum.SonSQL = sql;
    return std::make_unique<RecordRows>(db.query(list.streamedSql(filter)), list);
}

std::unique_ptr<LookupRows> openOrders(Oturum &oturum, const QString &condition)
{
    return std::make_unique<RecordRows>(oturum.sorgula(orderListSql(condition)),
                                        lookupList(orderListName.toString()));
}

} // namespace kuyum
