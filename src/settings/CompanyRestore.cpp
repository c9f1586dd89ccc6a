#include "CompanyRestore.h"

#include "Oturum.h"
#include "Schema.h"

namespace kuyum {

QString yedektenDon(Oturum &oturum, const QString &backup, const WorkProgress &progress)
{
    const QString path = oturum.Veritabani->path();
    oturum.Veritabani.reset();
    QString kept;
    try {
        kept = restoreBackup(path, backup, progress);
    } catch (...) {
        oturum.Veritabani = openCompany(path);
        throw;
    }
    oturum.Veritabani = openCompany(path);
    return kept;
}

} // namespace kuyum
