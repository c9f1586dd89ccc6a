#include "SiparisStore.h"

#include "Dates.h"
#include "LineFolding.h"
#include "Numbers.h"
#include "OrderLookups.h"
#include "Oturum.h"
#include "TurkishText.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace kuyum {

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

/// The numbers of the lines without a cell, which a save leaves as they are.
QList<qint32> keptNumbers(const Siparis &siparis)
{
    QList<qint32> kept;
    for (const KeptLine &line : siparis.allKeptLines())
        kept.append(line.Dotosayi);
    return kept;
}

QString deleteLinesSql(qint32 Sipnum, const QList<qint32> &kept)
{
    QStringList numbers;
    for (const qint32 Dotosayi : kept)
        numbers.append(QString::number(Dotosayi));
    const QString all = u"DELETE From SiparisD Where SipnumD = "_s + sqlNumber(Sipnum);
    return kept.isEmpty() ? all : all + u" and Dotosayi Not In("_s + numbers.join(u',') + u')';
}

RecordRows headerRows(Database &db, qint32 Sipnum)
{
    return {.table = u"SiparisB"_s,
            .where = u"Sipnum = "_s + sqlNumber(Sipnum),
            .label = u"Sipariş %1"_s.arg(Sipnum),
            .fields = {
                {u"SipTrh"_s, u"Sipariş tarihi"_s},
                {u"TesTrh"_s, u"Teslim tarihi"_s},
                {u"SipFirkod"_s, u"Müşteri"_s, lookedUp(db, u"Firma"_s, u"Firkod"_s, u"FirAdi"_s)},
                {u"Ayar"_s, u"Ayar"_s},
                {u"Patent"_s, u"Damga"_s},
                {u"Aciklama"_s, u"Açıklama"_s}}};
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

RecordRows orderLineRows(Database &db, qint32 Sipnum)
{
    const auto date = [](const QVariant &value) {
        return value.toDateTime().date() == noDate() ? QString()
                                                     : formatDateTime(value.toDateTime());
    };
    return {.table = u"SiparisD"_s,
            .where = u"SipnumD = "_s + sqlNumber(Sipnum),
            .label = u"Satır"_s,
            .fields = {{u"SipModel"_s, u"Model"_s},
                       {u"Siprenk"_s, u"Renk"_s},
                       {u"SipUruntip"_s, u"Tip"_s,
                        lookedUp(db, u"UrunTipi"_s, u"TipID"_s, u"KisaAD"_s)},
                       {u"SipAdet"_s, u"Adet"_s},
                       {u"SipAck"_s, u"Açıklama"_s},
                       {u"Drm1"_s, u"Sipariş durumu"_s},
                       {u"Drm2"_s, u"Üretim durumu"_s},
                       {u"Trhbas"_s, u"Başlama tarihi"_s, date},
                       {u"Trhbit"_s, u"Bitiş tarihi"_s, date},
                       {u"SipSatir"_s, u"Sıra"_s}},
            .identity = {u"SipModel"_s, u"Siprenk"_s, u"SipUruntip"_s, u"SipAck"_s},
            .renumbered = {u"Dotosayi"_s},
            .quiet = {u"SipSatir"_s}};
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

LoadedRows SiparisStore::oku(qint32 Sipnum) const
{
    Database &db = *m_oturum->Veritabani;
    return {db, {headerRows(db, Sipnum), orderLineRows(db, Sipnum)}};
}

bool SiparisStore::save(Siparis &siparis, LoadedRows &okunan) const
{
    if (siparis.Sipnum == 0)
        addHeader(siparis, okunan);
    else if (!writeHeader(siparis, okunan))
        return false;
    okunan.write(*m_oturum->Veritabani, [&] { replaceLines(siparis, okunan); });
    return true;
}

void SiparisStore::saveAsNew(Siparis &siparis, QDate SipTrh, LoadedRows &okunan) const
{
    siparis.becomeCopy();
    siparis.SipTrh = SipTrh;
    addHeader(siparis, okunan);
    okunan.write(*m_oturum->Veritabani, [&] { addLines(*m_oturum, siparis, RowNumbers::Left); });
}

void SiparisStore::remove(qint32 Sipnum, LoadedRows &okunan) const
{
    okunan.write(*m_oturum->Veritabani, [&] {
        m_oturum->calistir(u"DELETE From SiparisB Where Sipnum = "_s + sqlNumber(Sipnum));
        m_oturum->calistir(u"DELETE From SiparisD Where SipnumD = "_s + sqlNumber(Sipnum));
    });
}

/// The lines are looked at already here, so that no header is changed for
/// lines that then are not.
bool SiparisStore::writeHeader(const Siparis &siparis, LoadedRows &okunan) const
{
    bool stands = false;
    const auto write = [&] {
        Recordset header = m_oturum->sorgula(u"Select * From SiparisB Where Sipnum = "_s +
                                             sqlNumber(siparis.Sipnum));
        stands = header.next();
        if (!stands)
            return;
        header.edit();
        setHeader(header, siparis);
        header.update();
    };
    const auto rest = [&] {
        if (stands)
            replaceLines(siparis, okunan);
    };
    okunan.write(*m_oturum->Veritabani, {write, rest, {u"SiparisB"_s}});
    return stands;
}

void SiparisStore::addHeader(Siparis &siparis, LoadedRows &okunan) const
{
    Transaction addition(*m_oturum->Veritabani);
    Recordset headers = m_oturum->Veritabani->table(u"SiparisB"_s);
    headers.addNew();
    headers.set(u"SipTrh", siparis.SipTrh);
    setHeader(headers, siparis);
    headers.update();
    const auto Sipnum = qint32(headers.integer(u"Sipnum"));
    const LoadedRows added = oku(Sipnum);
    addition.commit();
    siparis.Sipnum = Sipnum;
    okunan = added;
}

/// Those that another gave a new number meanwhile come back under the one that
/// the screen knows.
void SiparisStore::replaceLines(const Siparis &siparis, const LoadedRows &okunan) const
{
    const QList<qint32> kept = keptNumbers(siparis);
    okunan.bringBack(*m_oturum->Veritabani, u"SiparisD"_s, u"Dotosayi"_s, kept);
    m_oturum->calistir(deleteLinesSql(siparis.Sipnum, kept));
    addLines(*m_oturum, siparis, RowNumbers::Written);
}

} // namespace kuyum
