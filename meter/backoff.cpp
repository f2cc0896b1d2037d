#include "meter/backoff.h"

#include <algorithm>

int Backoff::next(double chance)
{
    const int seconds = m_seconds;
    m_seconds = std::min(2 * m_seconds, 60);
    return int(seconds * (800.0 + 400.0 * chance));
}
