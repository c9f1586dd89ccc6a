#pragma once

#include "MenuStore.h"

#include <QElapsedTimer>
#include <QPushButton>
#include <QWidget>

class QGridLayout;

namespace kuyum {

/// Gives the focus to the first enabled button.
void focusFirst(const QList<QPushButton *> &buttons);
/// Gives the focus to the next enabled button, going from one of the list on in
/// steps. False when there is none.
bool focusAlong(const QList<QPushButton *> &buttons, const QWidget *from, qsizetype step);

/// The menu's own buttons, CmdMenu 0 to 19. Those of the user are shown one
/// after another, filling columns from top to bottom. The arrow keys move
/// between them, and typing a number goes to its button.
class MenuPanel : public QWidget
{
    Q_OBJECT

public:
    explicit MenuPanel(QWidget *parent = nullptr);

    QPushButton *CmdMenu(int number) const { return m_buttons.value(number); }
    /// Shows the items' buttons; an item without a button is passed over.
    void showItems(const QList<MenuOgesi> &items);
    bool isEmpty() const { return m_shown.isEmpty(); }
    void focusFirst() { kuyum::focusFirst(m_shown); }
    /// A digit that was typed anywhere in the menu. Quick ones are one number,
    /// whose button gets the focus; without one no button keeps it.
    void typeDigit(QChar digit);

Q_SIGNALS:
    void chosen(int number);
    /// Whether it is a button's, or can become one's by another digit.
    void numberTyped(int number, bool known);
    /// The left arrow was pressed in the first column.
    void leftEdge();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isOpen(int number) const;
    bool beginsNumber(int digit) const;
    bool moveFocus(const QWidget *from, int key);

    QGridLayout *m_grid;
    QList<QPushButton *> m_buttons;
    QList<QPushButton *> m_shown;
    QString m_typed;
    QElapsedTimer m_sinceDigit;
};

} // namespace kuyum
