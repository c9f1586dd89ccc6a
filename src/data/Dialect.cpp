#include "Dialect.h"

#include "DatabaseError.h"
#include "Dates.h"

#include <array>
#include <QList>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Word, Name, Text, Number, Date, Symbol };

struct Token
{
    Kind kind;
    QString text; ///< a name without brackets, a text without its quotes
};

[[noreturn]] void refuse(const QString &why, QStringView sql)
{
    throw DatabaseError(u"%1: %2"_s.arg(why, sql.toString()));
}

bool isWordStart(QChar c)
{
    return c.isLetter() || c == u'_';
}

/// Words that keep their meaning; every other word is a name.
bool isKeyword(QStringView word)
{
    static const QStringList keywords = {
        u"SELECT"_s, u"FROM"_s,   u"WHERE"_s, u"GROUP"_s, u"BY"_s,     u"ORDER"_s,  u"HAVING"_s,
        u"INNER"_s,  u"LEFT"_s,   u"RIGHT"_s, u"OUTER"_s, u"JOIN"_s,   u"ON"_s,     u"AND"_s,
        u"OR"_s,     u"NOT"_s,    u"IN"_s,    u"AS"_s,    u"ASC"_s,    u"DESC"_s,   u"TOP"_s,
        u"IS"_s,     u"NULL"_s,   u"LIKE"_s,  u"UNION"_s, u"ALL"_s,    u"EXISTS"_s, u"BETWEEN"_s,
        u"DELETE"_s, u"UPDATE"_s, u"SET"_s,   u"INTO"_s,  u"INSERT"_s, u"VALUES"_s, u"DISTINCT"_s,
        u"TRUE"_s,   u"FALSE"_s};
    return keywords.contains(word, Qt::CaseInsensitive);
}

bool isWord(const Token &token, QLatin1StringView word)
{
    return token.kind == Kind::Word && token.text.compare(word, Qt::CaseInsensitive) == 0;
}

bool isSymbol(const Token &token, QChar symbol)
{
    return token.kind == Kind::Symbol && token.text == symbol;
}

class Tokenizer
{
public:
    explicit Tokenizer(QStringView sql) : m_sql(sql) {}

    QList<Token> tokens()
    {
        QList<Token> result;
        for (skipBlanks(); m_at < m_sql.size(); skipBlanks()) {
            const Token token = next();
            if (isSymbol(token, u';')) {
                skipBlanks();
                if (m_at < m_sql.size())
                    refuse(u"Birden fazla SQL ifadesi"_s, m_sql);
                break;
            }
            result.append(token);
        }
        return result;
    }

private:
    void skipBlanks()
    {
        while (m_at < m_sql.size() && m_sql[m_at].isSpace())
            ++m_at;
    }

    Token next()
    {
        const QChar c = m_sql[m_at];
        if (isWordStart(c))
            return word();
        if (c == u'[')
            return {Kind::Name, delimited(u']')};
        if (c == u'\'' || c == u'"')
            return {Kind::Text, delimited(c)};
        if (c == u'#')
            return {Kind::Date, delimited(c)};
        const bool pointNumber = c == u'.' && m_at + 1 < m_sql.size() && m_sql[m_at + 1].isDigit();
        if (c.isDigit() || pointNumber)
            return number();
        static const std::array<QStringView, 4> pairs = {u"<>", u"<=", u">=", u"!="};
        for (const QStringView pair : pairs) {
            if (m_sql.sliced(m_at).startsWith(pair)) {
                m_at += 2;
                return {Kind::Symbol, pair.toString()};
            }
        }
        ++m_at;
        return {Kind::Symbol, QString(c)};
    }

    Token word()
    {
        const qsizetype start = m_at;
        while (m_at < m_sql.size() && (isWordStart(m_sql[m_at]) || m_sql[m_at].isDigit()))
            ++m_at;
        const QString text = m_sql.sliced(start, m_at - start).toString();
        const bool qualified = start > 0 && m_sql[start - 1] == u'.';
        return {isKeyword(text) && !qualified ? Kind::Word : Kind::Name, text};
    }

    Token number()
    {
        const qsizetype start = m_at;
        while (m_at < m_sql.size() && (m_sql[m_at].isDigit() || m_sql[m_at] == u'.'))
            ++m_at;
        if (m_at < m_sql.size() && isWordStart(m_sql[m_at]))
            refuse(u"Sayıdan sonra harf"_s, m_sql);
        return {Kind::Number, m_sql.sliced(start, m_at - start).toString()};
    }

