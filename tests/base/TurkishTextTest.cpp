#include "TestRegistry.h"

#include <QtTest>

class TurkishTextTest : public QObject
{
    Q_OBJECT
};

KUYUM_TEST(TurkishTextTest)
#include "TurkishTextTest.moc"
