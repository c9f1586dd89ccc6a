#include "Liste_Combo.h"

#include "Dates.h"
#include "Guarded.h"
#include "HelpFile.h"
#include "ListCellDelegate.h"
#include "LookupModel.h"
#include "Numbers.h"
#include "Oturum.h"
#include "PictureFiles.h"
#include "Theme.h"
#include "ui_Liste_Combo.h"

#include <numeric>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QtMath>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

bool isPlainTyping(Qt::KeyboardModifiers modifiers)
{
    const auto chord = modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // The right Alt key, which types letters, comes as both on Windows.
    return chord == Qt::NoModifier || chord == (Qt::ControlModifier | Qt::AltModifier);
}

} // namespace

Liste_Combo::Liste_Combo(Oturum &oturum, Messages &messages, const LookupRequest &request,
                         QWidget *parent)
    : QDialog(parent),
      m_oturum(oturum),
      m_messages(messages),
      m_list(lookupList(request.ListeTuru)),
      m_ui(std::make_unique<Ui::Liste_Combo>()),
      m_model(new LookupModel(this))
{
    m_ui->setupUi(this);
    setWindowTitle(m_list.caption);
    setUpGrid();
    QString hint = u"Enter : Seç  , Esc : Kapat  , F9 : Sırala"_s;
    if (m_list.source == LookupSource::Help)
        hint = u"Esc : Kapat  , F9 : Sırala"_s;
    if (request.cokSecim) {
        m_ui->Rapor->setSelectionMode(QAbstractItemView::ExtendedSelection);
        hint += u"  , Shift+Ok, Ctrl+Tık : Birden çok seç"_s;
    }
    m_ui->Ipucu->setText(m_list.hint.isEmpty() ? hint : m_list.hint + u"  , "_s + hint);
    m_ui->Kurlar->setVisible(m_list.source == LookupSource::Rates);
    m_ui->Resim->setVisible(m_list.picture != LookupPicture::None);

    connect(m_model, &LookupModel::progressed, this, &Liste_Combo::showProgress);
    connect(m_model, &LookupModel::failed, this, [this](const QString &reason) {
        m_messages.say(this, reason, MessageIcon::Critical, u"HATA"_s);
    });
    connect(m_ui->Arama, &QLineEdit::textChanged, this, &Liste_Combo::narrow);
    m_pictureTimer.setSingleShot(true);
    connect(&m_pictureTimer, &QTimer::timeout, this,
            [this] { guarded(m_messages, this, [this] { showPicture(); }); });

    m_model->open(openLookup(oturum, m_list, request.ListeFiltre));
    setUpSize();
    m_ui->Rapor->setFocus();
}

Liste_Combo::~Liste_Combo() = default;

void Liste_Combo::setUpGrid()
{
    QTableView *grid = m_ui->Rapor;
    QFont font = grid->font();
    font.setPointSize(m_list.fontPoints);
    grid->setFont(font);
    grid->setModel(m_model);
    grid->setItemDelegate(new ListCellDelegate(grid));
    grid->installEventFilter(this);
    m_ui->Arama->installEventFilter(this);

    QHeaderView *rows = grid->verticalHeader();
    rows->setDefaultSectionSize(QFontMetrics(font).height() + ListCellDelegate::lineSpace);
    // Advice runs over several lines; all other rows are one line high, so a
    // long list need not measure them.
    const bool lines = m_list.source == LookupSource::Help;
    grid->setWordWrap(lines);
    rows->setSectionResizeMode(lines ? QHeaderView::ResizeToContents : QHeaderView::Fixed);

    QHeaderView *headings = grid->horizontalHeader();
    headings->setSectionsClickable(true);
    connect(headings, &QHeaderView::sectionClicked, this, &Liste_Combo::sortBy);
    connect(grid, &QTableView::doubleClicked, this, &Liste_Combo::take);
    connect(grid->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid())
                    m_column = current.column();
                m_pictureTimer.start(0);
                if (m_list.source == LookupSource::Rates)
                    showRates();
            });
}

/// The highlighted date's rates to their last digit, which the columns round.
void Liste_Combo::showRates()
{
    const QModelIndex current = m_ui->Rapor->currentIndex();
    QStringList rates;
    for (int column = 1; current.isValid() && column < m_model->columnCount(); ++column) {
        const QString rate = current.siblingAtColumn(column).data(Qt::ToolTipRole).toString();
        if (!rate.isEmpty())
            rates.append(m_model->columns()[column].heading.trimmed() + u" : "_s + rate);
    }
    m_ui->Kurlar->setText(rates.join(u"  ,  "_s));
}

