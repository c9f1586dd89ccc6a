#pragma once

#include "ChangedMeanwhile.h"
#include "Messages.h"

#include <QDialog>

class QTableWidget;

namespace kuyum {

/// Tells in what a record differs from the one that another stored meanwhile,
/// and asks whose stays. Leaving the box goes back to the screen.
class ChangeBox : public QDialog
{
    Q_OBJECT

public:
    explicit ChangeBox(const ChangedMeanwhile &changed, QWidget *parent = nullptr);

    ChangeAnswer answer() const { return m_answer; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    QTableWidget *makeTable(const QList<FieldChange> &changes);
    QLayout *makeButtons(const ChangedMeanwhile &changed);

    QTableWidget *m_table = nullptr;
    ChangeAnswer m_answer = ChangeAnswer::Back;
};

} // namespace kuyum
