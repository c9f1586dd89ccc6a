#include "Exchange.h"

#include "Database.h"
#include "Numbers.h"
#include "SqlText.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

static QString localCurrency(Database &db)
{
    Recordset local = db.query(u"SELECT * From DovizB WHERE Dovulke = 1"_s);
    return local.next() ? local.text(u"Dovcinsi").trimmed() : QString();
}

double KurBul(Database &db, QDate date, const QString &code)
{
    if (code.trimmed() == localCurrency(db))
        return 1;
    Recordset rate = db.query(u"SELECT * From DovizD WHERE Tarih = "_s + sqlDate(date) +
                              u" and Dovcinsi = "_s + sqlText(code));
    return rate.next() ? rate.number(u"Kur") : 0;
}

double KurCevir(Database &db, QDate date, double amount, const QString &source,
                const QString &target)
{
    const double targetRate = KurBul(db, date, target);
    if (targetRate <= 0)
        return 0;
    return roundDecimal(amount * KurBul(db, date, source) / targetRate, 2);
}

double YogunlukBul(Database &db, double milyem)
{
    Recordset karat = db.query(u"Select * From Ayar Where Milyem = "_s + sqlNumber(milyem));
    return karat.next() ? karat.number(u"Yogunluk") : 0;
}

double Deger(const QString &text)
{
    if (text.trimmed().isEmpty())
        return 0;
    if (!isNumeric(text))
        throw std::invalid_argument("not a number: " + text.toStdString());
    return leadingNumber(text);
}

} // namespace kuyum
