#include "KatalogStore.h"

#include "LabelLookup.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SqlText.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

void addRow(Recordset &rows, const QString &KatAdi, const KatalogSatiri &satir)
{
    rows.addNew();
    rows.set(u"KatAdi", KatAdi);
    rows.set(u"katno1", satir.katno1);
    rows.set(u"katgram", satir.katgram);
    rows.set(u"kataciklama", satir.kataciklama);
    rows.update();
}

} // namespace

Katalog KatalogStore::KatalogBul(const QString &KatAdi) const
{
    Katalog katalog = storedRows(KatAdi.trimmed());
    katalog.elleSirali = isOrderedByHand(katalog.KatAdi);
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From Katalog, Model, Uruntipi "
                          "Where Katno1 = Model_ID and Model.M_uruntip = Uruntipi.TipID "
                          "and KatAdi = "_s +
                          sqlText(katalog.KatAdi) + u" Order by Model;"_s);
    QHash<qint32, KatalogSatiri> found;
    while (Kayit.next()) {
        katalog.satirlar.append({Kayit.text(u"Model"), Kayit.number(u"katgram"),
                                 Kayit.text(u"kataciklama"), qint32(Kayit.integer(u"katno1")),
                                 Kayit.text(u"KisaAD")});
        found.insert(katalog.satirlar.last().katno1, katalog.satirlar.last());
    }
    if (katalog.elleSirali) {
        katalog.satirlar.clear();
        for (KatalogSatiri satir : std::as_const(katalog.keptRows)) {
            if (const auto model = found.constFind(satir.katno1); model != found.constEnd()) {
                satir.Model = model->Model;
                satir.KisaAD = model->KisaAD;
                katalog.satirlar.append(satir);
            }
        }
    }
    katalog.keptRows.removeIf(
        [&found](const KatalogSatiri &satir) { return found.contains(satir.katno1); });
    return katalog;
}

/// A company that was only opened for reading can be of an older layout.
bool KatalogStore::isOrderedByHand(const QString &KatAdi) const
{
    Database &company = *m_oturum->Veritabani;
    return company.hasTable(u"KatalogSira"_s) &&
           company.query(u"Select * From KatalogSira Where KatAdi = "_s + sqlText(KatAdi)).next();
}

/// All rows of a catalogue, with or without their models, as those to be kept:
/// in the order in which they were written.
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

LoadedRows KatalogStore::oku(const QString &KatAdi) const
{
    Database &db = *m_oturum->Veritabani;
    const QString ofName = u"KatAdi = "_s + sqlText(KatAdi.trimmed());
    return {
        db,
        {{.table = u"Katalog"_s,
          .where = ofName,
          .label = u"Model"_s,
          .fields = {{u"katno1"_s, u"Model"_s, lookedUp(db, u"Model"_s, u"Model_ID"_s, u"Model"_s)},
                     {u"katgram"_s, u"Gram"_s},
                     {u"kataciklama"_s, u"Açıklama"_s},
                     {u"#"_s, u"Sıra"_s}},
          .identity = {u"katno1"_s},
          .quiet = {u"#"_s, u"KatAdi"_s},
          .ordered = true},
         {.table = u"KatalogSira"_s,
          .where = ofName,
          .label = u"Elle sıralama"_s,
          .fields = {{u"KatAdi"_s, u"Katalog"_s}}}}};
}

void KatalogStore::save(const Katalog &katalog, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        deleteRows(katalog.KatAdi);
        Recordset rows = m_oturum->Veritabani->table(u"Katalog"_s);
        // A model that was saved since the catalogue was loaded has another number.
        const LabelLookup records(*m_oturum);
        for (KatalogSatiri satir : katalog.satirlar + katalog.keptRows) {
            satir.katno1 = records.standingRecord(satir.katno1);
            addRow(rows, katalog.KatAdi, satir);
        }
        if (!katalog.elleSirali)
            return;
        Recordset ordered = m_oturum->Veritabani->table(u"KatalogSira"_s);
        ordered.addNew();
        ordered.set(u"KatAdi", katalog.KatAdi);
        ordered.update();
    });
}

void KatalogStore::remove(const QString &KatAdi, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] { deleteRows(KatAdi); });
}

void KatalogStore::deleteRows(const QString &KatAdi) const
{
    const QString ofName = u" Where Katadi = "_s + sqlText(KatAdi);
    m_oturum->calistir(u"DELETE From KatalogSira"_s + ofName);
    m_oturum->calistir(u"DELETE From Katalog"_s + ofName);
}

} // namespace kuyum
