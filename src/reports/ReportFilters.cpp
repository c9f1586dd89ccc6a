#include "ReportFilters.h"

#include "Oturum.h"
#include "RowReader.h"
#include "TurkishText.h"

#include <algorithm>
#include <QMap>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Past SonSQL, which keeps the text of the report.
QList<FilterChoice> choices(const Oturum &oturum, const QString &sql)
{
    QList<FilterChoice> choices;
    Recordset rows = oturum.Veritabani->query(sql);
    while (rows.next())
        choices.append({qint32(rows.value(0).toLongLong()), rows.value(1).toString()});
    return choices;
}

QString lettersAtStart(const QString &code)
{
    const auto end = std::ranges::find_if(code, [](QChar c) { return !c.isLetter(); });
    return code.first(end - code.begin());
}

} // namespace

QList<FilterChoice> customerChoices(const Oturum &oturum)
{
    return choices(oturum, u"Select Firkod, FirAdi From Firma Order by FirAdi"_s);
}

QList<FilterChoice> countryChoices(const Oturum &oturum)
{
    return choices(oturum, u"Select ID, ulke_ADI From Ulkeler Order by ulke_ADI"_s);
}

QList<FilterChoice> productTypeChoices(const Oturum &oturum)
{
    return choices(oturum, u"Select TipID, UrunTipi From UrunTipi Order by UrunTipi"_s);
}

QStringList modelPrefixes(const Oturum &oturum)
{
    QMap<QString, QString> prefixes;
    RowReader rows(*oturum.Veritabani, u"Select Distinct Model From Model"_s);
    while (rows.next()) {
        const QString prefix = lettersAtStart(rows.text(0));
        if (!prefix.isEmpty())
            prefixes.insert(foldedText(prefix), prefix);
    }
    QStringList sorted = prefixes.values();
    std::ranges::sort(sorted, TextLess());
    return sorted;
}

} // namespace kuyum
