#include "TestRegistry.h"

#include <QtTest>

class SharedProceduresTest : public QObject
{
    Q_OBJECT
};

KUYUM_TEST(SharedProceduresTest)
#include "SharedProceduresTest.moc"
