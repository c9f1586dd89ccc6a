#include "LabelPrinter.h"

#include "Printers.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

void InstalledLabelPrinter::print(const PrintDocument &document, const QString &printerName)
{
    QString name = printerName.trimmed();
    if (!m_printers.installed().contains(name))
        name = m_printers.VarsayilanYazici();
    if (name.isEmpty())
        name = m_printers.current();
    if (name.isEmpty()) {
        throw std::runtime_error(
            u"Etiket yazdırılamadı: kurulu yazıcı bulunamadı."_s.toStdString());
    }
    m_printers.print(document, name);
}
