#include "OrderLookups.h"

#include "Numbers.h"
#include "Oturum.h"
#include "PictureFiles.h"
#include "SqlText.h"
#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

std::optional<OrderCustomer> OrderLookups::firma(double Firkod) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From Firma Where Firkod = "_s + sqlNumber(Firkod));
    if (!Kayit.next())
        return std::nullopt;
    return OrderCustomer{qint32(Kayit.integer(u"Firkod")), Kayit.text(u"FirAdi"),
                         Kayit.text(u"KisaAD"), Kayit.text(u"Aciklama")};
}

std::optional<FoundModel> OrderLookups::model(const QString &text) const
{
    const std::optional<LabelledModel> scanned = etiket(text);
    if (scanned && scanned->isFound())
        return FoundModel{scanned->Model, scanned->KisaAD};
    return byCode(text);
}

std::optional<FoundModel> OrderLookups::byCode(const QString &kod) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Model Where Model = "_s + sqlText(kod));
    std::optional<FoundModel> found;
    while (Kayit.next()) {
        const QString code = Kayit.text(u"Model");
        if (code == kod)
            return FoundModel{code, {}};
        if (!found)
            found = FoundModel{code, {}};
    }
    return found;
}

bool OrderLookups::hasModel(const QString &model) const
{
    return byCode(model).has_value();
}

QStringList OrderLookups::typesOfModel(const QString &model) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select KisaAD From Model, UrunTipi "
                                        "Where M_Uruntip = TipID and Model = "_s +
                                        sqlText(model) + u" Group by KisaAD Order by KisaAD;"_s);
    QStringList names;
    while (Kayit.next())
        names.append(Kayit.text(u"KisaAD"));
    return names;
}

QHash<QString, QStringList> OrderLookups::typesOfOrder(qint32 Sipnum) const
{
    // One query for the order: asking for each model takes longer than all the rest.
    Recordset Kayit =
        m_oturum->sorgula(u"Select Model, KisaAD From Model, UrunTipi Where M_Uruntip = TipID "
                          "and Model In(Select SipModel From SiparisD Where SipnumD = "_s +
                          sqlNumber(Sipnum) + u") Group by Model, KisaAD"_s);
    QHash<QString, QStringList> types;
    while (Kayit.next())
        types[foldedText(Kayit.text(u"Model"))].append(Kayit.text(u"KisaAD"));
    return types;
}

QString OrderLookups::picturePath(const QString &model, const QStringList &tipler) const
{
    const QString &folder = m_oturum->ResimYolu;
    QString path = modelPicturePath(folder, model, tipler);
    if (path.isEmpty() && !folder.isEmpty())
        path = modelPicturePath(folder, model, pictureTypes(model));
    return path;
}

QStringList OrderLookups::pictureTypes(const QString &model) const
{
    Recordset Kayit = m_oturum->sorgula(
        u"SELECT Kisaad FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "
        "Where Model = "_s +
        sqlText(model));
    QStringList names;
    while (Kayit.next())
        names.append(Kayit.text(u"Kisaad"));
    names.removeDuplicates();
    return names;
}

QStringList OrderLookups::colours() const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Renkler Order by RenkSira;"_s);
    QStringList names;
    while (Kayit.next())
        names.append(Kayit.text(u"RenkNo"));
    return names;
}

qint32 OrderLookups::UrunTipIdBul(const QString &KisaAD) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select TipID From UrunTipi Where KisaAD = "_s + sqlText(KisaAD));
    return Kayit.next() ? qint32(Kayit.integer(u"TipID")) : 0;
}

double OrderLookups::UrGram(const QString &model) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From Model Where Model = "_s + sqlText(model));
    return Kayit.next() ? Kayit.number(u"m_miktar") : 0.0;
}

} // namespace kuyum
