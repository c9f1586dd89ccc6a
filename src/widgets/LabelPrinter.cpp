#include "LabelPrinter.h"

#include "Messages.h"
#include "Printers.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

bool LabelOutlet::print(QWidget *parent, const PrintDocument &document, const QString &printerName)
{
    const QString other = m_printer.standIn(printerName);
    if (!other.isEmpty() && other != m_agreed) {
        if (!m_messages.ask(
                parent,
                u"\"%1\" adlı etiket yazıcısı bu bilgisayarda kurulu değil.\n\n"
                "Etiket \"%2\" yazıcısından basılsın mı ?"_s.arg(printerName.trimmed(), other),
                MessageIcon::Exclamation, {}, MessageAnswer::No))
            return false;
        m_agreed = other;
    }
    m_printer.print(document, printerName);
    return true;
}

QString InstalledLabelPrinter::printerFor(const QString &printerName) const
{
    const QString name = printerName.trimmed();
    if (m_printers.installed().contains(name))
        return name;
    const QString standard = m_printers.VarsayilanYazici();
    return standard.isEmpty() ? m_printers.current() : standard;
}

QString InstalledLabelPrinter::standIn(const QString &printerName) const
{
    const QString name = printerName.trimmed();
    const QString other = name.isEmpty() ? name : printerFor(name);
    return other == name ? QString() : other;
}

void InstalledLabelPrinter::print(const PrintDocument &document, const QString &printerName)
{
    const QString name = printerFor(printerName);
    if (name.isEmpty()) {
        throw std::runtime_error(
            u"Etiket yazdırılamadı: kurulu yazıcı bulunamadı."_s.toStdString());
    }
    m_printers.print(document, name);
}

} // namespace kuyum
