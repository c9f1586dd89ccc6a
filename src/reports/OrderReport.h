#pragma once

#include "PeriodLines.h"
#include "ReportRequest.h"
#include "ReportTable.h"

namespace kuyum {

struct Oturum;

/// A karat or a product type that a report's figures are split by.
struct ReportColumnGroup
{
    std::optional<double> Ayar{};
    std::optional<qint64> TipID{};
    QString name; ///< as it heads the column
};

/// What an order line adds to a figure of the report. The line's pieces times
/// perPiece are added; where one of them is null, the figure is there and
/// nothing is added to it.
struct Contribution
{
    const PeriodLine &line;
    int item = 0;  ///< the stone, mold or model
    int group = 0; ///< the column group; -1 for none: the item's row is there all the same
    std::optional<double> perPiece = 1.0;

    std::optional<double> pieces() const
    {
        if (!line.SipAdet || !perPiece)
            return std::nullopt;
        return *line.SipAdet * *perPiece;
    }
};

/// A report of a period's order lines: stones, molds or models down, karats or
/// product types across. Its figures and the order lines behind them come from
/// the same walk over the lines. Errors are DatabaseErrors.
class OrderReport
{
public:
    enum class Outcome { Ready, NothingFound, Stopped };
    using Sink = std::function<void(const Contribution &)>;

    virtual ~OrderReport() = default;
    OrderReport(const OrderReport &) = delete;
    OrderReport &operator=(const OrderReport &) = delete;

    Outcome read(const ReportProgress &progress);
    const ReportTable &table() const { return m_table; }
    /// What stands above the report on paper: its title, and the filters.
    virtual QStringList header() const { return {m_table.title}; }
    const ReportPeriod &period() const { return m_period; }
    const QList<ReportColumnGroup> &groups() const { return m_groups; }

    /// Whether the cell is a figure, which order lines stand behind.
    bool isFigure(qsizetype row, qsizetype column) const;
    /// The order lines that a figure sums, totals included; nothing when it was
    /// stopped. More lines than a person looks through are refused.
    std::optional<ReportTable> linesBehind(qsizetype row, qsizetype column,
                                           const ReportProgress &progress) const;

protected:
    /// One number of a row in a column group.
    struct Figure
    {
        bool present = false; ///< an order line stands behind it
        std::optional<double> sum;

        void add(std::optional<double> value);
    };

    /// Which figures a column shows.
    struct ColumnMeaning
    {
        std::optional<int> group; ///< unset: all of them
        bool grams = false;       ///< else pieces
    };

    OrderReport(Oturum &oturum, const ReportPeriod &period);

    /// Runs the product's own SQL text, and finds the column groups; none when
    /// there is nothing to report.
    virtual QList<ReportColumnGroup> findGroups() = 0;
    /// Learns which items there are; before the lines are walked.
    virtual void readItems() = 0;
    /// Hands on what every line adds. False when it was stopped.
    virtual bool walk(const Sink &sink, const ReportProgress &progress) const = 0;
    /// The report from its figures, and m_items with the item of each row.
    virtual void layOut(const QList<QList<Figure>> &figures) = 0;
    virtual std::optional<ColumnMeaning> meaning(qsizetype column) const = 0;
    /// The decimals to which a figure of such a column is rounded.
    virtual int decimals(const ColumnMeaning &meaning) const = 0;
    /// What one of the item's pieces weighs.
    virtual std::optional<double> gramsPerPiece(int item) const;

    /// Runs the text that the product shows as its own, as far as the engine's
    /// refusal of it.
    void show(const QString &sql) const;
    QList<ReportColumnGroup> karats(bool ordered) const;
    int groupOf(std::optional<double> Ayar) const;
    int groupOf(std::optional<qint64> TipID) const;
    /// What the column is that comes so many after the first of piece figures.
    std::optional<ColumnMeaning> pieceColumn(qsizetype place) const;

    QString titled(const QString &name) const;
    /// "Adet(...)" for each column group, and "TOPLAM ADET".
    void addPieceColumns();
    /// A cell of the figure, rounded; empty where nothing was added to it.
    static QVariant cell(const Figure &figure, int decimals);
    /// A row of these cells, and its totals behind them.
    void addLine(QVariantList cells);
    /// The row that sums all lines.
    void addTotals();

    /// Pieces are counted, some in fractions.
    static constexpr int pieceDecimals = 6;

    Oturum &m_oturum;
    ReportPeriod m_period;
    QList<ReportColumnGroup> m_groups;
    mutable TextNumbers m_models;
    ReportTable m_table;
    QList<int> m_items; ///< of the table's lines, in their order
};

} // namespace kuyum
