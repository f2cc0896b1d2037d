#pragma once

#ifndef Q_MOC_RUN // which would read all of Qt for each class of tests
#include <QApplication>
#include <QtTest>
#endif

#include <memory>

/// What the tests share: a program for all classes of a folder, a pinned environment, and a look
/// through everything that Qt warned about, so that a wiring or resource mistake fails the test
/// that ran into it.
namespace TestMain {

/// Pins platform, locale, time zone and resolution; call before the application object exists.
void pinEnvironment();

/// Makes one class of a program known to run(): "TestLineEdit" as "tst_lineedit".
class Registration
{
public:
    using Maker = std::unique_ptr<QObject> (*)();

    Registration(const QMetaObject &test, bool needsWidgets, Maker make);
};

/// Runs the class whose name the program bears, and returns the number of its failures, plus one
/// when Qt printed a warning that no program of ours may cause (a mistyped slot name, a layout set
/// twice, a missing resource).
int run(int argc, char **argv);

} // namespace TestMain

#define MZ_REGISTER_TEST(TestClass, needsWidgets)              \
    static const TestMain::Registration registered##TestClass( \
        TestClass::staticMetaObject, needsWidgets,             \
        []() -> std::unique_ptr<QObject> { return std::make_unique<TestClass>(); });

/// Behind a class of tests that needs widgets.
#define MZ_TEST(TestClass) MZ_REGISTER_TEST(TestClass, true)

/// Behind a class of tests that needs no window system.
#define MZ_GUILESS_TEST(TestClass) MZ_REGISTER_TEST(TestClass, false)
