#include "TakeOverSteps.h"

using namespace Qt::StringLiterals;

namespace kuyum {

const QString &TakeOverSteps::copyWord()
{
    static const QString word = u"aktar-oku"_s;
    return word;
}

const QString &TakeOverSteps::proveWord()
{
    static const QString word = u"aktar-kanit"_s;
    return word;
}

void TakeOverSteps::Reporter::row(const QString &table)
{
    constexpr qint64 rowsPerLine = 500;
    if (++m_done % rowsPerLine == 0)
        alive(table);
}

void TakeOverSteps::Reporter::alive(const QString &table)
{
    m_write("progress " + QByteArray::number(m_done) + ' ' + QByteArray::number(m_total) + ' ' +
            table.toUtf8());
}

void TakeOverSteps::Reporter::tableDone(const QString &table, qint64 rows)
{
    m_write("table " + QByteArray::number(rows) + ' ' + table.toUtf8());
}

void TakeOverSteps::Reporter::waitForCopy()
{
    m_write("waiting");
    m_wait();
}

} // namespace kuyum
