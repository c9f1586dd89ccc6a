#pragma once

#include <memory>
#include <QtGlobal>
#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace kuyum {

/// A disk that gets full, for the databases that are opened while this lives:
/// a layer below the engine that takes so many bytes more and then answers that
/// there is no room. Connections opened before keep their own disk.
///
///     FullDisk disk;
///     Oturum oturum; oturum.Veritabani = openCompany(path);
///     disk.takeBytes(5000);
///     ... a save: fails, and nothing is lost
///     disk.empty();
///
/// One at a time, and it must outlive the connections opened in its life.
class FullDisk
{
public:
    FullDisk();
    ~FullDisk();
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

    /// Room for so many bytes, counted over all writes from now on.
    void takeBytes(qint64 count);
    /// Room for so many writes.
    void takeWrites(qint64 count);
    /// Room for everything again.
    void empty();
    /// How many writes came since the room was set.
    qint64 writes() const;
    /// Whether a write found no room since the room was set.
    bool wasFull() const;

    struct Room;

private:
    std::unique_ptr<Room> m_room;
};

#ifdef Q_OS_UNIX

/// The same for plain files: while it lives no file can be written beyond its
/// first bytes.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit small{bytes, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_signal);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_limit = {};
    void (*m_signal)(int);
};
#endif

} // namespace kuyum
