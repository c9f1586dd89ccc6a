#pragma once

#include <QList>
#include <QString>

namespace kuyum {

/// The words and signs of an SQL text in the product's dialect.
struct SqlToken
{
    enum class Kind { Word, Name, Text, Number, Date, Symbol };

    Kind kind;
    QString text; ///< a name without brackets, a text without its quotes

    bool isWord(QLatin1StringView word) const
    {
        return kind == Kind::Word && text.compare(word, Qt::CaseInsensitive) == 0;
    }
    bool isSymbol(QChar symbol) const { return kind == Kind::Symbol && text == symbol; }
};

/// The tokens of one statement, without its closing semicolon. Throws
/// DatabaseError for an open text or name and for a second statement.
QList<SqlToken> sqlTokens(QStringView sql);

/// Throws a DatabaseError that shows the statement.
[[noreturn]] void refuseSql(const QString &why, QStringView sql);

} // namespace kuyum
