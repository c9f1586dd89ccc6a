#include "LabelLookup.h"

#include "Numbers.h"
#include "Oturum.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Record numbers without a gap between them: `Ilk` to `Son`.
struct NumberRun
{
    qint64 first;
    qint64 last;
    QString model; ///< as it is stored
};

QString ofModel(const QString &model, qint32 TipID)
{
    return u"Model = "_s + sqlText(model) + u" and M_uruntip = "_s + sqlNumber(TipID);
}

QList<NumberRun> recordRuns(Database &db, const QString &model, qint32 TipID)
{
    Recordset Kayit = db.query(u"Select Model_ID, Model From Model Where "_s +
                               ofModel(model, TipID) + u" Order by Model_ID"_s);
    QList<NumberRun> runs;
    while (Kayit.next()) {
        const qint64 id = Kayit.integer(u"Model_ID");
        if (!runs.isEmpty() && runs.last().last + 1 == id)
            runs.last().last = id;
        else
            runs.append({id, id, Kayit.text(u"Model")});
    }
    return runs;
}

} // namespace

QString LabelledModel::whyNot() const
{
    switch (state) {
    case State::ModelGone: {
        const QString type = KisaAD.isEmpty() ? QString() : u" (%1)"_s.arg(KisaAD);
        return u"ETİKETİN MODELİ SİLİNMİŞ: %1"_s.arg(Model) + type;
    }
    case State::TypeGone:
        return u"ETİKETİN ÜRÜN TİPİ SİLİNMİŞ: %1 (tip no %2)"_s.arg(Model, QString::number(TipID));
    case State::Unknown:
    case State::Found:
        break;
    }
    return u"ETİKET BULUNAMADI"_s;
}

std::optional<LabelledModel> LabelLookup::find(QStringView text) const
{
    const std::optional<ProductLabel> label = readLabel(text);
    if (!label)
        return std::nullopt;
    if (const std::optional<LabelledModel> found = byRecord(*label))
        return found;
    return byOldRecord(*label).value_or(LabelledModel{});
}

/// The model of a condition, found where its type is defined as well.
std::optional<LabelledModel> LabelLookup::first(const QString &condition) const
{
    Recordset Kayit = m_oturum->sorgula(
        u"Select * FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID Where "_s +
        condition);
    if (Kayit.next())
        return LabelledModel{LabelledModel::State::Found, Kayit.text(u"Model"),
                             Kayit.text(u"KisaAD"), qint32(Kayit.integer(u"M_Uruntip"))};
    Recordset alone = m_oturum->Veritabani->query(u"Select * From Model Where "_s + condition);
    if (!alone.next())
        return std::nullopt;
    return LabelledModel{LabelledModel::State::TypeGone,
                         alone.text(u"Model"),
                         {},
                         qint32(alone.integer(u"M_Uruntip"))};
}

std::optional<LabelledModel> LabelLookup::byRecord(const ProductLabel &label) const
{
    return first(u"Model_ID = "_s + sqlNumber(label.Model_ID) + u" and m_uruntip = "_s +
                 sqlNumber(label.TipID));
}

qint32 LabelLookup::standingRecord(qint32 Model_ID) const
{
    Database &db = *m_oturum->Veritabani;
    if (db.query(u"Select * From Model Where Model_ID = "_s + sqlNumber(Model_ID)).next())
        return Model_ID;
    const QString id = sqlNumber(Model_ID);
    Recordset old = db.query(u"Select * From EskiEtiket Where Son >= "_s + id + u" and Ilk <= "_s +
                             id + u" Order by Son"_s);
    if (!old.next())
        return Model_ID;
    Recordset now = db.query(u"Select Max(Model_ID) as Kayit From Model Where "_s +
                             ofModel(old.text(u"Model"), qint32(old.integer(u"M_Uruntip"))));
    return now.next() && !now.isNull(u"Kayit") ? qint32(now.integer(u"Kayit")) : Model_ID;
}

std::optional<LabelledModel> LabelLookup::byOldRecord(const ProductLabel &label) const
{
    Database &db = *m_oturum->Veritabani;
    // A company that was only opened for reading can be of an older layout.
    if (!db.hasTable(u"EskiEtiket"_s))
        return std::nullopt;
    const QString id = sqlNumber(label.Model_ID);
    Recordset old =
        db.query(u"Select * From EskiEtiket Where Son >= "_s + id + u" and Ilk <= "_s + id +
                 u" and M_Uruntip = "_s + sqlNumber(label.TipID) + u" Order by Son"_s);
    if (!old.next())
        return std::nullopt;
    const QString model = old.text(u"Model");
    if (const std::optional<LabelledModel> now = first(ofModel(model, label.TipID)))
        return now;
    return LabelledModel{LabelledModel::State::ModelGone, model, shortName(label.TipID),
                         label.TipID};
}

QString LabelLookup::shortName(qint32 TipID) const
{
    Recordset type = m_oturum->Veritabani->query(u"Select KisaAD From UrunTipi Where TipID = "_s +
                                                 sqlNumber(TipID));
    return type.next() ? type.text(u"KisaAD") : QString();
}

void retireLabels(Oturum &oturum, const QString &model, qint32 TipID)
{
    Database &db = *oturum.Veritabani;
    for (const NumberRun &run : recordRuns(db, model, TipID)) {
        // A model saved again and again takes one row, not one for each save.
        const qint64 joined = db.execute(u"UPDATE EskiEtiket Set Son = "_s + sqlNumber(run.last) +
                                         u" Where Son = "_s + sqlNumber(run.first - 1) +
                                         u" and "_s + ofModel(model, TipID));
        if (joined > 0)
            continue;
        Recordset rows = db.table(u"EskiEtiket"_s);
        rows.addNew();
        rows.set(u"Ilk", run.first);
        rows.set(u"Son", run.last);
        rows.set(u"Model", run.model);
        rows.set(u"M_Uruntip", TipID);
        rows.update();
    }
}

} // namespace kuyum
