#pragma once

#include <QObject>
#include <QPersistentModelIndex>

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QTableView;

namespace kuyum {

/// The order grid's two cell editors: txtTas for texts and quantities, cmbTas
/// for colours. They stand over the cell they edit.
class CellEditors : public QObject
{
    Q_OBJECT

public:
    enum class Kind { Text, Quantity, Colour };

    /// What stands in the open editor; no cell when none is open.
    struct Entry
    {
        QPersistentModelIndex cell;
        QString text;
        int colour = -1; ///< in the list of colours
    };

    explicit CellEditors(QTableView *grid);

    void setColours(const QStringList &colours);

    /// Opens an editor over the cell; `typed` replaces the cell's text. At most
    /// `limit` characters are taken (0: no limit).
    void open(const QModelIndex &cell, Kind kind, int limit, const QString &typed);
    /// Closes the editor; the grid takes the focus back if the editor had it.
    void close();
    void place();
    bool isOpen() const { return m_cell.isValid(); }
    QModelIndex cell() const { return m_cell; }
    /// The open editor; null when none is.
    QWidget *editor() const;
    QString text() const;
    /// Whether the editor holds anything but the cell's text. A colour list
    /// without a choice does not.
    bool isChanged() const;
    Entry entry() const;
    /// Puts back what stood in the editor, or closes it where none was open.
    void restore(const Entry &entry);
    void selectAll();
    /// Chooses the colour that begins with what was typed so far; false for a
    /// key that types nothing.
    bool typeColour(const QKeyEvent *event);

Q_SIGNALS:
    void edited(const QString &text);

private:
    void chooseColour(const QString &text);

    QTableView *m_grid;
    QLineEdit *txtTas;
    QComboBox *cmbTas;
    QPersistentModelIndex m_cell;
    Kind m_kind = Kind::Text;
    QString m_colourTyped;
};

} // namespace kuyum
