#pragma once

#include "BarkodTipi.h"
#include "Etiket.h"

#include <QMap>
#include <QStringList>

namespace kuyum {

/// A placeholder that stands for something which is asked of the user, since
/// the company's files do not have it.
struct SorulanAlan
{
    QString alan;   ///< the placeholder, such as "%TFYT%"
    QString baslik; ///< its caption
};

const QList<SorulanAlan> &sorulanAlanlar();
/// Whether the label type prints the placeholder.
bool uses(const BarkodTipi &tip, const QString &placeholder);

/// The prices that the label type prints and the values, by placeholder, do not
/// have or leave blank.
QList<SorulanAlan> missingPrices(const BarkodTipi &tip, const QMap<QString, QString> &values);

/// What a template is filled with, beside the label itself.
struct SablonVerileri
{
    QString firma;                    ///< %FRM%
    std::optional<OzelUrun> ozelUrun; ///< stands for the model's code
    QMap<QString, QString> sorulan;   ///< by placeholder
    QImage resim;
};

/// The label that a label type lays out: one page, as large as the sheet up to
/// the label that is printed on. Throws as etiketBelgesi() does.
PrintDocument sablonBelgesi(const Etiket &etiket, const BarkodTipi &tip,
                            const SablonVerileri &veriler);

/// The fields that the symbol covers, as their texts in the template. The
/// symbol is printed over them, so that it can be read in any case.
QStringList coveredFields(const BarkodTipi &tip);

} // namespace kuyum
