#pragma once

#include <QMap>

/// The smallest positive number that is not yet a key of \a taken: a number given back is used
/// again.
template<typename Value>
int smallestFreeId(const QMap<int, Value> &taken)
{
    int id = 1;
    while (taken.contains(id))
        ++id;
    return id;
}
