#include "TestRegistry.h"

#include <QtTest>

class DialectTest : public QObject
{
    Q_OBJECT
};

KUYUM_TEST(DialectTest)
#include "DialectTest.moc"