/// What a column's heading and its first rows take.
int Liste_Combo::neededWidth(int column) const
{
    const QFontMetrics metrics(m_ui->Rapor->font());
    int needed = metrics.horizontalAdvance(m_model->columns()[column].heading);
    for (int row = 0; row < qMin(m_model->rowCount(), 50); ++row) {
        const QString text = m_model->index(row, column).data().toString();
        needed = qMax(needed, metrics.horizontalAdvance(text));
    }
    return needed + 2 * ListCellDelegate::padding + 2;
}

/// A column has its own width; where the system's font is a wide one, what is
/// needed, but not more than half as much again. A date is whole in any case,
/// with its time too. What is too much for the room is taken from the columns
/// that do not need all they have.
void Liste_Combo::showColumns(int room)
{
    constexpr int dateCharacters = 10;
    const QList<LookupColumn> &columns = m_model->columns();
    QList<int> widths;
    QList<int> spare;
    for (int i = 0; i < columns.size(); ++i) {
        const int own = qRound(columns[i].width.pixels(logicalDpiX()));
        const int needed = own == 0 ? 0 : neededWidth(i);
        const QString first = m_model->index(0, i).data().toString().left(dateCharacters);
        const int most = parseDate(first).isValid() ? needed : own * 3 / 2;
        widths.append(qBound(own, needed, std::max(own, most)));
        spare.append(qMax(0, widths.last() - needed));
    }
    const int missing = std::accumulate(widths.begin(), widths.end(), -room);
    const int spared = std::accumulate(spare.begin(), spare.end(), 0);
    const double share = spared == 0 ? 0 : qBound(0.0, double(missing) / spared, 1.0);
    for (int i = 0; i < columns.size(); ++i) {
        m_ui->Rapor->setColumnHidden(i, widths[i] == 0);
        m_ui->Rapor->setColumnWidth(i, widths[i] - qCeil(share * spare[i]));
    }
    QHeaderView *headings = m_ui->Rapor->horizontalHeader();
    headings->setSortIndicatorShown(false);
    headings->setStretchLastSection(!columns.isEmpty() &&
                                    columns.last().alignment != Qt::AlignRight);
}

/// Wide enough for all columns and the picture, as far as the screen allows.
void Liste_Combo::setUpSize()
{
    const bool pictured = m_list.picture != LookupPicture::None;
    const QMargins margins = m_ui->layout->contentsMargins();
    const QSize room = screen()->availableSize() - QSize(40, 60);
    const int besides = margins.left() + margins.right() + 2 * m_ui->Rapor->frameWidth() +
                        m_ui->Rapor->verticalScrollBar()->sizeHint().width() +
                        (pictured ? m_ui->splitter->handleWidth() : 0) + 4;
    const int leastPicture = pictured ? m_ui->Resim->minimumWidth() : 0;
    showColumns(room.width() - besides - leastPicture);

    const int grid = m_ui->Rapor->horizontalHeader()->length();
    const int picture = pictured ? qBound(leastPicture, room.width() - besides - grid,
                                          m_ui->Resim->sizeHint().width())
                                 : 0;
    resize(QSize(grid + picture + besides, 620).expandedTo(QSize(440, 0)).boundedTo(room));
    m_ui->splitter->setSizes({width() - margins.left() - margins.right() - picture, picture});
    m_ui->splitter->setStretchFactor(0, 1);
    m_ui->splitter->setStretchFactor(1, 1);
}

bool Liste_Combo::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (watched == m_ui->Rapor)
            return gridKey(key);
        if (watched == m_ui->Arama)
            return searchKeyPressed(key);
    }
    return QDialog::eventFilter(watched, event);
}

bool Liste_Combo::gridKey(QKeyEvent *event)
{
    const bool orders = m_list.name == orderListName;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Still held from what opened the list, it has chosen nothing.
        if (!event->isAutoRepeat())
            take();
        return true;
    case Qt::Key_Escape:
        reject();
        return true;
    case Qt::Key_F9:
        sortBy(m_column);
        return true;
    case Qt::Key_F11:
        if (orders)
            rebindOrders({});
        return orders;
    case Qt::Key_F12:
        if (orders)
            narrowOrders();
        return orders;
    case Qt::Key_Insert:
        if (m_list.source == LookupSource::Help)
            addHelp();
        return true;
    case Qt::Key_Backspace:
        m_ui->Arama->setText(m_ui->Arama->text().chopped(m_ui->Arama->text().isEmpty() ? 0 : 1));
        return true;
    default:
        return typedKey(event);
    }
}

/// Letters typed on the grid go to the search box.
bool Liste_Combo::typedKey(const QKeyEvent *event)
{
    const QString text = event->text();
    if (text.isEmpty() || !text.front().isPrint() || !isPlainTyping(event->modifiers()))
        return false;
    if (text == u" " && m_ui->Arama->text().isEmpty())
        return true;
    m_ui->Arama->setText(m_ui->Arama->text() + text);
    return true;
}

