#include "ModelChart.h"

#include "Theme.h"
#include "WholeFile.h"

#include <QBarCategoryAxis>
#include <QBarSet>
#include <QBuffer>
#include <QChart>
#include <QChartView>
#include <QFontInfo>
#include <QGraphicsLayout>
#include <QGraphicsSimpleTextItem>
#include <QHorizontalStackedBarSeries>
#include <QLabel>
#include <QPainter>
#include <QTextDocument>
#include <QtMath>
#include <QValueAxis>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr QSize pictureDots(1800, 1260);
constexpr qsizetype firstPart = 1; ///< column; the last one is the total

/// Colours that stay apart from each other on light and on dark ground.
QColor partColor(qsizetype part, bool dark)
{
    static const QList<QColor> light = {QColor(0xb8860b), QColor(0x4f7ca8), QColor(0x6f9a5b),
                                        QColor(0xb5654a), QColor(0x8a6fa8), QColor(0x3f9490),
                                        QColor(0x8b8b8b), QColor(0xc06c8b)};
    const QColor color = light[part % light.size()];
    // Beyond the first eight they come again, each time paler.
    const int times = int(part / light.size());
    return (dark ? color.lighter(118) : color).lighter(100 + 22 * times);
}

void colorAxis(QAbstractAxis &axis, const QPalette &palette, const QFont &font)
{
    QColor quiet = themeColors(palette).muted;
    axis.setLabelsFont(font);
    axis.setLabelsColor(palette.color(QPalette::Text));
    axis.setLinePenColor(quiet);
    quiet.setAlpha(60);
    axis.setGridLineColor(quiet);
}

QString partName(const ReportTable &table, qsizetype column)
{
    const QString heading = table.columns[column].heading;
    return heading.mid(heading.indexOf(u'(') + 1).chopped(1);
}

/// Which colour stands for what; nothing where there is but one. The chart's own
/// legend stays on one line, and cuts the names off.
QString legend(const ReportTable &table, const QPalette &palette)
{
    if (table.rows.isEmpty() || table.columns.size() <= firstPart + 2)
        return {};
    QStringList parts;
    for (qsizetype column = firstPart; column + 1 < table.columns.size(); ++column) {
        const QColor color = partColor(column - firstPart, themeColors(palette).dark);
        const QString name = partName(table, column).toHtmlEscaped().replace(u' ', u"&nbsp;"_s);
        parts.append(u"<span style=\"color:%1\">■</span>&nbsp;"_s.arg(color.name()) + name);
    }
    return u"<div align=\"center\" style=\"color:%1\">"_s.arg(
               palette.color(QPalette::Text).name()) +
           parts.join(u" &nbsp; "_s) + u"</div>"_s;
}

/// The longest bar stands on top: the axis begins at the bottom.
QHorizontalStackedBarSeries *makeBars(const ReportTable &table, bool dark)
{
    auto *series = new QHorizontalStackedBarSeries;
    series->setBarWidth(0.72);
    for (qsizetype column = firstPart; column + 1 < table.columns.size(); ++column) {
        auto *part = new QBarSet(partName(table, column));
        part->setColor(partColor(column - firstPart, dark));
        part->setBorderColor(Qt::transparent);
        for (qsizetype row = table.rows.size() - 1; row >= 0; --row)
            part->append(table.rows[row].values[column].toDouble());
        series->append(part);
    }
    return series;
}

QBarCategoryAxis *makeModelAxis(const ReportTable &table)
{
    auto *axis = new QBarCategoryAxis;
    // Two equal names would be one bar.
    for (qsizetype row = table.rows.size() - 1; row >= 0; --row)
        axis->append(table.rows[row].values[0].toString());
    return axis;
}

/// How far apart the axis has its ticks: whole pieces, 1, 2 or 5 times a power of
/// ten, and at most six of them.
qint64 tickDistance(double most)
{
    constexpr int mostSteps = 5;
    for (qint64 ten = 1;; ten *= 10) {
        for (const qint64 distance : {ten, 2 * ten, 5 * ten}) {
            if (most <= double(mostSteps * distance))
                return distance;
        }
    }
}

/// How a chart is to look.
struct ChartLook
{
    QPalette palette;
    QFont font;
    bool titled = false;
};

constexpr int besideNames = 6;

QFont fittedInto(qreal height, QFont font)
{
    constexpr int smallest = 6;
    while (QFontMetricsF(font).height() > height && QFontInfo(font).pixelSize() > smallest)
        font.setPixelSize(QFontInfo(font).pixelSize() - 1);
    return font;
}

qreal widest(const ReportTable &table, const QFont &font)
{
    qreal width = 0;
    for (const ReportRow &row : table.rows)
        width = std::max(width, QFontMetricsF(font).horizontalAdvance(row.values[0].toString()));
    return width;
}

