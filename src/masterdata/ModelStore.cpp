#include "ModelStore.h"

#include "LabelLookup.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString keyCondition(const QString &model, qint32 TipID)
{
    return u"Where Model = "_s + sqlText(model) + u" and M_uruntip = "_s + sqlNumber(TipID);
}

void addRow(Recordset &rows, const Model &model, const ModelSatiri &material)
{
    rows.addNew();
    rows.set(u"Model", model.ad);
    rows.set(u"m_uruntip", model.M_Uruntip);
    rows.set(u"m_kod", material.M_Kod);
    rows.set(u"m_adet", material.M_Adet);
    rows.set(u"m_tip", material.tip == MalzemeTipi::Tas ? 0 : 1);
    rows.set(u"m_miktar", model.M_Miktar);
    rows.update();
}

} // namespace

QString malzemeAdi(MalzemeTipi tip)
{
    switch (tip) {
    case MalzemeTipi::Tas:
        return u"Tas"_s;
    case MalzemeTipi::YariMamul:
        return u"Yarı Mamul"_s;
    case MalzemeTipi::Bos:
        break;
    }
    return {};
}

QList<ModelTipi> ModelStore::UrunTipleri() const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Uruntipi"_s);
    QList<ModelTipi> types;
    while (Kayit.next()) {
        types.append(
            {qint32(Kayit.integer(u"TipID")), Kayit.text(u"UrunTipi"), Kayit.text(u"KisaAD")});
    }
    return types;
}

std::optional<Model> ModelStore::ModelBul(const QString &model, qint32 TipID) const
{
    Recordset Kayit = m_oturum->sorgula(
        u"Select * FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "_s +
        keyCondition(model, TipID));
    if (!Kayit.next())
        return std::nullopt;
    // As it is stored: typed in another case it is still not renamed.
    Model found{Kayit.text(u"Model"),
                TipID,
                Kayit.number(u"M_Miktar"),
                {},
                qint32(Kayit.integer(u"Model_ID"))};
    QList<ModelSatiri> stored;
    do {
        found.Model_ID = std::max(found.Model_ID, qint32(Kayit.integer(u"Model_ID")));
        stored.append({Kayit.integer(u"M_Tip") == 0 ? MalzemeTipi::Tas : MalzemeTipi::YariMamul,
                       {},
                       qint32(Kayit.integer(u"M_Kod")),
                       Kayit.number(u"M_Adet")});
    } while (Kayit.next());
    found.satirlar = ModelDoldur(stored);
    return found;
}

QStringList ModelStore::kayitlar(const QString &model, qint32 TipID) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select Model_ID From Model "_s +
                                        keyCondition(model, TipID) + u" Order by Model_ID"_s);
    QStringList ids;
    while (Kayit.next())
        ids.append(sqlNumber(Kayit.integer(u"Model_ID")));
    return ids;
}

/// The weight stands on every row of a model, but is told once.
QList<RecordRows> ModelStore::kayit(const QString &model, qint32 TipID) const
{
    Database &db = *m_oturum->Veritabani;
    const QString key = keyCondition(model, TipID).mid(QStringView(u"Where ").size());
    const auto materials = [&](const QString &kind, const QString &label, const FieldLabel &code) {
        return RecordRows{.table = u"Model"_s,
                          .where = key + u" and M_Kod <> 0 and M_Tip "_s + kind,
                          .label = label,
                          .fields = {code, {u"M_Adet"_s, u"Adet"_s}},
                          .identity = {u"M_Kod"_s},
                          .renumbered = {u"Model_ID"_s, u"M_Miktar"_s}};
    };
    return {{.table = u"Model"_s,
             .where = u"Model_ID In (Select Max(Model_ID) From Model Where "_s + key + u')',
             .label = u"Model "_s + model,
             .fields = {{u"M_Miktar"_s, u"Gram"_s}},
             .renumbered = {u"Model_ID"_s, u"M_Tip"_s, u"M_Kod"_s, u"M_Adet"_s}},
            materials(u"= 0"_s, u"Taş"_s,
                      {u"M_Kod"_s, u"Taş"_s, lookedUp(db, u"Tas"_s, u"TasID"_s, u"Taskodu"_s)}),
            materials(
                u"<> 0"_s, u"Yarı mamul"_s,
                {u"M_Kod"_s, u"Kalıp"_s, lookedUp(db, u"Kalip"_s, u"KalipID"_s, u"KalipKodu"_s)})};
}

