#pragma once

#include "PrintDocument.h"
#include "ReportTable.h"

#include <QWidget>

class QChart;
class QChartView;
class QLabel;

namespace kuyum {

/// The first models of the model report as bars, longest on top, each in the
/// parts that its columns split it into.
class ModelChart : public QWidget
{
    Q_OBJECT

public:
    explicit ModelChart(QWidget *parent = nullptr);

    /// How many models the bars stand for at most.
    static constexpr int mostModels = 20;

    /// The table is a ModelReport's. Its title stands above the chart on paper.
    void setTable(const ReportTable &table);
    /// As it stands on paper: dark on white, in so many dots.
    QImage picture(const QSize &dots) const;
    /// Writes it as a PNG file; throws std::runtime_error with a Turkish text.
    void save(const QString &path) const;
    /// A page of it, to be printed.
    PrintDocument document() const;

    QSize sizeHint() const override { return {420, 420}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void draw();

    ReportTable m_table; ///< title, columns and the lines that are drawn
    QChartView *m_view;
    QLabel *m_legend;
};

} // namespace kuyum
