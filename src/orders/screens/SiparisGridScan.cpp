#include "EntryControls.h"
#include "ProductLabel.h"
#include "SiparisGrid.h"
#include "SiparisModel.h"

#include <QKeyEvent>

namespace kuyum {

/// The order's grid: labels from a barcode scanner in quick entry.

/// Within this time after a label an Enter is the scanner's, not the user's.
static constexpr quint64 scannerEnterMs = 300;

/// Takes a label that the key completes. Its other digits went into the cell
/// the cursor stands on, and are taken out of it again.
bool SiparisGrid::takeScan(const QKeyEvent *event)
{
    if (!m_quickEntry)
        return false;
    m_keyTime = event->timestamp();
    const std::optional<LabelScan::Label> label = m_scan.take(*event, m_editors->entry());
    if (!label)
        return false;
    m_editors->restore(label->before);
    leaveEntry();
    takeLabel(label->text);
    return true;
}

/// Takes what a person had entered when the scan broke in.
void SiparisGrid::leaveEntry()
{
    const QModelIndex cell = m_editors->cell();
    if (!m_editors->isOpen() || cell.column() != SiparisModel::modelColumn) {
        finishEdit();
        return;
    }
    const QString text = m_editors->text().trimmed();
    // An unknown label, still in its cell, has been told of.
    if (text.isEmpty() || text == m_model->rowAt(cell.row()).model || readLabel(text))
        m_editors->close();
    else
        takeModel(text, ModelSource::Left);
}

void SiparisGrid::labelTyped(const QString &text)
{
    const QModelIndex cell = m_editors->cell();
    if (!m_quickEntry || cell.column() != SiparisModel::modelColumn || !readLabel(text))
        return;
    setCurrentIndex(cell);
    takeLabel(text);
}

void SiparisGrid::takeLabel(const QString &text)
{
    m_editors->close();
    // A label adds a piece; it never takes the place of a row that is there.
    if (currentIndex().column() != SiparisModel::modelColumn ||
        !m_model->rowAt(currentIndex().row()).model.isEmpty())
        goToEmptyRow();
    startEditor(currentIndex(), text);
    const QModelIndex cell = m_editors->cell();
    if (takeModel(text))
        goOn(cell);
    m_labelTime = m_keyTime;
}

/// A scanner that sends Enter behind the label must not start anything with it.
bool SiparisGrid::isScannerEnter(const QKeyEvent *event)
{
    const std::optional<quint64> label = std::exchange(m_labelTime, std::nullopt);
    return label && isEnter(*event) && event->timestamp() - *label < scannerEnterMs;
}

} // namespace kuyum
