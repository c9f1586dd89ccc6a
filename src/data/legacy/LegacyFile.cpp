#include "LegacyFile.h"

#include "LegacyCatalog.h"
#include "LegacyDefinition.h"
#include "LegacyHeader.h"
#include "LegacyRows.h"
#include "LegacyTexts.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace kuyum {

struct LegacyFile::State
{
    MdbPointer handle;
    qint64 size = 0;
    qint64 longValueBudget = 0;
};

LegacyFile::LegacyFile(const QString &path) : m_state(std::make_unique<State>())
{
    m_state->size = QFile(path).size();
    m_state->handle.reset(mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS));
    MdbHandle *handle = m_state->handle.get();
    if (handle == nullptr)
        throw DatabaseError(u"Dosya bir Access (.mdb) veri tabanı değil."_s);
    checkHeader(handle, m_state->size);
    LegacyTexts::setCode(handle);
}

LegacyFile::~LegacyFile() = default;

QList<LegacyTable> LegacyFile::tables()
{
    MdbHandle *handle = m_state->handle.get();
    QList<LegacyTable> result;
    const QList<LegacyCatalogEntry> catalog = readCatalog(handle, m_state->size);
    for (const LegacyCatalogEntry &listed : catalog) {
        MdbCatalogEntry entry = mdbEntry(handle, listed.name, listed.page, listed.properties.get());
        const MdbTablePointer table = readDefinition(entry);
        result.append({translateDefinition(table.get()), table->num_rows, listed.page});
    }
    return result;
}

LegacyRows LegacyFile::rows(const LegacyTable &table)
{
    m_state->longValueBudget = m_state->size;
    MdbHandle *handle = m_state->handle.get();
    return LegacyRows(std::make_unique<LegacyRows::State>(
        handle, mdbEntry(handle, table.definition.name.toUtf8(), table.page),
        m_state->longValueBudget));
}

} // namespace kuyum
