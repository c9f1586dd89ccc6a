#include "TakeOverStepProcess.h"

using namespace Qt::StringLiterals;

namespace kuyum {

TakeOverStepProcess::TakeOverStepProcess(const QString &program, const QStringList &arguments,
                                         int stallLimit)
{
    m_process.setProgram(program);
    m_process.setArguments(arguments);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &TakeOverStepProcess::readLines);
    connect(&m_process, &QProcess::finished, this, &TakeOverStepProcess::end);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end();
    });
    m_stallWatch.setInterval(stallLimit);
    connect(&m_stallWatch, &QTimer::timeout, this, [this] {
        m_stalled = true;
        m_process.kill();
    });
}

TakeOverStepProcess::~TakeOverStepProcess()
{
    kill();
}

void TakeOverStepProcess::start()
{
    m_stallWatch.start();
    m_process.start();
}

void TakeOverStepProcess::goOn()
{
    m_stallWatch.start();
    m_process.write("\n");
}

void TakeOverStepProcess::kill()
{
    m_process.disconnect(this);
    m_stallWatch.stop();
    if (m_process.state() == QProcess::NotRunning)
        return;
    // Its file can be removed only when it lets go of it.
    m_process.kill();
    m_process.waitForFinished();
}

void TakeOverStepProcess::readLines()
{
    while (m_process.canReadLine())
        readLine(m_process.readLine().trimmed());
}

void TakeOverStepProcess::readLine(const QByteArray &line)
{
    const auto textAfter = [&line](int words) {
        qsizetype at = 0;
        for (; words > 0; --words)
            at = line.indexOf(' ', at) + 1;
        return QString::fromUtf8(line.mid(at));
    };
    const QList<QByteArray> words = line.split(' ');
    if (words[0] == "progress" && words.size() > 3) {
        m_share = qBound(m_share, words[1].toDouble() / qMax(1.0, words[2].toDouble()), 1.0);
        m_stallWatch.start();
        Q_EMIT moved(textAfter(3));
    } else if (words[0] == "table" && words.size() > 2) {
        m_stallWatch.start();
        Q_EMIT tableDone(textAfter(2), words[1].toLongLong());
    } else if (words[0] == "waiting") {
        m_stallWatch.stop();
    } else if (words[0] == "error") {
        m_reason = textAfter(1);
    }
    // Whatever else comes is the reading library's own and no sign of progress.
}

void TakeOverStepProcess::end()
{
    if (m_ended)
        return;
    readLines();
    m_stallWatch.stop();
    m_ended = true;
    const bool good = m_process.error() != QProcess::FailedToStart &&
                      m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    if (m_process.error() == QProcess::FailedToStart)
        m_failure = u"Aktarma başlatılamadı: "_s + m_process.program();
    else if (m_stalled)
        m_failure = u"Dosya hasarlı: okunurken ilerleme durdu."_s;
    else if (!good)
        m_failure = m_reason.isEmpty() ? u"Dosya hasarlı: okunamıyor."_s : m_reason;
    Q_EMIT ended();
}

} // namespace kuyum
