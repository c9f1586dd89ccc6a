#pragma once

#include <functional>
#include <optional>
#include <QDate>
#include <QString>

namespace kuyum {

/// What the figures of the model report are split by.
enum class ReportSplit { Ayar, UrunTipi };

/// A range of order dates, both days included.
struct ReportPeriod
{
    QDate bas;
    QDate bit;
};

/// What the user asks of the model report. What is unset does not filter.
struct ModelReportRequest
{
    ReportPeriod period;
    ReportSplit split = ReportSplit::Ayar;
    std::optional<qint32> Firkod{};
    std::optional<qint32> UlkeID{};
    QString modelPrefix{};
    std::optional<qint32> TipID{};
};

/// Told how far a report is; false stops it.
using ReportProgress = std::function<bool(int done, int all)>;

} // namespace kuyum
