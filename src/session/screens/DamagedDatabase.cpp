#include "DamagedDatabase.h"

#include "Backup.h"
#include "Guarded.h"
#include "Messages.h"
#include "StoppableWork.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr auto title = u"Veri tabanı açılamıyor";

/// The trouble and the file it is with, which it may name itself.
QString troubleWith(const QString &database, const QString &trouble)
{
    const QString file = QDir::toNativeSeparators(database);
    return trouble.contains(database) || trouble.contains(file) ? trouble : trouble + u'\n' + file;
}

std::optional<BackupFile> findGoodBackup(QWidget *parent, const QString &database)
{
    StoppableWork work(parent, QString::fromUtf16(title), u"Yedekler denetleniyor..."_s);
    return newestGoodBackup(database, work.progress());
}

} // namespace

std::optional<QString> offerBackup(QWidget *parent, Messages &messages, const QString &database,
                                   const QString &trouble)
{
    std::optional<BackupFile> backup;
    try {
        backup = findGoodBackup(parent, database);
    } catch (const Cancelled &) {
        return std::nullopt;
    }
    if (!backup.has_value()) {
        messages.say(
            parent,
            u"%1\n\nGeri yüklenebilecek sağlam bir yedek bulunamadı. Yedeklerin yeri:\n%2"_s.arg(
                troubleWith(database, trouble), QDir::toNativeSeparators(backupFolder(database))),
            MessageIcon::Critical, QString::fromUtf16(title));
        return std::nullopt;
    }
    // No is the answer of a hurried Enter: what was entered after the backup
    // would be out of sight.
    const bool wanted = messages.ask(
        parent,
        u"%1\n\nDenetimden geçen en yeni yedek:\n%2\n%3, %4, %5\n\nBu yedek geri yüklensin "
        "mi? Yedekten sonra girilenler onda yoktur; şimdiki dosya silinmez, saklanır."_s.arg(
            troubleWith(database, trouble), QFileInfo(backup->path).fileName(),
            backupKindText(backup->kind), backup->made.toString(u"dd.MM.yyyy HH:mm"_s),
            backupSizeText(backup->size)),
        MessageIcon::Critical, QString::fromUtf16(title), MessageAnswer::No);
    return wanted ? std::optional(backup->path) : std::nullopt;
}

bool restoreFromBackup(QWidget *parent, Messages &messages, const QString &database,
                       const QString &backup)
{
    QString kept;
    const bool restored = guarded(messages, parent, [&] {
        StoppableWork work(parent, u"Geri yükleme"_s, u"Yedek geri yükleniyor..."_s);
        kept = restoreBackup(database, backup, work.progress());
    });
    if (!restored)
        return false;
    messages.say(parent,
                 kept.isEmpty() ? u"Yedek geri yüklendi."_s
                                : u"Yedek geri yüklendi. Önceki dosya burada saklandı:\n%1"_s.arg(
                                      QDir::toNativeSeparators(kept)),
                 MessageIcon::Information, u"Geri yükleme"_s);
    return true;
}

} // namespace kuyum
