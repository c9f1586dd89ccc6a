#include "PrinterOffset.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Shows a decimal point and takes a comma for one.
class MillimetreBox : public QDoubleSpinBox
{
public:
    MillimetreBox()
    {
        setLocale(QLocale::c());
        setRange(-30, 30);
        setSingleStep(0.5);
        setDecimals(1);
        setSuffix(u" mm"_s);
    }
    QValidator::State validate(QString &input, int &pos) const override
    {
        input.replace(u',', u'.');
        return QDoubleSpinBox::validate(input, pos);
    }
};

} // namespace

PrinterOffset::PrinterOffset(const QString &printer, PagePoint offset, QWidget *parent)
    : QDialog(parent), m_right(makeBox(u"right"_s, offset.x)), m_down(makeBox(u"down"_s, offset.y))
{
    setObjectName(u"PrinterOffset"_s);
    setWindowTitle(u"Yazıcı kaydırması"_s);
    auto *explanation =
        new QLabel(u"%1 sayfayı yana ya da yukarı aşağı kaçırıyorsa, baskıyı bu kadar kaydırın. "
                   "Eksi değer sola ve yukarı kaydırır."_s.arg(printer));
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(u"&Tamam"_s, QDialogButtonBox::AcceptRole);
    buttons->addButton(u"&Vazgeç"_s, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QFormLayout(this);
    layout->addRow(explanation);
    layout->addRow(u"&Sağa:"_s, m_right);
    layout->addRow(u"&Aşağı:"_s, m_down);
    layout->addRow(buttons);
}

QDoubleSpinBox *PrinterOffset::makeBox(const QString &name, Twips value)
{
    auto *box = new MillimetreBox;
    box->setObjectName(name);
    box->setValue(value.millimetres());
    return box;
}

PagePoint PrinterOffset::offset() const
{
    return {Twips::fromMillimetres(m_right->value()), Twips::fromMillimetres(m_down->value())};
}

} // namespace kuyum
