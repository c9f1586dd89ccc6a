#include "DailyBackup.h"

#include "Backup.h"
#include "DamagedDatabase.h"
#include "Guarded.h"
#include "Messages.h"
#include "Oturum.h"
#include "Schema.h"
#include "StoppableWork.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

bool isBackedUpToday(const QString &database)
{
    const QList<BackupFile> all = backups(database);
    const QDate today = QDate::currentDate();
    return std::any_of(all.begin(), all.end(), [today](const BackupFile &backup) {
        return backup.kind == BackupKind::Daily && backup.made.date() == today;
    });
}

void replaceDamaged(Oturum &oturum, Messages &messages, const DatabaseError &error)
{
    const QString path = oturum.Veritabani->path();
    const std::optional<QString> backup = offerBackup(nullptr, messages, path, error.text());
    if (!backup.has_value())
        return;
    oturum.Veritabani.reset();
    restoreFromBackup(nullptr, messages, path, *backup);
    // The old one, when nothing was restored: it could be worked with so far.
    guarded(messages, nullptr, [&] { oturum.Veritabani = openCompany(path); });
}

} // namespace

bool backUpDaily(Oturum &oturum, Messages &messages)
{
    if (isBackedUpToday(oturum.Veritabani->path()))
        return true;
    try {
        StoppableWork work(nullptr, u"Günlük yedek"_s,
                           u"Veri tabanının günlük yedeği alınıyor..."_s);
        makeBackup(*oturum.Veritabani, BackupKind::Daily, work.progress());
    } catch (const Cancelled &) {
        // The next start of the day tries again.
    } catch (const DatabaseError &error) {
        if (error.cause() == DatabaseError::Cause::FileDamaged)
            replaceDamaged(oturum, messages, error);
        else
            messages.say(nullptr,
                         u"Bugünün yedeği alınamadı:\n%1\n\nÇalışmaya devam edebilirsiniz. Yedek, "
                         "programın bir sonraki açılışında yeniden denenir."_s.arg(error.text()),
                         MessageIcon::Exclamation, u"Günlük yedek"_s);
    }
    return oturum.Veritabani != nullptr;
}

} // namespace kuyum
