#include "SiparisTakip.h"

#include "DatabaseError.h"
#include "Dates.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SiparisStore.h"
#include "SqlText.h"
#include "TurkishText.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

QDateTime noMoment()
{
    return {noDate(), QTime(0, 0), Qt::UTC};
}

/// 01.01.2000 is no date.
QDateTime dateOf(const Recordset &line, QStringView field)
{
    const QDateTime stored = line.value(field).toDateTime();
    return stored == noMoment() ? QDateTime() : stored;
}

QString storedStatus(const QString &text)
{
    return text.trimmed().isEmpty() ? u""_s : text;
}

QDateTime storedDate(const QDateTime &date)
{
    return date.isValid() ? date : noMoment();
}

/// The fields that production tracking writes, as they are to be stored.
QList<std::pair<QStringView, QVariant>> storedFields(const ProductionState &state)
{
    return {{u"Drm1", storedStatus(state.durum1)},
            {u"Drm2", storedStatus(state.durum2)},
            {u"Trhbas", storedDate(state.basTrh)},
            {u"Trhbit", storedDate(state.bitTrh)}};
}

} // namespace

bool SiparisTakip::duzenlemeYetkisi() const
{
    if (sameText(m_oturum->KullaniciAdi, u"ADMIN"))
        return true;
    Recordset Kayit = m_oturum->sorgula(u"select * From Users Where User_Id = "_s +
                                        sqlNumber(m_oturum->KullaniciNo));
    return Kayit.next() && Kayit.integer(u"user_yetki1") != 0;
}

std::optional<TakipSiparisi> SiparisTakip::SiparisBul(qint32 Sipnum) const
{
    const SiparisStore store(*m_oturum);
    const std::optional<Siparis> baslik = store.baslikBul(Sipnum);
    if (!baslik)
        return std::nullopt;
    TakipSiparisi siparis{*baslik, readLines(Sipnum), {}};
    QList<qint32> shown;
    for (const TakipSatiri &satir : siparis.satirlar)
        shown.append(satir.Dotosayi);
    siparis.gizliSatirlar = store.otherLines(Sipnum, shown);
    return siparis;
}

QList<TakipSatiri> SiparisTakip::readLines(qint32 Sipnum) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From SiparisD, UrunTipi, Renkler "
                          "Where Sipuruntip = TipID and SiparisD.Siprenk = Renkler.Renkno "
                          "and SipnumD = "_s +
                          sqlNumber(Sipnum) + u" Order by Sipmodel, Renksira;"_s);
    QList<TakipSatiri> lines;
    QSet<qint32> seen; // a type or colour that is defined twice must not double a line
    while (Kayit.next()) {
        const qint32 id = qint32(Kayit.integer(u"Dotosayi"));
        if (seen.contains(id))
            continue;
        seen.insert(id);
        lines.append({id,
                      Kayit.text(u"SipModel"),
                      Kayit.text(u"KisaAD"),
                      Kayit.text(u"Siprenk"),
                      qint32(Kayit.integer(u"SipAdet")),
                      Kayit.text(u"SipAck"),
                      {Kayit.text(u"Drm1"), Kayit.text(u"Drm2"), dateOf(Kayit, u"Trhbas"),
                       dateOf(Kayit, u"Trhbit")}});
    }
    return lines;
}

bool SiparisTakip::kaydet(qint32 Sipnum, const QList<TakipSatiri> &satirlar,
                          const SaveError &onError, const SaveProgress &progress) const
{
    for (qsizetype i = 0; i < satirlar.size(); ++i) {
        if (!progress(int(i), int(satirlar.size())))
            return false;
        try {
            writeLine(Sipnum, satirlar[i]);
        } catch (const DatabaseError &error) {
            onError(QString::fromUtf8(error.what()));
        }
    }
    return true;
}

void SiparisTakip::writeLine(qint32 Sipnum, const TakipSatiri &satir) const
{
    Recordset line =
        m_oturum->sorgula(u"Select * From SiparisD Where SipnumD = "_s + sqlNumber(Sipnum) +
                          u" and Sipmodel = "_s + sqlText(satir.model) + u" and Siprenk = "_s +
                          sqlText(satir.renk) + u" and Dotosayi = "_s + sqlNumber(satir.Dotosayi));
    if (!line.next())
        return;
    const auto fields = storedFields(satir.state);
    const bool stands = std::ranges::all_of(
        fields, [&](const auto &field) { return line.value(field.first) == field.second; });
    if (stands)
        return;
    line.edit();
    for (const auto &[name, value] : fields)
        line.set(name, value);
    line.update();
}