    /// The text up to the closing mark; a doubled mark stands for itself.
    QString delimited(QChar end)
    {
        QString text;
        for (++m_at; m_at < m_sql.size(); ++m_at) {
            if (m_sql[m_at] != end) {
                text += m_sql[m_at];
                continue;
            }
            const bool doubled = end != u']' && m_at + 1 < m_sql.size() && m_sql[m_at + 1] == end;
            if (!doubled) {
                ++m_at;
                return text;
            }
            text += end;
            ++m_at;
        }
        refuse(u"Kapanmamış metin ya da ad"_s, m_sql);
    }

    QStringView m_sql;
    qsizetype m_at = 0;
};

/// Our names of the functions whose names or results differ in SQLite.
QString functionName(const QString &name)
{
    static const QStringList ours = {u"Left"_s,  u"Right"_s,     u"Mid"_s,   u"Format"_s, u"Val"_s,
                                     u"Str"_s,   u"DateValue"_s, u"UCase"_s, u"LCase"_s,  u"Len"_s,
                                     u"Round"_s, u"Int"_s,       u"Trim"_s};
    for (const QString &known : ours) {
        if (known.compare(name, Qt::CaseInsensitive) == 0)
            return u"kuyum_"_s + known.toLower();
    }
    if (name.compare("Nz"_L1, Qt::CaseInsensitive) == 0)
        return u"ifnull"_s;
    return name;
}

bool givesText(const QString &function)
{
    static const QStringList names = {u"Left"_s, u"Right"_s, u"Mid"_s,   u"Format"_s,
                                      u"Str"_s,  u"UCase"_s, u"LCase"_s, u"Trim"_s};
    return names.contains(function, Qt::CaseInsensitive);
}

class Translator
{
public:
    explicit Translator(QStringView sql) : m_sql(sql), m_tokens(Tokenizer(sql).tokens()) {}

    TranslatedSql translate()
    {
        if (m_tokens.isEmpty())
            refuse(u"Boş SQL ifadesi"_s, m_sql);
        TranslatedSql result;
        result.isSelect = isWord(m_tokens.first(), "SELECT"_L1);
        if (result.isSelect)
            result.editableTable = singleTable();
        m_rowNumberOf = result.editableTable;
        m_scopes.append(Scope{});
        while (m_at < m_tokens.size())
            one();
        endScope();
        if (!m_scopes.isEmpty())
            refuse(u"Kapanmamış parantez"_s, m_sql);
        result.text = m_out.trimmed();
        return result;
    }

private:
    /// What is open: a bracket, and the Select inside it with its Top.
    struct Scope
    {
        QString limit;
        QString after; ///< written behind the closing bracket
    };

    const Token *peek(qsizetype ahead = 1) const
    {
        return m_at + ahead < m_tokens.size() ? &m_tokens[m_at + ahead] : nullptr;
    }

    void write(const QString &text) { m_out += text + u' '; }

    void endScope()
    {
        const Scope scope = m_scopes.takeLast();
        if (!scope.limit.isEmpty())
            write(u"LIMIT "_s + scope.limit);
    }

    void one()
    {
        const Token &token = m_tokens[m_at];
        switch (token.kind) {
        case Kind::Word:
            keyword(token);
            return;
        case Kind::Name:
            name(token);
            return;
        case Kind::Text:
            write(u'\'' + QString(token.text).replace(u'\'', u"''"_s) + u'\'');
            break;
        case Kind::Number:
            write(token.text);
            break;
        case Kind::Date:
            write(u'\'' + literalDate(token.text) + u'\'');
            break;
        case Kind::Symbol:
            symbol(token);
            break;
        }
        ++m_at;
    }

    void keyword(const Token &token)
    {
        const Token *following = peek();
        if (isWord(token, "LEFT"_L1) || isWord(token, "RIGHT"_L1)) {
            if (following != nullptr && isSymbol(*following, u'(')) {
                function(token.text);
                return;
            }
        }
        ++m_at;
        if (isWord(token, "TOP"_L1)) {
            if (following == nullptr || following->kind != Kind::Number)
                refuse(u"Top sayısı eksik"_s, m_sql);
            m_scopes.last().limit = following->text;
            ++m_at;
            return;
        }
        if (isWord(token, "FROM"_L1) && m_scopes.size() == 1 && !m_rowNumberOf.isEmpty())
            write(u", %1._rowid_"_s.arg(quotedName(m_rowNumberOf)));
        write(token.text);
        if (isWord(token, "DELETE"_L1) && following != nullptr && isSymbol(*following, u'*'))
            ++m_at;
    }

