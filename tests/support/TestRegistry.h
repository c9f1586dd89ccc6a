#pragma once

#include <memory>
#include <QObject>
#include <QString>

namespace kuyum {

/// Makes a test class known to its folder's test program, which runs the
/// classes named on its command line, or all of them.
class TestRegistry
{
public:
    using Factory = std::unique_ptr<QObject> (*)();
    TestRegistry(const char *name, Factory factory);
};

#define KUYUM_TEST(TestClass)                                                                      \
    static const TestRegistry TestClass##Registration(                                             \
        #TestClass, [] { return std::unique_ptr<QObject>(new TestClass); });

} // namespace kuyum
