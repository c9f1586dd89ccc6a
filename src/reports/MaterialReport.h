#pragma once

#include "OrderReport.h"

namespace kuyum {

/// What the orders of a period need of the models' materials: the pieces
/// ordered times the pieces in each, matched on model and product type.
class MaterialReport : public OrderReport
{
protected:
    /// A stone or a mold. Those that share their texts share a row.
    struct Item
    {
        QString code; ///< null where there is none
        QString description{};
        std::optional<double> gramsPerPiece{};
    };

    MaterialReport(Oturum &oturum, const ReportPeriod &period, int M_Tip);

    QList<ReportColumnGroup> findGroups() override;
    void readItems() override;
    bool walk(const Sink &sink, const ReportProgress &progress) const override;

    virtual QString sql() const = 0;
    /// The code, the description and the weight of every material, by its number.
    virtual QString itemsSql() const = 0;

    const Item &item(int number) const { return m_materials[number]; }
    /// The items that have figures, in the order of their rows.
    QList<int> sortedItems(const QList<QList<Figure>> &figures) const;

private:
    struct Need
    {
        int item = 0;
        std::optional<double> perPiece;
    };

    QHash<qint64, int> readMaterials();

    int m_kind; ///< as in `M_Tip`
    QList<Item> m_materials;
    QHash<quint64, QList<Need>> m_needs; ///< by modelAndType()
};

/// Stones, their pieces and their weight.
class StoneReport : public MaterialReport
{
public:
    StoneReport(Oturum &oturum, const ReportPeriod &period) : MaterialReport(oturum, period, 0) {}

private:
    QString sql() const override;
    QString itemsSql() const override;
    void layOut(const QList<QList<Figure>> &figures) override;
    std::optional<ColumnMeaning> meaning(qsizetype column) const override;
    int decimals(const ColumnMeaning &meaning) const override;
    std::optional<double> gramsPerPiece(int number) const override;
    void addColumns();
};

/// Molds and their pieces.
class MoldReport : public MaterialReport
{
public:
    MoldReport(Oturum &oturum, const ReportPeriod &period) : MaterialReport(oturum, period, 1) {}

private:
    QString sql() const override;
    QString itemsSql() const override;
    void layOut(const QList<QList<Figure>> &figures) override;
    std::optional<ColumnMeaning> meaning(qsizetype column) const override;
    int decimals(const ColumnMeaning &meaning) const override;
};

} // namespace kuyum
