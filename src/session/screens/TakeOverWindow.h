#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

namespace kuyum {

class TakeOver;

/// Shows how far the take-over of a legacy file is, and can stop it.
class TakeOverWindow : public QDialog
{
    Q_OBJECT

public:
    TakeOverWindow(TakeOver &takeOver, QWidget *parent);

    /// Escape, the window's close button and the button all stop the work.
    void reject() override;

private:
    void showProgress(int permille, const QString &table);

    TakeOver &m_takeOver;
    QLabel *m_table;
    QProgressBar *m_bar;
};

} // namespace kuyum
