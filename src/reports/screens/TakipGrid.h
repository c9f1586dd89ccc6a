#pragma once

#include <QDate>
#include <QPersistentModelIndex>
#include <QStringList>
#include <QTableView>

class QComboBox;

namespace kuyum {

class ChoiceBox;
class DateBox;
class Messages;
class TakipModel;

/// What an order control grid's user may do, and what is offered to him.
struct TakipDuzeni
{
    bool duzenleme = false; ///< whether he may set statuses and dates
    QStringList siparisDurumlari;
    QStringList uretimDurumlari;
    QDate gun; ///< offered for a date that is not set
};

/// The order control grid `Rapor1`. For who may edit, a double click, Enter,
/// F2 or typing on a status or date opens an editor over the cell, a status
/// with its entries dropped open. Who may not can empty such a cell with
/// Delete, and only he.
class TakipGrid : public QTableView
{
    Q_OBJECT

public:
    explicit TakipGrid(QWidget *parent = nullptr);

    /// Both references stay the caller's; called once.
    void setUp(TakipModel &model, Messages &messages);
    void setDuzen(const TakipDuzeni &duzen);

    /// An editor is open and holds what its cell does not have yet.
    bool hasUnfinishedEdit() const;
    /// Takes what stands in an open editor; false when that is no date.
    bool finishEdit();
    /// Closes the editor and leaves the cell as it was.
    void abandonEdit();

Q_SIGNALS:
    void abandoned();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int neededWidth(int column) const;
    void spreadColumns();
    void sortBy(int column);
    void openEditor(const QModelIndex &cell, const QString &typed = {});
    void openList(QComboBox *list, const QString &typed);
    void openDate(const QString &typed);
    void dropDown(const QString &typed = {});
    bool editorKey(QKeyEvent *event);
    bool entriesKey(const QKeyEvent *event);
    void placeEditor();
    void take();

    TakipModel *m_model = nullptr;
    Messages *m_messages = nullptr;
    TakipDuzeni m_duzen;
    ChoiceBox *cmbTas;
    ChoiceBox *cmbTas1;
    DateBox *trhEdit;
    QWidget *m_editor = nullptr;  ///< the open one
    QPersistentModelIndex m_cell; ///< that it stands over
    bool m_buttonDown = false;    ///< since the double click that opened the editor
};

} // namespace kuyum
