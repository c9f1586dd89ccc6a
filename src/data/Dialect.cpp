#include "Dialect.h"

#include "Dates.h"
#include "SqlTokens.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

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
    // Brackets can hold anything, and what follows them makes it no function.
    return quotedName(name);
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
    explicit Translator(QStringView sql) : m_sql(sql), m_tokens(sqlTokens(sql)) {}

    TranslatedSql translate()
    {
        if (m_tokens.isEmpty())
            refuseSql(u"Boş SQL ifadesi"_s, m_sql);
        TranslatedSql result;
        result.isSelect = m_tokens.first().isWord("SELECT"_L1);
        if (result.isSelect)
            result.editableTable = singleTable();
        m_rowNumberOf = result.editableTable;
        m_scopes.append(Scope{});
        while (m_at < m_tokens.size())
            one();
        endScope();
        if (!m_scopes.isEmpty())
            refuseSql(u"Kapanmamış parantez"_s, m_sql);
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

    const SqlToken *peek(qsizetype ahead = 1) const
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
        const SqlToken &token = m_tokens[m_at];
        switch (token.kind) {
        case SqlToken::Kind::Word:
            keyword(token);
            return;
        case SqlToken::Kind::Name:
            name(token);
            return;
        case SqlToken::Kind::Text:
            write(u'\'' + QString(token.text).replace(u'\'', u"''"_s) + u'\'');
            break;
        case SqlToken::Kind::Number:
            write(token.text);
            break;
        case SqlToken::Kind::Date:
            write(u'\'' + literalDate(token.text) + u'\'');
            break;
        case SqlToken::Kind::Symbol:
            symbol(token);
            break;
        }
        ++m_at;
    }

    void keyword(const SqlToken &token)
    {
        const SqlToken *following = peek();
        if (token.isWord("LEFT"_L1) || token.isWord("RIGHT"_L1)) {
            if (following != nullptr && following->isSymbol(u'(')) {
                function(token.text);
                return;
            }
        }
        ++m_at;
        if (token.isWord("TOP"_L1)) {
            if (following == nullptr || following->kind != SqlToken::Kind::Number)
                refuseSql(u"Top sayısı eksik"_s, m_sql);
            m_scopes.last().limit = following->text;
            ++m_at;
            return;
        }
        if (token.isWord("FROM"_L1) && m_scopes.size() == 1 && !m_rowNumberOf.isEmpty())
            write(u", %1._rowid_"_s.arg(quotedName(m_rowNumberOf)));
        write(token.text);
        if (token.isWord("DELETE"_L1) && following != nullptr && following->isSymbol(u'*'))
            ++m_at;
    }

    void name(const SqlToken &token)
    {
        const SqlToken *following = peek();
        if (following != nullptr && following->isSymbol(u'(') &&
            !(m_at > 0 && m_tokens[m_at - 1].isWord("INTO"_L1))) {
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

    void symbol(const SqlToken &token)
    {
        if (token.isSymbol(u'(')) {
            m_scopes.append(Scope{});
            write(u"("_s);
        } else if (token.isSymbol(u')')) {
            if (m_scopes.size() < 2)
                refuseSql(u"Fazla kapanan parantez"_s, m_sql);
            const QString after = m_scopes.last().after;
            endScope();
            write(u")"_s);
            if (!after.isEmpty())
                write(after);
        } else if (token.isSymbol(u'/')) {
            write(u"* 1.0 /"_s);
        } else if (token.isSymbol(u'&')) {
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
            refuseSql(u"Hatalı tarih #%1#"_s.arg(text), m_sql);
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
            const SqlToken &token = m_tokens[i];
            depth += token.isSymbol(u'(') ? 1 : token.isSymbol(u')') ? -1 : 0;
            if (depth > 0)
                continue;
            if (token.isWord("FROM"_L1))
                from = i;
            if (token.isWord("GROUP"_L1) || token.isWord("DISTINCT"_L1) || token.isWord("UNION"_L1))
                return {};
            if (token.kind == SqlToken::Kind::Name &&
                aggregates.contains(token.text, Qt::CaseInsensitive) && i + 1 < m_tokens.size() &&
                m_tokens[i + 1].isSymbol(u'('))
                return {};
        }
        if (from < 0 || from + 1 >= m_tokens.size() ||
            m_tokens[from + 1].kind != SqlToken::Kind::Name)
            return {};
        const bool alone = from + 2 == m_tokens.size() || m_tokens[from + 2].isWord("WHERE"_L1) ||
                           m_tokens[from + 2].isWord("ORDER"_L1);
        return alone ? m_tokens[from + 1].text : QString();
    }

    QStringView m_sql;
    QList<SqlToken> m_tokens;
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
        refuseSql(u"Geçersiz ad"_s, name);
    return u'[' + name.toString() + u']';
}

TranslatedSql translateSql(QStringView sql)
{
    return Translator(sql).translate();
}

} // namespace kuyum
