#include "TestRegistry.h"

#include "TakeOverProcess.h"
#include "TypedChoice.h"

#include <map>
#include <QApplication>
#include <QTest>

namespace kuyum {

static std::map<QString, TestRegistry::Factory> &factories()
{
    static std::map<QString, TestRegistry::Factory> map;
    return map;
}

TestRegistry::TestRegistry(const char *name, Factory factory)
{
    factories()[QString::fromLatin1(name)] = factory;
}

} // namespace kuyum

using namespace kuyum;

/// A take-over runs its steps in processes of the program itself, which is this
/// one in a test.
///
/// program [TestClass [QtTest arguments]]
int main(int argc, char **argv)
{
    if (const std::optional<int> result = runTakeOverStep(argc, argv))
        return *result;
    QApplication application(argc, argv);
    chooseEntriesAsTyped(application);
    QCoreApplication::setApplicationName(QStringLiteral("kuyum-tests"));
    QStringList arguments = QCoreApplication::arguments();
    QString only;
    if (arguments.size() > 1 && factories().contains(arguments[1]))
        only = arguments.takeAt(1);

    int failures = 0;
    for (const auto &[name, factory] : factories()) {
        if (only.isEmpty() || only == name)
            failures += QTest::qExec(factory().get(), arguments);
    }
    return failures == 0 ? 0 : 1;
}
