#include "SiparisStore.h"

#include "Dates.h"
#include "LineFolding.h"
#include "Numbers.h"
#include "OrderLookups.h"
#include "Oturum.h"
#include "TurkishText.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

enum class RowNumbers { Written, Left };

ProductionState stateOf(const Recordset &line)
{
    return {line.text(u"Drm1"), line.text(u"Drm2"), line.value(u"Trhbas").toDateTime(),
            line.value(u"Trhbit").toDateTime()};
}

QDateTime storedDate(const QDateTime &date)
{
    return date.isValid() ? date : QDateTime(noDate(), QTime(0, 0), Qt::UTC);
}

void setHeader(Recordset &header, const Siparis &siparis)
{
    header.set(u"TesTrh", siparis.TesTrh);
    header.set(u"SipFirkod", siparis.Firkod);
    header.set(u"Ayar", siparis.Ayar);
    header.set(u"Patent", siparis.Patent);
    header.set(u"Aciklama", siparis.Aciklama);
}

void setState(Recordset &line, const ProductionState &state)
{
    line.set(u"Drm1", state.durum1);
    line.set(u"Drm2", state.durum2);
    line.set(u"Trhbas", storedDate(state.basTrh));
    line.set(u"Trhbit", storedDate(state.bitTrh));
}

/// The product types of the columns by their short names as they are defined
/// now. A name that two types share cannot tell them apart; the column can.
QList<qint32> columnTypes(Oturum &oturum, const QList<UrunTipi> &tipler)
{
    QHash<QString, int> sharing;
    for (const UrunTipi &tip : tipler)
        ++sharing[foldedText(tip.KisaAD)];
    const OrderLookups lookups(oturum);
    QList<qint32> ids;
    for (const UrunTipi &tip : tipler) {
        const bool shared = sharing[foldedText(tip.KisaAD)] > 1;
        const qint32 defined = shared ? 0 : lookups.UrunTipIdBul(tip.KisaAD);
        ids.append(defined != 0 ? defined : tip.TipID);
    }
    return ids;
}

/// Adds a line for every quantity.
void addLines(Oturum &oturum, const Siparis &siparis, RowNumbers rowNumbers)
{
    const QList<qint32> typeIds = columnTypes(oturum, siparis.tipler);
    Recordset lines = oturum.Veritabani->table(u"SiparisD"_s);
    for (qsizetype i = 0; i < siparis.satirlar.size(); ++i) {
        const SiparisSatiri &row = siparis.satirlar[i];
        if (row.model.isEmpty())
            continue;
        for (qsizetype j = 0; j < siparis.tipler.size(); ++j) {
            if (row.adetler[j] == 0)
                continue;
            lines.addNew();
            if (rowNumbers == RowNumbers::Written)
                lines.set(u"SipSatir", i + 1);
            lines.set(u"SipnumD", siparis.Sipnum);
            lines.set(u"SipModel", row.model);
            lines.set(u"Siprenk", row.renk);
            lines.set(u"SipAck", row.aciklama);
            setState(lines, row.stateOf(int(j)));
            lines.set(u"SipAdet", row.adetler[j]);
            lines.set(u"SipUruntip", typeIds[j]);
            lines.update();
        }
    }
}

/// Removes the lines that the screen shows, and so is about to write again.
QString deleteLinesSql(const Siparis &siparis)
{
    QStringList kept;
    for (const KeptLine &line : siparis.allKeptLines())
        kept.append(QString::number(line.Dotosayi));
    const QString all = u"DELETE From SiparisD Where SipnumD = "_s + sqlNumber(siparis.Sipnum);
    return kept.isEmpty() ? all : all + u" and Dotosayi Not In("_s + kept.join(u',') + u')';
}

} // namespace

QList<UrunTipi> SiparisStore::productTypes() const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From UrunTipi Order by Sirano;"_s);
    QList<UrunTipi> types;
    while (Kayit.next()) {
        types.append(
            {qint32(Kayit.integer(u"TipID")), Kayit.text(u"UrunTipi"), Kayit.text(u"KisaAD")});
    }
    return types;
}

std::optional<Siparis> SiparisStore::baslikBul(qint32 Sipnum) const
{
    Recordset Kayit = m_oturum->sorgula(u"Select * From SiparisB, Firma "
                                        "Where SiparisB.SipFirkod = Firma.Firkod "
                                        "and Sipnum = "_s +
                                        sqlNumber(Sipnum));
    if (!Kayit.next())
        return std::nullopt;
    Siparis siparis;
    siparis.Sipnum = Sipnum;
    siparis.Firkod = qint32(Kayit.integer(u"Firkod"));
    siparis.FirAdi = Kayit.text(u"FirAdi");
    siparis.KisaAD = Kayit.text(u"KisaAD");
    siparis.TesTrh = Kayit.date(u"TesTrh");
    siparis.SipTrh = Kayit.date(u"SipTrh");
    siparis.Ayar = Kayit.number(u"Ayar");
    siparis.Patent = Kayit.text(u"Patent");
    siparis.Aciklama = Kayit.text(u"SiparisB.Aciklama");
    return siparis;
}

