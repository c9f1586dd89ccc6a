#pragma once

#include <functional>
#include <QByteArray>
#include <QString>

class QIODevice;

namespace kuyum {

/// A file that comes into its place whole or not at all; what was there before
/// stays until then. Throws std::runtime_error with a Turkish text.
class WholeFile
{
public:
    enum class Readers {
        AsUsual,  ///< who may read it is the system's custom
        OwnerOnly ///< for what holds a company's data
    };

    /// The kind is named where writing fails ("PDF"). Refuses what
    /// outputRefusal() does; a link is followed.
    WholeFile(const QString &kind, const QString &path, Readers readers = Readers::AsUsual);

    void write(const QByteArray &bytes) const;
    /// Writes all that the open device still has. Told how many bytes are
    /// written, written() may throw to give up.
    void write(QIODevice &source, const std::function<void(qint64 count)> &written = {}) const;

    [[noreturn]] void refuse(const QString &reason) const;
    [[noreturn]] void refuseFullDisk() const;

private:
    QString m_kind;
    QString m_path;
    Readers m_readers;
};

} // namespace kuyum
