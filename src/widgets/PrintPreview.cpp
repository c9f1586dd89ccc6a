#include "PrintPreview.h"

#include "Guarded.h"
#include "PrinterOffset.h"
#include "Printers.h"

#include <cmath>
#include <QBuffer>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QPrintPreviewWidget>
#include <QPushButton>

#include <QScreen>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString askPdfPath(QWidget *parent, const QString &suggestion)
{
    QFileDialog dialog(parent, u"PDF olarak kaydet"_s, {}, u"PDF (*.pdf)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s);
    dialog.selectFile(suggestion);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString fileName(QString title)
{
    static const QString forbidden = u"\\/:*?\"<>|"_s;
    for (QChar &character : title) {
        if (forbidden.contains(character))
            character = u'-';
    }
    return title + u".pdf"_s;
}

/// The preview holds the photographs of all pages as images. More of them than
/// these pixels (120 MB) are shown coarser than they are printed.
constexpr double mostPreviewPixels = 30e6;

QImage readPhoto(const PagePhoto &photo, double scale)
{
    QByteArray jpeg = photo.jpeg;
    QBuffer buffer(&jpeg);
    QImageReader reader(&buffer, "JPEG");
    reader.setScaledSize((QSizeF(reader.size()) * scale).toSize().expandedTo({1, 1}));
    return reader.read();
}

/// How much coarser the photographs have to be; 1 where they need not.
double previewScale(const PrintDocument &document)
{
    double pixels = 0;
    for (const PrintPage &page : document.pages()) {
        for (const PageItem &item : page.items) {
            const auto *photo = std::get_if<PagePhoto>(&item);
            if (photo == nullptr)
                continue;
            QByteArray jpeg = photo->jpeg;
            QBuffer buffer(&jpeg);
            const QSize size = QImageReader(&buffer, "JPEG").size();
            pixels += double(size.width()) * size.height();
        }
    }
    return pixels <= mostPreviewPixels ? 1 : std::sqrt(mostPreviewPixels / pixels);
}

PrintPage coarser(PrintPage page, double scale)
{
    for (PageItem &item : page.items) {
        if (const auto *photo = std::get_if<PagePhoto>(&item))
            item = PagePicture{photo->at, photo->width, photo->height, readPhoto(*photo, scale)};
    }
    return page;
}

} // namespace

PrintPreview::PrintPreview(const PrintDocument &document, Printers &printers, Messages &messages,
                           QWidget *parent)
    : QDialog(parent),
      m_document(document),
      m_printers(printers),
      m_messages(messages),
      m_choosePdf(askPdfPath),
      m_paper(std::make_unique<QPrinter>(QPrinter::HighResolution))
{
    setObjectName(u"PrintPreview"_s);
    setWindowTitle(document.title());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_paper->setOutputFormat(QPrinter::PdfFormat);
    if (document.hasBars())
        m_paper->setResolution(usualHead);
    prepare(*m_paper, document);

    m_pages = new QPrintPreviewWidget(m_paper.get());
    m_pages->setAccessibleName(u"Sayfa önizlemesi"_s);
    connect(m_pages, &QPrintPreviewWidget::paintRequested, this, &PrintPreview::paint);
    connect(m_pages, &QPrintPreviewWidget::previewChanged, this, &PrintPreview::tellPage);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makePageBar());
    layout->addWidget(m_pages, 1);
    layout->addWidget(makePrintBar());
    addKeys();
    fillPrinters();
    resize(QSize(900, 1000).boundedTo(screen()->availableSize() * 0.95));
    m_pages->setFocus();
}

PrintPreview::~PrintPreview() = default;

QPushButton *PrintPreview::makeButton(const Control &control)
{
    auto *button = new QPushButton(control.text);
    button->setAutoDefault(false);
    bind(*button, control);
    return button;
}

/// Narrow, so that the bars keep within a small screen at 200 %.
QToolButton *PrintPreview::makeSmallButton(const Control &control)
{
    auto *button = new QToolButton;
    button->setText(control.text);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMinimumSize(34, 34);
    bind(*button, control);
    return button;
}

void PrintPreview::bind(QAbstractButton &button, const Control &control)
{
    const QString about = control.about.isEmpty() ? control.text : control.about;
    button.setObjectName(control.name);
    button.setAccessibleName(about);
    button.setToolTip(about + u" ("_s + control.key.toString(QKeySequence::NativeText) + u')');
    const auto run = [this, action = control.action] { guarded(m_messages, this, action); };
    connect(&button, &QAbstractButton::clicked, this, run);
    connect(new QShortcut(control.key, this), &QShortcut::activated, this, run);
}

