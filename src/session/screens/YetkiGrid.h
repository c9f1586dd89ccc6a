#pragma once

#include "MenuStore.h"

#include <QTableView>

class QStandardItemModel;

namespace kuyum {

/// All menu items, those that a user may use marked red and bold. A double
/// click or the space bar asks to turn the row's mark over.
class YetkiGrid : public QTableView
{
    Q_OBJECT

public:
    explicit YetkiGrid(QWidget *parent = nullptr);

    void Yetkidoldur(const QList<MenuOgesi> &items, const QList<qint32> &rights);
    /// Turns the mark of the current row over.
    void toggle();
    bool isMarked(int row) const;
    /// The item of the current row.
    qint32 currentItem() const { return itemAt(currentIndex().row()); }
    /// The marked items, as their rows stand.
    QList<qint32> marked() const;

Q_SIGNALS:
    void toggleAsked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    qint32 itemAt(int row) const;

    QStandardItemModel *m_model;
};

} // namespace kuyum
