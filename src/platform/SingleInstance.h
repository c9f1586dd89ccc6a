#pragma once

#include <QLockFile>
#include <QString>

namespace kuyum {

/// Lets one copy of the program run per user. A copy that crashed stands in
/// nobody's way.
class SingleInstance
{
public:
    explicit SingleInstance(const QString &lockPath = defaultLockPath());

    bool otherCopyRuns() const { return m_otherCopyRuns; }

    static QString defaultLockPath();

private:
    QLockFile m_lock;
    bool m_otherCopyRuns;
};

} // namespace kuyum
