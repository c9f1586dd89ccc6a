#pragma once

#include <QTableView>

namespace kuyum {

class KatalogModel;
class Messages;

/// The rows of a catalogue. Enter or F2 edits weight and remark; Alt with the
/// arrows or the mouse moves the current row to another place.
class KatalogGrid : public QTableView
{
    Q_OBJECT

public:
    explicit KatalogGrid(QWidget *parent = nullptr);

    /// `remarkLimit` is how many characters a remark takes; 0 is no limit.
    void setUp(KatalogModel *model, Messages &messages, int remarkLimit);
    void goTo(int row);
    /// Takes what an open editor holds.
    void finishEdit();

Q_SIGNALS:
    void rowRemovalAsked(int row);
    /// Insert was pressed.
    void rowWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void moveCurrent(int to);
    void spreadColumns();

    KatalogModel *m_model = nullptr;
    int m_pressedAt = -1; ///< the height at which the mouse took a row; -1: it has none
};

} // namespace kuyum
