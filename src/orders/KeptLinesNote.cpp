#include "KeptLinesNote.h"

#include "Siparis.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The rows that hold such lines, by what stands in the way of saving them.
struct HoldingRows
{
    QStringList all;
    QStringList withoutModel;
    QStringList withoutCount;
};

HoldingRows holdingRows(const Siparis &siparis, const HasModel &hasModel)
{
    HoldingRows rows;
    for (const SiparisSatiri &row : siparis.satirlar) {
        if (row.keptLines.isEmpty())
            continue;
        const QString name = row.model + u' ' + row.renk;
        rows.all.append(name);
        if (!hasModel(row.model))
            rows.withoutModel.append(row.model);
        else if (row.totalCount() == 0)
            rows.withoutCount.append(name);
    }
    rows.withoutModel.removeDuplicates();
    return rows;
}

} // namespace

QString namesOf(const QList<KeptLine> &lines)
{
    constexpr qsizetype mostNamed = 5;
    QStringList names;
    for (const KeptLine &line : lines.first(std::min(mostNamed, lines.size())))
        names.append(u"%1 %2, %3 adet"_s.arg(line.model, line.renk, QString::number(line.adet)));
    if (lines.size() > mostNamed)
        names.append(u"..."_s);
    return names.join(u"; "_s);
}

QString keptLinesNote(const Siparis &siparis, const HasModel &hasModel)
{
    const QList<KeptLine> lines = siparis.allKeptLines();
    if (lines.isEmpty())
        return {};
    const HoldingRows rows = holdingRows(siparis, hasModel);
    QString note =
        u"Rengi, ürün tipi ya da modeli tanımlı olmayan %1 satır tabloda gösterilemiyor (%2). "
        "Kaydederken olduğu gibi saklanır; yeni sipariş olarak kaydederken kopyalanmaz; fişe ve "
        "toplam grama girmez."_s.arg(QString::number(lines.size()), namesOf(lines));
    const auto add = [&note](const QStringList &names, const QString &sentence) {
        if (!names.isEmpty())
            note += u' ' + sentence.arg(names.join(u", "_s));
    };
    add(rows.all, u"%1 satırı tablodan çıkarılırsa onunla birlikte silinir."_s);
    add(rows.withoutCount, u"%1 satırına adet girilmeden sipariş kaydedilemez."_s);
    add(rows.withoutModel, u"%1 modeli tanımlanmadan sipariş kaydedilemez."_s);
    return note;
}

} // namespace kuyum
