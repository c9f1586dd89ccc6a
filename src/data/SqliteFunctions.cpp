#include "SqliteFunctions.h"

#include "DatabaseError.h"
#include "Dates.h"
#include "Numbers.h"
#include "TurkishText.h"

#include <cmath>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

int collate(void *, int aBytes, const void *a, int bBytes, const void *b)
{
    return compareUtf8Text(static_cast<const char *>(a), aBytes, static_cast<const char *>(b),
                           bBytes);
}

QString textOf(sqlite3_value *value)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_value_text(value)),
                             sqlite3_value_bytes(value));
}

void giveText(sqlite3_context *context, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    sqlite3_result_text(context, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
}

void giveError(sqlite3_context *context, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    sqlite3_result_error(context, utf8.constData(), int(utf8.size()));
}

bool isNull(sqlite3_value *value)
{
    return sqlite3_value_type(value) == SQLITE_NULL;
}

/// DateValue(text): the day, without a time.
void dateValue(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (isNull(arguments[0]))
        return;
    const QString text = textOf(arguments[0]);
    QDate date = parseDate(text);
    if (!date.isValid())
        date = parseIso(text).date();
    if (date.isValid())
        giveText(context, isoText(date));
    else
        giveError(context, u"Hatalı tarih: "_s + text);
}

/// Format(value, picture) of numbers and of dates ("dd.mm.yyyy").
void format(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (isNull(arguments[0])) {
        giveText(context, {});
        return;
    }
    const QString picture = textOf(arguments[1]);
    if (sqlite3_value_type(arguments[0]) == SQLITE_TEXT) {
        const QString text = textOf(arguments[0]);
        const QDateTime moment = parseIso(text);
        QString datePicture = picture;
        if (moment.isValid() && picture.contains(u'y', Qt::CaseInsensitive))
            giveText(context, moment.toString(datePicture.replace(u'm', u'M')));
        else if (isNumeric(text))
            giveText(context, formatNumber(leadingNumber(text), picture));
        else
            giveText(context, text);
        return;
    }
    giveText(context, formatNumber(sqlite3_value_double(arguments[0]), picture));
}

void left(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (!isNull(arguments[0]))
        giveText(context, textOf(arguments[0]).left(sqlite3_value_int(arguments[1])));
}

void right(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (!isNull(arguments[0]))
        giveText(context, textOf(arguments[0]).right(sqlite3_value_int(arguments[1])));
}

/// Mid(text, start from 1 [, length])
void mid(sqlite3_context *context, int count, sqlite3_value **arguments)
{
    if (isNull(arguments[0]))
        return;
    const int length = count > 2 ? sqlite3_value_int(arguments[2]) : -1;
    giveText(context, textOf(arguments[0]).mid(sqlite3_value_int(arguments[1]) - 1, length));
}

void len(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (!isNull(arguments[0]))
        sqlite3_result_int64(context, textOf(arguments[0]).size());
}

void val(sqlite3_context *context, int, sqlite3_value **arguments)
{
    sqlite3_result_double(context, leadingNumber(textOf(arguments[0])));
}

void str(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (!isNull(arguments[0]))
        giveText(context, sqlNumber(sqlite3_value_double(arguments[0])));
}

void integerPart(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (!isNull(arguments[0]))
        sqlite3_result_double(context, std::floor(sqlite3_value_double(arguments[0])));
}

void round(sqlite3_context *context, int count, sqlite3_value **arguments)
{
    if (isNull(arguments[0]))
        return;
    const int decimals = count > 1 ? sqlite3_value_int(arguments[1]) : 0;
    sqlite3_result_double(context, roundDecimal(sqlite3_value_double(arguments[0]), decimals));
}

void upper(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (!isNull(arguments[0]))
        giveText(context, turkishUpper(textOf(arguments[0])));
}

void lower(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (!isNull(arguments[0]))
        giveText(context, turkishLower(textOf(arguments[0])));
}

void trim(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (!isNull(arguments[0]))
        giveText(context, textOf(arguments[0]).trimmed());
}

/// The legacy engine's Like: * any text, ? one character, # one digit. Only the
/// last star is ever tried again: what stands before it fits as it stands.
bool matches(QStringView pattern, QStringView text)
{
    const auto fits = [](QChar wanted, QChar c) {
        return wanted == u'?' || (wanted == u'#' ? c.isDigit() : wanted == c);
    };
    qsizetype p = 0;
    qsizetype t = 0;
    qsizetype afterStar = -1;
    qsizetype starTakesTo = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            afterStar = ++p;
            starTakesTo = t;
        } else if (p < pattern.size() && fits(pattern[p], text[t])) {
            ++p;
            ++t;
        } else if (afterStar >= 0) {
            p = afterStar;
            t = ++starTakesTo;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*')
        ++p;
    return p == pattern.size();
}

void like(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (!isNull(arguments[0]) && !isNull(arguments[1])) {
        sqlite3_result_int(
            context, matches(foldedText(textOf(arguments[0])), foldedText(textOf(arguments[1]))));
    }
}

struct Function
{
    const char *name;
    int arguments;
    void (*call)(sqlite3_context *, int, sqlite3_value **);
};

constexpr Function functions[] = {
    {"kuyum_datevalue", 1, dateValue},
    {"kuyum_format", 2, format},
    {"kuyum_left", 2, left},
    {"kuyum_right", 2, right},
    {"kuyum_mid", 2, mid},
    {"kuyum_mid", 3, mid},
    {"kuyum_len", 1, len},
    {"kuyum_val", 1, val},
    {"kuyum_str", 1, str},
    {"kuyum_int", 1, integerPart},
    {"kuyum_round", 1, round},
    {"kuyum_round", 2, round},
    {"kuyum_ucase", 1, upper},
    {"kuyum_lcase", 1, lower},
    {"kuyum_trim", 1, trim},
    {"like", 2, like},
};

} // namespace

void registerSqliteFunctions(sqlite3 *connection)
{
    int result =
        sqlite3_create_collation_v2(connection, "TURKCE", SQLITE_UTF8, nullptr, collate, nullptr);
    for (const Function &function : functions) {
        if (result == SQLITE_OK) {
            result =
                sqlite3_create_function_v2(connection, function.name, function.arguments,
                                           SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS,
                                           nullptr, function.call, nullptr, nullptr, nullptr);
        }
    }
    if (result != SQLITE_OK)
        throw DatabaseError(QString::fromUtf8(sqlite3_errmsg(connection)));
}

} // namespace kuyum
