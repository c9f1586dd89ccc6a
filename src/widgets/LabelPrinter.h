#pragma once

#include <QString>

class QWidget;

namespace kuyum {

class Messages;
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
    /// The printer that would take the place of the named one, which is not
    /// installed; empty where none has to.
    virtual QString standIn(const QString &) const { return {}; }
};

/// Where a screen's labels go. It asks, once for the screen, before they go to
/// another printer than the one that is named: a label is wasted there at best,
/// and a page of the office printer with it.
class LabelOutlet
{
public:
    LabelOutlet(LabelPrinter &printer, Messages &messages)
        : m_printer(printer), m_messages(messages)
    {
    }
    /// False when the user did not want it; throws as LabelPrinter::print().
    bool print(QWidget *parent, const PrintDocument &document, const QString &printerName);

private:
    LabelPrinter &m_printer;
    Messages &m_messages;
    QString m_agreed; ///< the printer that may stand in
};

/// Prints on the installed printers. Which one the slips go to stays as it is.
class InstalledLabelPrinter : public LabelPrinter
{
public:
    explicit InstalledLabelPrinter(const Printers &printers) : m_printers(printers) {}
    void print(const PrintDocument &document, const QString &printerName) override;
    QString standIn(const QString &printerName) const override;

private:
    QString printerFor(const QString &printerName) const;

    const Printers &m_printers;
};

} // namespace kuyum
