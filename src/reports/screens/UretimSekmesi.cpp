#include "UretimSekmesi.h"

#include "Dates.h"
#include "DocumentViewer.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "ListHeading.h"
#include "LookupModel.h"
#include "MarkedRowDelegate.h"
#include "ModelPaneli.h"
#include "Numbers.h"
#include "Oturum.h"
#include "Rapor_Satirlar.h"
#include "ReadingProgress.h"
#include "SecimModeli.h"
#include "Theme.h"
#include "Twips.h"
#include "ui_UretimSekmesi.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr Twips widths[SecimModeli::shownColumns] = {1400_tw, 1200_tw, 2200_tw, 900_tw};
constexpr int dateColumn = 0;
constexpr int customerColumn = 2;

} // namespace

UretimSekmesi::UretimSekmesi(const RaporContext &context, QWidget *parent)
    : QWidget(parent),
      m_context(context),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::UretimSekmesi>()),
      m_siparisler(new LookupModel(this)),
      m_secim(new SecimModeli(*m_siparisler, this))
{
    m_ui->setupUi(this);
    m_ui->modelPaneli->setOturum(context.oturum);
    QPalette warning = palette();
    warning.setColor(QPalette::WindowText, themeColors(warning).mark);
    m_ui->gizliNotu->setPalette(warning);
    m_ui->gizliNotu->hide();
    setUpFilters();
    setUpList();
    connectControls();
    m_siparisler->open(openOrders(context.oturum, {}));
    spreadColumns();
    showSelection();
}

UretimSekmesi::~UretimSekmesi() = default;

void UretimSekmesi::setUpFilters()
{
    // From "no date" on: lines that production has not begun are to be made, too.
    m_ui->Trh00->setDate(noDate());
    m_ui->Trh01->setDate(m_context.oturum.CalismaTarihi);
    m_ui->Sipdur0->addItem(u"Hepsi"_s);
    m_ui->Sipdur0->addItems(m_store.siparisDurumlari());
    m_ui->Uretdur0->addItem(u"Hepsi"_s);
    m_ui->Uretdur0->addItems(m_store.uretimDurumlari());
    m_ui->CmbYazdir0->addItems(
        {u"Yazdırma şekli"_s, u"Resimli üretim listesi"_s, u"Yazılı üretim listesi"_s});
}

void UretimSekmesi::setUpList()
{
    QTableView *list = m_ui->Rapor0;
    list->setModel(m_secim);
    list->setItemDelegate(new MarkedRowDelegate(Qt::BackgroundRole, list));
    list->setHorizontalHeader(new ListHeading(list));
    list->installEventFilter(this);
    list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    list->verticalHeader()->setDefaultSectionSize(list->fontMetrics().height() +
                                                  ListCellDelegate::lineSpace);
    list->horizontalHeader()->setSectionsClickable(true);
    m_ui->splitter->setStretchFactor(0, 5);
    m_ui->splitter->setStretchFactor(1, 4);
    m_ui->splitter->setStretchFactor(2, 4);
    for (QTimer *timer : {&m_orderTimer, &m_modelTimer})
        timer->setSingleShot(true);
}

void UretimSekmesi::connectControls()
{
    QTableView *list = m_ui->Rapor0;
    Messages &messages = m_context.messages;
    connect(list->horizontalHeader(), &QHeaderView::sectionClicked, this, &UretimSekmesi::sortBy);
    connect(list, &QTableView::doubleClicked, this,
            [this](const QModelIndex &cell) { m_secim->toggle(cell.row()); });
    connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { m_orderTimer.start(0); });
    connect(m_ui->Yedek0->rows()->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { m_modelTimer.start(0); });
    connect(m_ui->Yedek0, &RaporGrid::figureActivated, this,
            [this, &messages](qsizetype row) { guarded(messages, this, [&] { showLines(row); }); });
    connect(&m_orderTimer, &QTimer::timeout, this, &UretimSekmesi::refresh);
    connect(&m_modelTimer, &QTimer::timeout, this,
            [this, &messages] { guarded(messages, this, [this] { showModel(); }); });
    connect(m_siparisler, &LookupModel::progressed, this, &UretimSekmesi::showProgress);
    connect(m_siparisler, &LookupModel::failed, this, [this, &messages](const QString &reason) {
        messages.say(this, reason, MessageIcon::Critical, u"HATA"_s);
    });
    connect(m_secim, &SecimModeli::secimChanged, this, [this, &messages] {
        showSelection();
        guarded(messages, this, [this] { tellHiddenLines(); });
    });
    connect(m_ui->Arama, &QLineEdit::textChanged, m_siparisler, &LookupModel::narrow);
    for (DateBox *date : {m_ui->Trh00, m_ui->Trh01}) {
        keepDate(*date, messages);
        connect(date, &DateBox::dateChanged, this, &UretimSekmesi::refresh);
    }
    for (QComboBox *status : {m_ui->Sipdur0, m_ui->Uretdur0})
        connect(status, &QComboBox::currentIndexChanged, this, &UretimSekmesi::refresh);
    connect(m_ui->CmbYazdir0, &ChoiceBox::chosen, this, &UretimSekmesi::print);
}

