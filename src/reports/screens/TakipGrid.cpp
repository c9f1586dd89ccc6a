#include "TakipGrid.h"

#include "ChoiceBox.h"
#include "DateBox.h"
#include "Dates.h"
#include "EntryControls.h"
#include "ListCellDelegate.h"
#include "ListHeading.h"
#include "Messages.h"
#include "Numbers.h"
#include "TakipModel.h"
#include "Twips.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr Twips widths[TakipModel::Columns] = {1800_tw, 1000_tw, 1000_tw, 3200_tw, 1400_tw,
                                               1400_tw, 1600_tw, 1600_tw, 0_tw};

QString dateText(const DateBox &box)
{
    return box.isBlank() ? QString() : box.text();
}

} // namespace

TakipGrid::TakipGrid(QWidget *parent)
    : QTableView(parent),
      cmbTas(new ChoiceBox(viewport())),
      cmbTas1(new ChoiceBox(viewport())),
      trhEdit(new DateBox(viewport()))
{
    cmbTas->setObjectName(u"cmbTas"_s);
    cmbTas->setAccessibleName(u"Sipariş durumu"_s);
    cmbTas1->setObjectName(u"cmbTas1"_s);
    cmbTas1->setAccessibleName(u"Üretim durumu"_s);
    trhEdit->setObjectName(u"trhEdit"_s);
    trhEdit->setAccessibleName(u"Tarih"_s);
    for (QWidget *editor : std::initializer_list<QWidget *>{cmbTas, cmbTas1, trhEdit}) {
        editor->hide();
        editor->installEventFilter(this);
    }
    for (ChoiceBox *list : {cmbTas, cmbTas1}) {
        connect(list, &ChoiceBox::chosen, this, &TakipGrid::take);
        list->view()->installEventFilter(this);
    }
    setItemDelegate(new ListCellDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    setHorizontalHeader(new ListHeading(this));
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + ListCellDelegate::lineSpace);
    horizontalHeader()->setSectionsClickable(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &TakipGrid::sortBy);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &TakipGrid::placeEditor);
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex &cell) {
        m_buttonDown = true;
        openEditor(cell);
    });
    for (const QScrollBar *bar : {verticalScrollBar(), horizontalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &TakipGrid::placeEditor);
}

void TakipGrid::setUp(TakipModel &model, Messages &messages)
{
    m_model = &model;
    m_messages = &messages;
    setModel(&model);
    setColumnHidden(TakipModel::OtoSayi, true);
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &TakipGrid::abandonEdit);
    connect(&model, &QAbstractItemModel::modelReset, this, &TakipGrid::spreadColumns);
    spreadColumns();
}

void TakipGrid::setDuzen(const TakipDuzeni &duzen)
{
    m_duzen = duzen;
    cmbTas->clear();
    cmbTas->addItems(duzen.siparisDurumlari);
    cmbTas1->clear();
    cmbTas1->addItems(duzen.uretimDurumlari);
    spreadColumns();
}

/// What a column needs: its own width, for dates what those with a time take,
/// and for the statuses what the longest takes, but not more than half as much
/// again.
int TakipGrid::neededWidth(int column) const
{
    const int own = qRound(widths[column].pixels(logicalDpiX()));
    if (TakipModel::isDate(column))
        return std::max(own, sizeHintForColumn(column) + 1);
    QStringList texts;
    if (column == TakipModel::SipDur)
        texts = m_duzen.siparisDurumlari;
    else if (column == TakipModel::UrtDur)
        texts = m_duzen.uretimDurumlari;
    int longest = 0;
    for (const QString &text : texts)
        longest = std::max(longest, fontMetrics().horizontalAdvance(text));
    return qBound(own, longest + 2 * ListCellDelegate::padding + 2, own * 3 / 2);
}

/// The note takes what room the other columns leave.
void TakipGrid::spreadColumns()
{
    constexpr int leastNote = 120;
    if (m_model == nullptr)
        return;
    int others = 0;
    for (int column = 0; column < TakipModel::OtoSayi; ++column) {
        if (column == TakipModel::Aciklama)
            continue;
        setColumnWidth(column, neededWidth(column));
        others += columnWidth(column);
    }
    setColumnWidth(TakipModel::Aciklama, std::max(leastNote, viewport()->width() - others));
}

/// In this column's order; once more, the other way round.
void TakipGrid::sortBy(int column)
{
    abandonEdit();
    QHeaderView *headings = horizontalHeader();
    const bool down = headings->isSortIndicatorShown() &&
                      headings->sortIndicatorSection() == column &&
                      headings->sortIndicatorOrder() == Qt::AscendingOrder;
    const Qt::SortOrder order = down ? Qt::DescendingOrder : Qt::AscendingOrder;
    headings->setSortIndicator(column, order);
    headings->setSortIndicatorShown(true);
    m_model->sort(column, order);
}

void TakipGrid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    spreadColumns();
    placeEditor();
}

// The editors

void TakipGrid::openEditor(const QModelIndex &cell, const QString &typed)
{
    if (!m_duzen.duzenleme || !cell.isValid() || !TakipModel::isEditable(cell.column()))
        return;
    abandonEdit();
    setCurrentIndex(cell);
    m_cell = cell;
    if (TakipModel::isDate(cell.column()))
        openDate(typed);
    else
        openList(cell.column() == TakipModel::SipDur ? cmbTas : cmbTas1, typed);
}

/// A text that is no longer one of the statuses stays until one is chosen.
void TakipGrid::openList(QComboBox *list, const QString &typed)
{
    m_editor = list;
    list->setCurrentIndex(list->findText(m_cell.data().toString(), Qt::MatchFixedString));
    placeEditor();
    list->show();
    list->setFocus();
    if (!m_buttonDown)
        dropDown(typed);
}

