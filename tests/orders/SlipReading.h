#pragma once

#include "PageReading.h"
#include "Siparis.h"

namespace kuyum {

/// Orders to print, made without a database.
namespace SlipReading {

using namespace Qt::StringLiterals;
using namespace PageReading;

inline QList<UrunTipi> types(const QStringList &names)
{
    QList<UrunTipi> result;
    for (const QString &name : names)
        result.append({qint32(result.size() + 1), name, name});
    return result;
}

inline SiparisSatiri row(const QString &model, const QString &colour,
                         const QList<qint32> &quantities, const QString &note = {})
{
    SiparisSatiri result;
    result.model = model;
    result.renk = colour;
    result.adetler = quantities;
    result.aciklama = note;
    return result;
}

inline Siparis orderOf(const QList<SiparisSatiri> &rows)
{
    Siparis result;
    result.Sipnum = 7;
    result.SipTrh = QDate(2012, 3, 1);
    result.TesTrh = QDate(2012, 3, 15);
    result.Firkod = 10;
    result.FirAdi = u"Işık Kuyumculuk"_s;
    result.KisaAD = u"IŞIK"_s;
    result.Ayar = 585;
    result.Patent = u"TR585"_s;
    result.Aciklama = u"Acele"_s;
    result.tipler = types({u"KLY"_s, u"YZK"_s, u"KPE"_s});
    result.satirlar = rows;
    return result;
}

} // namespace SlipReading

} // namespace kuyum
