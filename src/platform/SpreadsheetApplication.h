#pragma once

#include <QString>

namespace kuyum {

/// The spreadsheet program that the user has.
class SpreadsheetApplication
{
public:
    virtual ~SpreadsheetApplication() = default;

    virtual bool isInstalled() const = 0;
    /// Shows the file to the user; false when the program did not start.
    virtual bool open(const QString &path) = 0;
};

/// What the system opens spreadsheets with.
class InstalledSpreadsheet : public SpreadsheetApplication
{
public:
    bool isInstalled() const override;
    bool open(const QString &path) override;
};

} // namespace kuyum
