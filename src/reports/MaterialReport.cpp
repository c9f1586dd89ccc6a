#include "MaterialReport.h"

#include "Oturum.h"
#include "RowReader.h"
#include "TurkishText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The texts that tell a row from another.
QString rowKey(const QString &code, const QString &description)
{
    const auto part = [](const QString &text) {
        return text.isNull() ? u"-"_s : u'+' + foldedText(text);
    };
    return part(code) + QChar(0) + part(description);
}

/// Nulls stand first.
int compareNullable(const QString &a, const QString &b)
{
    return a.isNull() || b.isNull() ? int(b.isNull()) - int(a.isNull()) : compareText(a, b);
}

} // namespace

MaterialReport::MaterialReport(Oturum &oturum, const ReportPeriod &period, int M_Tip)
    : OrderReport(oturum, period), m_kind(M_Tip)
{
}

QList<ReportColumnGroup> MaterialReport::findGroups()
{
    QList<ReportColumnGroup> groups = karats(true);
    if (!groups.isEmpty())
        show(sql());
    return groups;
}

QHash<qint64, int> MaterialReport::readMaterials()
{
    QHash<qint64, int> itemOf;
    QHash<QString, int> known;
    m_materials.clear();
    RowReader rows(*m_oturum.Veritabani, itemsSql());
    while (rows.next()) {
        const Item read{rows.text(1), rows.text(2), rows.number(3)};
        const QString key = rowKey(read.code, read.description);
        if (!known.contains(key)) {
            known.insert(key, int(m_materials.size()));
            m_materials.append(read);
        }
        const int number = known.value(key);
        std::optional<double> &grams = m_materials[number].gramsPerPiece;
        if (read.gramsPerPiece)
            grams = std::max(grams.value_or(*read.gramsPerPiece), *read.gramsPerPiece);
        itemOf.insert(rows.integer(0).value_or(0), number);
    }
    return itemOf;
}

void MaterialReport::readItems()
{
    const QHash<qint64, int> itemOf = readMaterials();
    m_needs.clear();
    RowReader rows(
        *m_oturum.Veritabani,
        u"Select Model, M_Uruntip, M_Kod, M_Adet From Model Where M_Tip = %1"_s.arg(m_kind));
    while (rows.next()) {
        const std::optional<std::string_view> model = rows.utf8(0);
        const std::optional<qint64> type = rows.integer(1);
        const std::optional<qint64> code = rows.integer(2);
        if (!model || !type || !code || !itemOf.contains(*code))
            continue;
        const int item = itemOf.value(*code);
        const std::optional<double> pieces = rows.number(3);
        QList<Need> &needs = m_needs[modelAndType(m_models.number(*model), *type)];
        const auto same = std::ranges::find(needs, item, &Need::item);
        if (same == needs.end())
            needs.append({item, pieces});
        else if (pieces)
            same->perPiece = same->perPiece.value_or(0) + *pieces;
    }
}

bool MaterialReport::walk(const Sink &sink, const ReportProgress &progress) const
{
    PeriodLines lines(*m_oturum.Veritabani, m_period, m_models);
    PeriodLine line;
    while (lines.next(line)) {
        if (!lines.goesOn(line, progress))
            return false;
        if (line.model < 0 || !line.SipUruntip)
            continue;
        const auto needs = m_needs.constFind(modelAndType(line.model, *line.SipUruntip));
        if (needs == m_needs.constEnd())
            continue;
        const int group = groupOf(line.Ayar);
        for (const Need &need : *needs)
            sink({line, need.item, group, need.perPiece});
    }
    return true;
}

QList<int> MaterialReport::sortedItems(const QList<QList<Figure>> &figures) const
{
    QList<int> items;
    for (int number = 0; number < figures.size(); ++number) {
        if (!figures[number].isEmpty())
            items.append(number);
    }
    std::ranges::sort(items, [this](int a, int b) {
        const int codes = compareNullable(item(a).code, item(b).code);
        return codes != 0 ? codes < 0
                          : compareNullable(item(a).description, item(b).description) < 0;
    });
    return items;
}

} // namespace kuyum