std::optional<Siparis> SiparisStore::SiparisBul(qint32 Sipnum) const
{
    std::optional<Siparis> siparis = baslikBul(Sipnum);
    if (!siparis)
        return std::nullopt;
    siparis->tipler = productTypes();
    const QHash<QString, QStringList> types = OrderLookups(*m_oturum).typesOfOrder(Sipnum);
    const auto typesOf = [&types](const QString &model) { return types.value(foldedText(model)); };
    const QList<OrderLine> lines = readLines(Sipnum);
    siparis->satirlar = foldLines(lines, siparis->tipler, typesOf);
    QList<qint32> shown;
    for (const OrderLine &line : lines)
        shown.append(line.Dotosayi);
    siparis->keptLines = otherLines(Sipnum, shown);
    return siparis;
}

QList<OrderLine> SiparisStore::readLines(qint32 Sipnum) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From SiparisD, UrunTipi, Renkler "
                          "Where Sipuruntip = TipID and SiparisD.Siprenk = Renkler.Renkno "
                          "and SipnumD = "_s +
                          sqlNumber(Sipnum) + u" Order by SipSatir, Sipmodel, Renksira, Sipack;"_s);
    QList<OrderLine> lines;
    QSet<qint32> seen; // a type or colour that is defined twice must not double the pieces
    while (Kayit.next()) {
        const qint32 id = qint32(Kayit.integer(u"Dotosayi"));
        if (seen.contains(id))
            continue;
        seen.insert(id);
        lines.append({id, Kayit.text(u"SipSatir"), Kayit.text(u"SipModel"), Kayit.text(u"Siprenk"),
                      Kayit.text(u"SipAck"), qint32(Kayit.integer(u"SipUruntip")),
                      qint32(Kayit.integer(u"SipAdet")), stateOf(Kayit)});
    }
    return lines;
}

QList<KeptLine> SiparisStore::otherLines(qint32 Sipnum, const QList<qint32> &shownLines) const
{
    const QString all = u" From SiparisD Where SipnumD = "_s + sqlNumber(Sipnum);
    Recordset counted = m_oturum->sorgula(u"Select Count(*) as n"_s + all);
    counted.next();
    if (counted.integer(u"n") == shownLines.size())
        return {};
    QStringList shown = {u"0"_s};
    for (const qint32 Dotosayi : shownLines)
        shown.append(QString::number(Dotosayi));
    Recordset Kayit = m_oturum->sorgula(u"Select *"_s + all + u" and Dotosayi Not In("_s +
                                        shown.join(u',') + u')');
    QList<KeptLine> others;
    while (Kayit.next()) {
        others.append({qint32(Kayit.integer(u"Dotosayi")), Kayit.text(u"SipModel"),
                       Kayit.text(u"Siprenk"), qint32(Kayit.integer(u"SipAdet")), stateOf(Kayit)});
    }
    return others;
}

SiparisBoyu SiparisStore::boyut(qint32 Sipnum) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From SiparisD Where SipnumD = "_s + sqlNumber(Sipnum));
    SiparisBoyu boyut;
    while (Kayit.next()) {
        ++boyut.satir;
        boyut.adet += Kayit.integer(u"SipAdet");
        boyut.uretimde += stateOf(Kayit).hasBegun() ? 1 : 0;
    }
    return boyut;
}

std::optional<qint32> SiparisStore::headerCustomer(double Sipnum) const
{
    Recordset Kayit =
        m_oturum->sorgula(u"Select * From SiparisB Where Sipnum = "_s + sqlNumber(Sipnum));
    if (!Kayit.next())
        return std::nullopt;
    return qint32(Kayit.integer(u"SipFirkod"));
}

bool SiparisStore::save(Siparis &siparis) const
{
    if (siparis.Sipnum != 0) {
        Recordset header = m_oturum->sorgula(u"Select * From SiparisB Where Sipnum = "_s +
                                             sqlNumber(siparis.Sipnum));
        if (!header.next())
            return false;
        header.edit();
        setHeader(header, siparis);
        header.update();
    } else {
        addHeader(siparis);
    }

    Transaction lines(*m_oturum->Veritabani);
    m_oturum->calistir(deleteLinesSql(siparis));
    addLines(*m_oturum, siparis, RowNumbers::Written);
    lines.commit();
    return true;
}

void SiparisStore::saveAsNew(Siparis &siparis, QDate SipTrh) const
{
    siparis.becomeCopy();
    siparis.SipTrh = SipTrh;
    addHeader(siparis);
    Transaction lines(*m_oturum->Veritabani);
    addLines(*m_oturum, siparis, RowNumbers::Left);
    lines.commit();
}

void SiparisStore::remove(qint32 Sipnum) const
{
    Transaction removal(*m_oturum->Veritabani);
    m_oturum->calistir(u"DELETE From SiparisB Where Sipnum = "_s + sqlNumber(Sipnum));
    m_oturum->calistir(u"DELETE From SiparisD Where SipnumD = "_s + sqlNumber(Sipnum));
    removal.commit();
}

void SiparisStore::addHeader(Siparis &siparis) const
{
    Recordset headers = m_oturum->Veritabani->table(u"SiparisB"_s);
    headers.addNew();
    headers.set(u"SipTrh", siparis.SipTrh);
    setHeader(headers, siparis);
    headers.update();
    siparis.Sipnum = qint32(headers.integer(u"Sipnum"));
}
