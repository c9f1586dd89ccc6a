#pragma once

#include "ReportRequest.h"

#include <QHash>
#include <QStringList>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kuyum {

class Database;
class RowReader;

/// Gives every text a number from 0 on; texts that are equal in the database
/// share one. A text's bytes are folded once, however often it comes.
class TextNumbers
{
public:
    /// The text's number, a new one where it has none yet.
    int number(std::string_view utf8);
    /// The text's number; -1 where it has none.
    int find(std::string_view utf8);
    /// The text as it was first met.
    const QString &text(int number) const { return m_texts[number]; }
    qsizetype count() const { return m_texts.size(); }

private:
    struct Hash
    {
        using is_transparent = void;
        size_t operator()(std::string_view text) const
        {
            return std::hash<std::string_view>()(text);
        }
    };

    std::unordered_map<std::string, int, Hash, std::equal_to<>> m_byBytes;
    QHash<QString, int> m_byFolded;
    QStringList m_texts;
};

/// A line of an order in the period.
struct PeriodLine
{
    int place = -1; ///< among the lines of the walk
    qint64 Sipnum = 0;
    std::optional<double> Ayar;
    std::string SipTrh; ///< as it is stored
    std::optional<qint64> SipFirkod;
    std::string SipModel;
    int model = -1; ///< its number; -1 for one that has none
    std::optional<qint64> SipUruntip;
    std::string Siprenk;
    std::optional<double> SipAdet;
};

/// A model with a product type, as one key.
inline quint64 modelAndType(int model, qint64 TipID)
{
    return quint64(quint32(model)) << 32 | quint32(TipID);
}

/// Walks the order lines of a period, the lines of an order one after the other.
class PeriodLines
{
public:
    /// The numbers must outlive this object.
    PeriodLines(const Database &db, const ReportPeriod &period, TextNumbers &models);
    ~PeriodLines();
    PeriodLines(const PeriodLines &) = delete;
    PeriodLines &operator=(const PeriodLines &) = delete;

    /// Fills in the next line; false past the last. Models are only looked up.
    bool next(PeriodLine &line);

    /// Tells now and then how many orders were walked; false to stop.
    bool goesOn(const PeriodLine &line, const ReportProgress &progress) const;

private:
    TextNumbers &m_models;
    std::unique_ptr<RowReader> m_rows;
    int m_ordersBegun = 0;
    int m_orderCount = 0;
};

} // namespace kuyum
