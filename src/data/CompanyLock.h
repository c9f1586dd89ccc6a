#pragma once

#include <QString>

struct sqlite3;

namespace kuyum {

/// Tells every program, of whatever user, that a company is open: all that work
/// with it share the lock, and who puts another file in its place wants it
/// alone. The system frees it when a process ends, however it does.
///
/// It is held through the engine's own locks on an empty file beside the
/// company (".NAME.acik"), which the last one to let go removes.
class CompanyLock
{
public:
    enum class Kind { Shared, Alone };

    /// Throws DatabaseError, in Turkish, when another holds it otherwise. Where
    /// no file can be made nothing can be saved either: there a shared lock is
    /// none.
    CompanyLock(const QString &company, Kind kind);
    ~CompanyLock();
    CompanyLock(const CompanyLock &) = delete;
    CompanyLock &operator=(const CompanyLock &) = delete;

private:
    bool open(const QString &company);
    int take(Kind kind);
    void close();
    void removeFile();

    QString m_path;
    sqlite3 *m_file = nullptr;
};

} // namespace kuyum
