#include "OpeningNotes.h"

#include "Database.h"
#include "SqliteEngine.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QStringList notesWhere(const Database &db, const QString &condition)
{
    const SqliteEngine &engine = db.engine();
    QSqlQuery present =
        engine.run(u"SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = 'kuyum_not'"_s);
    if (!engine.next(present))
        return {};
    QStringList notes;
    QSqlQuery rows =
        engine.run(u"SELECT metin FROM kuyum_not WHERE %1 ORDER BY _rowid_"_s.arg(condition));
    while (engine.next(rows))
        notes.append(rows.value(0).toString());
    return notes;
}

} // namespace

void addNote(Database &db, const QString &text)
{
    db.engine().run(u"CREATE TABLE IF NOT EXISTS kuyum_not (metin TEXT, soylendi BIT)"_s);
    db.engine().run(u"INSERT INTO kuyum_not VALUES (?, 0)"_s, {text});
}

QStringList openingNotes(const Database &db)
{
    return notesWhere(db, u"1"_s);
}

QStringList untoldNotes(const Database &db)
{
    return notesWhere(db, u"NOT soylendi"_s);
}

void markNotesTold(Database &db)
{
    db.engine().run(u"UPDATE kuyum_not SET soylendi = 1"_s);
}

QString notesText(const QStringList &notes)
{
    constexpr qsizetype shown = 12;
    QString text = notes.first(qMin(shown, notes.size())).join(u'\n');
    if (notes.size() > shown)
        text += u"\n… ve %1 satır daha. Hepsini \"kuyum denetle\" gösterir."_s.arg(notes.size() -
                                                                                   shown);
    return text;
}

} // namespace kuyum
