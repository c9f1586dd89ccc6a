#include "Rapor_Siparis.h"

#include "DateBox.h"
#include "Dates.h"
#include "DocumentViewer.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "MaterialReport.h"
#include "ModelReport.h"
#include "Oturum.h"
#include "Rapor_Satirlar.h"
#include "ReportPages.h"
#include "ReportPictures.h"
#include "ui_Rapor_Siparis.h"

#include <algorithm>
#include <QFileDialog>
#include <QKeyEvent>
#include <QProgressDialog>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

enum SekmeYeri { tasSekmesi, kalipSekmesi, modelSekmesi };

void fill(QComboBox &box, const QList<FilterChoice> &choices)
{
    box.addItem(u"Tümü"_s);
    for (const FilterChoice &choice : choices)
        box.addItem(choice.text, choice.number);
}

/// Nothing for the first entry, which stands for all.
std::optional<qint32> chosenNumber(const QComboBox &box)
{
    if (!box.currentData().isValid())
        return std::nullopt;
    return box.currentData().toInt();
}

/// What the grid shows, whatever is chosen for the next report meanwhile.
QString summary(const OrderReport &report)
{
    QStringList parts{u"%1 satır"_s.arg(report.table().rows.size() - 1),
                      formatDate(report.period().bas) + u" - "_s + formatDate(report.period().bit)};
    parts += report.header().sliced(1);
    return parts.join(u"  ·  "_s);
}

/// Tells how far the work is once it takes longer than one waits for.
class Ilerleme
{
public:
    explicit Ilerleme(QWidget *parent)
        : m_dialog(u"Rapor hazırlanıyor..."_s, u"Durdur"_s, 0, 0, parent)
    {
        m_dialog.setWindowTitle(parent->windowTitle());
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setMinimumWidth(320); // room for its title
        m_dialog.setMinimumDuration(400);
    }

    bool operator()(int done, int all)
    {
        m_dialog.setMaximum(all + 1); // full only when the report is there
        m_dialog.setValue(done);
        return !m_dialog.wasCanceled();
    }

private:
    QProgressDialog m_dialog;
};

} // namespace

Rapor_Siparis::Rapor_Siparis(const RaporContext &context, QWidget *parent)
    : QDialog(parent), m_context(context), m_ui(std::make_unique<Ui::Rapor_Siparis>())
{
    m_ui->setupUi(this);
    gatherTabs();
    fillFilters();
    for (int place = 0; place < int(m_sekmeler.size()); ++place)
        connectTab(place);
    setUpSize();
    connectChart();
    connectFilters();
    connect(m_ui->RaporTab, &QTabWidget::currentChanged, this, &Rapor_Siparis::enterTab);
    connect(m_ui->cmdSon, &QPushButton::clicked, this, &QDialog::reject);
    enterTab(tasSekmesi);
}

Rapor_Siparis::~Rapor_Siparis() = default;

void Rapor_Siparis::gatherTabs()
{
    m_sekmeler[tasSekmesi] = {m_ui->DTPicker1, m_ui->DTPicker2,  m_ui->Command6, m_ui->Rapor0,
                              m_ui->Excel0,    m_ui->cmdYazdir0, m_ui->durum0};
    m_sekmeler[kalipSekmesi] = {m_ui->DTPicker3, m_ui->DTPicker4,  m_ui->Command7, m_ui->Rapor1,
                                m_ui->Excel1,    m_ui->cmdYazdir1, m_ui->durum1};
    m_sekmeler[modelSekmesi] = {m_ui->DTPicker5, m_ui->DTPicker6,  m_ui->Command10, m_ui->rapor2,
                                m_ui->Excel2,    m_ui->cmdYazdir2, m_ui->durum2};
}

void Rapor_Siparis::fillFilters()
{
    m_ui->ComboBox1->addItem(u"Ayar"_s, int(ReportSplit::Ayar));
    m_ui->ComboBox1->addItem(u"Ürün tipi"_s, int(ReportSplit::UrunTipi));
    fill(*m_ui->ComboBox2, customerChoices(m_context.oturum));
    fill(*m_ui->ComboBox3, countryChoices(m_context.oturum));
    m_ui->ComboBox4->addItem(QString());
    m_ui->ComboBox4->addItems(modelPrefixes(m_context.oturum));
    m_ui->ComboBox4->lineEdit()->setPlaceholderText(u"Tümü"_s);
    m_ui->ComboBox4->setCompleter(nullptr); // the codes that begin with K are not those with KAŞ
    fill(*m_ui->ComboBox5, productTypeChoices(m_context.oturum));
}

void Rapor_Siparis::setUpSize()
{
    constexpr QSize wanted(1180, 640);
    constexpr int widthForChart = 900;
    const QSize room = screen()->availableSize() - QSize(20, 50);
    resize(wanted.boundedTo(room));
    m_ui->cmdGrafik->setChecked(width() >= widthForChart);
    m_ui->bolme->setSizes({3 * width(), 2 * width()}); // as shares
    constexpr int lowest = 460;                        // with everything on show
    m_lowScreen = screen()->availableSize().height() < lowest;
    if (m_lowScreen)
        fitLowScreen();
}

