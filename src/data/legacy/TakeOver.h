#pragma once

#include "Cancelled.h"
#include "DatabaseError.h"

#include <QObject>
#include <QString>

class QEventLoop;

namespace kuyum {

/// Takes a legacy database (.mdb) over into a new database file. The source is
/// only read. The target appears in one rename, after its content was compared
/// with a second reading of the source; until then, and after a failure, there
/// is no target.
///
/// The reading is done by this program itself in processes of their own, so
/// that a damaged file which breaks the reading library breaks nothing else.
class TakeOver : public QObject
{
    Q_OBJECT
public:
    /// program: this program's executable file; empty for the running one.
    TakeOver(const QString &source, const QString &target, const QString &program = {});
    ~TakeOver() override;

    /// Runs to the end, processing events meanwhile. Throws DatabaseError with
    /// the reason in Turkish, and Cancelled after cancel().
    void run();
    /// May be called from anything that run() lets happen.
    void cancel();
    /// After how many milliseconds without any progress the source counts as
    /// unreadable. The default grows with the file.
    void setStallLimit(int milliseconds) { m_stallLimit = milliseconds; }

    const QString &source() const { return m_source; }
    const QString &target() const { return m_target; }

Q_SIGNALS:
    /// How far it is, of 1000, and with which table.
    void progressed(int permille, const QString &table);
    /// A table was copied wholly.
    void tableCopied(const QString &name, qint64 rows);

private:
    void checkSource() const;
    void checkTarget() const;
    void runSteps();
    void removePart() const;

    QString m_source;
    QString m_target;
    QString m_part; ///< the file being made, beside the target
    QString m_program;
    int m_stallLimit = 0;
    bool m_cancelled = false;
    QEventLoop *m_loop = nullptr; ///< runs while the steps do
};

} // namespace kuyum