QList<ModelSatiri> ModelStore::ModelDoldur(const QList<ModelSatiri> &stored) const
{
    const QHash<qint32, QString> stones = kodlar(stored, MalzemeTipi::Tas);
    const QHash<qint32, QString> molds = kodlar(stored, MalzemeTipi::YariMamul);
    QList<ModelSatiri> rows;
    for (ModelSatiri row : stored) {
        if (row.M_Kod == 0)
            continue;
        row.Kod = (row.tip == MalzemeTipi::Tas ? stones : molds).value(row.M_Kod);
        rows.append(row);
    }
    return rows;
}

QHash<qint32, QString> ModelStore::kodlar(const QList<ModelSatiri> &stored, MalzemeTipi tip) const
{
    QStringList ids;
    for (const ModelSatiri &row : stored) {
        if (row.tip == tip && row.M_Kod != 0)
            ids.append(sqlNumber(row.M_Kod));
    }
    QHash<qint32, QString> codes;
    if (ids.isEmpty())
        return codes;
    ids.removeDuplicates();
    const bool stone = tip == MalzemeTipi::Tas;
    Recordset Kayit = m_oturum->sorgula((stone ? u"Select * From Tas where tasID in ("_s
                                               : u"Select * From Kalip where KalipID in ("_s) +
                                        ids.join(u", "_s) + u')');
    while (Kayit.next()) {
        codes.insert(qint32(Kayit.integer(stone ? u"TasID" : u"KalipID")),
                     Kayit.text(stone ? u"Taskodu" : u"KalipKodu"));
    }
    return codes;
}

std::optional<Malzeme> ModelStore::malzemeBul(MalzemeTipi tip, const QString &kod) const
{
    const bool stone = tip == MalzemeTipi::Tas;
    Recordset Kayit = m_oturum->sorgula((stone ? u"Select * From Tas Where Taskodu = "_s
                                               : u"Select * From Kalip Where KalipKodu = "_s) +
                                        sqlText(kod));
    if (!Kayit.next())
        return std::nullopt;
    return Malzeme{qint32(Kayit.integer(stone ? u"TasID" : u"KalipID")),
                   Kayit.text(stone ? u"Taskodu" : u"KalipKodu")};
}

QString ModelStore::KisaADBul(const QString &model, qint32 TipID) const
{
    Recordset Kayit = m_oturum->sorgula(
        u"Select Kisaad FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "_s +
        keyCondition(model, TipID));
    return Kayit.next() ? Kayit.text(u"Kisaad") : QString();
}

void ModelStore::save(Model &model, LoadedRows &okunan) const
{
    // Picture and label come after the rows; should they fail, the user goes on
    // with the model.
    Model written = model;
    okunan.write(*m_oturum->Veritabani, {[&] { replaceRows(written); }, {}, {u"Model"_s}});
    model = written;
}

void ModelStore::replaceRows(Model &model) const
{
    const QString replaced = kayitlar(model.ad, model.M_Uruntip).join(u", "_s);
    retireLabels(*m_oturum, model.ad, model.M_Uruntip);
    m_oturum->calistir(u"DELETE From Model "_s + keyCondition(model.ad, model.M_Uruntip));
    Recordset rows = m_oturum->Veritabani->table(u"Model"_s);
    bool any = false;
    for (const ModelSatiri &material : std::as_const(model.satirlar)) {
        if (!material.isStored())
            continue;
        addRow(rows, model, material);
        any = true;
    }
    if (!any)
        addRow(rows, model, {MalzemeTipi::Tas, {}, 0, 0});
    const auto id = qint32(rows.integer(u"Model_ID"));
    // The new rows have new numbers; a catalogue would lose the model with the old ones.
    if (!replaced.isEmpty())
        m_oturum->calistir(u"UPDATE Katalog Set katno1 = "_s + sqlNumber(id) +
                           u" Where katno1 In ("_s + replaced + u')');
    model.Model_ID = id;
}

void ModelStore::remove(const QString &model, qint32 TipID, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        retireLabels(*m_oturum, model, TipID);
        m_oturum->calistir(u"DELETE From Model "_s + keyCondition(model, TipID));
    });
}

} // namespace kuyum
