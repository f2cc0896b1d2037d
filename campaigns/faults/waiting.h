#pragma once

#include <QtTest>

/// Processes events until \a condition holds, \a timeout ms at most. Whoever does not look at the
/// answer checks afterwards what the condition was for.
template<typename Condition>
bool waitFor(Condition condition, int timeout)
{
    return QTest::qWaitFor(condition, timeout);
}