bool UretimSekmesi::mayLeave()
{
    const QList<qint32> marked = markedOrders();
    return marked.isEmpty() || marked == m_printed ||
           m_context.messages.ask(
               this, u"SEÇİLEN %1 SİPARİŞ YAZDIRILMADI, ÇIKILSIN MI ?"_s.arg(marked.size()),
               MessageIcon::Exclamation, {}, MessageAnswer::No);
}

QList<qint32> UretimSekmesi::markedOrders() const
{
    QList<qint32> marked;
    for (const SecilenSiparis &siparis : m_secim->secim())
        marked.append(siparis.Sipnum);
    return marked;
}

void UretimSekmesi::focusFirst()
{
    m_ui->Rapor0->setFocus();
}

// Keys

/// Enter goes on from filter to filter, and prints on the choice of the sheet.
/// Escape takes the search back before it closes the screen.
void UretimSekmesi::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !m_ui->Arama->text().isEmpty()) {
        m_ui->Arama->clear();
        return;
    }
    if (!isEnter(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (m_ui->CmbYazdir0->hasFocus())
        print();
    else if (m_ui->Arama->hasFocus())
        m_ui->Rapor0->setFocus(Qt::TabFocusReason);
    else
        focusNextChild();
}

bool UretimSekmesi::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->Rapor0 && event->type() == QEvent::KeyPress)
        return listKey(static_cast<QKeyEvent *>(event));
    return QWidget::eventFilter(watched, event);
}

bool UretimSekmesi::listKey(QKeyEvent *event)
{
    const QModelIndex cell = m_ui->Rapor0->currentIndex();
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Insert) {
        if (cell.isValid() && !event->isAutoRepeat())
            m_secim->toggle(cell.row());
    } else if (event->key() == Qt::Key_F9) {
        if (cell.isValid())
            sortBy(cell.column());
    } else if (event->matches(QKeySequence::Copy)) {
        copyCells(*m_ui->Rapor0);
    } else if (typesCharacter(*event)) {
        // What is typed on the list looks for an order.
        m_ui->Arama->setText(m_ui->Arama->text() + event->text());
    } else if (event->key() == Qt::Key_Backspace) {
        m_ui->Arama->setText(m_ui->Arama->text().chopped(m_ui->Arama->text().isEmpty() ? 0 : 1));
    } else {
        return false;
    }
    return true;
}

// The order list

void UretimSekmesi::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    spreadColumns();
}

/// The columns' own widths; the customer gets what room is left over.
void UretimSekmesi::spreadColumns()
{
    QTableView *list = m_ui->Rapor0;
    for (int column = 0; column < m_secim->columnCount(); ++column)
        list->setColumnHidden(column, column >= SecimModeli::shownColumns);
    for (int column = 0; column < SecimModeli::shownColumns; ++column) {
        const int own = qRound(widths[column].pixels(logicalDpiX()));
        const int needed = static_cast<QAbstractItemView *>(list)->sizeHintForColumn(column);
        list->setColumnWidth(column, column == dateColumn ? std::max(own, needed) : own);
        list->horizontalHeader()->setSectionResizeMode(
            column, column == customerColumn ? QHeaderView::Stretch : QHeaderView::Interactive);
    }
}

/// In this column's order; once more, the other way round.
void UretimSekmesi::sortBy(int column)
{
    const bool down =
        m_siparisler->sortColumn() == column && m_siparisler->sortOrder() == Qt::AscendingOrder;
    const Qt::SortOrder order = down ? Qt::DescendingOrder : Qt::AscendingOrder;
    QHeaderView *headings = m_ui->Rapor0->horizontalHeader();
    headings->setSortIndicator(column, order);
    headings->setSortIndicatorShown(true);
    m_siparisler->sort(column, order);
}

/// The list always has a current row; its lines stand beside it.
void UretimSekmesi::showProgress()
{
    QTableView *list = m_ui->Rapor0;
    if (!list->currentIndex().isValid() && m_secim->rowCount() > 0)
        list->setCurrentIndex(m_secim->index(0, 0));
    if (m_secim->rowCount() == 0)
        m_orderTimer.start(0);
    spreadColumns();
    const QString open = m_siparisler->isComplete() ? QString() : u"…"_s;
    m_ui->KayitSayisi->setText(
        u"%1%2 sipariş"_s.arg(formatNumber(m_siparisler->rowCount(), u"#,##0"), open));
}

