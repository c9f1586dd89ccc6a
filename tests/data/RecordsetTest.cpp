#include "TestRegistry.h"

#include <QtTest>

class RecordsetTest : public QObject
{
    Q_OBJECT
};

KUYUM_TEST(RecordsetTest)
#include "RecordsetTest.moc"