void Rapor_Siparis::fitLowScreen()
{
    constexpr int space = 5;
    constexpr int buttonWidth = 84;
    setWindowState(Qt::WindowMaximized);
    layout()->setContentsMargins(space, space, space, space);
    for (QBoxLayout *tab : {m_ui->sekmeDuzeni0, m_ui->sekmeDuzeni1, m_ui->sekmeDuzeni2}) {
        tab->setContentsMargins(space, space, space, space);
        tab->setSpacing(space);
    }
    for (QPushButton *button : {m_ui->cmdYazdir0, m_ui->cmdYazdir1, m_ui->cmdYazdir2,
                                m_ui->cmdGrafik, m_ui->cmdSon, m_ui->Command10, m_ui->cmdSuzgec}) {
        button->setMinimumWidth(0);
        button->setMaximumWidth(buttonWidth);
    }
    m_ui->cmdGrafik->setChecked(false);
}

void Rapor_Siparis::connectTab(int place)
{
    Sekme &sekme = m_sekmeler[place];
    for (DateBox *date : {sekme.bas, sekme.bit}) {
        date->setDate(m_context.oturum.CalismaTarihi);
        keepDate(*date, m_context.messages);
    }
    sekme.cmdYazdir->setEnabled(false);
    sekme.excel->setEnabled(false);
    connect(sekme.run, &QPushButton::clicked, this,
            [this, &sekme] { guarded(m_context.messages, this, [&] { runReport(sekme); }); });
    connect(sekme.cmdYazdir, &QPushButton::clicked, this,
            [this, &sekme] { guarded(m_context.messages, this, [&] { print(sekme); }); });
    connect(sekme.grid, &RaporGrid::figureActivated, this,
            [this, &sekme](qsizetype row, qsizetype column) {
                guarded(m_context.messages, this, [&] { showLines(sekme, row, column); });
            });
    sekme.excel->setExport(m_context.excel, m_context.messages, [this, &sekme] {
        const ReportTable shown = sekme.grid->table();
        return ReportSheet{shown, shown.title, {}, reportPictures(m_context.oturum)};
    });
}

void Rapor_Siparis::connectChart()
{
    const auto showChart = [this] {
        const bool chart = m_ui->cmdGrafik->isChecked();
        m_ui->grafikPaneli->setVisible(chart);
        m_ui->rapor2->setVisible(!chart || !m_lowScreen);
    };
    connect(m_ui->cmdGrafik, &QPushButton::toggled, this, showChart);
    showChart();
    for (QPushButton *button : {m_ui->cmdGrafikKaydet, m_ui->cmdGrafikYazdir})
        button->setEnabled(false);
    connect(m_ui->cmdGrafikKaydet, &QPushButton::clicked, this,
            [this] { guarded(m_context.messages, this, [this] { saveChart(); }); });
    connect(m_ui->cmdGrafikYazdir, &QPushButton::clicked, this,
            [this] { guarded(m_context.messages, this, [this] { printChart(); }); });
}

/// Where they are hidden, their button tells how many narrow the report.
void Rapor_Siparis::connectFilters()
{
    m_ui->cmdSuzgec->setVisible(m_lowScreen);
    m_ui->suzgecPaneli->setVisible(!m_lowScreen);
    connect(m_ui->cmdSuzgec, &QPushButton::toggled, this, [this](bool shown) {
        m_ui->suzgecPaneli->setVisible(shown);
        if (shown)
            m_ui->ComboBox2->setFocus(Qt::OtherFocusReason);
    });
    const QList<QComboBox *> filters{m_ui->ComboBox2, m_ui->ComboBox3, m_ui->ComboBox4,
                                     m_ui->ComboBox5};
    const auto count = [this, filters] {
        const auto set = std::ranges::count_if(filters, [](const QComboBox *box) {
            return box->isEditable() ? !box->currentText().isEmpty() : box->currentIndex() > 0;
        });
        m_ui->cmdSuzgec->setText(set > 0 ? u"S&üzgeç: %1"_s.arg(set) : u"S&üzgeç"_s);
    };
    for (const QComboBox *filter : filters)
        connect(filter, &QComboBox::currentTextChanged, this, count);
}

// Keys

/// The cursor goes where the report begins, and Enter runs the tab's report. The
/// way out stands on every tab: below them it would cost the grids two rows.
void Rapor_Siparis::enterTab(int place)
{
    const std::array<QHBoxLayout *, 3> lowest{m_ui->altSatir0, m_ui->altSatir1, m_ui->altSatir2};
    lowest[place]->addWidget(m_ui->cmdSon);
    m_sekmeler[place].run->setDefault(true);
    m_sekmeler[place].bas->setFocus(Qt::TabFocusReason);
}

void Rapor_Siparis::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event))
        guarded(m_context.messages, this, [this] { enterPressed(); });
    else
        QDialog::keyPressEvent(event);
}