    void name(const Token &token)
    {
        const Token *following = peek();
        if (following != nullptr && isSymbol(*following, u'(') &&
            !(m_at > 0 && isWord(m_tokens[m_at - 1], "INTO"_L1))) {
            function(token.text);
            return;
        }
        write(quotedName(token.text));
        ++m_at;
    }

    /// Writes a function's name and its opening bracket.
    void function(const QString &name)
    {
        m_at += 2;
        Scope scope;
        if (name.compare("IsNull"_L1, Qt::CaseInsensitive) == 0) {
            write(u"(("_s);
            scope.after = u"IS NULL )"_s;
        } else {
            write(functionName(name) + u'(');
            // A computed text has no collation of its own; it compares as all texts do.
            if (givesText(name))
                scope.after = u"COLLATE TURKCE"_s;
        }
        m_scopes.append(scope);
    }

    void symbol(const Token &token)
    {
        if (isSymbol(token, u'(')) {
            m_scopes.append(Scope{});
            write(u"("_s);
        } else if (isSymbol(token, u')')) {
            if (m_scopes.size() < 2)
                refuse(u"Fazla kapanan parantez"_s, m_sql);
            const QString after = m_scopes.last().after;
            endScope();
            write(u")"_s);
            if (!after.isEmpty())
                write(after);
        } else if (isSymbol(token, u'/')) {
            write(u"* 1.0 /"_s);
        } else if (isSymbol(token, u'&')) {
            write(u"||"_s);
        } else {
            write(token.text);
        }
    }

    /// #month/day/year#, whatever the system's own order is.
    QString literalDate(const QString &text) const
    {
        const QStringList parts = text.trimmed().split(u'/');
        const QDate date = parts.size() == 3
                               ? QDate(parts[2].toInt(), parts[0].toInt(), parts[1].toInt())
                               : QDate();
        if (!date.isValid())
            refuse(u"Hatalı tarih #%1#"_s.arg(text), m_sql);
        return isoText(date);
    }

    /// The table of "Select ... From Table [Where ...] [Order by ...]" whose
    /// rows are shown as they are; nothing for any other statement.
    QString singleTable() const
    {
        static const QStringList aggregates = {u"Sum"_s, u"Count"_s, u"Max"_s, u"Min"_s,
                                               u"Avg"_s, u"First"_s, u"Last"_s};
        int depth = 0;
        qsizetype from = -1;
        for (qsizetype i = 0; i < m_tokens.size(); ++i) {
            const Token &token = m_tokens[i];
            depth += isSymbol(token, u'(') ? 1 : isSymbol(token, u')') ? -1 : 0;
            if (depth > 0)
                continue;
            if (isWord(token, "FROM"_L1))
                from = i;
            if (isWord(token, "GROUP"_L1) || isWord(token, "DISTINCT"_L1) ||
                isWord(token, "UNION"_L1))
                return {};
            if (token.kind == Kind::Name && aggregates.contains(token.text, Qt::CaseInsensitive) &&
                i + 1 < m_tokens.size() && isSymbol(m_tokens[i + 1], u'('))
                return {};
        }
        if (from < 0 || from + 1 >= m_tokens.size() || m_tokens[from + 1].kind != Kind::Name)
            return {};
        const bool alone = from + 2 == m_tokens.size() || isWord(m_tokens[from + 2], "WHERE"_L1) ||
                           isWord(m_tokens[from + 2], "ORDER"_L1);
        return alone ? m_tokens[from + 1].text : QString();
    }

    QStringView m_sql;
    QList<Token> m_tokens;
    qsizetype m_at = 0;
    QString m_out;
    QString m_rowNumberOf;
    QList<Scope> m_scopes;
};

} // namespace

QString quotedName(QStringView name)
{
    // Brackets, unlike double quotes, can never fall back to being a text.
    if (name.contains(u']'))
        refuse(u"Geçersiz ad"_s, name);
    return u'[' + name.toString() + u']';
}

TranslatedSql translateSql(QStringView sql)
{
    return Translator(sql).translate();
}
