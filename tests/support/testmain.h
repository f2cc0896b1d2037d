#pragma once

#include <QApplication>
#include <QCoreApplication>
#include <QtTest>

/// What every test program shares: a pinned environment, and a look through everything that Qt
/// warned about, so that a wiring or resource mistake fails the test that ran into it.
namespace TestMain {

/// Pins platform, locale, time zone and resolution; call before the application object exists.
void pinEnvironment();

/// Runs \a test and returns the number of its failures, plus one when Qt printed a warning that no
/// program of ours may cause (a mistyped slot name, a layout set twice, a missing resource).
int run(QObject &test, int argc, char **argv);

} // namespace TestMain

/// The main function of a test that needs widgets.
#define MZ_TEST_MAIN(TestClass)                 \
    int main(int argc, char **argv)             \
    {                                           \
        TestMain::pinEnvironment();             \
        QApplication app(argc, argv);           \
        TestClass test;                         \
        return TestMain::run(test, argc, argv); \
    }

/// The main function of a test that needs no window system.
#define MZ_TEST_GUILESS_MAIN(TestClass)         \
    int main(int argc, char **argv)             \
    {                                           \
        TestMain::pinEnvironment();             \
        QCoreApplication app(argc, argv);       \
        TestClass test;                         \
        return TestMain::run(test, argc, argv); \
    }