QWidget *PrintPreview::makePageBar()
{
    m_pageLabel = new QLabel;
    m_pageLabel->setObjectName(u"pageLabel"_s);
    m_pageLabel->setAlignment(Qt::AlignCenter);
    auto *bar = new QWidget;
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    const auto add = [&](const Control &control) { layout->addWidget(makeSmallButton(control)); };
    add({u"previousPage"_s, u"Önceki"_s, Qt::Key_PageUp,
         [this] { goTo(m_pages->currentPage() - 1); }, u"Önceki sayfa"_s});
    layout->addWidget(m_pageLabel);
    add({u"nextPage"_s, u"Sonraki"_s, Qt::Key_PageDown,
         [this] { goTo(m_pages->currentPage() + 1); }, u"Sonraki sayfa"_s});
    layout->addStretch();
    add({u"zoomOut"_s, u"−"_s, QKeySequence::ZoomOut, [this] { m_pages->zoomOut(); }, u"Küçült"_s});
    add({u"zoomIn"_s, u"+"_s, QKeySequence::ZoomIn, [this] { m_pages->zoomIn(); }, u"Büyüt"_s});
    add({u"fitWidth"_s, u"Genişliğe sığdır"_s, u"Ctrl+1"_s, [this] { m_pages->fitToWidth(); }});
    add({u"fitPage"_s, u"Sayfaya sığdır"_s, u"Ctrl+0"_s, [this] { m_pages->fitInView(); }});
    return bar;
}

QWidget *PrintPreview::makePrintBar()
{
    m_printerList = new QComboBox;
    m_printerList->setObjectName(u"printerList"_s);
    m_printerList->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_printerList->setMinimumWidth(90);
    m_printerList->setMaximumWidth(320);
    auto *label = new QLabel(u"Ya&zıcı:"_s);
    label->setBuddy(m_printerList);
    m_offsetButton = makeSmallButton(
        {u"printerOffset"_s, u"…"_s, u"Ctrl+K"_s, [this] { setOffset(); }, u"Yazıcı kaydırması"_s});
    QPushButton *printButton =
        makeButton({u"printButton"_s, u"Yazdır"_s, QKeySequence::Print, [this] { print(); }});
    printButton->setDefault(true);
    auto *bar = new QWidget;
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(m_printerList, 1);
    layout->addWidget(m_offsetButton);
    layout->addStretch();
    layout->addWidget(makeButton(
        {u"pdfButton"_s, u"PDF olarak kaydet"_s, QKeySequence::Save, [this] { savePdf(); }}));
    layout->addWidget(printButton);
    layout->addWidget(
        makeButton({u"closeButton"_s, u"Kapat"_s, QKeySequence::Close, [this] { reject(); }}));
    return bar;
}

void PrintPreview::addKeys()
{
    const auto key = [this](const QKeySequence &keys, const std::function<void()> &action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    key(u"Ctrl+Home"_s, [this] { goTo(1); });
    key(u"Ctrl+End"_s, [this] { goTo(m_pages->pageCount()); });
    // Where plus stands above the digits, Shift comes with it.
    key(u"Ctrl+="_s, [this] { m_pages->zoomIn(); });
}

void PrintPreview::fillPrinters()
{
    m_printerList->addItems(m_printers.installed());
    const bool any = m_printerList->count() > 0;
    if (any)
        m_printerList->setCurrentText(m_printers.current());
    else
        m_printerList->addItem(u"Yazıcı yok"_s);
    m_printerList->setEnabled(any);
    m_offsetButton->setEnabled(any);
    connect(m_printerList, &QComboBox::activated, this, [this] {
        m_printers.YaziciSec(m_printerList->currentText());
        m_printers.rememberCurrent();
    });
}

void PrintPreview::paint(QPrinter *printer) const
{
    const double scale = previewScale(m_document);
    QPainter painter(printer);
    for (qsizetype i = 0; i < m_document.pages().size(); ++i) {
        if (i > 0)
            printer->newPage();
        const PrintPage &page = m_document.pages()[i];
        paintPage(painter, scale < 1 ? coarser(page, scale) : page, printer->resolution());
    }
}

int PrintPreview::currentPage() const
{
    return m_pages->currentPage();
}

void PrintPreview::goTo(int page)
{
    m_pages->setCurrentPage(qBound(1, page, m_pages->pageCount()));
    tellPage();
}

void PrintPreview::tellPage()
{
    m_pageLabel->setText(
        u"Sayfa %1 / %2"_s.arg(m_pages->currentPage()).arg(m_document.pages().size()));
}

void PrintPreview::setOffset()
{
    const QString printer = m_printers.current();
    PrinterOffset dialog(printer, m_printers.offset(printer), this);
    if (dialog.exec() == QDialog::Accepted)
        m_printers.setOffset(printer, dialog.offset());
}

void PrintPreview::print()
{
    m_printers.print(m_document);
    accept();
}

void PrintPreview::savePdf()
{
    const QString path = m_choosePdf(this, fileName(m_document.title()));
    if (path.isEmpty())
        return;
    writePdf(m_document, path);
    m_messages.say(this, u"PDF dosyası kaydedildi:\n"_s + QDir::toNativeSeparators(path),
                   MessageIcon::Information, m_document.title());
}

void PreviewViewer::show(QWidget *parent, const PrintDocument &document)
{
    PrintPreview preview(document, m_printers, m_messages, parent);
    m_wasPrinted = preview.exec() == QDialog::Accepted;
}

} // namespace kuyum
