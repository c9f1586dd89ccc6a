#include "BackupFiles.h"

#include "DatabaseError.h"
#include "FileDigest.h"
#include "Numbers.h"
#include "OutputPlace.h"
#include "ProcessLock.h"

#include <algorithm>
#include <array>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct KindName
{
    BackupKind kind;
    const char16_t *word; ///< in the file's name
    const char16_t *text; ///< on screens
};

constexpr std::array<KindName, 5> kindNames = {{
    {BackupKind::Daily, u"gunluk", u"Günlük"},
    {BackupKind::Manual, u"elle", u"Elle"},
    {BackupKind::BeforeRepair, u"onarim-oncesi", u"Onarım öncesi"},
    {BackupKind::BeforeRefresh, u"yenileme-oncesi", u"Yenileme öncesi"},
    {BackupKind::BeforeRestore, u"geriyukleme-oncesi", u"Geri yükleme öncesi"},
}};

constexpr auto ending = ".kuyum"_L1;

const KindName &nameOf(BackupKind kind)
{
    return *std::find_if(kindNames.begin(), kindNames.end(),
                         [kind](const KindName &name) { return name.kind == kind; });
}

/// What the names of the database's backups begin with. A database that does
/// not end as ours do keeps its ending, so that it stays apart from one of ours.
QString baseName(const QString &database)
{
    const QString name = QFileInfo(database).fileName();
    return name.endsWith(ending, Qt::CaseInsensitive) ? name.chopped(ending.size()) : name;
}

/// BASE-2026-11-23-071500-WORD.kuyum, and -2, -3 ... for more of one second;
/// what follows the name is the caller's pattern. The registry tells a database
/// without regard to case, and one that is gone has no other spelling to go by.
QRegularExpression namePattern(const QString &database, const QString &word, const QString &rest)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(
        u"(?i:"_s + QRegularExpression::escape(baseName(database)) +
        u")-(\\d{4}-\\d{2}-\\d{2}-\\d{6})-(%1)(?:-(\\d+))?\\.kuyum(?:%2)"_s.arg(word, rest)));
}

QString kindPattern()
{
    QStringList words;
    for (const KindName &name : kindNames)
        words.append(QString::fromUtf16(name.word));
    return words.join(u'|');
}

BackupKind kindOf(const QString &word)
{
    for (const KindName &name : kindNames) {
        if (word == QStringView(name.word))
            return name.kind;
    }
    return BackupKind::Manual;
}

const QString &momentFormat()
{
    static const QString format = u"yyyy-MM-dd-HHmmss"_s;
    return format;
}

struct NumberedBackup
{
    BackupFile file;
    int number; ///< of several of one second; 0 is the first
};

QList<NumberedBackup> numberedBackups(const QString &database)
{
    const QRegularExpression pattern = namePattern(database, kindPattern(), {});
    QList<NumberedBackup> found;
    const QDir folder(backupFolder(database));
    for (const QFileInfo &file : folder.entryInfoList(QDir::Files | QDir::Hidden)) {
        const QRegularExpressionMatch match = pattern.match(file.fileName());
        const QDateTime made = QDateTime::fromString(match.captured(1), momentFormat());
        if (match.hasMatch() && made.isValid()) {
            found.append({{file.filePath(), kindOf(match.captured(2)), made, file.size()},
                          match.captured(3).toInt()});
        }
    }
    std::sort(found.begin(), found.end(), [](const NumberedBackup &a, const NumberedBackup &b) {
        return std::tie(a.file.made, a.number) > std::tie(b.file.made, b.number);
    });
    return found;
}

} // namespace

QString backupKindText(BackupKind kind)
{
    return QString::fromUtf16(nameOf(kind).text);
}

QString backupSizeText(qint64 bytes)
{
    constexpr double megabyte = 1024 * 1024;
    return formatNumber(double(bytes) / megabyte, u"#,##0.0") + u" MB"_s;
}

QString backupFolder(const QString &database)
{
    return QFileInfo(database).absoluteDir().filePath(u"yedek"_s);
}

QList<BackupFile> backups(const QString &database)
{
    QList<BackupFile> result;
    for (const NumberedBackup &backup : numberedBackups(database))
        result.append(backup.file);
    return result;
}

bool hasDigest(const QString &backup)
{
    return QFileInfo::exists(digestPath(backup));
}

BackupPlace::BackupPlace(const QString &database)
    : m_database(database),
      m_folder(backupFolder(database)),
      m_lock(inFolder(m_folder, baseName(database) + u".kilit"_s))
{
    if (!QDir().mkpath(m_folder)) {
        throw DatabaseError(u"Yedek klasörü açılamadı (yazma izni ya da diskte yer yok): "_s +
                            QDir::toNativeSeparators(m_folder));
    }
    if (!takeProcessLock(m_lock)) {
        if (m_lock.error() == QLockFile::LockFailedError)
            throw DatabaseError(u"Bu veri tabanının yedeği şu anda başka bir yerde alınıyor ya da "
                                "geri yükleniyor."_s);
        throw DatabaseError(u"Yedek klasörüne yazılamıyor (yazma izni ya da diskte yer yok): "_s +
                            QDir::toNativeSeparators(m_folder));
    }
    removeLeftovers();
}

void BackupPlace::removeLeftovers() const
{
    // A copy that was not finished, with its journal; a file that was being
    // written; a digest whose backup never got its name.
    const QRegularExpression unfinished = namePattern(
        m_database, u"[a-z-]+"_s,
        u"(-journal|-wal|-shm)?\\.part(-journal|\\.[A-Za-z]{6})?|\\.sha256\\.[A-Za-z]{6}"_s);
    const QRegularExpression digest = namePattern(m_database, kindPattern(), u"\\.sha256"_s);
    QDir folder(m_folder);
    for (const QFileInfo &file : folder.entryInfoList(QDir::Files | QDir::Hidden)) {
        const bool orphan = digest.match(file.fileName()).hasMatch() &&
                            !QFileInfo::exists(digestedPath(file.filePath()));
        if (orphan || unfinished.match(file.fileName()).hasMatch())
            folder.remove(file.fileName());
    }
}

QString BackupPlace::freePath(const QString &word) const
{
    const QDateTime now = QDateTime::currentDateTime();
    const QString moment = now.toString(momentFormat());
    // Numbered over all kinds, so that those of one second keep their order.
    int number = 1;
    for (const NumberedBackup &backup : numberedBackups(m_database)) {
        if (backup.file.made.toString(momentFormat()) == moment)
            number = qMax(number, qMax(1, backup.number) + 1);
    }
    const QString stem = u"%1-%2-%3"_s.arg(baseName(m_database), moment, word);
    const auto path = [&] {
        return inFolder(m_folder, number > 1 ? stem + u'-' + QString::number(number) + ending
                                             : stem + ending);
    };
    while (QFileInfo::exists(path()))
        ++number;
    return path();
}

QString BackupPlace::freePath(BackupKind kind) const
{
    return freePath(QString::fromUtf16(nameOf(kind).word));
}

void BackupPlace::prune() const
{
    constexpr int keptDays = 14;
    // A clock that is wrong by a month must not leave a single one.
    constexpr qsizetype keptAlways = 3;
    const QDate oldest = QDate::currentDate().addDays(-keptDays);
    const QList<BackupFile> all = backups(m_database);
    for (qsizetype i = keptAlways; i < all.size(); ++i) {
        // One that does not let itself be removed is tried again tomorrow.
        if (all[i].made.date() < oldest && QFile::remove(all[i].path))
            QFile::remove(digestPath(all[i].path));
    }
}

} // namespace kuyum
