#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace kuyum {

/// Reads spreadsheets back with another program.

/// The cells of the first sheet as LibreOffice shows them, row by row.
QList<QStringList> sheetCells(const QString &path);
/// One part of the file's container ("xl/worksheets/sheet1.xml").
QByteArray sheetPart(const QString &path, const QString &part);

} // namespace kuyum
