#pragma once

#include <QString>

class PrintDocument;
class Printers;

/// The seam through which a label gets onto paper: at once, without a preview.
/// The tests keep the label and look at it.
class LabelPrinter
{
public:
    virtual ~LabelPrinter() = default;

    /// Prints on the printer of that name where it is installed, else on the
    /// default one; an empty name asks for the default. Throws
    /// std::runtime_error with a Turkish text when there is no printer or it
    /// fails.
    virtual void print(const PrintDocument &document, const QString &printerName) = 0;
};

/// Prints on the installed printers. Which one the slips go to stays as it is.
class InstalledLabelPrinter : public LabelPrinter
{
public:
    explicit InstalledLabelPrinter(const Printers &printers) : m_printers(printers) {}
    void print(const PrintDocument &document, const QString &printerName) override;

private:
    const Printers &m_printers;
};
