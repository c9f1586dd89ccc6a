#include "ModelGrid.h"

#include "EntryControls.h"
#include "MalzemeDelegate.h"
#include "MalzemeModel.h"
#include "Messages.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace kuyum {

ModelGrid::ModelGrid(QWidget *parent) : QTableView(parent)
{
    setEditTriggers(DoubleClicked | AnyKeyPressed);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 14);
}

void ModelGrid::setUp(MalzemeModel *model, Messages &messages, TakeCode take)
{
    m_model = model;
    m_messages = &messages;
    m_take = std::move(take);
    m_delegate = new MalzemeDelegate(messages, this);
    setItemDelegate(m_delegate);
    setModel(model);
    setColumnHidden(MalzemeModel::idColumn, true);
    connect(m_delegate, &MalzemeDelegate::entered, this, [this] {
        if (takeEdit())
            goOn();
    });
    connect(m_delegate, &MalzemeDelegate::abandoned, this, &ModelGrid::abandonEdit);
    connect(m_delegate, &MalzemeDelegate::left, this, &ModelGrid::editorLeft);
    goTo(0, MalzemeModel::tipColumn);
}

void ModelGrid::setCodeLimit(int characters)
{
    m_delegate->setCodeLimit(characters);
}

void ModelGrid::goTo(int row, int column)
{
    setCurrentIndex(m_model->index(row, column));
}

void ModelGrid::SatirAc()
{
    const ModelSatiri &last = m_model->satirlar().last();
    if (last != ModelSatiri())
        m_model->addRow();
    goTo(m_model->rowCount() - 1, MalzemeModel::tipColumn);
    setFocus();
}

bool ModelGrid::isEditBegun() const
{
    return m_delegate->isEditing() &&
           m_delegate->text() != m_delegate->cell().data(Qt::EditRole).toString();
}

bool ModelGrid::finishEdit()
{
    if (m_taking)
        return false;
    // An editor merely opened does not ask for a list.
    if (!isEditBegun()) {
        abandonEdit();
        return true;
    }
    return takeEdit();
}

/// Takes what the open editor holds, as its Enter does.
bool ModelGrid::takeEdit()
{
    const QModelIndex cell = m_delegate->cell();
    const QString text = m_delegate->text();
    if (cell.column() == MalzemeModel::kodColumn) {
        if (!takeCode(cell))
            return false;
    } else if (cell.column() == MalzemeModel::tipColumn) {
        takeKind(cell.row(),
                 text == malzemeAdi(MalzemeTipi::Tas) ? MalzemeTipi::Tas : MalzemeTipi::YariMamul);
    } else {
        m_model->setData(cell, text);
    }
    setCurrentIndex(cell);
    abandonEdit();
    return true;
}

/// Another kind clears the row's material, which is not lost unasked: from
/// `Adet` the cursor comes back to the kind of the row just filled.
void ModelGrid::takeKind(int row, MalzemeTipi tip)
{
    const ModelSatiri &satir = m_model->rowAt(row);
    const bool clears = satir.tip != tip && (satir.M_Kod != 0 || satir.M_Adet != 0);
    m_taking = true;
    const bool wanted =
        !clears ||
        m_messages->ask(window(),
                        u"TİP DEĞİŞİNCE SATIRDAKİ %1 SİLİNECEK, DEĞİŞTİRİLSİN Mİ ?"_s.arg(
                            satir.Kod.isEmpty() ? u"MALZEME"_s : satir.Kod),
                        MessageIcon::Exclamation, {}, MessageAnswer::No);
    m_taking = false;
    if (wanted)
        m_model->setTip(row, tip);
}

bool ModelGrid::takeCode(const QModelIndex &cell)
{
    const QString code = m_delegate->text().trimmed();
    if (!code.isEmpty() && code == m_model->rowAt(cell.row()).Kod)
        return true;
    m_taking = true;
    const bool taken = m_take(cell.row(), code);
    m_taking = false;
    if (auto *box = qobject_cast<QLineEdit *>(m_delegate->editor()); !taken && box != nullptr) {
        box->setFocus();
        box->selectAll();
    }
    return taken;
}

void ModelGrid::abandonEdit()
{
    QWidget *editor = m_delegate->editor();
    if (editor == nullptr)
        return;
    // The window may be in the background, behind a message box.
    const bool hadFocus = editor == window()->focusWidget();
    m_delegate->forgetEditor();
    closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (hadFocus)
        setFocus();
}

/// The focus went to another control: what was typed is taken, except that a
/// code is only looked up when the user goes on in the grid or saves.
void ModelGrid::editorLeft()
{
    if (!m_taking && m_delegate->cell().column() != MalzemeModel::kodColumn)
        finishEdit();
}

void ModelGrid::goOn()
{
    const QModelIndex cell = currentIndex();
    const bool last = cell.column() == MalzemeModel::adetColumn;
    goTo(cell.row(), last ? MalzemeModel::tipColumn : cell.column() + 1);
}

void ModelGrid::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex cell = currentIndex();
    const int key = event->key();
    const bool changesRows = key == Qt::Key_Insert || key == Qt::Key_Delete;
    // Held down, Enter would walk round and Delete take one row after the other.
    if (event->isAutoRepeat() && (isEnter(*event) || changesRows))
        return;
    const bool opens = isEnter(*event) || key == Qt::Key_F2;
    const bool ours = opens || changesRows;
    // An editor that was left with a code not yet taken is finished first.
    if (ours && !finishEdit())
        return;
    if (opens)
        edit(cell);
    else if (key == Qt::Key_Insert)
        SatirAc();
    else if (key == Qt::Key_Delete && cell.isValid())
        Q_EMIT rowRemovalAsked(cell.row());
    else if (key == Qt::Key_Escape)
        event->ignore(); // the screen's
    else
        QTableView::keyPressEvent(event);
}

/// Going to another cell closes an editor, so what it holds is taken first.
void ModelGrid::mousePressEvent(QMouseEvent *event)
{
    if (finishEdit())
        QTableView::mousePressEvent(event);
}

void ModelGrid::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    spreadColumns();
}

/// In the proportions 1800 : 3200 : 800 over the whole width.
void ModelGrid::spreadColumns()
{
    constexpr int kind = 1800;
    constexpr int code = 3200;
    constexpr int count = 800;
    const int width = viewport()->width();
    setColumnWidth(MalzemeModel::tipColumn, width * kind / (kind + code + count));
    setColumnWidth(MalzemeModel::adetColumn, width * count / (kind + code + count));
    setColumnWidth(MalzemeModel::kodColumn, width - columnWidth(MalzemeModel::tipColumn) -
                                                columnWidth(MalzemeModel::adetColumn));
}

} // namespace kuyum
