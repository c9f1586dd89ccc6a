#include "TakeOver.h"

#include "LegacyPath.h"
#include "OutputPlace.h"
#include "ProcessLock.h"
#include "TakeOverStepProcess.h"
#include "TakeOverSteps.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QLockFile>

using namespace Qt::StringLiterals;

namespace kuyum {

TakeOver::TakeOver(const QString &source, const QString &target, const QString &program)
    : m_source(QFileInfo(source).absoluteFilePath()),
      m_target(resolvedPlace(target)),
      m_part(m_target + u".aktarim"_s),
      m_program(program.isEmpty() ? QCoreApplication::applicationFilePath() : program)
{
}

TakeOver::~TakeOver() = default;

void TakeOver::cancel()
{
    m_cancelled = true;
    if (m_loop != nullptr)
        m_loop->quit();
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
    // Opened again, it would be taken for a file that is still to be taken over.
    if (isLegacyPath(m_target))
        throw DatabaseError(u"Hedef dosyaya .kuyum ile biten bir ad verin: "_s + m_target);
    // The engine would play what a lost database left into the new one.
    for (const QString &ending : {u"-journal"_s, u"-wal"_s}) {
        if (QFileInfo::exists(m_target + ending))
            throw DatabaseError(u"Hedefin yanında başka bir veri tabanının yarım kalmış kaydı "
                                "duruyor: "_s +
                                m_target + ending);
    }
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
    QLockFile lock(m_part + u".kilit"_s);
    if (!takeProcessLock(lock)) {
        if (lock.error() == QLockFile::LockFailedError)
            throw DatabaseError(u"Bu dosya şu anda başka bir yerde aktarılıyor: "_s + m_target);
        throw DatabaseError(u"Hedef klasöre yazılamıyor (yazma izni ya da diskte yer yok): "_s +
                            QFileInfo(m_target).path());
    }
    removePart();
    const QFileInfo before(m_source);
    try {
        runSteps();
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

void TakeOver::runSteps()
{
    if (m_cancelled)
        throw Cancelled(u"Aktarma iptal edildi."_s);
    constexpr qint64 bytesPerMillisecond = 1000;
    const int stallLimit = m_stallLimit > 0
                               ? m_stallLimit
                               : 20000 + int(QFileInfo(m_source).size() / bytesPerMillisecond);
    TakeOverStepProcess copy(m_program, {TakeOverSteps::copyWord(), m_source, m_part}, stallLimit);
    TakeOverStepProcess proof(m_program, {TakeOverSteps::proveWord(), m_source, m_part},
                              stallLimit);
    const auto tellProgress = [&](const QString &table) {
        Q_EMIT progressed(int(600 * copy.share() + 400 * proof.share()), table);
    };
    QEventLoop loop;
    m_loop = &loop;
    connect(&copy, &TakeOverStepProcess::moved, this, tellProgress);
    connect(&proof, &TakeOverStepProcess::moved, this, tellProgress);
    connect(&copy, &TakeOverStepProcess::tableDone, this, &TakeOver::tableCopied);
    connect(&copy, &TakeOverStepProcess::ended, &loop, [&] {
        if (copy.failure().isEmpty())
            proof.goOn();
        else
            loop.quit();
    });
    connect(&proof, &TakeOverStepProcess::ended, &loop, &QEventLoop::quit);
    copy.start();
    proof.start();
    if (!copy.hasEnded() && !proof.hasEnded())
        loop.exec();
    m_loop = nullptr;
    copy.kill();
    proof.kill();

    if (m_cancelled)
        throw Cancelled(u"Aktarma iptal edildi."_s);
    for (const TakeOverStepProcess *step : {&copy, &proof}) {
        if (!step->failure().isEmpty())
            throw DatabaseError(u"%1 (%2)"_s.arg(step->failure(), m_source));
    }
    // A proof that says yes before there is anything to prove is none.
    if (!copy.hasEnded() || !proof.hasEnded())
        throw DatabaseError(u"Aktarma yarıda kaldı: "_s + m_source);
}

} // namespace kuyum