void Rapor_Siparis::enterPressed()
{
    const Sekme &sekme = m_sekmeler[m_ui->RaporTab->currentIndex()];
    QWidget *focused = focusWidget();
    if (auto *button = qobject_cast<QPushButton *>(focused))
        button->click();
    else if (qobject_cast<DateBox *>(focused) != nullptr ||
             qobject_cast<QComboBox *>(focused) != nullptr)
        focusNextChild();
    else if (focused == m_ui->RaporTab->tabBar())
        sekme.bas->setFocus(Qt::TabFocusReason);
}

// Reports

bool Rapor_Siparis::readPeriod(const Sekme &sekme, ReportPeriod &period)
{
    if (!holdDates({sekme.bas, sekme.bit}, m_context.messages))
        return false;
    period = {sekme.bas->date(), sekme.bit->date()};
    return true;
}

ModelReportRequest Rapor_Siparis::modelRequest(const ReportPeriod &period) const
{
    return {.period = period,
            .split = ReportSplit(m_ui->ComboBox1->currentData().toInt()),
            .Firkod = chosenNumber(*m_ui->ComboBox2),
            .UlkeID = chosenNumber(*m_ui->ComboBox3),
            .modelPrefix = m_ui->ComboBox4->currentText(),
            .TipID = chosenNumber(*m_ui->ComboBox5)};
}

std::unique_ptr<OrderReport> Rapor_Siparis::makeReport(const Sekme &sekme,
                                                       const ReportPeriod &period) const
{
    Oturum &oturum = m_context.oturum;
    if (&sekme == &m_sekmeler[tasSekmesi])
        return std::make_unique<StoneReport>(oturum, period);
    if (&sekme == &m_sekmeler[kalipSekmesi])
        return std::make_unique<MoldReport>(oturum, period);
    return std::make_unique<ModelReport>(oturum, modelRequest(period));
}

void Rapor_Siparis::runReport(Sekme &sekme)
{
    ReportPeriod period;
    if (!readPeriod(sekme, period))
        return;
    std::unique_ptr<OrderReport> report = makeReport(sekme, period);
    OrderReport::Outcome outcome = OrderReport::Outcome::Stopped;
    {
        Ilerleme ilerleme(this);
        outcome = report->read(std::ref(ilerleme));
    }
    if (outcome == OrderReport::Outcome::Stopped)
        return;
    const bool found = outcome == OrderReport::Outcome::Ready;
    showReport(sekme, found ? std::move(report) : nullptr);
    if (!found) {
        m_context.messages.say(this, u"Kayıt Bulunamadi"_s, MessageIcon::Information);
        sekme.bas->setFocus(Qt::OtherFocusReason);
    }
}

void Rapor_Siparis::showReport(Sekme &sekme, std::unique_ptr<OrderReport> report)
{
    sekme.report = std::move(report);
    const ReportTable table = sekme.report ? sekme.report->table() : ReportTable();
    const bool hasLines = table.hasLines();
    sekme.grid->setTable(table);
    sekme.durum->setText(sekme.report ? summary(*sekme.report) : QString());
    sekme.cmdYazdir->setEnabled(hasLines);
    sekme.excel->setEnabled(hasLines);
    if (&sekme == &m_sekmeler[modelSekmesi]) {
        ReportTable charted = table;
        if (sekme.report)
            charted.title = sekme.report->header().join(u"  ·  "_s);
        m_ui->grafik->setTable(charted);
        m_ui->cmdGrafikKaydet->setEnabled(hasLines);
        m_ui->cmdGrafikYazdir->setEnabled(hasLines);
        m_ui->cmdSuzgec->setChecked(m_ui->cmdSuzgec->isChecked() && !hasLines);
    }
    if (hasLines)
        sekme.grid->setFocus(Qt::OtherFocusReason);
}

void Rapor_Siparis::showLines(const Sekme &sekme, qsizetype row, qsizetype column)
{
    if (!sekme.report || !sekme.report->isFigure(row, column))
        return;
    std::optional<ReportTable> lines;
    {
        Ilerleme ilerleme(this);
        lines = sekme.report->linesBehind(row, column, std::ref(ilerleme));
    }
    if (lines)
        showOrderLines(m_context, this, *lines);
}

/// With the rows in the order that they stand in on the screen.
void Rapor_Siparis::print(const Sekme &sekme)
{
    const ReportTable shown = sekme.grid->table();
    m_context.viewer.show(this, reportPages(shown.title, sekme.report->header(), {{shown}}));
}

// The chart

void Rapor_Siparis::saveChart()
{
    QFileDialog dialog(this, u"Grafiği Kaydet"_s, {}, u"PNG resmi (*.png)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"png"_s);
    dialog.selectFile(u"grafik.png"_s);
    if (dialog.exec() == QDialog::Accepted)
        m_ui->grafik->save(dialog.selectedFiles().value(0));
}

void Rapor_Siparis::printChart()
{
    m_context.viewer.show(this, m_ui->grafik->document());
}

} // namespace kuyum
