#include "TestRegistry.h"

#include <QtTest>

class DatesTest : public QObject
{
    Q_OBJECT
};

KUYUM_TEST(DatesTest)
#include "DatesTest.moc"
