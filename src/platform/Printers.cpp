#include "Printers.h"

#include <algorithm>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSettings>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString chosenKey()
{
    return u"yazici/secilen"_s;
}

/// A printer's name may hold what divides the settings' keys.
QString offsetKey(const QString &name, const QString &axis)
{
    return u"yazici/kaydirma/"_s + QString::fromLatin1(name.toUtf8().toPercentEncoding()) + u'/' +
           axis;
}

[[noreturn]] void refuse(const QString &text)
{
    throw std::runtime_error(text.toStdString());
}

[[noreturn]] void refusePrinter(const QString &name)
{
    refuse(u"\"%1\" yazıcısına yazdırılamadı. Yazıcının açık, bağlı ve hazır olduğunu "
           "denetleyin; belge PDF olarak da kaydedilebilir."_s.arg(name));
}

} // namespace

Printers::Printers(QSettings &settings)
    : m_settings(settings), m_chosen(settings.value(chosenKey()).toString())
{
}

Printers::~Printers() = default;

QStringList Printers::installed() const
{
    return QPrinterInfo::availablePrinterNames();
}

QString Printers::VarsayilanYazici() const
{
    return QPrinterInfo::defaultPrinterName();
}

void Printers::YaziciSec(const QString &name)
{
    if (installed().contains(name))
        m_chosen = name;
}

QString Printers::current() const
{
    const QStringList names = installed();
    if (names.contains(m_chosen))
        return m_chosen;
    const QString standard = VarsayilanYazici();
    return standard.isEmpty() ? names.value(0) : standard;
}

void Printers::rememberCurrent()
{
    m_settings.setValue(chosenKey(), current());
}

PagePoint Printers::offset(const QString &name) const
{
    return {Twips(m_settings.value(offsetKey(name, u"x"_s), 0).toDouble()),
            Twips(m_settings.value(offsetKey(name, u"y"_s), 0).toDouble())};
}

void Printers::setOffset(const QString &name, PagePoint offset)
{
    m_settings.setValue(offsetKey(name, u"x"_s), offset.x.count());
    m_settings.setValue(offsetKey(name, u"y"_s), offset.y.count());
}

std::unique_ptr<QPrinter> Printers::open(const QString &name) const
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(name);
    return printer;
}

void Printers::print(const PrintDocument &document) const
{
    const QString name = current();
    if (name.isEmpty())
        refuse(u"Kurulu yazıcı bulunamadı. Belge PDF olarak kaydedilebilir."_s);
    print(document, name);
}

void Printers::print(const PrintDocument &document, const QString &name) const
{
    const std::unique_ptr<QPrinter> printer = open(name);
    if (document.hasBars())
        printer->setResolution(ownResolution(printer->supportedResolutions()));
    prepare(*printer, document);
    QPainter painter;
    if (!printer->isValid() || !painter.begin(printer.get()))
        refusePrinter(name);
    const double dotsPerInch = printer->resolution();
    const PagePoint moved = offset(name);
    painter.translate(moved.x.pixels(dotsPerInch), moved.y.pixels(dotsPerInch));
    for (qsizetype i = 0; i < document.pages().size(); ++i) {
        if (i > 0 && !printer->newPage())
            refusePrinter(name);
        paintPage(painter, document.pages()[i], dotsPerInch);
    }
    if (!painter.end() || printer->printerState() == QPrinter::Error)
        refusePrinter(name);
}

/// A label printer offers the one resolution of its head, a page printer
/// several, each a divisor of its own; the toolkit's high resolution is none
/// of either's dots, and a driver would have to scale. Below the coarsest head
/// stand resolutions that only screens use.
int ownResolution(const QList<int> &offered)
{
    constexpr int coarsestHead = 200;
    QList<int> heads;
    std::copy_if(offered.begin(), offered.end(), std::back_inserter(heads),
                 [](int dotsPerInch) { return dotsPerInch >= coarsestHead; });
    return heads.isEmpty() ? usualHead : *std::min_element(heads.begin(), heads.end());
}

void prepare(QPrinter &printer, const PrintDocument &document)
{
    printer.setDocName(document.title());
    printer.setCreator(u"Kuyum"_s);
    printer.setFullPage(true);
    const QSizeF paper(document.width().points(), document.height().points());
    const bool wide = paper.width() > paper.height();
    printer.setPageSize(
        QPageSize(wide ? paper.transposed() : paper, QPageSize::Point, {}, QPageSize::FuzzyMatch));
    printer.setPageOrientation(wide ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setPageMargins(QMarginsF(), QPageLayout::Point);
}

} // namespace kuyum
