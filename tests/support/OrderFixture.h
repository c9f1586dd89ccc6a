#pragma once

#include "Oturum.h"
#include "SampleCompany.h"

#include <QTemporaryDir>

namespace kuyum {

/// A fresh copy of the sample company, and its orders read back as text.
struct OrderFixture
{
    OrderFixture()
    {
        oturum.Veritabani = makeSampleCompany(path());
        oturum.CalismaTarihi = QDate(2012, 6, 1);
    }

    QString path() const { return dir.filePath(QStringLiteral("atolye.kuyum")); }

    /// The order's lines as "row model type colour note count", by line id.
    QStringList lines(int order) const
    {
        Recordset set = oturum.Veritabani->query(
            QStringLiteral("Select * From SiparisD Where SipnumD = %1 Order by Dotosayi")
                .arg(order));
        QStringList result;
        while (set.next()) {
            result.append(QStringLiteral("%1 %2 %3 %4 [%5] %6")
                              .arg(set.text(u"SipSatir"), set.text(u"SipModel"),
                                   set.text(u"SipUruntip"), set.text(u"Siprenk"),
                                   set.text(u"SipAck"), set.text(u"SipAdet")));
        }
        return result;
    }
    /// One field of the order's lines, by line id.
    QStringList field(int order, QStringView name) const
    {
        Recordset set = oturum.Veritabani->query(
            QStringLiteral("Select * From SiparisD Where SipnumD = %1 Order by Dotosayi")
                .arg(order));
        QStringList result;
        while (set.next())
            result.append(set.text(name));
        return result;
    }
    /// A field of the order's header; null when there is no header.
    QString header(int order, QStringView name) const
    {
        Recordset set = oturum.Veritabani->query(
            QStringLiteral("Select * From SiparisB Where Sipnum = %1").arg(order));
        return set.next() ? set.text(name) : QString();
    }
    int headerCount() const
    {
        Recordset set = oturum.Veritabani->query(QStringLiteral("Select * From SiparisB"));
        int count = 0;
        while (set.next())
            ++count;
        return count;
    }
    /// Adds a line as another program would have left it.
    void addLine(int order, const QVariant &row, const QString &model, int type,
                 const QString &colour, int count, const QString &status = {}) const
    {
        Recordset set = oturum.Veritabani->table(QStringLiteral("SiparisD"));
        set.addNew();
        set.set(u"SipnumD", order);
        set.set(u"SipSatir", row);
        set.set(u"SipModel", model);
        set.set(u"SipUruntip", type);
        set.set(u"Siprenk", colour);
        set.set(u"SipAdet", count);
        set.set(u"Drm1", status);
        set.update();
    }

    QTemporaryDir dir;
    Oturum oturum;
};

} // namespace kuyum
