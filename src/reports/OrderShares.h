#pragma once

#include "ReportTable.h"

#include <QDate>

namespace kuyum {

/// What one order line adds to a figure of a report.
struct OrderShare
{
    QDate tarih;
    qint64 sipnum = 0;
    QString firma;
    QString model;
    QString tip; ///< the product type's short name
    QString renk;
    double adet = 0;   ///< the pieces ordered
    double birim = 1;  ///< what one piece adds
    double miktar = 0; ///< what the line adds
};

/// The order lines that a figure sums, and their sum, which is the figure.
/// The picture is the figure's own.
ReportTable orderSharesTable(const QString &title, const QList<OrderShare> &shares,
                             const QString &picture);

} // namespace kuyum
