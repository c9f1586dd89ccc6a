#pragma once

#include <QImage>
#include <QStringList>
#include <QTemporaryDir>

namespace kuyum {

/// Reads the bar codes of a picture with zbarimg, as "EAN-13:5901234123457".
QStringList readBarcodes(const QImage &image, const QStringList &options = {});

/// Many pictures read by one run of zbarimg, several to a sheet: starting it
/// takes longer than reading.
class BarcodeSheets
{
public:
    void add(const QImage &image);
    /// What stands on all of them, sorted.
    QStringList read();

private:
    void finishSheet();

    QTemporaryDir m_folder;
    QStringList m_files;
    QList<QImage> m_images; ///< of the sheet that is being filled
};

/// The lengths of the runs of one colour in a row of a black and white
/// picture, from its first black dot to its last.
QList<int> runsOfDots(const QImage &image, int row);

} // namespace kuyum