void UretimSekmesi::showSelection()
{
    constexpr qsizetype mostNamed = 12;
    const QList<SecilenSiparis> secim = m_secim->secim();
    QStringList numbers;
    for (const SecilenSiparis &siparis : secim.first(std::min(mostNamed, secim.size())))
        numbers.append(QString::number(siparis.Sipnum));
    if (secim.size() > mostNamed)
        numbers.append(u"…"_s);
    m_ui->secimNotu->setText(
        secim.isEmpty()
            ? u"Yazdırılacak siparişler çift tıklanarak ya da boşluk tuşuyla seçilir."_s
            : u"%1 sipariş seçili: %2"_s.arg(QString::number(secim.size()), numbers.join(u", "_s)));
}

// The current order

/// Tells of the order lines that the dates keep out of the table and the sheet.
void UretimSekmesi::tellHiddenLines()
{
    QStringList notes;
    const GizliSatirlar shown = m_store.gizliSatirlar({m_Sipnum}, filtre());
    if (shown.toplam() > 0) {
        notes.append(u"Siparişin %1 satırı tabloda gösterilmiyor: %2."_s.arg(
            QString::number(shown.toplam()), shown.nedenler()));
    }
    const GizliSatirlar printed = m_store.gizliSatirlar(markedOrders(), filtre());
    if (printed.toplam() > 0) {
        notes.append(u"Seçili siparişlerin %1 satırı üretim listesine girmiyor: %2."_s.arg(
            QString::number(printed.toplam()), printed.nedenler()));
    }
    m_ui->gizliNotu->setText(notes.join(u'\n'));
    m_ui->gizliNotu->setVisible(!notes.isEmpty());
}

UretimFiltre UretimSekmesi::filtre() const
{
    const auto chosen = [](const QComboBox *list) {
        return list->currentIndex() > 0 ? std::optional(list->currentText()) : std::nullopt;
    };
    return {m_ui->Trh00->lastDate(), m_ui->Trh01->lastDate(), chosen(m_ui->Sipdur0),
            chosen(m_ui->Uretdur0)};
}

void UretimSekmesi::refresh()
{
    guarded(m_context.messages, this, [this] {
        const QModelIndex current = m_ui->Rapor0->currentIndex();
        m_Sipnum = current.isValid() ? m_secim->Sipnum(current.row()) : 0;
        m_adetler = m_store.adetler(m_Sipnum, filtre());
        QTableView *rows = m_ui->Yedek0->rows();
        m_ui->Yedek0->setTable(m_adetler);
        m_ui->siparisBasligi->setText(m_Sipnum != 0 ? m_adetler.title : QString());
        if (m_adetler.hasLines())
            rows->setCurrentIndex(rows->model()->index(0, 0));
        tellHiddenLines();
        m_modelTimer.start(0);
    });
}

void UretimSekmesi::showModel()
{
    const QModelIndex current = m_ui->Yedek0->rows()->currentIndex();
    const auto text = [&](int column) { return current.siblingAtColumn(column).data().toString(); };
    m_ui->modelPaneli->goster(text(0), text(2));
}

void UretimSekmesi::showLines(qsizetype row)
{
    const QVariantList &values = m_adetler.rows[row].values;
    showOrderLines(
        m_context, this,
        m_store.adetSatirlari(m_Sipnum, filtre(), values[0].toString(), values[2].toString()));
}

// The sheet

void UretimSekmesi::print()
{
    if (m_ui->CmbYazdir0->currentIndex() <= 0)
        return;
    // So that the same sheet can be chosen again.
    const auto toFirst = qScopeGuard([this] { m_ui->CmbYazdir0->setCurrentIndex(0); });
    guarded(m_context.messages, this, [this] {
        try {
            showSheet();
        } catch (const UretimReddi &red) {
            const bool none = red.neden() == UretimReddi::Neden::SecimYok;
            m_context.messages.say(this, QString::fromUtf8(red.what()), MessageIcon::Exclamation,
                                   none ? u"HATA"_s : QString());
        }
    });
}

void UretimSekmesi::showSheet()
{
    if (!holdDates({m_ui->Trh00, m_ui->Trh01}, m_context.messages))
        return;
    const auto yazdirma =
        m_ui->CmbYazdir0->currentIndex() == 1 ? UretimYazdirma::Resimli : UretimYazdirma::Yazili;
    const UretimListesi liste = uretimListesi(m_context.oturum, m_secim->secim(), filtre());
    const std::optional<PrintDocument> rapor =
        makeWithProgress(this, u"URETIM RAPORU"_s, [&](const PictureProgress &progress) {
            return uretimRaporu(m_context.oturum, liste, yazdirma, progress);
        });
    if (!rapor)
        return;
    m_context.viewer.show(this, *rapor);
    m_printed = markedOrders();
}

} // namespace kuyum