/// Puts the models' names beside their bars. The chart's own labels want more
/// height for each than there is between twenty bars.
void nameBars(QChart *chart, const ReportTable &table, const ChartLook &look)
{
    QList<QGraphicsSimpleTextItem *> names;
    for (const ReportRow &row : table.rows) {
        names.append(new QGraphicsSimpleTextItem(row.values[0].toString(), chart));
        names.last()->setBrush(look.palette.text());
    }
    const auto place = [names, font = look.font](const QRectF &plot) {
        const qreal room = plot.height() / qreal(names.size());
        const QFont fitted = fittedInto(room, font);
        for (qsizetype i = 0; i < names.size(); ++i) {
            names[i]->setFont(fitted);
            const QRectF name = names[i]->boundingRect();
            names[i]->setPos(plot.left() - besideNames - name.width(),
                             plot.top() + room * (qreal(i) + 0.5) - name.height() / 2);
        }
    };
    QObject::connect(chart, &QChart::plotAreaChanged, chart, place);
}

QChart *makeChart(const ReportTable &table, const ChartLook &look)
{
    const QPalette &palette = look.palette;
    auto *chart = new QChart;
    chart->setAnimationOptions(QChart::NoAnimation);
    QLocale numbers(QLocale::Turkish, QLocale::Turkey);
    // Elsewhere a point parts decimals: 1.000 would read as one.
    numbers.setNumberOptions(QLocale::OmitGroupSeparator);
    chart->setLocale(numbers);
    chart->setLocalizeNumbers(true);
    chart->setBackgroundBrush(palette.base());
    chart->setBackgroundRoundness(0);
    chart->setMargins({besideNames * 2 + int(widest(table, look.font)), 6, 12, 6});
    chart->layout()->setContentsMargins(0, 0, 0, 0);
    chart->setTitleFont(look.font);
    chart->setTitleBrush(palette.text());
    chart->setTitle(look.titled ? table.title.toHtmlEscaped() : QString());
    chart->legend()->hide();
    if (table.rows.isEmpty())
        return chart;
    QHorizontalStackedBarSeries *series = makeBars(table, themeColors(palette).dark);
    chart->addSeries(series);
    auto *models = makeModelAxis(table);
    auto *pieces = new QValueAxis;
    pieces->setLabelFormat(u"%.0f"_s);
    chart->addAxis(models, Qt::AlignLeft);
    chart->addAxis(pieces, Qt::AlignBottom);
    series->attachAxis(models);
    series->attachAxis(pieces);
    const qint64 distance = tickDistance(pieces->max());
    const int steps = std::max(1, qCeil(pieces->max() / double(distance)));
    pieces->setRange(0, double(steps * distance));
    pieces->setTickCount(steps + 1);
    colorAxis(*models, palette, look.font);
    colorAxis(*pieces, palette, look.font);
    models->setGridLineVisible(false);
    models->setLabelsVisible(false);
    nameBars(chart, table, look);
    return chart;
}

QPalette paperPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

} // namespace

ModelChart::ModelChart(QWidget *parent)
    : QWidget(parent), m_view(new QChartView(this)), m_legend(new QLabel(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view, 1);
    layout->addWidget(m_legend);
    m_legend->setWordWrap(true);
    m_legend->setTextFormat(Qt::RichText);
    m_view->setRenderHint(QPainter::Antialiasing);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setMinimumSize(0, 0);
    draw();
}

void ModelChart::setTable(const ReportTable &table)
{
    m_table = table;
    m_table.rows.clear();
    for (const ReportRow &row : table.rows) {
        if (row.kind == ReportRowKind::Line && m_table.rows.size() < mostModels)
            m_table.rows.append(row);
    }
    draw();
}

void ModelChart::draw()
{
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.88);
    const std::unique_ptr<QChart> old(m_view->chart());
    m_view->setBackgroundBrush(palette().base());
    m_view->setChart(makeChart(m_table, {palette(), small, false}));
    m_legend->setFont(small);
    m_legend->setText(legend(m_table, palette()));
    m_legend->setVisible(!m_legend->text().isEmpty());
}

void ModelChart::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        draw();
}

QImage ModelChart::picture(const QSize &dots) const
{
    constexpr int dotsPerPoint = 2;
    const QSize size = dots / dotsPerPoint;
    QTextDocument below;
    below.setDefaultFont(font());
    below.setHtml(legend(m_table, paperPalette()));
    below.setTextWidth(size.width());
    const int chartHeight = size.height() - qCeil(below.size().height());
    QChartView view(makeChart(m_table, {paperPalette(), font(), true}));
    view.setFrameShape(QFrame::NoFrame);
    view.setBackgroundBrush(Qt::white);
    view.setRenderHint(QPainter::Antialiasing);
    view.resize(size.width(), chartHeight);
    view.setAttribute(Qt::WA_DontShowOnScreen);
    view.show();
    QImage image(dots, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(dotsPerPoint, dotsPerPoint);
    view.render(&painter, QRectF(view.rect()), view.rect());
    painter.translate(0, chartHeight);
    below.drawContents(&painter);
    return image;
}

void ModelChart::save(const QString &path) const
{
    const WholeFile file(u"PNG"_s, path);
    QBuffer buffer;
    buffer.open(QBuffer::ReadWrite);
    picture(pictureDots).save(&buffer, "PNG");
    file.write(buffer.data());
}

PrintDocument ModelChart::document() const
{
    const Twips width = Twips::fromMillimetres(297);
    const Twips height = Twips::fromMillimetres(210);
    const Twips margin = Twips::fromMillimetres(12);
    PrintDocument document(m_table.title, width, height);
    document.picture({margin, margin}, width - margin * 2, height - margin * 2,
                     picture(pictureDots));
    return document;
}

} // namespace kuyum
