#pragma once

#include "Model.h"

#include <functional>
#include <QTableView>

namespace kuyum {

class MalzemeModel;
class MalzemeDelegate;
class Messages;

/// The materials of a model. Enter or typing opens the cell's editor: `cmbTas`
/// for the kind, `txtTas` for the code, `txtTas1` for the count; Enter in an
/// editor takes what it holds and goes on to the next cell.
class ModelGrid : public QTableView
{
    Q_OBJECT

public:
    /// Takes what was entered as the row's code, empty to have it picked from
    /// a list; false when the row was not filled.
    using TakeCode = std::function<bool(int row, const QString &code)>;

    explicit ModelGrid(QWidget *parent = nullptr);

    void setUp(MalzemeModel *model, Messages &messages, TakeCode take);
    /// How many characters the fields of the codes take; 0 is no limit.
    void setCodeLimit(int characters);

    /// Whether an open editor holds something else than its cell.
    bool isEditBegun() const;
    /// Takes what an open editor holds and closes it; false when that was refused.
    bool finishEdit();
    /// Closes an open editor and leaves the cell as it was.
    void abandonEdit();
    /// Opens a row behind the last one, unless that is still blank.
    void SatirAc();
    void goTo(int row, int column);

Q_SIGNALS:
    void rowRemovalAsked(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool takeEdit();
    void takeKind(int row, MalzemeTipi tip);
    bool takeCode(const QModelIndex &cell);
    void goOn();
    void editorLeft();
    void spreadColumns();

    MalzemeModel *m_model = nullptr;
    Messages *m_messages = nullptr;
    MalzemeDelegate *m_delegate = nullptr;
    TakeCode m_take;
    bool m_taking = false;
};

} // namespace kuyum