/// From the search box, the keys that are not for its text work on the grid.
bool Liste_Combo::searchKeyPressed(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_ui->Rapor, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_F9:
    case Qt::Key_F11:
    case Qt::Key_F12:
    case Qt::Key_Insert:
        return gridKey(event);
    default:
        return false;
    }
}

void Liste_Combo::narrow(const QString &text)
{
    m_model->narrow(text);
    highlightFirst();
}

/// In this column's order; once more, the other way round.
void Liste_Combo::sortBy(int column)
{
    const bool down = m_model->sortColumn() == column && m_model->sortOrder() == Qt::AscendingOrder;
    const Qt::SortOrder order = down ? Qt::DescendingOrder : Qt::AscendingOrder;
    QHeaderView *headings = m_ui->Rapor->horizontalHeader();
    headings->setSortIndicator(column, order);
    headings->setSortIndicatorShown(true);
    m_model->sort(column, order);
}

/// The marked rows from top to bottom, or else the highlighted one.
QList<int> Liste_Combo::chosenRows() const
{
    QList<int> rows;
    for (const QModelIndex &cell : m_ui->Rapor->selectionModel()->selectedRows())
        rows.append(cell.row());
    if (rows.size() < 2)
        return {qMax(0, m_ui->Rapor->currentIndex().row())};
    std::sort(rows.begin(), rows.end());
    return rows;
}

void Liste_Combo::take()
{
    guarded(m_messages, this, [this] {
        const QList<int> rows = chosenRows();
        // A fast typist presses Enter before the first match was found.
        if (m_model->waitForRow(rows.last()))
            m_answer = lookupAnswer(m_list, m_model->values(rows.first()));
        for (qsizetype i = 0; rows.size() > 1 && i < rows.size(); ++i)
            m_answer.Secilenler.push_back(lookupAnswer(m_list, m_model->values(rows[i])));
        accept();
    });
}

void Liste_Combo::narrowOrders()
{
    const QModelIndex current = m_ui->Rapor->currentIndex();
    if (current.isValid())
        rebindOrders(orderCondition(current.column(), m_model->values(current.row())));
}

void Liste_Combo::rebindOrders(const QString &condition)
{
    guarded(m_messages, this, [&] {
        m_ui->Arama->clear();
        m_model->open(openOrders(m_oturum, condition));
        m_ui->Rapor->horizontalHeader()->setSortIndicatorShown(false);
    });
}

void Liste_Combo::addHelp()
{
    const std::optional<QString> text =
        m_messages.input(this, u"BILGI GIRIN"_s, u"YARDIM DOSYASINA BILGI EKLEME"_s, QString());
    if (!text || text->trimmed().isEmpty())
        return;
    guarded(m_messages, this, [&] {
        const QString line =
            HelpFile(m_oturum.kayitYolu).append(QDate::currentDate(), text->trimmed());
        m_ui->Arama->clear();
        m_model->append({line});
        m_ui->Rapor->setCurrentIndex(m_model->index(m_model->rowCount() - 1, 0));
    });
}

/// A list always has a highlighted row, so that Enter and F12 have a meaning.
void Liste_Combo::highlightFirst()
{
    QTableView *grid = m_ui->Rapor;
    if (!grid->currentIndex().isValid() && m_model->rowCount() > 0)
        grid->setCurrentIndex(m_model->index(0, m_column));
    m_pictureTimer.start(0);
}

void Liste_Combo::showProgress()
{
    highlightFirst();
    const QString shown = formatNumber(m_model->rowCount(), u"#,##0");
    const QString read = formatNumber(m_model->readCount(), u"#,##0");
    const QString open = m_model->isComplete() ? QString() : u"…"_s;
    const bool narrowed = !m_ui->Arama->text().trimmed().isEmpty();
    m_ui->KayitSayisi->setText(narrowed ? u"%1%2 / %3 kayıt"_s.arg(shown, open, read)
                                        : u"%1%2 kayıt"_s.arg(read, open));
}

void Liste_Combo::showPicture()
{
    const QModelIndex current = m_ui->Rapor->currentIndex();
    if (m_list.picture == LookupPicture::None)
        return;
    QString path;
    if (current.isValid()) {
        const QVariantList row = m_model->values(current.row());
        path = m_list.picture == LookupPicture::Mold
                   ? moldPicturePath(m_oturum.ResimYolu, lookupText(row[1]))
                   : modelPicturePath(m_oturum.ResimYolu, lookupText(row[0]), lookupText(row[3]));
    }
    m_ui->Resim->showFile(path);
}

LookupOpener lookupOpener(Oturum &oturum, Messages &messages)
{
    return [&oturum, &messages](QWidget *parent, const LookupRequest &request) {
        LookupAnswer answer;
        guarded(messages, parent, [&] {
            Liste_Combo dialog(oturum, messages, request, parent);
            dialog.exec();
            answer = dialog.answer();
        });
        return answer;
    };
}

} // namespace kuyum
