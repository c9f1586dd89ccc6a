#pragma once

#include <QProcess>
#include <QTimer>

namespace kuyum {

/// One step of a take-over in a process of its own, watched: it ends when it
/// breaks, refuses, or makes no progress for too long.
class TakeOverStepProcess : public QObject
{
    Q_OBJECT
public:
    TakeOverStepProcess(const QString &program, const QStringList &arguments, int stallLimit);
    ~TakeOverStepProcess() override;

    void start();
    /// Lets a step that waits for the other one go on.
    void goOn();
    void kill();

    bool hasEnded() const { return m_ended; }
    /// Why it failed, in Turkish; empty while it runs and after a success.
    const QString &failure() const { return m_failure; }
    double share() const { return m_share; } ///< how much of it is done, up to 1

Q_SIGNALS:
    void moved(const QString &table);
    void tableDone(const QString &name, qint64 rows);
    void ended();

private:
    void readLines();
    void readLine(const QByteArray &line);
    void end();

    QProcess m_process;
    QTimer m_stallWatch;
    QString m_reason;
    QString m_failure;
    double m_share = 0;
    bool m_stalled = false;
    bool m_ended = false;
};

} // namespace kuyum
