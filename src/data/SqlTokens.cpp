#include "SqlTokens.h"

#include "DatabaseError.h"
#include "Numbers.h"

#include <array>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

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

class Tokenizer
{
public:
    explicit Tokenizer(QStringView sql) : m_sql(sql) {}

    QList<SqlToken> tokens()
    {
        // The engine would take the text to end there.
        if (m_sql.contains(QChar::Null))
            refuseSql(u"Geçersiz karakter"_s, m_sql);
        QList<SqlToken> result;
        for (skipBlanks(); m_at < m_sql.size(); skipBlanks()) {
            const SqlToken token = next();
            if (token.isSymbol(u';')) {
                skipBlanks();
                if (m_at < m_sql.size())
                    refuseSql(u"Birden fazla SQL ifadesi"_s, m_sql);
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

    SqlToken next()
    {
        const QChar c = m_sql[m_at];
        if (isWordStart(c))
            return word();
        if (c == u'[')
            return {SqlToken::Kind::Name, delimited(u']')};
        if (c == u'\'' || c == u'"')
            return {SqlToken::Kind::Text, delimited(c)};
        if (c == u'#')
            return {SqlToken::Kind::Date, delimited(c)};
        const bool pointNumber =
            c == u'.' && m_at + 1 < m_sql.size() && isDecimalDigit(m_sql[m_at + 1]);
        if (isDecimalDigit(c) || pointNumber)
            return number();
        if (c.isDigit())
            refuseSql(u"Sayılar yalnız 0-9 rakamlarıyla yazılır"_s, m_sql);
        static const std::array<QStringView, 4> pairs = {u"<>", u"<=", u">=", u"!="};
        for (const QStringView pair : pairs) {
            if (m_sql.sliced(m_at).startsWith(pair)) {
                m_at += 2;
                return {SqlToken::Kind::Symbol, pair.toString()};
            }
        }
        // Whatever else the engine knows, quotes of its own among it, would be read
        // by it in another way than here.
        if (!QStringView(u"()*,./+-=<>&;%").contains(c))
            refuseSql(u"Bilinmeyen işaret"_s, m_sql);
        ++m_at;
        return {SqlToken::Kind::Symbol, QString(c)};
    }

    SqlToken word()
    {
        const qsizetype start = m_at;
        while (m_at < m_sql.size() && (isWordStart(m_sql[m_at]) || m_sql[m_at].isDigit()))
            ++m_at;
        const QString text = m_sql.sliced(start, m_at - start).toString();
        const bool qualified = start > 0 && m_sql[start - 1] == u'.';
        return {isKeyword(text) && !qualified ? SqlToken::Kind::Word : SqlToken::Kind::Name, text};
    }

    SqlToken number()
    {
        const qsizetype start = m_at;
        while (m_at < m_sql.size() && (isDecimalDigit(m_sql[m_at]) || m_sql[m_at] == u'.'))
            ++m_at;
        if (m_at < m_sql.size() && (isWordStart(m_sql[m_at]) || m_sql[m_at].isDigit()))
            refuseSql(u"Sayıdan sonra harf"_s, m_sql);
        return {SqlToken::Kind::Number, m_sql.sliced(start, m_at - start).toString()};
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
        refuseSql(u"Kapanmamış metin ya da ad"_s, m_sql);
    }

    QStringView m_sql;
    qsizetype m_at = 0;
};

} // namespace

QList<SqlToken> sqlTokens(QStringView sql)
{
    return Tokenizer(sql).tokens();
}

void refuseSql(const QString &why, QStringView sql)
{
    throw DatabaseError(u"%1: %2"_s.arg(why, sql.toString()));
}

} // namespace kuyum
