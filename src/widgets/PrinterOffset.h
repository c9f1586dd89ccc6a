#pragma once

#include "PrintDocument.h"

#include <QDialog>

class QDoubleSpinBox;

namespace kuyum {

/// Asks how far a printer's pages are to be moved, in millimetres.
class PrinterOffset : public QDialog
{
    Q_OBJECT

public:
    PrinterOffset(const QString &printer, PagePoint offset, QWidget *parent);

    PagePoint offset() const;

private:
    QDoubleSpinBox *makeBox(const QString &name, Twips value);

    QDoubleSpinBox *m_right;
    QDoubleSpinBox *m_down;
};

} // namespace kuyum
