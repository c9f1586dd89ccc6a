#pragma once

#include <QTableView>

namespace kuyum {

class Messages;

/// The grid in which rates are typed. Typing, Enter, F2 or a click opens the
/// editor `txtEdit` over the cell. There Enter goes down the column and on to
/// the top of the next, Tab goes to the next cell, and arrows go up and down.
class RateGrid : public QTableView
{
    Q_OBJECT

public:
    explicit RateGrid(QWidget *parent = nullptr);

    /// Where an entry that is no number is refused; called once.
    void setMessages(Messages &messages);
    /// Gives the columns and the grid their widths; after each change of columns.
    void spreadColumns();
    /// To the first rate.
    void goToFirst();
    /// Takes what stands in an open editor.
    void finishEdit();

Q_SIGNALS:
    /// The user goes on from the last rate.
    void finished();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    bool focusNextPrevChild(bool next) override;

private:
    int ratesPerRow() const;
    int currentPlace() const; ///< of the current rate in reading order
    void editRate(const QModelIndex &cell);
    void goOn(int key);
    void goDown();
    void goToCell(int place);
};

} // namespace kuyum
