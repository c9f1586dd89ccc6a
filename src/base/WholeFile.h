#pragma once

#include <functional>
#include <QByteArray>
#include <QString>

class QIODevice;

/// A file that comes into its place whole or not at all; what was there before
/// stays until then. Throws std::runtime_error with a Turkish text.
class WholeFile
{
public:
    /// The kind is named where writing fails ("PDF"). Refuses a folder, and a
    /// place in a folder that is not there.
    WholeFile(const QString &kind, const QString &path);

    void write(const QByteArray &bytes) const;
    /// Writes all that the open device still has. Told how many bytes are
    /// written, written() may throw to give up.
    void write(QIODevice &source, const std::function<void(qint64 count)> &written = {}) const;

    [[noreturn]] void refuse(const QString &reason) const;
    [[noreturn]] void refuseFullDisk() const;

private:
    QString m_kind;
    QString m_path;
};
