#pragma once

#include "OrderShares.h"
#include "SiparisBasligi.h"

#include <QHash>

namespace kuyum {

class Recordset;
struct Oturum;

/// Makes shares of an order's lines as they come from a query.
class LineShares
{
public:
    /// Throws DatabaseError.
    LineShares(Oturum &oturum, const SiparisBasligi &siparis);

    /// The line in the current row, which has SipModel, SipUruntip, Siprenk and
    /// SipAdet; each piece adding so much.
    OrderShare share(const Recordset &Kayit, double birim) const;

private:
    SiparisBasligi m_siparis;
    QHash<qint64, QString> m_types; ///< short names, by TipID
};

/// A product or sum of decimal figures without what is only binary: full
/// precision shows 1.67, not 1.6700000000000002.
double asDecimal(double value);

/// "K-1 - ADET: 12": which figure of the table a window shows the lines of.
QString figureTitle(const ReportTable &table, qsizetype row, qsizetype column);

} // namespace kuyum
