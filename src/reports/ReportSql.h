#pragma once

#include "ReportRequest.h"

#include <QStringList>

namespace kuyum {

/// The SQL texts of the order reports, in the product's dialect.

/// The karats that occur in the period. The model report asks for them in no order.
QString karatsSql(const ReportPeriod &period, bool ordered);
/// The product types that occur in the period, by name.
QString productTypesSql(const ReportPeriod &period);

/// Stones with their pieces `t1` and their weight `t2`, per code and karat.
QString stoneReportSql(const ReportPeriod &period);
/// Molds with their pieces `t1`, per code, description and karat.
QString moldReportSql(const ReportPeriod &period);

/// One column of the model report: the value that it is split by, and the name
/// its fields bear.
struct SplitColumn
{
    QString value; ///< a karat, or the number of a product type
    QString name;  ///< the karat, or the name of the product type
};

/// Models with their pieces, a field "tt" + name for each column, and `TOPLAM`;
/// the largest total first. A product type whose name is no field name makes
/// the text one that the engine refuses.
QString modelReportSql(const ModelReportRequest &request, const QList<SplitColumn> &columns);

} // namespace kuyum
