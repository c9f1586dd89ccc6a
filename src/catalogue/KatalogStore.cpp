#include "KatalogStore.h"

#include "Numbers.h"
#include "Oturum.h"
#include "SqlText.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

struct PlacedRow
{
    qint64 katsira; ///< 0 in a catalogue that was never put into an order by hand
    KatalogSatiri satir;
};

/// A company that was only opened for reading can be of an older layout.
qint64 placeOf(const Recordset &Kayit)
{
    return Kayit.hasField(u"katsira") ? Kayit.integer(u"katsira") : 0;
}

void addRow(Recordset &rows, const QString &KatAdi, const KatalogSatiri &satir, qint64 katsira)
{
    rows.addNew();
    rows.set(u"KatAdi", KatAdi);
    rows.set(u"katno1", satir.katno1);
    rows.set(u"katgram", satir.katgram);
    rows.set(u"kataciklama", satir.kataciklama);
    rows.set(u"katsira", katsira);
    rows.update();
}

} // namespace

Katalog KatalogStore::KatalogBul(const QString &KatAdi) const
{
    Katalog katalog = storedRows(KatAdi.trimmed());
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From Katalog, Model, Uruntipi "
                          "Where Katno1 = Model_ID and Model.M_uruntip = Uruntipi.TipID "
                          "and KatAdi = "_s +
                          sqlText(katalog.KatAdi) + u" Order by Model;"_s);
    QList<PlacedRow> rows;
    QSet<qint32> found;
    while (Kayit.next()) {
        rows.append({placeOf(Kayit),
                     {Kayit.text(u"Model"), Kayit.number(u"katgram"), Kayit.text(u"kataciklama"),
                      qint32(Kayit.integer(u"katno1")), Kayit.text(u"KisaAD")}});
        found.insert(rows.last().satir.katno1);
        katalog.elleSirali = katalog.elleSirali || rows.last().katsira != 0;
    }
    // Rows of one place, or of none, stay in the order of their models.
    std::stable_sort(rows.begin(), rows.end(),
                     [](const PlacedRow &a, const PlacedRow &b) { return a.katsira < b.katsira; });
    for (const PlacedRow &row : std::as_const(rows))
        katalog.satirlar.append(row.satir);
    katalog.keptRows.removeIf(
        [&found](const KatalogSatiri &satir) { return found.contains(satir.katno1); });
    return katalog;
}

/// All rows of a catalogue, with or without their models, as those to be kept.
Katalog KatalogStore::storedRows(const QString &KatAdi) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From Katalog Where KatAdi = "_s + sqlText(KatAdi));
    Katalog katalog;
    katalog.KatAdi = KatAdi;
    while (Kayit.next()) {
        if (katalog.keptRows.isEmpty())
            katalog.KatAdi = Kayit.text(u"KatAdi").trimmed();
        katalog.keptRows.append({{},
                                 Kayit.number(u"katgram"),
                                 Kayit.text(u"kataciklama"),
                                 qint32(Kayit.integer(u"katno1")),
                                 {}});
    }
    return katalog;
}

std::optional<KatalogSatiri> KatalogStore::ModelBul(const QString &model, qint32 TipID) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Model, Uruntipi "
                                        "Where Model.M_uruntip = Uruntipi.TipID "
                                        "and Model = "_s +
                                        sqlText(model) + u" and M_uruntip = "_s + sqlNumber(TipID));
    if (!Kayit.next())
        return std::nullopt;
    return KatalogSatiri{Kayit.text(u"Model"), Kayit.number(u"M_Miktar"), QString(),
                         qint32(Kayit.integer(u"Model_ID")), Kayit.text(u"KisaAD")};
}

void KatalogStore::save(const Katalog &katalog) const
{
    Transaction rewrite(*m_oturum->Veritabani);
    remove(katalog.KatAdi);
    Recordset rows = m_oturum->Veritabani->table(u"Katalog"_s);
    for (qsizetype i = 0; i < katalog.satirlar.size(); ++i)
        addRow(rows, katalog.KatAdi, katalog.satirlar[i], katalog.elleSirali ? i + 1 : 0);
    for (const KatalogSatiri &satir : katalog.keptRows)
        addRow(rows, katalog.KatAdi, satir, 0);
    rewrite.commit();
}

void KatalogStore::remove(const QString &KatAdi) const
{
    m_oturum->calistir(u"DELETE From Katalog Where Katadi = "_s + sqlText(KatAdi));
}
