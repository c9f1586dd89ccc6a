#pragma once

#include <QDate>
#include <QStringList>

namespace kuyum {

/// The help text that the users write for each other, `SiparisHelp.txt`
/// beside the registry, a piece of advice per line.
class HelpFile
{
public:
    explicit HelpFile(const QString &registryPath);

    /// Nothing when there is no file yet. Throws std::runtime_error when it
    /// cannot be read.
    QStringList lines() const;
    /// Adds a line, in the code and with the line ends that the file has; a
    /// missing file is made. Returns the line. Throws std::runtime_error.
    QString append(QDate date, const QString &text);

private:
    QByteArray bytes() const;

    QString m_path;
};

} // namespace kuyum
