#pragma once

#include <QDate>
#include <QString>

namespace kuyum {

class Database;

/// The selling rate of a currency on a date: 1 for the local one, 0 where there
/// is none.
double KurBul(Database &db, QDate date, const QString &code);

/// An amount in another currency at the rates of one date, rounded to 2
/// decimals; 0 when the target currency has no rate on that date.
double KurCevir(Database &db, QDate date, double amount, const QString &source,
                const QString &target);

/// The density of a karat (fineness in thousandths); 0 for an unknown one.
double YogunlukBul(Database &db, double milyem);

/// The number a text holds: 0 for an empty text; throws std::invalid_argument
/// for one that is no number.
double Deger(const QString &text);

} // namespace kuyum