/// Opens the entries of the status list, at what is typed. Without a choice in
/// it none of them is marked, so that Enter takes none unseen.
void TakipGrid::dropDown(const QString &typed)
{
    auto *list = qobject_cast<QComboBox *>(m_editor);
    if (list == nullptr)
        return;
    list->showPopup();
    if (list->currentIndex() < 0) {
        list->view()->setCurrentIndex({});
        list->view()->clearSelection();
    }
    if (typed.isEmpty())
        return;
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, typed);
    QCoreApplication::sendEvent(list->view(), &press);
}

/// Entries that open while the button is still down close when it is let go.
void TakipGrid::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    if (std::exchange(m_buttonDown, false))
        dropDown();
}

void TakipGrid::openDate(const QString &typed)
{
    m_editor = trhEdit;
    const QDate there = parseDate(m_cell.data().toString().left(10));
    trhEdit->setDate(there.isValid() ? there : m_duzen.gun);
    placeEditor();
    trhEdit->show();
    trhEdit->setFocus();
    trhEdit->selectAll();
    if (!typed.isEmpty()) {
        trhEdit->clear();
        trhEdit->setCursorPosition(0);
        trhEdit->insert(typed);
        trhEdit->setModified(true);
    }
}

void TakipGrid::placeEditor()
{
    if (m_editor == nullptr)
        return;
    QRect place = visualRect(m_cell);
    // A date is whole beside its calendar's button.
    if (m_editor == trhEdit && place.width() < trhEdit->sizeHint().width()) {
        place.setWidth(trhEdit->sizeHint().width());
        place.moveRight(std::min(place.right(), viewport()->rect().right()));
    }
    m_editor->setGeometry(place);
}

bool TakipGrid::hasUnfinishedEdit() const
{
    if (m_editor == nullptr)
        return false;
    if (m_editor == trhEdit)
        return trhEdit->isModified() && dateText(*trhEdit) != m_cell.data().toString();
    const auto *list = static_cast<const QComboBox *>(m_editor);
    return list->currentIndex() >= 0 && list->currentText() != m_cell.data().toString();
}

bool TakipGrid::finishEdit()
{
    if (hasUnfinishedEdit())
        take();
    else
        abandonEdit();
    return m_editor == nullptr;
}

void TakipGrid::abandonEdit()
{
    if (m_editor == nullptr)
        return;
    QWidget *editor = std::exchange(m_editor, nullptr);
    // The window may be in the background, behind a message box.
    const bool hadFocus = editor == window()->focusWidget();
    m_cell = QPersistentModelIndex();
    editor->hide();
    if (hadFocus)
        setFocus();
}

/// Writes what stands in the editor into its cell and closes it. What is no
/// date stays in the editor.
void TakipGrid::take()
{
    if (m_editor == nullptr)
        return;
    if (m_editor == trhEdit) {
        const bool untouched = !trhEdit->isModified() && !m_cell.data().toString().isEmpty();
        if (!untouched && !m_model->setData(m_cell, dateText(*trhEdit))) {
            m_messages->say(window(), u"Tarih Hatali."_s);
            trhEdit->setFocus();
            trhEdit->selectAll();
            return;
        }
    } else if (const auto *list = static_cast<QComboBox *>(m_editor); list->currentIndex() >= 0) {
        m_model->setData(m_cell, list->currentText());
    }
    abandonEdit();
}

// Keys

void TakipGrid::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex cell = currentIndex();
    if (event->matches(QKeySequence::Copy))
        copyCells(*this);
    else if (isEnter(*event) || event->key() == Qt::Key_F2)
        openEditor(cell);
    else if (event->key() == Qt::Key_F9 && cell.isValid())
        sortBy(cell.column());
    else if (event->key() == Qt::Key_Delete) {
        if (!m_duzen.duzenleme && cell.isValid() && TakipModel::isEditable(cell.column()))
            m_model->setData(cell, QString());
    } else if (event->key() == Qt::Key_Escape)
        Q_EMIT abandoned();
    else if (!typesCharacter(*event))
        QTableView::keyPressEvent(event);
    else if (!TakipModel::isDate(cell.column()) || isDecimalDigit(event->text().front()))
        openEditor(cell, event->text());
}

bool TakipGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (const auto *list = qobject_cast<QComboBox *>(m_editor);
        list != nullptr && watched == list->view())
        return event->type() == QEvent::KeyPress && entriesKey(static_cast<QKeyEvent *>(event));
    if (m_editor == nullptr || watched != m_editor)
        return QTableView::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return editorKey(static_cast<QKeyEvent *>(event));
    // Only Enter and a choice write: who goes elsewhere has not decided.
    if (leavesForGood(*event))
        abandonEdit();
    return false;
}

/// A key in the open entries of a status list.
bool TakipGrid::entriesKey(const QKeyEvent *event)
{
    auto *list = static_cast<QComboBox *>(m_editor);
    // Still held from what opened them.
    if (event->isAutoRepeat() && (isEnter(*event) || event->key() == Qt::Key_Escape))
        return true;
    const bool takesNone = isEnter(*event) && !list->view()->currentIndex().isValid();
    if (event->key() != Qt::Key_Escape && !takesNone)
        return false;
    list->hidePopup();
    abandonEdit();
    return true;
}

bool TakipGrid::editorKey(QKeyEvent *event)
{
    if (isEnter(*event)) {
        take();
        return true;
    }
    if (event->key() == Qt::Key_Escape) {
        abandonEdit();
        return true;
    }
    if (m_editor == trhEdit || !typesCharacter(*event))
        return false;
    dropDown(event->text());
    return true;
}

} // namespace kuyum
