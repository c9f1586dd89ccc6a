#include "TakeOver.h"

#include "TakeOverSteps.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>
#include <QTimer>

using namespace Qt::StringLiterals;

/// One of the two processes while it runs.
struct TakeOver::Step
{
    int from = 0; ///< its part of the whole way, of 1000
    int to = 0;
    QString reason; ///< why it refuses
    bool stalled = false;
    QTimer stallWatch;
};

TakeOver::TakeOver(const QString &source, const QString &target, const QString &program)
    : m_source(QFileInfo(source).absoluteFilePath()),
      m_target(QFileInfo(target).absoluteFilePath()),
      m_part(m_target + u".aktarim"_s),
      m_program(program.isEmpty() ? QCoreApplication::applicationFilePath() : program)
{
}

TakeOver::~TakeOver() = default;

void TakeOver::cancel()
{
    m_cancelled = true;
    if (m_process != nullptr)
        m_process->kill();
}

void TakeOver::checkSource() const
{
    const QFileInfo file(m_source);
    if (!file.exists())
        throw DatabaseError(u"Dosya bulunamadı: "_s + m_source);
    if (!file.isFile())
        throw DatabaseError(u"Bu bir dosya değil: "_s + m_source);
    if (file.size() == 0)
        throw DatabaseError(u"Dosya boş: "_s + m_source);
    if (!QFile(m_source).open(QFile::ReadOnly))
        throw DatabaseError(u"Dosya okunamıyor: "_s + m_source);
}

void TakeOver::checkTarget() const
{
    if (QFileInfo::exists(m_target))
        throw DatabaseError(u"Hedef dosya zaten var: "_s + m_target);
    if (!QFileInfo(QFileInfo(m_target).path()).isDir())
        throw DatabaseError(u"Hedef klasör bulunamadı: "_s + QFileInfo(m_target).path());
}

void TakeOver::removePart() const
{
    QFile::remove(m_part + u"-journal"_s);
    if (QFile::exists(m_part) && !QFile::remove(m_part))
        throw DatabaseError(u"Yarım kalmış dosya silinemiyor: "_s + m_part);
}

void TakeOver::run()
{
    m_cancelled = false;
    checkSource();
    checkTarget();
    // One that was left by a program that was ended counts for nothing.
    QLockFile lock(m_part + u".kilit"_s);
    lock.setStaleLockTime(0);
    if (!lock.tryLock()) {
        if (lock.error() == QLockFile::LockFailedError)
            throw DatabaseError(u"Bu dosya şu anda başka bir yerde aktarılıyor: "_s + m_target);
        throw DatabaseError(u"Hedef klasöre yazılamıyor (yazma izni ya da diskte yer yok): "_s +
                            QFileInfo(m_target).path());
    }
    removePart();
    const QFileInfo before(m_source);
    try {
        constexpr int copyShare = 600;
        runStep(TakeOverSteps::copyWord(), 0, copyShare);
        runStep(TakeOverSteps::proveWord(), copyShare, 1000);
        const QFileInfo after(m_source);
        if (after.size() != before.size() || after.lastModified() != before.lastModified())
            throw DatabaseError(u"Aktarılırken dosya değişti; eski programı kapatıp yeniden "
                                "deneyin: "_s +
                                m_source);
        checkTarget();
        if (!QFile::rename(m_part, m_target))
            throw DatabaseError(u"Aktarılan dosya yerine konamadı: "_s + m_target);
    } catch (...) {
        removePart();
        throw;
    }
}

void TakeOver::readLine(const QByteArray &line, Step &step)
{
    const auto rest = [&line](qsizetype words) {
        qsizetype at = 0;
        for (; words > 0 && at >= 0; --words)
            at = line.indexOf(' ', at) + 1;
        return QString::fromUtf8(line.mid(at));
    };
    const QList<QByteArray> words = line.split(' ');
    if (words[0] == "progress" && words.size() > 3) {
        const double total = qMax(1.0, words[2].toDouble());
        const double share = qMin(1.0, words[1].toDouble() / total);
        Q_EMIT progressed(step.from + int(share * (step.to - step.from)), rest(3));
    } else if (words[0] == "table" && words.size() > 2) {
        Q_EMIT tableCopied(rest(2), words[1].toLongLong());
    } else if (words[0] == "error") {
        step.reason = rest(1);
    } else {
        return; // the library's own remarks are no sign of progress
    }
    step.stallWatch.start();
}

void TakeOver::runStep(const QString &word, int from, int to)
{
    if (m_cancelled)
        throw TakeOverCancelled();
    Step step;
    step.from = from;
    step.to = to;
    QProcess process;
    QEventLoop loop;
    process.setProgram(m_program);
    process.setArguments({word, m_source, m_part});
    process.setStandardErrorFile(QProcess::nullDevice());
    connect(&process, &QProcess::readyReadStandardOutput, &loop, [&] {
        while (process.canReadLine())
            readLine(process.readLine().trimmed(), step);
    });
    connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    connect(&process, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            loop.quit();
    });
    connect(&step.stallWatch, &QTimer::timeout, &loop, [&] {
        step.stalled = true;
        process.kill();
    });
    constexpr qint64 bytesPerMillisecond = 1000;
    step.stallWatch.setInterval(
        m_stallLimit > 0 ? m_stallLimit
                         : 20000 + int(QFileInfo(m_source).size() / bytesPerMillisecond));
    step.stallWatch.start();
    process.start();
    m_process = &process;
    if (process.state() != QProcess::NotRunning)
        loop.exec();
    m_process = nullptr;
    while (process.canReadLine())
        readLine(process.readLine().trimmed(), step);

    if (m_cancelled)
        throw TakeOverCancelled();
    if (process.error() == QProcess::FailedToStart)
        throw DatabaseError(u"Aktarma başlatılamadı: "_s + m_program);
    if (step.stalled)
        throw DatabaseError(u"Dosya hasarlı: okunurken ilerleme durdu: "_s + m_source);
    if (!step.reason.isEmpty())
        throw DatabaseError(u"%1 (%2)"_s.arg(step.reason, m_source));
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw DatabaseError(u"Dosya hasarlı: okunamıyor: "_s + m_source);
}
