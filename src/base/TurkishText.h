#pragma once

#include <QString>

namespace kuyum {

/// How a person's text is compared, ordered and put into capitals.
///
/// The tables are our own, the same on every system: the locale-free
/// functions of the libraries are wrong for I, İ, ı and i, and the
/// locale-bound ones need data that not every system has.
///
/// Equal are texts that differ only in letter case (i = I; ı and İ are letters
/// of their own) and in trailing blanks. The order is punctuation, digits,
/// letters, the letters as in the Turkish alphabet: ç after c, ğ after g, ı
/// before i, İ right after i, ö after o, ş after s, ü after u; an accented
/// letter (â, é) follows its base letter.

/// Less than, equal to or greater than 0 as a sorts before, with or after b.
int compareText(QStringView a, QStringView b);

/// compareText over UTF-8 bytes, as the database engine hands them in.
int compareUtf8Text(const char *a, int aBytes, const char *b, int bBytes);

bool sameText(QStringView a, QStringView b);

/// A text that two texts share exactly when they are the sameText.
QString foldedText(QStringView text);

/// Turkish capitals (i becomes İ, ı becomes I) and small letters.
QString turkishUpper(QStringView text);
QString turkishLower(QStringView text);

/// The key by which search fields find text as one types: without regard to
/// case, and with i, ı, I and İ all alike.
QString searchKey(QStringView text);

/// For sorting and ordered maps.
struct TextLess
{
    bool operator()(const QString &a, const QString &b) const { return compareText(a, b) < 0; }
};

} // namespace kuyum
