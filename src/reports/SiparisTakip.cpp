#include "SiparisTakip.h"

#include "DatabaseError.h"
#include "Dates.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SiparisStore.h"
#include "SqlText.h"
#include "TurkishText.h"

#include <algorithm>
#include <QSet>

using namespace Qt::StringLiterals;

namespace kuyum {

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

/// Lines that only their rows in the order tell apart.
bool isAlike(const TakipSatiri &a, const TakipSatiri &b)
{
    return sameText(a.model, b.model) && sameText(a.renk, b.renk) && a.tip == b.tip &&
           sameText(a.aciklama, b.aciklama);
}

QList<TakipSatiri> alike(const QList<TakipSatiri> &satirlar, const TakipSatiri &satir)
{
    QList<TakipSatiri> found;
    std::ranges::copy_if(satirlar, std::back_inserter(found),
                         [&](const TakipSatiri &other) { return isAlike(other, satir); });
    return found;
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
                       dateOf(Kayit, u"Trhbit")},
                      qint32(Kayit.integer(u"SipUruntip")),
                      Kayit.text(u"SipSatir")});
    }
    return lines;
}

LoadedRows SiparisTakip::oku(qint32 Sipnum) const
{
    Database &db = *m_oturum->Veritabani;
    return {db, {orderLineRows(db, Sipnum)}};
}

/// The lines whose statuses or dates were set, and those that hold nothing
/// where a save leaves an empty text or the date that stands for none.
QList<TakipSatiri> SiparisTakip::linesToWrite(const TakipKaydi &kayit) const
{
    Recordset empty = m_oturum->sorgula(
        u"Select Dotosayi From SiparisD Where SipnumD = "_s + sqlNumber(kayit.Sipnum) +
        u" and (Drm1 Is Null or Drm2 Is Null or Trhbas Is Null or Trhbit Is Null)"_s);
    QSet<qint32> withNulls;
    while (empty.next())
        withNulls.insert(qint32(empty.integer(u"Dotosayi")));
    QList<TakipSatiri> lines;
    for (const TakipSatiri &satir : kayit.satirlar) {
        const auto opened = std::ranges::find(kayit.opened, satir.Dotosayi, &TakipSatiri::Dotosayi);
        if (opened == kayit.opened.end() || opened->state != satir.state ||
            withNulls.contains(satir.Dotosayi))
            lines.append(satir);
    }
    return lines;
}

TakipSonucu SiparisTakip::kaydet(const TakipKaydi &kayit, LoadedRows &okunan,
                                 const SaveError &onError, const SaveProgress &progress) const
{
    const QList<TakipSatiri> lines = linesToWrite(kayit);
    // All lines at once, so that the user is asked once.
    okunan.check(*m_oturum->Veritabani, [&] {
        for (const TakipSatiri &line : lines) {
            try {
                setState(numberOf(kayit, line), line.state);
            } catch (const DatabaseError &) {
                // Told when it is to be written.
            }
        }
    });
    TakipSonucu sonuc;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        sonuc.ended = progress(int(i), int(lines.size()));
        if (!sonuc.ended)
            break;
        try {
            if (!writeLine(kayit, lines[i], okunan))
                sonuc.kayip.append(lines[i]);
        } catch (const DatabaseError &error) {
            onError(QString::fromUtf8(error.what()));
        }
    }
    return sonuc;
}

/// Whether the line was there to be written.
bool SiparisTakip::writeLine(const TakipKaydi &kayit, const TakipSatiri &satir,
                             const LoadedRows &okunan) const
{
    const qint32 number = numberOf(kayit, satir);
    LoadedRows line = okunan.row(u"SiparisD"_s, u"Dotosayi = "_s + sqlNumber(number), u"Dotosayi"_s,
                                 {number, satir.Dotosayi});
    bool stands = false;
    line.write(*m_oturum->Veritabani, [&] { stands = setState(number, satir.state); });
    return stands;
}

/// The number that the line has now; 0 where it cannot be told.
qint32 SiparisTakip::numberOf(const TakipKaydi &kayit, const TakipSatiri &satir) const
{
    Recordset line =
        m_oturum->sorgula(u"Select * From SiparisD Where SipnumD = "_s + sqlNumber(kayit.Sipnum) +
                          u" and Sipmodel = "_s + sqlText(satir.model) + u" and Siprenk = "_s +
                          sqlText(satir.renk) + u" and Dotosayi = "_s + sqlNumber(satir.Dotosayi));
    return line.next() ? satir.Dotosayi : findAgain(kayit, satir);
}

/// Every save of an order gives its lines new numbers. Lines that are alike
/// are told apart by their rows, and only while there are as many as before.
qint32 SiparisTakip::findAgain(const TakipKaydi &kayit, const TakipSatiri &satir) const
{
    const QList<TakipSatiri> before = alike(kayit.opened, satir);
    QList<TakipSatiri> now = alike(readLines(kayit.Sipnum), satir);
    if (now.size() != before.size())
        return 0;
    if (now.size() > 1) {
        const auto otherRow = [&](const TakipSatiri &line) {
            return line.SipSatir != satir.SipSatir;
        };
        if (std::ranges::count_if(before, std::not_fn(otherRow)) != 1)
            return 0;
        now.removeIf(otherRow);
    }
    const bool known =
        now.size() == 1 && std::ranges::find(kayit.opened, now.first().Dotosayi,
                                             &TakipSatiri::Dotosayi) == kayit.opened.end();
    return known ? now.first().Dotosayi : 0;
}

bool SiparisTakip::setState(qint32 Dotosayi, const ProductionState &state) const
{
    Recordset line =
        m_oturum->sorgula(u"Select * From SiparisD Where Dotosayi = "_s + sqlNumber(Dotosayi));
    if (!line.next())
        return false;
    const auto fields = storedFields(state);
    const bool stands = std::ranges::all_of(
        fields, [&](const auto &field) { return line.value(field.first) == field.second; });
    if (stands)
        return true;
    line.edit();
    for (const auto &[name, value] : fields)
        line.set(name, value);
    line.update();
    return true;
}

} // namespace kuyum
