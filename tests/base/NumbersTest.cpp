#include "TestRegistry.h"

#include <QtTest>

class NumbersTest : public QObject
{
    Q_OBJECT
};

KUYUM_TEST(NumbersTest)
#include "NumbersTest.moc"
