#pragma once

#include "PrintDocument.h"

#include <memory>
#include <QStringList>

class QPrinter;
class QSettings;

namespace kuyum {

/// The installed printers, which of them is the current one, and what the user
/// set for each. The settings outlive the program.
class Printers
{
public:
    explicit Printers(QSettings &settings);
    virtual ~Printers();

    virtual QStringList installed() const;
    /// The system's default printer; empty when there is none.
    virtual QString VarsayilanYazici() const;

    /// Makes the printer of exactly that name the current one; no other name
    /// changes anything.
    void YaziciSec(const QString &name);
    /// The printer chosen last, in this run or an earlier one, while it is
    /// installed; else the default one, else the first; empty when there is none.
    QString current() const;
    /// Keeps the current printer for later runs.
    void rememberCurrent();

    /// How far pages are moved to the right and down on that printer, against
    /// one that puts them off.
    PagePoint offset(const QString &name) const;
    void setOffset(const QString &name, PagePoint offset);

    /// Prints on the current printer. Throws std::runtime_error with a Turkish
    /// text when there is none or it fails.
    void print(const PrintDocument &document) const;
    /// Prints on the printer of that name; throws in the same way.
    void print(const PrintDocument &document, const QString &name) const;

protected:
    virtual std::unique_ptr<QPrinter> open(const QString &name) const;

private:
    QSettings &m_settings;
    QString m_chosen;
};

/// The resolution in which a printer sets its own dots, of those it offers.
int ownResolution(const QList<int> &offered);

/// Sets a printer up for a document: its paper, no margins, its title.
void prepare(QPrinter &printer, const PrintDocument &document);

} // namespace kuyum
