#pragma once

/// How long to wait before the next try to reach something: 1, 2, 4 … 60 s, each up to a fifth
/// shorter or longer, so that many programs that lost the same network do not come back as one.
class Backoff
{
public:
    /// The next wait in ms; \a chance from 0 to 1 says where in its range.
    int next(double chance);
    /// Begins anew with the shortest wait.
    void reset() { m_seconds = 1; }

private:
    int m_seconds = 1;
};
