#pragma once

#include "OrderReport.h"

#include <QSet>
#include <vector>

namespace kuyum {

/// The models ordered in a period, the most wanted first. An order's model
/// counts with all its lines as soon as one of them passes the filters and is
/// defined with its product type.
class ModelReport : public OrderReport
{
public:
    ModelReport(Oturum &oturum, const ModelReportRequest &request);

    QStringList header() const override;

private:
    QList<ReportColumnGroup> findGroups() override;
    void readItems() override;
    bool walk(const Sink &sink, const ReportProgress &progress) const override;
    void layOut(const QList<QList<Figure>> &figures) override;
    std::optional<ColumnMeaning> meaning(qsizetype column) const override;
    int decimals(const ColumnMeaning &meaning) const override;

    QList<ReportColumnGroup> productTypes() const;
    bool isWanted(const PeriodLine &line) const;
    void endOrder(const std::vector<PeriodLine> &order, const Sink &sink) const;

    ModelReportRequest m_request;
    QSet<qint64> m_customers;
    QSet<quint64> m_defined; ///< the modelAndType() that pass the filters
};

} // namespace kuyum
