#include "CompanyLock.h"

#include "DatabaseError.h"
#include "OutputPlace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Somebody opens, looks whether the file is held, or closes: moments.
constexpr int millisecondsToWait = 1000;

/// Out of sight where names that begin with a point are.
QString lockPath(const QString &company)
{
    const QFileInfo file(company);
    return file.dir().filePath(u'.' + file.fileName() + u".acik"_s);
}

/// Whether another one removed the file after it was opened here.
bool isRemoved(sqlite3 *file)
{
    int moved = 0;
    sqlite3_file_control(file, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

QString refusal(CompanyLock::Kind kind, int result, const QString &company, const QString &path)
{
    if (result != SQLITE_BUSY) {
        return u"Veri tabanının kilit dosyası açılamıyor: %1"_s.arg(QDir::toNativeSeparators(path));
    }
    const QString what = kind == CompanyLock::Kind::Alone
                             ? u"Bu veri tabanı başka bir program tarafından kullanılıyor; önce "
                               "açık olduğu her yerde kapatın: "_s
                             : u"Bu veri tabanı şu anda geri yükleniyor; biraz sonra yeniden "
                               "deneyin: "_s;
    return what + QDir::toNativeSeparators(company);
}

} // namespace

CompanyLock::CompanyLock(const QString &company, Kind kind)
    : m_path(lockPath(resolvedPlace(company)))
{
    int result = SQLITE_OK;
    do {
        close();
        if (!open(company)) {
            if (kind == Kind::Shared && !QFileInfo::exists(m_path))
                return;
            throw DatabaseError(refusal(kind, SQLITE_CANTOPEN, company, m_path));
        }
        result = take(kind);
    } while (result == SQLITE_OK && isRemoved(m_file));
    if (result == SQLITE_OK)
        return;
    close();
    throw DatabaseError(refusal(kind, result, company, m_path));
}

CompanyLock::~CompanyLock()
{
    removeFile();
    close();
}

bool CompanyLock::open(const QString &company)
{
    // Who may open the company may hold its lock.
    const QFile::Permissions permissions =
        QFile::permissions(company) | QFile::ReadOwner | QFile::WriteOwner;
    QFile made(m_path);
    if (made.open(QIODevice::WriteOnly | QIODevice::NewOnly, permissions)) {
        made.close();
        QFile::setPermissions(m_path, permissions); // whatever the user's mask is
    }
    // As an absolute path it is no address and no word of the engine's own.
    const int opened =
        sqlite3_open_v2(m_path.toUtf8().constData(), &m_file, SQLITE_OPEN_READWRITE, nullptr);
    if (opened == SQLITE_OK) {
        sqlite3_busy_timeout(m_file, millisecondsToWait);
        return true;
    }
    close();
    return false;
}

int CompanyLock::take(Kind kind)
{
    const char *how = kind == Kind::Alone ? "PRAGMA journal_mode = MEMORY; BEGIN EXCLUSIVE"
                                          : "BEGIN; SELECT count(*) FROM sqlite_master";
    return sqlite3_exec(m_file, how, nullptr, nullptr, nullptr);
}

void CompanyLock::close()
{
    sqlite3_close(m_file);
    m_file = nullptr;
}

/// Only who holds the file alone may remove it, and whoever opened it before
/// that sees that it is gone.
void CompanyLock::removeFile()
{
    if (m_file == nullptr)
        return;
    sqlite3_busy_timeout(m_file, 0);
    if (sqlite3_get_autocommit(m_file) == 0)
        sqlite3_exec(m_file, "ROLLBACK", nullptr, nullptr, nullptr);
    if (take(Kind::Alone) != SQLITE_OK || isRemoved(m_file) || QFile::remove(m_path))
        return;
    // A system on which an open file cannot be removed lets nobody remove one
    // that another has open either.
    close();
    QFile::remove(m_path);
}

} // namespace kuyum
