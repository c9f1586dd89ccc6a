#include "RegistryStore.h"

#include "Database.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static Sirket companyOf(const Recordset &row)
{
    return {qint32(row.integer(u"Srkkod")), row.text(u"Srkadi"), row.text(u"DataYolu"),
            row.text(u"ResimYolu"), row.text(u"Transferyolu")};
}

bool RegistryStore::isEmpty()
{
    return !m_registry.query(u"Select Top 1 * From SirketKayit"_s).next();
}

QList<Sirket> RegistryStore::companies()
{
    QList<Sirket> found;
    Recordset rows = m_registry.query(u"Select * From SirketKayit Order by Srkkod"_s);
    while (rows.next()) {
        if (rows.text(u"turkod") == "048"_L1)
            found.append(companyOf(rows));
    }
    return found;
}

std::optional<Sirket> RegistryStore::find(qint32 Srkkod)
{
    Recordset rows = m_registry.table(u"SirketKayit"_s);
    if (!rows.seek({Srkkod}))
        return std::nullopt;
    return companyOf(rows);
}

void RegistryStore::savePaths(const Sirket &sirket)
{
    Recordset row = m_registry.table(u"SirketKayit"_s);
    if (!row.seek({sirket.Srkkod}))
        throw DatabaseError(u"ŞİRKET KAYITLI DEĞİL..."_s);
    row.edit();
    row.set(u"DataYolu", sirket.DataYolu);
    row.set(u"ResimYolu", sirket.ResimYolu);
    row.set(u"Transferyolu", sirket.Transferyolu);
    row.update();
}

} // namespace kuyum
