#include "Exchange.h"

#include "Database.h"
#include "Numbers.h"
#include "SqlText.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

static double rateOf(Database &db, QDate date, const QString &code, const QString &localCode)
{
    if (code.trimmed() == localCode)
        return 1;
    Recordset rate = db.query(u"SELECT * From DovizD WHERE Tarih = "_s + sqlDate(date) +
                              u" and Dovcinsi = "_s + sqlText(code));
    return rate.next() ? rate.number(u"Kur") : 0;
}

double KurCevir(Database &db, QDate date, double amount, const QString &source,
                const QString &target)
{
    Recordset local = db.query(u"SELECT * From DovizB WHERE Dovulke = 1"_s);
    const QString localCode = local.next() ? local.text(u"Dovcinsi").trimmed() : QString();
    const double targetRate = rateOf(db, date, target, localCode);
    if (targetRate <= 0)
        return 0;
    return roundDecimal(amount * rateOf(db, date, source, localCode) / targetRate, 2);
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
